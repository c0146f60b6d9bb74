// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Finds what belongs to the program by its name. Not for the user's files.
namespace bundle {

/// The path of the executable resource with this name: a file or link of that name in the installed
/// data folder (beside the program's prefix), else the first one on the search path (PATH). Empty
/// when there is none.
QString pathForTool(const QString &name);

/// The folder in which the installed program keeps its data, for an executable in
/// `executableFolder`: `../share/tovarel` from there, so that an installed tree can be moved.
QString dataFolder(const QString &executableFolder);

/// The path of the Help page with this file name: in the installed data folder, or, when nothing is
/// installed, in the folder `help` beside the executable, where the build puts it. The file is not
/// opened; it is missing when neither has it.
QString pathForHelp(const QString &page);

} // namespace bundle
