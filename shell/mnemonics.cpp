// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/mnemonics.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStackedWidget>
#include <QTabBar>

#include <algorithm>
#include <functional>
#include <map>
#include <set>

namespace mnemonics {

namespace {

bool isLatin(QChar letter) { return letter.isLetter() && letter < QChar(0x80); }

bool beginsWord(const QString &text, qsizetype at) {
    return at == 0 || !text[at - 1].isLetterOrNumber();
}

/// Whether the text is written in a script in which nobody can type its letters with Alt.
bool isForeign(const QString &text) {
    return std::any_of(text.begin(), text.end(), [](QChar each) {
        return each.isLetter() && each.script() != QChar::Script_Latin;
    });
}

/// Whether a word of a name in camel case begins here: "Record", "FPS" and "Export" in
/// "ActionRecordFPSExport".
bool beginsCamelWord(const QString &name, qsizetype at) {
    const auto isUpper = [&name](qsizetype place) {
        return place >= 0 && place < name.size() && name[place].isUpper();
    };
    return isUpper(at) && (!isUpper(at - 1) || (at + 1 < name.size() && !isUpper(at + 1)));
}

/// The letters that may stand for the text, upper case, best first: of a name's words the last one
/// says most.
QString candidates(const Bearer &bearer) {
    const bool foreign = isForeign(bearer.text);
    const QString &source = foreign ? bearer.latinName : bearer.text;
    QString initials;
    QString others;
    for (qsizetype at = 0; at < source.size(); ++at) {
        if (!isLatin(source[at]))
            continue;
        if (foreign && beginsCamelWord(source, at))
            initials.prepend(source[at]);
        else if (!foreign && beginsWord(source, at))
            initials += source[at].toUpper();
        else
            others += source[at].toUpper();
    }
    QString unique;
    for (const QChar letter : initials + others)
        if (!unique.contains(letter))
            unique += letter;
    return unique;
}

QString withMark(QString text, QChar letter) {
    text.replace(QLatin1Char('&'), QLatin1String("&&"));
    if (letter.isNull())
        return text;
    if (isForeign(text))
        return text + QStringLiteral("(&%1)").arg(letter);
    qsizetype place = -1;
    for (qsizetype at = text.size() - 1; at >= 0; --at)
        if (text[at].toUpper() == letter &&
            (place < 0 || beginsWord(text, at) || !beginsWord(text, place)))
            place = at;
    return text.insert(place, QLatin1Char('&'));
}

/// Who has which letter: a matching that grows by one bearer at a time, with those who came before
/// moving to another letter of theirs where that makes room.
class Choice {
public:
    explicit Choice(std::vector<QString> wishes) : wishes_(std::move(wishes)) {}

    bool place(std::size_t bearer) {
        for (const QChar letter : wishes_[bearer])
            if (!owner_.contains(letter)) {
                owner_[letter] = bearer;
                return true;
            }
        std::set<QChar> asked;
        return makeRoom(bearer, asked);
    }

    QChar letterOf(std::size_t bearer) const {
        for (const auto &[letter, owner] : owner_)
            if (owner == bearer)
                return letter;
        return {};
    }

private:
    bool makeRoom(std::size_t bearer, std::set<QChar> &asked) {
        for (const QChar letter : wishes_[bearer]) {
            if (!asked.insert(letter).second)
                continue;
            const auto held = owner_.find(letter);
            if (held != owner_.end() && !makeRoom(held->second, asked))
                continue;
            owner_[letter] = bearer;
            return true;
        }
        return false;
    }

    std::vector<QString> wishes_;
    std::map<QChar, std::size_t> owner_;
};

/// A group of bearers whose texts are set once the whole group is known.
class Group {
public:
    void add(const QString &text, const QString &objectName,
             std::function<void(const QString &)> set) {
        // The prefix in lower case is the kind ("radio", "menuitem"), the same for many.
        qsizetype begin = 0;
        while (begin < objectName.size() && !objectName[begin].isUpper())
            ++begin;
        bearers_.push_back({text, objectName.mid(begin)});
        setters_.push_back(std::move(set));
    }

    /// The letters taken by the group.
    QString apply(const QString &taken) {
        const std::vector<QString> texts = marked(bearers_, taken);
        QString letters;
        for (std::size_t each = 0; each < texts.size(); ++each) {
            setters_[each](texts[each]);
            letters += QKeySequence::mnemonic(texts[each]).toString().right(1);
        }
        return letters;
    }

private:
    std::vector<Bearer> bearers_;
    std::vector<std::function<void(const QString &)>> setters_;
};

void addItems(Group &group, const QList<QAction *> &items) {
    for (QAction *item : items)
        if (!item->isSeparator())
            group.add(item->text(), item->menu() ? item->menu()->objectName() : item->objectName(),
                      [item](const QString &text) { item->setText(text); });
}

void addButton(Group &group, QAbstractButton &button) {
    group.add(button.text(), button.objectName(),
              [&button](const QString &text) { button.setText(text); });
}

} // namespace

std::vector<QString> marked(const std::vector<Bearer> &bearers, const QString &taken) {
    std::vector<QString> wishes;
    for (const Bearer &bearer : bearers) {
        QString letters = candidates(bearer);
        for (const QChar letter : taken)
            letters.remove(letter);
        wishes.push_back(letters);
    }
    Choice choice(std::move(wishes));
    for (std::size_t bearer = 0; bearer < bearers.size(); ++bearer)
        choice.place(bearer);
    std::vector<QString> texts;
    texts.reserve(bearers.size());
    for (std::size_t bearer = 0; bearer < bearers.size(); ++bearer)
        texts.push_back(withMark(bearers[bearer].text, choice.letterOf(bearer)));
    return texts;
}

QString mark(const QMenuBar &bar, QTabBar &tabs, const QStackedWidget &pages,
             std::initializer_list<QAbstractButton *> beneath) {
    for (const QMenu *menu : bar.findChildren<QMenu *>()) {
        Group items;
        addItems(items, menu->actions());
        items.apply({});
    }
    Group always;
    for (int tab = 0; tab < tabs.count(); ++tab)
        always.add(tabs.tabText(tab), pages.widget(tab)->objectName(),
                   [&tabs, tab](const QString &text) { tabs.setTabText(tab, text); });
    addItems(always, bar.actions());
    for (QAbstractButton *button : beneath)
        addButton(always, *button);
    return always.apply({});
}

void mark(const QWidget &page, const QString &taken,
          std::initializer_list<const QWidget *> without) {
    Group controls;
    for (QWidget *each : page.findChildren<QWidget *>()) {
        if (std::ranges::any_of(without, [each](const QWidget *part) {
                return part == each || part->isAncestorOf(each);
            }))
            continue;
        if (auto *button = qobject_cast<QAbstractButton *>(each);
            button && !button->text().isEmpty())
            addButton(controls, *button);
        if (auto *label = qobject_cast<QLabel *>(each); label && label->buddy())
            controls.add(label->text(), label->objectName(),
                         [label](const QString &text) { label->setText(text); });
    }
    controls.apply(taken);
}

} // namespace mnemonics
