// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/app_delegate.h"
#include "shell/working_folders.h"

#include <QImageReader>

std::optional<QSize> AppDelegate::originalSize() const {
    // The files are what the encoders read, and all of them have the first one's size. What is
    // recorded now may be another region or screen.
    QImageReader frame(working_folders::frameFile(shell.s_Output_Folder(), 0), "png");
    const QSize size = frame.size();
    return size.isEmpty() ? std::nullopt : std::optional(size);
}
