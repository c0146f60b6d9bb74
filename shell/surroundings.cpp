// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/surroundings.h"

#include "shell/screen_watcher.h"
#include "shell/working_folders.h"

#include <QFileInfo>
#include <QMainWindow>

void Surroundings::updateScreen() {
    const QRectF frame = lowerLeftFrame(shell.window()->screen());
    shell.setFrame_Screen(frame);
    shell.setSize_Screen(frame.size());
}

bool Surroundings::firstFrameFileExists() const {
    return QFileInfo::exists(working_folders::frameFile(shell.s_Output_Folder(), 0));
}
