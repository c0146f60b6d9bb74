// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "shell/surroundings.h"

#include "shell/coordinates.h"
#include "shell/working_folders.h"

#include <QFileInfo>
#include <QMainWindow>

void Surroundings::updateScreen() {
    const QRectF frame = coordinates::lowerLeftFrame(shell.window()->screen());
    shell.setFrame_Screen(frame);
    shell.setSize_Screen(frame.size());
}

bool Surroundings::firstFrameFileExists() const {
    return QFileInfo::exists(working_folders::frameFile(shell.s_Output_Folder(), 0));
}
