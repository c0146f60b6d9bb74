// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The text as a window's title. One window manager (marco) draws none that begins with a Chinese
/// or Japanese character, or with a sign like "●": there a no-break space comes first, which it
/// draws. Others come back as they are.
QString titleText(const QString &text);
