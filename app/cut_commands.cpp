// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "app/cut_commands.h"

#include "app/app_delegate.h"
#include "ui_MainWindow.h"

#include <cstdint>
#include <limits>

namespace {

constexpr std::int64_t manyFrames = 10; // of a longer step
/// As far as it goes.
constexpr std::uint64_t lastFrame = std::numeric_limits<std::uint64_t>::max();

/// The commands that go to a frame, or set a handle there.
std::vector<Command> frameCommands(AppDelegate &controller) {
    const Ui::MainWindow &ui = *controller.ui;
    const auto mayShow = [&editor = controller.trimEditor] { return editor.mayShowFrames(); };
    return {
        {.item = ui.menuitemActionCutPrevious,
         .text = qtTrId("IDD_CUT_PREVIOUS"),
         .shortcut = "Left",
         .action = [&controller] { controller.trimEditor.step(-1); },
         .enabled = mayShow},
        {.item = ui.menuitemActionCutNext,
         .text = qtTrId("IDD_CUT_NEXT"),
         .shortcut = "Right",
         .action = [&controller] { controller.trimEditor.step(1); },
         .enabled = mayShow},
        {.item = ui.menuitemActionCutBackTen,
         .text = qtTrId("IDD_CUT_BACK_TEN"),
         .shortcut = "Shift+Left",
         .action = [&controller] { controller.trimEditor.step(-manyFrames); },
         .enabled = mayShow},
        {.item = ui.menuitemActionCutForwardTen,
         .text = qtTrId("IDD_CUT_FORWARD_TEN"),
         .shortcut = "Shift+Right",
         .action = [&controller] { controller.trimEditor.step(manyFrames); },
         .enabled = mayShow},
        {.item = ui.menuitemActionCutToStart,
         .text = qtTrId("IDD_CUT_TO_START"),
         .shortcut = "Home",
         .action = [&controller] { controller.trimEditor.showFrame(0); },
         .enabled = mayShow},
        {.item = ui.menuitemActionCutToEnd,
         .text = qtTrId("IDD_CUT_TO_END"),
         .shortcut = "End",
         .action = [&controller] { controller.trimEditor.showFrame(lastFrame); },
         .enabled = mayShow},
        {.item = ui.menuitemActionCutStartHere,
         .text = qtTrId("IDD_CUT_START_HERE"),
         .shortcut = "I",
         .action = [&controller] { controller.trimEditor.moveHandleHere(RangeEnd::First); },
         .enabled = mayShow},
        {.item = ui.menuitemActionCutEndHere,
         .text = qtTrId("IDD_CUT_END_HERE"),
         .shortcut = "O",
         .action = [&controller] { controller.trimEditor.moveHandleHere(RangeEnd::Last); },
         .enabled = mayShow},
    };
}

} // namespace

std::vector<Command> cutCommands(AppDelegate &controller) {
    const Ui::MainWindow &ui = *controller.ui;
    const InterfaceStrings &texts = controller.texts;
    const TrimEditor &editor = controller.trimEditor;
    std::vector<Command> commands = {
        {.item = ui.menuitemActionCutPlay,
         .button = ui.btnCutPlay,
         .text = texts.s_IDD_PLAY(),
         .icon = "play",
         .shortcut = "Space; Ctrl+L; Return; Enter",
         .action = [&controller] { controller.OnMenuActionCutPlay(); },
         .enabled = [&editor] { return editor.mayPlay(); }},
        {.item = ui.menuitemActionCutPause,
         .button = ui.btnCutPause,
         .text = texts.s_IDD_PAUSE(),
         .icon = "pause",
         .shortcut = "Space; Ctrl+P",
         .action = [&controller] { controller.OnMenuActionCutPause(); },
         .enabled = [&editor] { return editor.mayPause(); }},
        {.item = ui.menuitemActionCutStop,
         .button = ui.btnCutStop,
         .text = texts.s_IDD_STOP(),
         .icon = "stop",
         .shortcut = "Ctrl+.",
         .action = [&controller] { controller.OnMenuActionCutStop(); },
         .enabled = [&editor] { return editor.mayStop(); }},
        {.item = ui.menuitemActionCutDelete,
         .button = ui.btnCutDelete,
         .text = qtTrId("IDD_CUT_DELETE"),
         .icon = "delete",
         .shortcut = "Del",
         .action = [&controller] { controller.trimEditor.deleteSelection(); },
         .enabled = [&editor] { return editor.mayDelete(); }},
        {.item = ui.menuitemActionCutStill,
         .button = ui.btnCutStill,
         .text = qtTrId("IDD_CUT_STILL"),
         .icon = "still",
         .action = [&controller] { controller.trimEditor.shortenStills(); },
         .enabled = [&editor] { return editor.mayShorten(); }},
        {.item = ui.menuitemActionCutUndo,
         .button = ui.btnCutUndo,
         .text = qtTrId("IDD_UNDO"),
         .icon = "undo",
         .shortcut = "Ctrl+Z",
         .action = [&controller] { controller.trimEditor.undo(); },
         .enabled = [&editor] { return editor.mayUndo(); }},
        {.item = ui.menuitemActionCutRedo,
         .button = ui.btnCutRedo,
         .text = qtTrId("IDD_REDO"),
         .icon = "redo",
         .shortcut = "Ctrl+Shift+Z",
         .action = [&controller] { controller.trimEditor.redo(); },
         .enabled = [&editor] { return editor.mayRedo(); }},
    };
    const std::vector<Command> ofFrames = frameCommands(controller);
    commands.insert(commands.end(), ofFrames.begin(), ofFrames.end());
    return commands;
}
