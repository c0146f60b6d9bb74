// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "record/source_text.h"

#include "shell/obstacle_text.h"

QString sourceStateText(const ScreenSource &source) {
    if (const auto obstacle = source.obstacle())
        return obstacleText(obstacle);
    if (!source.capabilities().asksUser)
        return {};
    switch (source.state()) {
    case SourceState::Idle:
        return qtTrId("IDD_SOURCE_IDLE");
    case SourceState::Asking:
        return qtTrId("IDD_SOURCE_ASKING");
    case SourceState::Waiting:
        return qtTrId("IDD_SOURCE_WAITING");
    case SourceState::Live:
        return {};
    case SourceState::Ended:
        return source.reason().isEmpty() ? qtTrId("IDD_SOURCE_ENDED")
                                         : qtTrId("IDD_SOURCE_FAILED").arg(source.reason());
    case SourceState::Refused:
        return qtTrId("IDD_SOURCE_REFUSED");
    }
    return {};
}

QString chosenSourceText(ChosenSource::Kind kind, QSize size) {
    QString text;
    switch (kind) {
    case ChosenSource::Kind::Monitor:
        text = qtTrId("IDD_CHOSEN_MONITOR");
        break;
    case ChosenSource::Kind::Window:
        text = qtTrId("IDD_CHOSEN_WINDOW");
        break;
    case ChosenSource::Kind::Other:
        text = qtTrId("IDD_CHOSEN_OTHER");
        break;
    }
    return text.arg(size.width()).arg(size.height());
}
