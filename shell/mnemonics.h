// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <initializer_list>
#include <vector>

class QAbstractButton;
class QMenuBar;
class QStackedWidget;
class QTabBar;
class QWidget;

/// Mnemonics: the letter of a menu, tab or control that Alt reaches. They are chosen here and not
/// by translators, because a text serves in several places and each place has its own neighbours;
/// so no two of them clash in any language, and texts stay free of marks elsewhere.
namespace mnemonics {

/// A text and a Latin name of what bears it: a script without Latin letters takes its letter from
/// there and shows it in parentheses behind the text, as its readers are used to.
struct Bearer {
    QString text;
    QString latinName;
};

/// The texts with their marks, in the same order: each letter at most once and none of `taken`
/// (upper case). A word's initial is preferred, earlier bearers choose first, but nobody goes
/// without a letter as long as any choice of letters serves all.
std::vector<QString> marked(const std::vector<Bearer> &bearers, const QString &taken);

/// Marks what is on the screen whichever page is, which is one group: the menu bar, the tabs over
/// `pages`, and the buttons beneath these; the letters that it took. The items of each menu are a
/// group of their own.
QString mark(const QMenuBar &bar, QTabBar &tabs, const QStackedWidget &pages,
             std::initializer_list<QAbstractButton *> beneath);

/// Marks the controls of a page or a dialog: buttons that show a text, and labels that have a
/// buddy. Those that are or lie within one of `without` get none: a page has more of them than
/// there are letters, and these are in a menu as well.
void mark(const QWidget &page, const QString &taken = {},
          std::initializer_list<const QWidget *> without = {});

} // namespace mnemonics
