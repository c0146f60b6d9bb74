<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Tovarel authors
     SPDX-License-Identifier: MIT -->
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name></name>
    <message id="IDD_ABOUT">
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message id="IDD_HELP">
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message id="IDD_QUIT">
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message id="IDD_APP_HOME_PAGE">
        <source>Home Page</source>
        <translation>主页</translation>
    </message>
    <message id="IDD_COMPANY_PAGE">
        <source>About the Authors</source>
        <translation>关于开发者</translation>
    </message>
    <message id="IDD_PRIVACY_POLICY">
        <source>Privacy Policy</source>
        <translation>隐私政策</translation>
    </message>
    <message id="IDD_SUBMIT_TICKET">
        <source>Report a Problem</source>
        <translation>报告问题</translation>
    </message>
    <message id="IDD_RECORD">
        <source>Record</source>
        <translation>录制</translation>
    </message>
    <message id="IDD_PAUSE">
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message id="IDD_STOP">
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message id="IDD_COUNTDOWN">
        <source>Countdown</source>
        <translation>倒计时</translation>
    </message>
    <message id="IDD_AT_ONCE">
        <source>At Once</source>
        <translation>立即</translation>
    </message>
    <message id="IDD_AFTER_SECONDS" numerus="yes">
        <source>After %Ln&#xa0;Seconds</source>
        <translation>
            <numerusform>%Ln&#xa0;秒后</numerusform>
        </translation>
    </message>
    <message id="IDD_SECONDS">
        <source>%1&#xa0;s</source>
        <translation>%1&#xa0;秒</translation>
    </message>
    <message id="IDD_RECORD_AFTER" numerus="yes">
        <source>Record after %Ln&#xa0;seconds</source>
        <translation>
            <numerusform>%Ln&#xa0;秒后录制</numerusform>
        </translation>
    </message>
    <message id="IDD_COUNTDOWN_RUNS">
        <source>The recording begins in a moment. Esc or “Stop” cancels it.</source>
        <translation>即将开始录制。按 Esc 键或点击“停止”可取消。</translation>
    </message>
    <message id="IDD_COUNTDOWN_RUNS_KEY">
        <source>The recording begins in a moment. Esc, “Stop” or, in any window, %1 cancels it.</source>
        <translation>即将开始录制。按 Esc 键、点击“停止”，或在任意窗口中按 %1 可取消。</translation>
    </message>
    <message id="IDD_COUNTDOWN_CANCELLED">
        <source>The countdown was canceled.</source>
        <translation>倒计时已取消。</translation>
    </message>
    <message id="IDD_MONITORS">
        <source>Monitors</source>
        <translation>显示器</translation>
    </message>
    <message id="IDD_ALL_MONITORS">
        <source>All Monitors</source>
        <translation>所有显示器</translation>
    </message>
    <message id="IDD_MODE_MONITOR">
        <source>%1 · %2 × %3</source>
        <translation>%1 · %2 × %3</translation>
    </message>
    <message id="IDD_REGION_DOES_NOT_FIT">
        <source>The last region does not fit on this screen.</source>
        <translation>上次的区域超出了此屏幕。</translation>
    </message>
    <message id="IDD_MOVE_REGION">
        <source>Move It Inside</source>
        <translation>移入屏幕内</translation>
    </message>
    <message id="IDD_CUT">
        <source>Cut</source>
        <translation>剪辑</translation>
    </message>
    <message id="IDD_SAVE">
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message id="IDD_FULL_SCREEN">
        <source>Full Screen</source>
        <translation>全屏</translation>
    </message>
    <message id="IDD_REGION">
        <source>Region</source>
        <translation>选择区域</translation>
    </message>
    <message id="IDD_REGION_SIZES">
        <source>Sizes</source>
        <translation>尺寸</translation>
    </message>
    <message id="IDD_REGION_SQUARE">
        <source>Square</source>
        <translation>正方形</translation>
    </message>
    <message id="IDD_REGION_LAST">
        <source>Last Used</source>
        <translation>上次使用</translation>
    </message>
    <message id="IDD_PICK_WINDOW">
        <source>Pick a Window</source>
        <translation>选择窗口</translation>
    </message>
    <message id="IDD_PICK_WINDOW_TIP">
        <source>Then click a window, or hold W</source>
        <translation>然后点击窗口；或按住 W 键</translation>
    </message>
    <message id="IDD_PICK_WINDOW_HINT">
        <source>Click the window to record. Esc goes back to the region.</source>
        <translation>请点击要录制的窗口。按 Esc 键返回区域。</translation>
    </message>
    <message id="IDD_REGION_KEYS">
        <source>Enter uses the region, Esc cancels.</source>
        <translation>按回车键使用该区域，按 Esc 键取消。</translation>
    </message>
    <message id="IDD_USE_REGION">
        <source>Use Region</source>
        <translation>使用此区域</translation>
    </message>
    <message id="IDD_FPS">
        <source>Frames per Second</source>
        <translation>每秒帧数</translation>
    </message>
    <message id="IDD_INSTRUCTIONS">
        <source>Choose the size, the frame rate and the speed, then generate the GIF.</source>
        <translation>选择尺寸、帧率和速度，然后生成 GIF。</translation>
    </message>
    <message id="IDD_RECORD_FIRST">
        <source>There is no recording yet. Make one on the “Record” tab.</source>
        <translation>还没有录制内容。请先在“录制”标签页中录制。</translation>
    </message>
    <message id="IDD_RESOLUTION_EQUAL">
        <source>Same size as the recording</source>
        <translation>与录制内容相同的尺寸</translation>
    </message>
    <message id="IDD_RESOLUTION_CUSTOM">
        <source>Custom size</source>
        <translation>自定义尺寸</translation>
    </message>
    <message id="IDD_WIDTH">
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message id="IDD_HEIGHT">
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message id="IDD_KEEP_ASPECT_RATIO">
        <source>Keep aspect ratio</source>
        <translation>保持宽高比</translation>
    </message>
    <message id="IDD_FPS_EQUAL">
        <source>Same frame rate as the recording</source>
        <translation>与录制内容相同的帧率</translation>
    </message>
    <message id="IDD_FORCE_FPS">
        <source>Custom frame rate</source>
        <translation>自定义帧率</translation>
    </message>
    <message id="IDD_NOTE">
        <source>When the computer is busy, a recording can have fewer frames per second than chosen.</source>
        <translation>电脑繁忙时，录制内容的帧率可能低于所选的帧率。</translation>
    </message>
    <message id="IDD_GENERATE_GIF">
        <source>Generate GIF</source>
        <translation>生成 GIF</translation>
    </message>
    <message id="IDD_LOW_FRAME_NUMBER">
        <source>The selected range has too few frames. Select at least three on the “Cut” tab.</source>
        <translation>所选范围内的帧太少。请在“剪辑”标签页中至少选择三帧。</translation>
    </message>
    <message id="IDD_INVALID_DIMENSION">
        <source>Width and height must be whole numbers greater than 0.</source>
        <translation>宽度和高度必须是大于 0 的整数。</translation>
    </message>
    <message id="IDD_GIF_SAVED_OK">
        <source>The GIF has been saved.</source>
        <translation>GIF 已保存。</translation>
    </message>
    <message id="IDD_PLAY">
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <!-- app -->
    <message id="IDD_MENU_TAB">
        <source>Tab</source>
        <translation>标签页</translation>
    </message>
    <message id="IDD_MENU_ACTION">
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message id="IDD_MENU_HELP">
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message id="IDD_GROUP_SIZE">
        <source>Size</source>
        <translation>尺寸</translation>
    </message>
    <message id="IDD_GROUP_RATE">
        <source>Frame rate</source>
        <translation>帧率</translation>
    </message>
    <message id="IDD_ABOUT_TEXT">
        <source>Records your screen and turns it into an animated GIF.</source>
        <translation>录制屏幕并将其制作成 GIF 动图。</translation>
    </message>
    <message id="IDD_ABOUT_VERSION">
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message id="IDD_ABOUT_LICENCE">
        <source>Free software under the %1 License.</source>
        <translation>基于 %1 许可证的自由软件。</translation>
    </message>
    <message id="IDD_ABOUT_TOOLS">
        <source>Tools in use:</source>
        <translation>使用的工具：</translation>
    </message>
    <message id="IDD_ABOUT_TOOL">
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message id="IDD_ABOUT_TOOL_MISSING">
        <source>not found</source>
        <translation>未找到</translation>
    </message>
    <message id="IDD_HELP_NOT_OPENED">
        <source>No program was found to show the help pages. Open this file in a browser:</source>
        <translation>未找到可以显示帮助页面的程序。请在浏览器中打开此文件：</translation>
    </message>
    <message id="IDD_RECORD_PREVIEW">
        <source>Live preview</source>
        <translation>实时预览</translation>
    </message>
    <message id="IDD_KEYS_GRANTED">
        <source>Shortcuts in any window, with %1: %2</source>
        <translation>全局快捷键（与 %1 同时按）：%2</translation>
    </message>
    <message id="IDD_KEYS_BOUND">
        <source>Shortcuts in any window: %1</source>
        <translation>全局快捷键：%1</translation>
    </message>
    <message id="IDD_KEYS_TAKEN">
        <source>Already in use: %1</source>
        <translation>已被占用：%1</translation>
    </message>
    <!-- platform -->
    <message id="IDD_REASON_NO_DISPLAY">
        <source>The screen cannot be recorded: there is no display server.</source>
        <translation>无法录制屏幕：没有显示服务器。</translation>
    </message>
    <message id="IDD_REASON_NO_COMPOSITE">
        <source>The screen cannot be recorded: this display server lacks the Composite extension, so the program could not leave out its own windows.</source>
        <translation>无法录制屏幕：此显示服务器没有 Composite 扩展，程序无法排除自己的窗口。</translation>
    </message>
    <message id="IDD_REASON_MISSING_EXTENSION">
        <source>The screen cannot be recorded: this display server lacks one of the extensions Damage, XFixes, Render and Shape.</source>
        <translation>无法录制屏幕：此显示服务器缺少 Damage、XFixes、Render、Shape 扩展之一。</translation>
    </message>
    <message id="IDD_REASON_PICTURE_FORMAT">
        <source>The screen cannot be recorded: this display server does not use 24-bit color.</source>
        <translation>无法录制屏幕：此显示服务器不使用 24 位色图像。</translation>
    </message>
    <!-- record -->
    <message id="IDD_SAVING_RECORDING">
        <source>Saving the recording…</source>
        <translation>正在保存录制内容……</translation>
    </message>
    <message id="IDD_REASON_NO_PORTAL">
        <source>The screen cannot be recorded: this Wayland desktop has no portal for it. Install xdg-desktop-portal with your desktop’s back end, or log in to an X11 session.</source>
        <translation>无法录制屏幕：此 Wayland 桌面没有用于录制的门户。请安装 xdg-desktop-portal 及桌面对应的后端，或登录 X11 会话。</translation>
    </message>
    <message id="IDD_CHOOSE_SOURCE">
        <source>Choose What to Record…</source>
        <translation>选择录制内容…</translation>
    </message>
    <message id="IDD_SOURCE_IDLE">
        <source>Your desktop asks what may be recorded: a monitor or a window.</source>
        <translation>桌面会询问可以录制的内容：一个显示器或一个窗口。</translation>
    </message>
    <message id="IDD_SOURCE_ASKING">
        <source>Choose in the desktop’s dialog what to record.</source>
        <translation>请在桌面的对话框中选择要录制的内容。</translation>
    </message>
    <message id="IDD_SOURCE_WAITING">
        <source>Waiting for the first picture…</source>
        <translation>正在等待第一个画面……</translation>
    </message>
    <message id="IDD_SOURCE_ENDED">
        <source>The desktop has stopped sharing the screen.</source>
        <translation>桌面已停止共享屏幕。</translation>
    </message>
    <message id="IDD_SOURCE_FAILED">
        <source>The desktop provides no pictures of the screen: %1</source>
        <translation>桌面未提供屏幕画面：%1</translation>
    </message>
    <message id="IDD_SOURCE_REFUSED">
        <source>Nothing was chosen.</source>
        <translation>未选择任何内容。</translation>
    </message>
    <message id="IDD_SOURCE_RESIZED">
        <source>Size changed: scaled to fit</source>
        <translation>尺寸已变化：已自动适配</translation>
    </message>
    <message id="IDD_CHOSEN_MONITOR">
        <source>Monitor %1 × %2</source>
        <translation>显示器 %1 × %2</translation>
    </message>
    <message id="IDD_CHOSEN_WINDOW">
        <source>Window %1 × %2</source>
        <translation>窗口 %1 × %2</translation>
    </message>
    <message id="IDD_CHOSEN_OTHER">
        <source>Chosen: %1 × %2</source>
        <translation>已选择：%1 × %2</translation>
    </message>
    <message id="IDD_STEP_ASIDE">
        <source>Tovarel gets out of the way while it records.</source>
        <translation>录制时 Tovarel 的窗口会最小化。</translation>
    </message>
    <message id="IDD_STEP_ASIDE_HOW_TO_STOP">
        <source>Everything that is visible is recorded, so this window is minimized first. To stop, bring it back with a click in the dock or by starting Tovarel again: the recording pauses, and “Stop” saves it.</source>
        <translation>所有可见内容都会被录制，因此会先将此窗口最小化。要停止录制，请点击任务栏中的图标或再次启动 Tovarel 以恢复窗口：录制会暂停，点击“停止”即可保存。</translation>
    </message>
    <message id="IDD_REASON_WAYLAND">
        <source>In a Wayland session Tovarel can record from its window only: start it without arguments, or log in to an X11 session.</source>
        <translation>在 Wayland 会话中只能通过窗口录制：请不带参数启动 Tovarel，或登录 X11 会话。</translation>
    </message>
    <message id="IDD_REGION_OF_WINDOW">
        <source>A window is recorded as a whole. Choose a monitor to record a region of it.</source>
        <translation>窗口只能整体录制。要录制区域，请选择显示器。</translation>
    </message>
    <message id="IDD_STATE_RECORDING">
        <source>Recording</source>
        <translation>正在录制</translation>
    </message>
    <message id="IDD_STATE_PAUSED">
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message id="IDD_PAUSED_HINT">
        <source>Paused – press “%1” to continue</source>
        <translation>已暂停（点击“%1”继续）</translation>
    </message>
    <message id="IDD_RECORDING_FIGURES">
        <source>%1 · Frames: %2 · %3&#xa0;fps</source>
        <translation>%1 · 帧数：%2 · %3&#xa0;帧/秒</translation>
    </message>
    <message id="IDD_POINTER">
        <source>Pointer</source>
        <translation>鼠标指针</translation>
    </message>
    <message id="IDD_POINTER_TIP">
        <source>Pointer: shows the mouse pointer in the recording</source>
        <translation>鼠标指针：在录制内容中显示鼠标指针</translation>
    </message>
    <message id="IDD_HANDS_NOT_OFFERED">
        <source>Not possible with this display server: it does not report mouse buttons and keys</source>
        <translation>此显示服务器不支持此功能：它不报告鼠标按键和键盘按键</translation>
    </message>
    <message id="IDD_CLICKS">
        <source>Clicks</source>
        <translation>点击</translation>
    </message>
    <message id="IDD_CLICKS_TIP">
        <source>Clicks: shows in the recording where a mouse button is pressed</source>
        <translation>点击：在录制内容中显示按下鼠标按键的位置</translation>
    </message>
    <message id="IDD_KEYS">
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message id="IDD_KEYS_TIP">
        <source>Keys: shows keyboard shortcuts in the recording, never the text you type</source>
        <translation>按键：在录制内容中显示快捷键，绝不显示您输入的文字</translation>
    </message>
    <message id="IDD_KEYS_SHOWN">
        <source>Shortcuts that you press are shown</source>
        <translation>正在显示快捷键</translation>
    </message>
    <message id="IDD_PAUSED_FOR_MEMORY">
        <source>Memory is low (%1 left). “Stop” saves the recording.</source>
        <translation>内存即将耗尽（剩余 %1）。点击“停止”保存已录制的内容。</translation>
    </message>
    <message id="IDD_RECORDING_MEMORY">
        <source>Memory: %1</source>
        <translation>内存：%1</translation>
    </message>
    <message id="IDD_RECORDING_MEMORY_LASTS">
        <source>Memory: %1, enough for %2&#xa0;min more</source>
        <translation>内存：%1，还可录 %2&#xa0;分钟</translation>
    </message>
    <message id="IDD_RECORDING_SAVED">
        <source>The recording is complete. Frames: %1 · %2&#xa0;fps</source>
        <translation>录制已完成。帧数：%1 · %2&#xa0;帧/秒</translation>
    </message>
    <message id="IDD_RECORDING_BEHIND">
        <source>The recording is complete. Frames: %1 · %3&#xa0;fps instead of %2&#xa0;fps</source>
        <translation>录制已完成。帧数：%1 · %3&#xa0;帧/秒（设定为 %2&#xa0;帧/秒）</translation>
    </message>
    <message id="IDD_NOTHING_RECORDED">
        <source>Nothing was recorded.</source>
        <translation>没有录制任何内容。</translation>
    </message>
    <message id="IDD_FRAMES_MISSING" numerus="yes">
        <source>%1 of %Ln frames could not be written to %2: %3</source>
        <translation>
            <numerusform>%Ln 帧中有 %1 帧无法写入 %2：%3</numerusform>
        </translation>
    </message>
    <message id="IDD_CLOSE_WAITS">
        <source>Tovarel closes as soon as the recording is saved.</source>
        <translation>录制内容保存完成后，Tovarel 将立即关闭。</translation>
    </message>
    <message id="IDD_RECOVER_QUESTION">
        <source>An earlier recording is still there.</source>
        <translation>之前的录制内容仍然存在。</translation>
    </message>
    <message id="IDD_RECOVER_DETAIL" numerus="yes">
        <source>The recording of %1 is complete: %Ln frames, %2&#xa0;s. You can open it on the “Cut” tab or delete it.</source>
        <translation>
            <numerusform>%1 的录制内容完整：%Ln 帧，%2&#xa0;秒。您可以在“剪辑”标签页中打开，也可以删除。</numerusform>
        </translation>
    </message>
    <message id="IDD_RECOVER_OPEN">
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message id="IDD_RECOVER_DELETE">
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message id="IDD_RECOVER_LOADING">
        <source>Opening the recording…</source>
        <translation>正在打开录制内容……</translation>
    </message>
    <message id="IDD_RECOVER_FAILED">
        <source>The recording could not be opened: the file %1 is damaged.</source>
        <translation>无法打开录制内容：文件 %1 已损坏。</translation>
    </message>
    <message id="IDD_RECORD_PREVIOUS">
        <source>Bring Back Previous Recording</source>
        <translation>恢复上一次录制</translation>
    </message>
    <message id="IDD_PREVIOUS_GONE">
        <source>The previous recording is no longer complete.</source>
        <translation>上一次的录制内容已不完整。</translation>
    </message>
    <message id="IDD_SAVE_AGAIN">
        <source>Save Again</source>
        <translation>重新保存</translation>
    </message>
    <message id="IDD_MODE_FULL_SCREEN">
        <source>Full screen, without this window</source>
        <translation>全屏（不含此窗口）</translation>
    </message>
    <message id="IDD_MODE_REGION">
        <source>Region %1 × %2 at %3,&#xa0;%4</source>
        <translation>区域 %1 × %2，位于 %3,&#xa0;%4</translation>
    </message>
    <message id="IDD_CAPTURE_RATE">
        <source>%1&#xa0;fps</source>
        <translation>%1&#xa0;帧/秒</translation>
    </message>
    <message id="IDD_OK">
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message id="IDD_CANCEL">
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <!-- region -->
    <message id="IDD_REGION_OVERLAY">
        <source>Select a Region</source>
        <translation>选择区域</translation>
    </message>
    <message id="IDD_REGION_TIP">
        <source>%1: %2 × %3 pixels at %4, %5</source>
        <translation>%1：%2 × %3 像素，位于 %4, %5</translation>
    </message>
    <message id="IDD_REGION_TOO_SMALL">
        <source>Too small: at least %1 × %1 pixels are needed</source>
        <translation>太小：至少需要 %1 × %1 像素</translation>
    </message>
    <message id="IDD_REGION_LOWER_LEFT">
        <source>Lower left</source>
        <translation>左下角</translation>
    </message>
    <message id="IDD_REGION_LOWER_RIGHT">
        <source>Lower right</source>
        <translation>右下角</translation>
    </message>
    <message id="IDD_REGION_UPPER_LEFT">
        <source>Upper left</source>
        <translation>左上角</translation>
    </message>
    <message id="IDD_REGION_UPPER_RIGHT">
        <source>Upper right</source>
        <translation>右上角</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_TITLE">
        <source>How to Select a Region</source>
        <translation>如何选择区域</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_TEXT">
        <source>A rectangle with five squares appears on the screen. Drag the green squares until it frames what you want to record, then click the red one or press “Use Region”. Drag inside the rectangle to move it, or outside to draw a new one.</source>
        <translation>屏幕上会出现一个带有五个方块的矩形。拖动绿色方块框住要录制的内容，然后点击红色方块或“使用此区域”。在矩形内拖动可移动它，在矩形外拖动可绘制新的矩形。</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_WINDOW">
        <source>To record a single window, press “Pick a Window” or hold W, then click the window.</source>
        <translation>要录制单个窗口，请点击“选择窗口”或按住 W 键，然后点击该窗口。</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_PICTURE">
        <source>A rectangle on a screen: a green square on each corner resizes it, the red square in its middle accepts it.</source>
        <translation>屏幕上的一个矩形：四角的绿色方块用于调整大小，中间的红色方块用于确认。</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_DRAG">
        <source>Drag a corner</source>
        <translation>拖动一个角</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_ACCEPT">
        <source>Click to accept</source>
        <translation>点击确认</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_KEYS">
        <source>With the keyboard: the arrow keys move a corner (faster with Shift), Tab selects the next one, Enter accepts, Esc cancels.</source>
        <translation>使用键盘：方向键移动一个角（按住 Shift 更快），Tab 键选择下一个角，回车键确认，Esc 键取消。</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_AGAIN">
        <source>Don’t show this again</source>
        <translation>不再显示</translation>
    </message>
    <!-- trim -->
    <message id="IDD_HANDLE_FIRST">
        <source>First frame</source>
        <translation>第一帧</translation>
    </message>
    <message id="IDD_HANDLE_LAST">
        <source>Last frame</source>
        <translation>最后一帧</translation>
    </message>
    <message id="IDD_CUT_KEPT" numerus="yes">
        <source>Kept: %1&#xa0;s of %2&#xa0;s · %3 of %Ln frames</source>
        <translation>
            <numerusform>保留：%1&#xa0;秒，共 %2&#xa0;秒 · %3&#xa0;帧，共 %Ln&#xa0;帧</numerusform>
        </translation>
    </message>
    <message id="IDD_CUT_PREVIOUS">
        <source>Previous Frame</source>
        <translation>上一帧</translation>
    </message>
    <message id="IDD_CUT_NEXT">
        <source>Next Frame</source>
        <translation>下一帧</translation>
    </message>
    <message id="IDD_CUT_BACK_TEN">
        <source>Back 10&#xa0;Frames</source>
        <translation>后退 10&#xa0;帧</translation>
    </message>
    <message id="IDD_CUT_FORWARD_TEN">
        <source>Forward 10&#xa0;Frames</source>
        <translation>前进 10&#xa0;帧</translation>
    </message>
    <message id="IDD_CUT_TO_START">
        <source>Go to Start</source>
        <translation>转到开头</translation>
    </message>
    <message id="IDD_CUT_TO_END">
        <source>Go to End</source>
        <translation>转到结尾</translation>
    </message>
    <message id="IDD_CUT_START_HERE">
        <source>Start Here</source>
        <translation>从此处开始</translation>
    </message>
    <message id="IDD_CUT_END_HERE">
        <source>End Here</source>
        <translation>在此处结束</translation>
    </message>
    <message id="IDD_PLAYHEAD">
        <source>Playhead</source>
        <translation>播放头</translation>
    </message>
    <message id="IDD_CUT_FRAME">
        <source>Frame %1 of %2, at %3&#xa0;s</source>
        <translation>第 %1&#xa0;帧，共 %2&#xa0;帧，%3&#xa0;秒处</translation>
    </message>
    <message id="IDD_TIP_SHORTCUT">
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message id="IDD_CUT_PREVIEW">
        <source>Frame preview</source>
        <translation>帧预览</translation>
    </message>
    <message id="IDD_CUT_RANGE">
        <source>Part of the recording to keep</source>
        <translation>要保留的录制部分</translation>
    </message>
    <message id="IDD_RANGE_EMPTY">
        <source>No frame in this range</source>
        <translation>此范围内没有帧</translation>
    </message>
    <message id="IDD_CUT_DELETE">
        <source>Delete Selection</source>
        <translation>删除选区</translation>
    </message>
    <message id="IDD_CUT_STILL">
        <source>Shorten Still Time</source>
        <translation>缩短静止时间</translation>
    </message>
    <message id="IDD_UNDO">
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message id="IDD_REDO">
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message id="IDD_CUT_SELECTED">
        <source>Selected: %1 to %2, %3&#xa0;s</source>
        <translation>选区：%1 至 %2，%3&#xa0;秒</translation>
    </message>
    <message id="IDD_STRIP_TIP">
        <source>Drag a handle to leave an end out, or drag between the handles to select a part to delete.</source>
        <translation>拖动滑块可去掉一端；在两个滑块之间拖动可选择要删除的部分。</translation>
    </message>
    <message id="IDD_TAB_NEEDS_STOP_RECORDING">
        <source>Stop the recording to open another tab.</source>
        <translation>要打开其他标签页，请先停止录制。</translation>
    </message>
    <message id="IDD_TAB_NEEDS_STOP_PLAYBACK">
        <source>Stop the playback to open another tab.</source>
        <translation>要打开其他标签页，请先停止播放。</translation>
    </message>
    <message id="IDD_KEY_ON_RECORD_TAB">
        <source>To record again, open the “Record” tab.</source>
        <translation>要再次录制，请打开“录制”标签页。</translation>
    </message>
    <message id="IDD_STILL_LENGTH">
        <source>To %1&#xa0;s at Most</source>
        <translation>最长 %1&#xa0;秒</translation>
    </message>
    <message id="IDD_STILL_NONE">
        <source>Nothing stands still for longer than %1&#xa0;s.</source>
        <translation>没有静止超过 %1&#xa0;秒的部分。</translation>
    </message>
    <message id="IDD_STILL_SHORTENED">
        <source>Still time was shortened by %1&#xa0;s.</source>
        <translation>静止时间缩短了 %1&#xa0;秒。</translation>
    </message>
    <!-- export -->
    <message id="IDD_PROGRESS_GIF">
        <source>Generating the GIF…</source>
        <translation>正在生成 GIF……</translation>
    </message>
    <message id="IDD_PROGRESS_WEBP">
        <source>Generating the WebP…</source>
        <translation>正在生成 WebP……</translation>
    </message>
    <message id="IDD_PROGRESS_PALETTE">
        <source>Step 1 of 2: choosing the colors</source>
        <translation>第 1 步，共 2 步：选择颜色</translation>
    </message>
    <message id="IDD_PROGRESS_SCALING">
        <source>Step 1 of 2, scaling: %p%</source>
        <translation>第 1 步，共 2 步，缩放：%p%</translation>
    </message>
    <message id="IDD_PROGRESS_PICTURES">
        <source>Step 2 of 2: %p%</source>
        <translation>第 2 步，共 2 步：%p%</translation>
    </message>
    <message id="IDD_PROGRESS_AGAIN">
        <source>Attempt %1: making it fit under %2…</source>
        <translation>第 %1 次尝试：缩小到 %2 以内……</translation>
    </message>
    <message id="IDD_EXPORT_CANCELLED">
        <source>The export was canceled.</source>
        <translation>导出已取消。</translation>
    </message>
    <message id="IDD_TOOL_MISSING">
        <source>The program “%1” is missing: it was not found when Tovarel started.</source>
        <translation>缺少程序“%1”：启动 Tovarel 时未找到它。</translation>
    </message>
    <message id="IDD_TOOL_NOT_STARTED">
        <source>The program “%1” could not be started: %2</source>
        <translation>无法启动程序“%1”：%2</translation>
    </message>
    <message id="IDD_TOOL_CRASHED">
        <source>The program “%1” crashed (signal %2, %3).</source>
        <translation>程序“%1”崩溃了（信号 %2，%3）。</translation>
    </message>
    <message id="IDD_TOOL_FAILED">
        <source>The program “%1” failed (exit status %2).</source>
        <translation>程序“%1”运行失败（退出状态 %2）。</translation>
    </message>
    <message id="IDD_TOOL_NO_RESULT">
        <source>The program “%1” ended without writing its result, %2.</source>
        <translation>程序“%1”结束时没有写出结果 %2。</translation>
    </message>
    <message id="IDD_REFUSED_SIZE">
        <source>The requested size was %1 × %2.</source>
        <translation>请求的尺寸为 %1 × %2。</translation>
    </message>
    <message id="IDD_GIF_TOO_LARGE">
        <source>A GIF of %1 × %2 pixels needs about %3 of memory. At most %4 may be used, half of what is free. Choose a smaller size.</source>
        <translation>%1 × %2 像素的 GIF 约需 %3 内存。最多可使用空闲内存的一半，即 %4。请选择较小的尺寸。</translation>
    </message>
    <message id="IDD_GIF_NO_MEMORY">
        <source>There is not enough memory for the GIF. Choose a smaller size or close other programs.</source>
        <translation>内存不足，无法生成 GIF。请选择较小的尺寸或关闭其他程序。</translation>
    </message>
    <message id="IDD_GIF_NOT_WRITTEN">
        <source>The GIF could not be written to %1.
