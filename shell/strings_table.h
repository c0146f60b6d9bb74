// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// The strings tables, one for each language, compiled into the program. Exactly one is installed,
/// with none beneath it: a key that it lacks shows as the key, and is so found and mended.
namespace strings_table {

/// The languages that have a table, as BCP 47 tags ("en", "pt-BR").
QStringList available();

/// The table that serves best for the languages that the user prefers, in that order ("de-AT",
/// "en-US"): the first preference for which there is a table of the same tag, or of the same
/// language, wins; English when none has one.
QString bestMatch(const QStringList &preferred, const QStringList &tables);

/// The table that serves best for the user's locale.
QString chosen();

/// Installs that table in the application object, and beside it Qt's own texts in that language
/// where the system has them.
void install();

} // namespace strings_table
