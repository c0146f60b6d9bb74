// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

#include <functional>

/// The name that a save panel offers for a result made at `made`, in local time:
/// "Tovarel 2026-11-25 14.03.21.gif", the same in every language, in an order that sorts by time
/// and without characters that some file system refuses. A name that `exists` says is taken gets
/// " (2)" before its suffix, or the first number that is free.
QString presetName(const QDateTime &made, const QString &suffix,
                   const std::function<bool(const QString &name)> &exists);