%2

The recording is still there.</source>
        <translation>无法将 GIF 写入 %1。
%2

录制内容仍然保留。</translation>
    </message>
    <message id="IDD_GIF_NO_FRAMES">
        <source>The frames of the recording could not be read from %1.</source>
        <translation>无法从 %1 读取录制内容的帧。</translation>
    </message>
    <message id="IDD_MOVE_FAILED">
        <source>The file could not be saved as %1.
%2

It is still at %3.</source>
        <translation>无法将文件保存为 %1。
%2

文件仍在 %3。</translation>
    </message>
    <message id="IDD_CLI_ABOUT">
        <source>Records the screen and makes an animated GIF, WebP or MP4 of it. Without arguments it shows its window.</source>
        <translation>录制屏幕并制作 GIF 动图、WebP 或 MP4。不带参数时显示窗口。</translation>
    </message>
    <message id="IDD_CLI_RECORD_ABOUT">
        <source>Records without showing a window and writes the file. Say what to record with one of --region, --screen and --window.</source>
        <translation>不显示窗口直接录制并写入文件。用 --region、--screen 或 --window 之一指定录制内容。</translation>
    </message>
    <message id="IDD_CLI_RECORD">
        <source>Record without a window</source>
        <translation>不显示窗口直接录制</translation>
    </message>
    <message id="IDD_CLI_TOGGLE">
        <source>Start a recording in the running Tovarel, or stop the one in progress</source>
        <translation>让正在运行的 Tovarel 开始录制，或停止正在进行的录制</translation>
    </message>
    <message id="IDD_CLI_PAUSE">
        <source>Pause the recording in progress, or continue it</source>
        <translation>暂停正在进行的录制，或继续录制</translation>
    </message>
    <message id="IDD_CLI_STOP">
        <source>Stop the recording in progress</source>
        <translation>停止正在进行的录制</translation>
    </message>
    <message id="IDD_CLI_HELP">
        <source>Show this help</source>
        <translation>显示此帮助</translation>
    </message>
    <message id="IDD_CLI_VERSION">
        <source>Show the version</source>
        <translation>显示版本</translation>
    </message>
    <message id="IDD_CLI_REGION">
        <source>Record W × H pixels of the desktop, X to the right and Y down from its upper left corner</source>
        <translation>录制桌面上 W × H 像素的区域，从左上角向右 X、向下 Y 处开始</translation>
    </message>
    <message id="IDD_CLI_SCREEN">
        <source>Record monitor number N, counted from 1; without N all monitors, or on Wayland the one that you choose</source>
        <translation>录制第 N 个显示器（从 1 开始）；不带 N 时录制所有显示器，在 Wayland 上录制您选择的那个</translation>
    </message>
    <message id="IDD_CLI_WINDOW">
        <source>Record the part of the screen where the window with TITLE in its title is</source>
        <translation>录制标题包含 TITLE 的窗口所占的屏幕部分</translation>
    </message>
    <message id="IDD_CLI_SECONDS">
        <source>Record for S seconds; Ctrl+C stops earlier</source>
        <translation>录制 S 秒；按 Ctrl+C 提前停止</translation>
    </message>
    <message id="IDD_CLI_RATE">
        <source>Frames per second, 1 to 60; 15 if not given</source>
        <translation>每秒帧数，1 到 60；默认为 15</translation>
    </message>
    <message id="IDD_CLI_DELAY">
        <source>Wait S seconds before recording</source>
        <translation>录制前等待 S 秒</translation>
    </message>
    <message id="IDD_CLI_QUALITY">
        <source>best, balanced, small or classic; balanced if not given</source>
        <translation>best、balanced、small 或 classic；默认为 balanced</translation>
    </message>
    <message id="IDD_CLI_OUTPUT">
        <source>Write to FILE, which ends in .gif, .webp or .mp4; if not given, to a GIF here, named after the time</source>
        <translation>写入 FILE（以 .gif、.webp 或 .mp4 结尾）；未指定时在当前文件夹写入以时间命名的 GIF</translation>
    </message>
    <message id="IDD_CLI_FORCE">
        <source>Replace the file if it exists</source>
        <translation>如果文件已存在则替换</translation>
    </message>
    <message id="IDD_CLI_SEE_HELP">
        <source>“tovarel --help” and “tovarel record --help” say more.</source>
        <translation>详见“tovarel --help”和“tovarel record --help”。</translation>
    </message>
    <message id="IDD_CLI_EXAMPLES">
        <source>Examples:</source>
        <translation>示例：</translation>
    </message>
    <message id="IDD_CLI_ONE_TARGET">
        <source>Give exactly one of --region, --screen and --window.</source>
        <translation>请指定 --region、--screen 和 --window 中的一个，且只能一个。</translation>
    </message>
    <message id="IDD_CLI_ONE_WISH">
        <source>Give only one of --toggle, --pause and --stop.</source>
        <translation>--toggle、--pause 和 --stop 只能指定一个。</translation>
    </message>
    <message id="IDD_CLI_UNKNOWN">
        <source>“%1” is not a command of Tovarel.</source>
        <translation>“%1”不是 Tovarel 的命令。</translation>
    </message>
    <message id="IDD_CLI_NEEDS_SECONDS">
        <source>Say how long to record with --seconds.</source>
        <translation>请用 --seconds 指定录制时长。</translation>
    </message>
    <message id="IDD_CLI_NOT_NUMBER">
        <source>%1 takes a number from %2 to %3.</source>
        <translation>%1 需要 %2 到 %3 之间的数字。</translation>
    </message>
    <message id="IDD_CLI_NOT_REGION">
        <source>“%1” is not a region. --region takes width, height and place in pixels, as in 640x480+100+80.</source>
        <translation>“%1”不是区域。--region 需要以像素为单位的宽、高和位置，例如 640x480+100+80。</translation>
    </message>
    <message id="IDD_CLI_NOT_QUALITY">
        <source>“%1” is not a quality. --quality takes best, balanced, small or classic.</source>
        <translation>没有“%1”这种质量。--quality 需要 best、balanced、small 或 classic。</translation>
    </message>
    <message id="IDD_CLI_NOT_FORMAT">
        <source>The name of the file must end in .gif, .webp or .mp4: “%1”</source>
        <translation>文件名必须以 .gif、.webp 或 .mp4 结尾：“%1”</translation>
    </message>
    <message id="IDD_CLI_NO_PLACE">
        <source>No file can be written there: %1</source>
        <translation>无法在该处写入文件：%1</translation>
    </message>
    <message id="IDD_CLI_EXISTS">
        <source>There is already a file %1. --force replaces it.</source>
        <translation>文件 %1 已存在。--force 可替换它。</translation>
    </message>
    <message id="IDD_CLI_TOO_SHORT">
        <source>The recording is too short: an animation needs at least three frames.</source>
        <translation>录制时间太短：动画至少需要三帧。</translation>
    </message>
    <message id="IDD_CLI_NOBODY">
        <source>Tovarel is not running.</source>
        <translation>Tovarel 没有运行。</translation>
    </message>
    <message id="IDD_CLI_NOT_NOW">
        <source>Tovarel cannot do that now.</source>
        <translation>Tovarel 现在无法执行该操作。</translation>
    </message>
    <message id="IDD_CLI_NOT_RECORDING">
        <source>Tovarel is not recording.</source>
        <translation>Tovarel 当前没有在录制。</translation>
    </message>
    <message id="IDD_CLI_SAVING">
        <source>Tovarel is still saving the last recording.</source>
        <translation>Tovarel 仍在保存上一次录制内容。</translation>
    </message>
    <message id="IDD_CLI_ASKING">
        <source>Tovarel is waiting for an answer in its window.</source>
        <translation>Tovarel 正在其窗口中等待您的回答。</translation>
    </message>
    <message id="IDD_CLI_NO_PICTURE">
        <source>The display server provides no picture of the screen.</source>
        <translation>显示服务器未提供屏幕画面。</translation>
    </message>
    <message id="IDD_CLI_REGION_OUTSIDE">
        <source>That is not wholly on the desktop, which has %1 × %2 pixels.</source>
        <translation>超出了 %1 × %2 像素的桌面范围。</translation>
    </message>
    <message id="IDD_CLI_NO_SCREEN">
        <source>There is no monitor number %1. Monitors: %2</source>
        <translation>没有第 %1 个显示器。显示器数量：%2</translation>
    </message>
    <message id="IDD_CLI_DESKTOP_CHOOSES">
        <source>Here the desktop’s own dialog decides which monitor is recorded: use --screen without a number, or --region.</source>
        <translation>此处由桌面的对话框决定录制哪个显示器：请使用不带编号的 --screen，或使用 --region。</translation>
    </message>
    <message id="IDD_CLI_NO_WINDOW">
        <source>No window on the screen has “%1” in its title.</source>
        <translation>屏幕上没有标题包含“%1”的窗口。</translation>
    </message>
    <message id="IDD_CLI_STARTS">
        <source>Recording starts in %1&#xa0;s</source>
        <translation>%1&#xa0;秒后开始录制</translation>
    </message>
    <message id="IDD_CLI_RECORDING">
        <source>Recording: %1 of %2&#xa0;s · Frames: %3</source>
        <translation>正在录制：%1/%2&#xa0;秒 · 帧数：%3</translation>
    </message>
    <message id="IDD_CLI_ENCODING">
        <source>Generating the file: %1%</source>
        <translation>正在生成文件：%1%</translation>
    </message>
    <message id="IDD_MOVE_IS_FOLDER">
        <source>There is already a folder with that name.</source>
        <translation>该位置已有同名文件夹。</translation>
    </message>
    <message id="IDD_MOVE_NOT_A_FILE">
        <source>There is already something with that name, and it is not a regular file.</source>
        <translation>该位置已有同名项目，但不是普通文件。</translation>
    </message>
    <message id="IDD_MOVE_SAME_FILE">
        <source>Source and destination are the same file.</source>
        <translation>源文件和目标文件是同一个文件。</translation>
    </message>
    <message id="IDD_MOVE_WORKING_FOLDER">
        <source>Tovarel empties that folder automatically. Choose another one.</source>
        <translation>Tovarel 会自动清空该文件夹。请选择其他文件夹。</translation>
    </message>
    <message id="IDD_STATUS_SAVED">
        <source>Saved: %1 (%2).</source>
        <translation>已保存：%1（%2）。</translation>
    </message>
    <message id="IDD_STATUS_SAVED_NOTE">
        <source>Saved: %1 (%2). %3</source>
        <translation>已保存：%1（%2）。%3</translation>
    </message>
    <message id="IDD_STATUS_UNSAVED">
        <source>The %1 has not been saved, but it is still there.</source>
        <translation>%1 尚未保存，但仍然保留着。</translation>
    </message>
    <message id="IDD_SAVE_RESULT">
        <source>Save…</source>
        <translation>保存…</translation>
    </message>
    <message id="IDD_SAVE_WITHOUT_ASKING">
        <source>Save Without Asking</source>
        <translation>不询问直接保存</translation>
    </message>
    <message id="IDD_GENERATE_AND_COPY">
        <source>Generate GIF and Copy</source>
        <translation>生成 GIF 并复制</translation>
    </message>
    <message id="IDD_SAVING_OPTIONS">
        <source>Saving Options</source>
        <translation>保存选项</translation>
    </message>
    <message id="IDD_LAST_FILE">
        <source>Last File</source>
        <translation>最近的文件</translation>
    </message>
    <message id="IDD_FILE_PICTURE">
        <source>Picture of the file</source>
        <translation>文件的图像</translation>
    </message>
    <message id="IDD_FILE_FIGURES">
        <source>%1 · %2 × %3 · %4&#xa0;s</source>
        <translation>%1 · %2 × %3 · %4&#xa0;秒</translation>
    </message>
    <message id="IDD_FILE_DRAG">
        <source>Drag it into another program</source>
        <translation>可拖到其他程序中</translation>
    </message>
    <message id="IDD_FILE_COPY">
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message id="IDD_FILE_OPEN">
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message id="IDD_FILE_SHOW">
        <source>Show in Folder</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message id="IDD_FILE_COPIED">
        <source>Copied: %1. Paste it into another program.</source>
        <translation>已复制：%1。可粘贴到其他程序中。</translation>
    </message>
    <message id="IDD_FILE_GONE">
        <source>The file has been deleted or moved. Generate it again if you need it.</source>
        <translation>文件已被删除或移动。如有需要，请重新生成。</translation>
    </message>
    <message id="IDD_FILE_UNSAVED">
        <source>Not saved yet</source>
        <translation>尚未保存</translation>
    </message>
    <message id="IDD_FILE_REPLACED">
        <source>Another program has changed this file. Generate it again.</source>
        <translation>此文件已被其他程序更改。请重新生成。</translation>
    </message>
    <message id="IDD_FILE_NOT_OPENED">
        <source>No program was found to open %1.</source>
        <translation>找不到可打开 %1 的程序。</translation>
    </message>
    <message id="IDD_FILE_READY">
        <source>The file is ready</source>
        <translation>文件已生成</translation>
    </message>
    <message id="IDD_UNSAVED_QUESTION">
        <source>The %1 has not been saved.</source>
        <translation>%1 尚未保存。</translation>
    </message>
    <message id="IDD_UNSAVED_DETAIL">
        <source>Save it before you continue? If you discard it, the file is deleted; the recording stays.</source>
        <translation>继续之前要保存吗？放弃后文件会被删除，录制内容仍会保留。</translation>
    </message>
    <message id="IDD_DISCARD">
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message id="IDD_STATUS_GAP" numerus="yes">
        <source>The GIF contains only %1 of %Ln frames; the rest are missing.</source>
        <translation>
            <numerusform>GIF 仅包含 %Ln 帧中的 %1 帧，其余帧缺失。</numerusform>
        </translation>
    </message>
    <message id="IDD_STATUS_WEBP_GAP" numerus="yes">
        <source>The WebP contains only the first %1 of %Ln frames; the next one is missing.</source>
        <translation>
            <numerusform>WebP 仅包含 %Ln 帧中的前 %1 帧，下一帧缺失。</numerusform>
        </translation>
    </message>
    <message id="IDD_STATUS_STILL">
        <source>The GIF does not move: all its frames are the same.</source>
        <translation>GIF 没有动画：所有帧都相同。</translation>
    </message>
    <message id="IDD_QUALITY">
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message id="IDD_QUALITY_TIP">
        <source>Quality of the GIF: “Best” keeps colors as exact as possible, “Small” gives the smallest file, “Classic” uses ffmpeg</source>
        <translation>GIF 的质量：“最佳”尽可能保持颜色准确，“小文件”生成最小的文件，“经典”使用 ffmpeg</translation>
    </message>
    <message id="IDD_QUALITY_BEST">
        <source>Best</source>
        <translation>最佳</translation>
    </message>
    <message id="IDD_QUALITY_BALANCED">
        <source>Balanced</source>
        <translation>均衡</translation>
    </message>
    <message id="IDD_QUALITY_SMALL">
        <source>Small</source>
        <translation>小文件</translation>
    </message>
    <message id="IDD_QUALITY_CLASSIC">
        <source>Classic</source>
        <translation>经典</translation>
    </message>
    <message id="IDD_SPEED">
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message id="IDD_GIF_THINNED">
        <source>GIF: reduced to 50&#xa0;fps</source>
        <translation>GIF 将减至 50&#xa0;帧/秒</translation>
    </message>
    <message id="IDD_FIT_UNDER">
        <source>Max. file size</source>
        <translation>文件大小上限</translation>
    </message>
    <message id="IDD_FIT_UNDER_TIP">
        <source>Maximum size of the GIF or WebP file. To stay below it, color accuracy is reduced first, then the frame rate, then the width and height</source>
        <translation>GIF 或 WebP 文件的大小上限。为不超过上限，依次降低颜色精度、帧率、宽度和高度</translation>
    </message>
    <message id="IDD_FIT_NOTE">
        <source>Colors, then frame rate, then size are lowered as far as needed.</source>
        <translation>必要时依次降低颜色精度、帧率和尺寸。</translation>
    </message>
    <message id="IDD_NO_LIMIT">
        <source>No limit</source>
        <translation>不限</translation>
    </message>
    <message id="IDD_LIMIT_MB">
        <source>%1&#xa0;MB</source>
        <translation>%1&#xa0;MB</translation>
    </message>
    <message id="IDD_LIMIT_KB">
        <source>%1&#xa0;kB</source>
        <translation>%1&#xa0;kB</translation>
    </message>
    <message id="IDD_LIMIT_NOT_NUMBER">
        <source>Type a file size, such as 8&#xa0;MB or 500&#xa0;kB, or choose “No limit”.</source>
        <translation>请输入文件大小（例如 8&#xa0;MB 或 500&#xa0;kB），或选择“不限”。</translation>
    </message>
    <message id="IDD_FIT_IMPOSSIBLE">
        <source>The file does not fit under %1: even at the lowest frame rate and half the size it takes %2. Choose a higher limit or a smaller size, or keep less of the recording.</source>
        <translation>无法将文件缩小到 %1 以内：即使使用最低帧率和一半的尺寸，仍有 %2。请提高上限、减小尺寸，或保留更短的录制内容。</translation>
    </message>
    <message id="IDD_FIT_ASK">
        <source>To fit under %1, the frame rate or the size that you chose must be lowered.</source>
        <translation>要不超过 %1，必须降低您选择的帧率或尺寸。</translation>
    </message>
    <message id="IDD_FIT_ASK_DETAIL">
        <source>What you chose stays in the fields.</source>
        <translation>您的选择会保留在输入框中。</translation>
    </message>
    <message id="IDD_FIT_KEEP">
        <source>Don’t Generate</source>
        <translation>不生成</translation>
    </message>
    <message id="IDD_FIT_LOWER">
        <source>Lower</source>
        <translation>降低</translation>
    </message>
    <message id="IDD_STATUS_FITTED">
        <source>To fit under %1, the size was reduced to %2 × %3 pixels and the frame rate to %4&#xa0;fps.</source>
        <translation>为不超过 %1，尺寸已缩小到 %2 × %3 像素，帧率已降至 %4&#xa0;帧/秒。</translation>
    </message>
    <message id="IDD_STATUS_FITTED_RATE">
        <source>To fit under %1, the frame rate was lowered from %2 to %3&#xa0;fps.</source>
        <translation>为不超过 %1，帧率已从 %2 降至 %3&#xa0;帧/秒。</translation>
    </message>
    <message id="IDD_STATUS_FITTED_SIZE">
        <source>To fit under %1, the size was reduced to %2 × %3 pixels.</source>
        <translation>为不超过 %1，尺寸已缩小到 %2 × %3 像素。</translation>
    </message>
    <message id="IDD_STATUS_FITTED_COLORS">
        <source>To fit under %1, the file has less exact colors.</source>
        <translation>为不超过 %1，文件的颜色精度有所降低。</translation>
    </message>
    <message id="IDD_ABOUT_SIZE">
        <source>GIF: about %1</source>
        <translation>GIF：约 %1</translation>
    </message>
    <message id="IDD_AT_MOST_SIZE">
        <source>GIF: at most %1</source>
        <translation>GIF：最大 %1</translation>
    </message>
    <message id="IDD_GIF_SIZE">
        <source>GIF: %1</source>
        <translation>GIF：%1</translation>
    </message>
    <message id="IDD_PERCENT">
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message id="IDD_PERCENT_TIP">
        <source>%1% of the recording’s width and height</source>
        <translation>录制内容宽度和高度的 %1%</translation>
    </message>
    <message id="IDD_GENERATE_MP4">
        <source>Generate MP4</source>
        <translation>生成 MP4</translation>
    </message>
    <message id="IDD_GENERATE_MP4_TIP">
        <source>Generates an MP4 video with the size, frame rate and speed chosen here</source>
        <translation>按此处选择的尺寸、帧率和速度生成 MP4 视频</translation>
    </message>
    <message id="IDD_PROGRESS_MP4">
        <source>Generating the MP4…</source>
        <translation>正在生成 MP4……</translation>
    </message>
    <message id="IDD_MP4_PANEL">
        <source>Select a folder to save the MP4 video</source>
        <translation>选择保存 MP4 视频的文件夹</translation>
    </message>
    <message id="IDD_MP4_SAVED_OK">
        <source>The MP4 has been saved.</source>
        <translation>MP4 已保存。</translation>
    </message>
    <message id="IDD_MP4_NO_ENCODER">
        <source>This ffmpeg has no H.264 encoder (libx264), which an MP4 needs. Install an ffmpeg that has one, or generate a GIF or a WebP.</source>
        <translation>此 ffmpeg 没有 MP4 所需的 H.264 编码器（libx264）。请安装带有该编码器的 ffmpeg，或生成 GIF 或 WebP。</translation>
    </message>
    <message id="IDD_STATUS_MP4_GAP" numerus="yes">
        <source>The MP4 contains only the first %1 of %Ln frames; the next one is missing.</source>
        <translation>
            <numerusform>MP4 仅包含 %Ln 帧中的前 %1 帧，下一帧缺失。</numerusform>
        </translation>
    </message>
    <message id="IDD_GENERATE_WEBP">
        <source>Generate WebP</source>
        <translation>生成 WebP</translation>
    </message>
    <message id="IDD_WEBP_ABOUT">
        <source>WebP: about %1</source>
        <translation>WebP：约 %1</translation>
    </message>
    <message id="IDD_GENERATE_WEBP_TIP">
        <source>Generates a WebP with the size, frame rate and speed chosen here</source>
        <translation>按此处选择的尺寸、帧率和速度生成 WebP</translation>
    </message>
    <message id="IDD_WEBP_LOOPS">
        <source>Repeat</source>
        <translation>循环</translation>
    </message>
    <message id="IDD_LOOP_FOREVER">
        <source>Forever</source>
        <translation>无限</translation>
    </message>
    <message id="IDD_LOOP_ONCE">
        <source>Once</source>
        <translation>一次</translation>
    </message>
    <message id="IDD_LOOPS_REFUSED">
        <source>Enter a number from 0 to %1 for “Repeat”.</source>
        <translation>“循环”须为 0 到 %1 之间的数字。</translation>
    </message>
    <message id="IDD_HOLD">
        <source>Hold last frame</source>
        <translation>保持最后一帧</translation>
    </message>
    <message id="IDD_HOLD_SECONDS">
        <source>%1&#xa0;s</source>
        <translation>%1&#xa0;秒</translation>
    </message>
    <message id="IDD_LOOPS_RANGE">
        <source>0 to %1</source>
        <translation>0～%1</translation>
    </message>
    <message id="IDD_WIDTH_ZERO">
        <source>The width must be a number greater than 0.</source>
        <translation>宽度必须是大于 0 的数字。</translation>
    </message>
    <message id="IDD_WIDTH_NEGATIVE">
        <source>The width must not be negative.</source>
        <translation>宽度不能为负数。</translation>
    </message>
    <message id="IDD_WIDTH_NOT_PLAIN">
        <source>The width may contain digits only.</source>
        <translation>宽度只能包含数字。</translation>
    </message>
    <message id="IDD_WIDTH_TOO_LARGE">
        <source>The width can be %1 pixels at most.</source>
        <translation>宽度最多为 %1 像素。</translation>
    </message>
    <message id="IDD_HEIGHT_ZERO">
        <source>The height must be a number greater than 0.</source>
        <translation>高度必须是大于 0 的数字。</translation>
    </message>
    <message id="IDD_HEIGHT_NEGATIVE">
        <source>The height must not be negative.</source>
        <translation>高度不能为负数。</translation>
    </message>
    <message id="IDD_HEIGHT_NOT_PLAIN">
        <source>The height may contain digits only.</source>
        <translation>高度只能包含数字。</translation>
    </message>
    <message id="IDD_HEIGHT_TOO_LARGE">
        <source>The height can be %1 pixels at most.</source>
        <translation>高度最多为 %1 像素。</translation>
    </message>
    <message id="IDD_GIF_SUMMARY" numerus="yes">
        <source>%Ln frames, %1&#xa0;s at&#xa0;%2&#xa0;fps</source>
        <translation>
            <numerusform>%Ln 帧，%1&#xa0;秒，%2&#xa0;帧/秒</numerusform>
        </translation>
    </message>
    <message id="IDD_GIF_WEBP_SUMMARY">
        <source>GIF: %1 · WebP: %2</source>
        <translation>GIF：%1 · WebP：%2</translation>
    </message>
</context>
</TS>
