// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/marks/key_marks.h"

#include <QKeySequence>
#include <QLocale>

namespace {

constexpr Qt::KeyboardModifiers commanding =
    Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

/// How many presses after it belong to the character: a sequence may be longer, but then goes on
/// with plain keys, which are not shown anyway.
constexpr int afterDeadKey = 1;
constexpr int afterCompose = 2;

bool commandsByItself(int key) {
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Delete:
        return true;
    default:
        return key >= Qt::Key_F1 && key <= Qt::Key_F35;
    }
}

bool asksForNumber(const KeyPress &press) {
    return press.key == Qt::Key_U && press.modifiers.testFlag(Qt::ControlModifier) &&
           press.modifiers.testFlag(Qt::ShiftModifier);
}

} // namespace

bool mayBeShown(const KeyPress &press) {
    if (press.key == 0 || press.isDead || press.isCompose || asksForNumber(press))
        return false;
    if (press.onOtherLevel || press.onNumberPad)
        return false;
    return commandsByItself(press.key) || (press.modifiers & commanding);
}

QString nameOf(const KeyPress &press) {
    // The toolkit calls Super "Meta", which no keyboard has.
    const QString super =
        press.modifiers.testFlag(Qt::MetaModifier) ? QStringLiteral("Super+") : QString();
    const QKeyCombination rest(press.modifiers & ~Qt::KeyboardModifiers(Qt::MetaModifier),
                               static_cast<Qt::Key>(press.key));
    return super + QKeySequence(rest).toString(QKeySequence::NativeText);
}

bool KeyTrail::isOfACharacter(const KeyPress &press) {
    const bool commands = bool(press.modifiers & commanding);
    if (asksForNumber(press)) {
        takesNumber_ = true;
        return true;
    }
    if (takesNumber_) {
        // Its digits come with both keys held, or with none, and then something else ends it.
        if (press.modifiers.testFlag(Qt::ControlModifier) &&
            press.modifiers.testFlag(Qt::ShiftModifier))
            return true;
        takesNumber_ = !commands && !commandsByItself(press.key) && press.key != Qt::Key_Space;
        return !commands;
    }
    if (press.isDead || press.isCompose) {
        presses_ = press.isDead ? afterDeadKey : afterCompose;
        return true;
    }
    if (presses_ == 0)
        return false;
    presses_ = commands ? 0 : presses_ - 1;
    return !commands;
}

void KeyTrail::take(const Timed<KeyPress> &press) {
    if (isOfACharacter(press.what) || !mayBeShown(press.what)) {
        interrupted_ = true;
        return;
    }
    const bool again =
        last_ && !interrupted_ && last_->what == press.what && press.time - last_->time < lasts;
    count_ = again ? count_ + 1 : 1;
    last_ = press;
    interrupted_ = false;
}

std::optional<Plate> KeyTrail::at(MarkTime now) const {
    if (!last_ || now - last_->time >= lasts)
        return {};
    const QString name = nameOf(last_->what);
    return Plate{count_ == 1 ? name
                             : QStringLiteral("%1 ×%2").arg(name, QLocale().toString(count_))};
}
