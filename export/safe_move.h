// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// Moves a finished file to the place that the user chose. Whatever is there is replaced only
/// by the complete new file, in one step: it is never lost, whether the move fails, the disk is
/// full or the power goes. Between file systems the new file is first written beside the old one.
///
/// A symbolic link at the target is itself replaced, not what it points to. The result's mode is
/// that of a new file. On failure the source stays where it is and nothing of ours is left at the
/// target; the answer is the reason, a sentence for the user. None on success.
///
/// With `Existing::Keep` nothing is ever replaced, not even what another program puts there
/// meanwhile: then the move fails.
enum class Existing { Replace, Keep };
std::optional<QString> safeMove(const QString &source, const QString &target,
                                Existing existing = Existing::Replace);
