// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What a desktop does for a program over the session's message bus. Each returns at once; a
/// desktop without the service is no failure of ours.
namespace desktop_services {

/// Shows a file, selected, in the user's file manager (`org.freedesktop.FileManager1`); where none
/// answers, its folder is opened as any folder is. `path` is absolute.
void showInFileManager(const QString &path);

/// Tells the user something while another program has the attention: see the Desktop Notifications
/// Specification, `org.freedesktop.Notifications`. Plain texts; without such a service nothing
/// happens.
void notify(const QString &summary, const QString &body);

} // namespace desktop_services
