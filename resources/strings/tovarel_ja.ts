<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Tovarel authors
     SPDX-License-Identifier: MIT -->
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name></name>
    <message id="IDD_ABOUT">
        <source>About</source>
        <translation>バージョン情報 –</translation>
    </message>
    <message id="IDD_HELP">
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message id="IDD_QUIT">
        <source>Quit</source>
        <translation>終了 –</translation>
    </message>
    <message id="IDD_APP_HOME_PAGE">
        <source>Home Page</source>
        <translation>ホームページ</translation>
    </message>
    <message id="IDD_COMPANY_PAGE">
        <source>About the Authors</source>
        <translation>開発者について</translation>
    </message>
    <message id="IDD_PRIVACY_POLICY">
        <source>Privacy Policy</source>
        <translation>プライバシーポリシー</translation>
    </message>
    <message id="IDD_SUBMIT_TICKET">
        <source>Report a Problem</source>
        <translation>問題を報告</translation>
    </message>
    <message id="IDD_RECORD">
        <source>Record</source>
        <translation>録画</translation>
    </message>
    <message id="IDD_PAUSE">
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message id="IDD_STOP">
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message id="IDD_COUNTDOWN">
        <source>Countdown</source>
        <translation>カウントダウン</translation>
    </message>
    <message id="IDD_AT_ONCE">
        <source>At Once</source>
        <translation>すぐに</translation>
    </message>
    <message id="IDD_AFTER_SECONDS" numerus="yes">
        <source>After %Ln&#xa0;Seconds</source>
        <translation>
            <numerusform>%Ln&#xa0;秒後</numerusform>
        </translation>
    </message>
    <message id="IDD_SECONDS">
        <source>%1&#xa0;s</source>
        <translation>%1&#xa0;秒</translation>
    </message>
    <message id="IDD_RECORD_AFTER" numerus="yes">
        <source>Record after %Ln&#xa0;seconds</source>
        <translation>
            <numerusform>%Ln&#xa0;秒後に録画</numerusform>
        </translation>
    </message>
    <message id="IDD_COUNTDOWN_RUNS">
        <source>The recording begins in a moment. Esc or “Stop” cancels it.</source>
        <translation>まもなく録画が始まります。Esc または「停止」でキャンセルできます。</translation>
    </message>
    <message id="IDD_COUNTDOWN_RUNS_KEY">
        <source>The recording begins in a moment. Esc, “Stop” or, in any window, %1 cancels it.</source>
        <translation>まもなく録画が始まります。Esc、「停止」、またはどのウィンドウでも %1 でキャンセルできます。</translation>
    </message>
    <message id="IDD_COUNTDOWN_CANCELLED">
        <source>The countdown was canceled.</source>
        <translation>カウントダウンをキャンセルしました。</translation>
    </message>
    <message id="IDD_MONITORS">
        <source>Monitors</source>
        <translation>モニター</translation>
    </message>
    <message id="IDD_ALL_MONITORS">
        <source>All Monitors</source>
        <translation>すべてのモニター</translation>
    </message>
    <message id="IDD_MODE_MONITOR">
        <source>%1 · %2 × %3</source>
        <translation>%1 · %2 × %3</translation>
    </message>
    <message id="IDD_REGION_DOES_NOT_FIT">
        <source>The last region does not fit on this screen.</source>
        <translation>前回の範囲はこの画面に収まりません。</translation>
    </message>
    <message id="IDD_MOVE_REGION">
        <source>Move It Inside</source>
        <translation>内側に移動</translation>
    </message>
    <message id="IDD_CUT">
        <source>Cut</source>
        <translation>カット</translation>
    </message>
    <message id="IDD_SAVE">
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message id="IDD_FULL_SCREEN">
        <source>Full Screen</source>
        <translation>全画面</translation>
    </message>
    <message id="IDD_REGION">
        <source>Region</source>
        <translation>範囲選択</translation>
    </message>
    <message id="IDD_REGION_SIZES">
        <source>Sizes</source>
        <translation>サイズ</translation>
    </message>
    <message id="IDD_REGION_SQUARE">
        <source>Square</source>
        <translation>正方形</translation>
    </message>
    <message id="IDD_REGION_LAST">
        <source>Last Used</source>
        <translation>前回の範囲</translation>
    </message>
    <message id="IDD_PICK_WINDOW">
        <source>Pick a Window</source>
        <translation>ウィンドウを選択</translation>
    </message>
    <message id="IDD_PICK_WINDOW_TIP">
        <source>Then click a window, or hold W</source>
        <translation>続けてウィンドウをクリック（または W キーを押したまま）</translation>
    </message>
    <message id="IDD_PICK_WINDOW_HINT">
        <source>Click the window to record. Esc goes back to the region.</source>
        <translation>録画するウィンドウをクリックしてください。Esc で範囲選択に戻ります。</translation>
    </message>
    <message id="IDD_REGION_KEYS">
        <source>Enter uses the region, Esc cancels.</source>
        <translation>Enter で範囲を使用、Esc でキャンセルできます。</translation>
    </message>
    <message id="IDD_USE_REGION">
        <source>Use Region</source>
        <translation>この範囲を使用</translation>
    </message>
    <message id="IDD_FPS">
        <source>Frames per Second</source>
        <translation>フレーム/秒</translation>
    </message>
    <message id="IDD_INSTRUCTIONS">
        <source>Choose the size, the frame rate and the speed, then generate the GIF.</source>
        <translation>サイズ、フレームレート、速度を選んで、GIF を作成します。</translation>
    </message>
    <message id="IDD_RECORD_FIRST">
        <source>There is no recording yet. Make one on the “Record” tab.</source>
        <translation>録画はまだありません。まず「録画」タブで録画してください。</translation>
    </message>
    <message id="IDD_RESOLUTION_EQUAL">
        <source>Same size as the recording</source>
        <translation>録画と同じサイズ</translation>
    </message>
    <message id="IDD_RESOLUTION_CUSTOM">
        <source>Custom size</source>
        <translation>サイズを指定</translation>
    </message>
    <message id="IDD_WIDTH">
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message id="IDD_HEIGHT">
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message id="IDD_KEEP_ASPECT_RATIO">
        <source>Keep aspect ratio</source>
        <translation>縦横比を固定</translation>
    </message>
    <message id="IDD_FPS_EQUAL">
        <source>Same frame rate as the recording</source>
        <translation>録画と同じフレームレート</translation>
    </message>
    <message id="IDD_FORCE_FPS">
        <source>Custom frame rate</source>
        <translation>フレームレートを指定</translation>
    </message>
    <message id="IDD_NOTE">
        <source>When the computer is busy, a recording can have fewer frames per second than chosen.</source>
        <translation>PC の負荷が高いと、録画のフレームレートが指定した値より低くなることがあります。</translation>
    </message>
    <message id="IDD_GENERATE_GIF">
        <source>Generate GIF</source>
        <translation>GIF を作成</translation>
    </message>
    <message id="IDD_LOW_FRAME_NUMBER">
        <source>The selected range has too few frames. Select at least three on the “Cut” tab.</source>
        <translation>選択した区間のフレームが足りません。「カット」タブで 3 フレーム以上を選択してください。</translation>
    </message>
    <message id="IDD_INVALID_DIMENSION">
        <source>Width and height must be whole numbers greater than 0.</source>
        <translation>幅と高さには 0 より大きい整数を入力してください。</translation>
    </message>
    <message id="IDD_GIF_SAVED_OK">
        <source>The GIF has been saved.</source>
        <translation>GIF を保存しました。</translation>
    </message>
    <message id="IDD_PLAY">
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <!-- app -->
    <message id="IDD_MENU_TAB">
        <source>Tab</source>
        <translation>タブ</translation>
    </message>
    <message id="IDD_MENU_ACTION">
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message id="IDD_MENU_HELP">
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message id="IDD_GROUP_SIZE">
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message id="IDD_GROUP_RATE">
        <source>Frame rate</source>
        <translation>フレームレート</translation>
    </message>
    <message id="IDD_ABOUT_TEXT">
        <source>Records your screen and turns it into an animated GIF.</source>
        <translation>画面を録画して、アニメーション GIF にします。</translation>
    </message>
    <message id="IDD_ABOUT_VERSION">
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message id="IDD_ABOUT_LICENCE">
        <source>Free software under the %1 License.</source>
        <translation>%1 ライセンスのフリーソフトウェアです。</translation>
    </message>
    <message id="IDD_ABOUT_TOOLS">
        <source>Tools in use:</source>
        <translation>使用するツール:</translation>
    </message>
    <message id="IDD_ABOUT_TOOL">
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message id="IDD_ABOUT_TOOL_MISSING">
        <source>not found</source>
        <translation>見つかりません</translation>
    </message>
    <message id="IDD_HELP_NOT_OPENED">
        <source>No program was found to show the help pages. Open this file in a browser:</source>
        <translation>ヘルプページを表示できるプログラムが見つかりません。次のファイルをブラウザーで開いてください:</translation>
    </message>
    <message id="IDD_RECORD_PREVIEW">
        <source>Live preview</source>
        <translation>ライブプレビュー</translation>
    </message>
    <message id="IDD_KEYS_GRANTED">
        <source>Shortcuts in any window, with %1: %2</source>
        <translation>どこでも使えるショートカットキー（%1 と同時押し）: %2</translation>
    </message>
    <message id="IDD_KEYS_BOUND">
        <source>Shortcuts in any window: %1</source>
        <translation>どこでも使えるショートカットキー: %1</translation>
    </message>
    <message id="IDD_KEYS_TAKEN">
        <source>Already in use: %1</source>
        <translation>使用中: %1</translation>
    </message>
    <!-- platform -->
    <message id="IDD_REASON_NO_DISPLAY">
        <source>The screen cannot be recorded: there is no display server.</source>
        <translation>画面を録画できません。ディスプレイサーバーがありません。</translation>
    </message>
    <message id="IDD_REASON_NO_COMPOSITE">
        <source>The screen cannot be recorded: this display server lacks the Composite extension, so the program could not leave out its own windows.</source>
        <translation>画面を録画できません。このディスプレイサーバーには Composite 拡張がなく、このプログラム自身のウィンドウを除外できません。</translation>
    </message>
    <message id="IDD_REASON_MISSING_EXTENSION">
        <source>The screen cannot be recorded: this display server lacks one of the extensions Damage, XFixes, Render and Shape.</source>
        <translation>画面を録画できません。このディスプレイサーバーには Damage、XFixes、Render、Shape のいずれかの拡張がありません。</translation>
    </message>
    <message id="IDD_REASON_PICTURE_FORMAT">
        <source>The screen cannot be recorded: this display server does not use 24-bit color.</source>
        <translation>画面を録画できません。このディスプレイサーバーは 24 ビットカラーの画像を扱っていません。</translation>
    </message>
    <!-- record -->
    <message id="IDD_SAVING_RECORDING">
        <source>Saving the recording…</source>
        <translation>録画を保存しています…</translation>
    </message>
    <message id="IDD_REASON_NO_PORTAL">
        <source>The screen cannot be recorded: this Wayland desktop has no portal for it. Install xdg-desktop-portal with your desktop’s back end, or log in to an X11 session.</source>
        <translation>画面を録画できません。この Wayland デスクトップには録画用のポータルがありません。xdg-desktop-portal とデスクトップ用のバックエンドをインストールするか、X11 セッションにログインしてください。</translation>
    </message>
    <message id="IDD_CHOOSE_SOURCE">
        <source>Choose What to Record…</source>
        <translation>録画対象を選択…</translation>
    </message>
    <message id="IDD_SOURCE_IDLE">
        <source>Your desktop asks what may be recorded: a monitor or a window.</source>
        <translation>録画できる対象（モニターまたはウィンドウ）をデスクトップが確認します。</translation>
    </message>
    <message id="IDD_SOURCE_ASKING">
        <source>Choose in the desktop’s dialog what to record.</source>
        <translation>デスクトップのダイアログで録画対象を選択してください。</translation>
    </message>
    <message id="IDD_SOURCE_WAITING">
        <source>Waiting for the first picture…</source>
        <translation>最初の画像を待っています…</translation>
    </message>
    <message id="IDD_SOURCE_ENDED">
        <source>The desktop has stopped sharing the screen.</source>
        <translation>デスクトップが画面の共有を終了しました。</translation>
    </message>
    <message id="IDD_SOURCE_FAILED">
        <source>The desktop provides no pictures of the screen: %1</source>
        <translation>デスクトップから画面の画像を取得できません: %1</translation>
    </message>
    <message id="IDD_SOURCE_REFUSED">
        <source>Nothing was chosen.</source>
        <translation>何も選択されていません。</translation>
    </message>
    <message id="IDD_SOURCE_RESIZED">
        <source>Size changed: scaled to fit</source>
        <translation>サイズ変更: 自動調整中</translation>
    </message>
    <message id="IDD_CHOSEN_MONITOR">
        <source>Monitor %1 × %2</source>
        <translation>モニター %1 × %2</translation>
    </message>
    <message id="IDD_CHOSEN_WINDOW">
        <source>Window %1 × %2</source>
        <translation>ウィンドウ %1 × %2</translation>
    </message>
    <message id="IDD_CHOSEN_OTHER">
        <source>Chosen: %1 × %2</source>
        <translation>選択中: %1 × %2</translation>
    </message>
    <message id="IDD_STEP_ASIDE">
        <source>Tovarel gets out of the way while it records.</source>
        <translation>録画中、Tovarel のウィンドウは最小化されます。</translation>
    </message>
    <message id="IDD_STEP_ASIDE_HOW_TO_STOP">
        <source>Everything that is visible is recorded, so this window is minimized first. To stop, bring it back with a click in the dock or by starting Tovarel again: the recording pauses, and “Stop” saves it.</source>
        <translation>表示されているものはすべて録画されるため、このウィンドウは先に最小化されます。終了するには、ドックをクリックするか Tovarel をもう一度起動してウィンドウを戻してください。録画は一時停止し、「停止」で保存されます。</translation>
    </message>
    <message id="IDD_REASON_WAYLAND">
        <source>In a Wayland session Tovarel can record from its window only: start it without arguments, or log in to an X11 session.</source>
        <translation>Wayland セッションでは、ウィンドウからのみ録画できます。引数なしで Tovarel を起動するか、X11 セッションにログインしてください。</translation>
    </message>
    <message id="IDD_REGION_OF_WINDOW">
        <source>A window is recorded as a whole. Choose a monitor to record a region of it.</source>
        <translation>ウィンドウは全体が録画されます。範囲を録画するにはモニターを選択してください。</translation>
    </message>
    <message id="IDD_STATE_RECORDING">
        <source>Recording</source>
        <translation>録画中</translation>
    </message>
    <message id="IDD_STATE_PAUSED">
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message id="IDD_PAUSED_HINT">
        <source>Paused – press “%1” to continue</source>
        <translation>一時停止中（「%1」で再開）</translation>
    </message>
    <message id="IDD_RECORDING_FIGURES">
        <source>%1 · Frames: %2 · %3&#xa0;fps</source>
        <translation>%1 · フレーム数: %2 · %3&#xa0;fps</translation>
    </message>
    <message id="IDD_POINTER">
        <source>Pointer</source>
        <translation>マウスポインター</translation>
    </message>
    <message id="IDD_POINTER_TIP">
        <source>Pointer: shows the mouse pointer in the recording</source>
        <translation>マウスポインター: 録画にマウスポインターを表示します</translation>
    </message>
    <message id="IDD_HANDS_NOT_OFFERED">
        <source>Not possible with this display server: it does not report mouse buttons and keys</source>
        <translation>このディスプレイサーバーでは使用できません: マウスボタンとキーの操作が通知されません</translation>
    </message>
    <message id="IDD_CLICKS">
        <source>Clicks</source>
        <translation>クリック</translation>
    </message>
    <message id="IDD_CLICKS_TIP">
        <source>Clicks: shows in the recording where a mouse button is pressed</source>
        <translation>クリック: マウスボタンを押した位置を録画に表示します</translation>
    </message>
    <message id="IDD_KEYS">
        <source>Keys</source>
        <translation>キー</translation>
    </message>
    <message id="IDD_KEYS_TIP">
        <source>Keys: shows keyboard shortcuts in the recording, never the text you type</source>
        <translation>キー: ショートカットキーを録画に表示します。入力した文字は表示しません</translation>
    </message>
    <message id="IDD_KEYS_SHOWN">
        <source>Shortcuts that you press are shown</source>
        <translation>ショートカットキーを表示中</translation>
    </message>
    <message id="IDD_PAUSED_FOR_MEMORY">
        <source>Memory is low (%1 left). “Stop” saves the recording.</source>
        <translation>メモリが残りわずかです（残り %1）。「停止」で録画を保存します。</translation>
    </message>
    <message id="IDD_RECORDING_MEMORY">
        <source>Memory: %1</source>
        <translation>メモリ: %1</translation>
    </message>
    <message id="IDD_RECORDING_MEMORY_LASTS">
        <source>Memory: %1, enough for %2&#xa0;min more</source>
        <translation>メモリ: %1（録画可能時間: あと %2&#xa0;分）</translation>
    </message>
    <message id="IDD_RECORDING_SAVED">
        <source>The recording is complete. Frames: %1 · %2&#xa0;fps</source>
        <translation>録画が完了しました。フレーム数: %1 · %2&#xa0;fps</translation>
    </message>
    <message id="IDD_RECORDING_BEHIND">
        <source>The recording is complete. Frames: %1 · %3&#xa0;fps instead of %2&#xa0;fps</source>
        <translation>録画が完了しました。フレーム数: %1 · %3&#xa0;fps（指定: %2&#xa0;fps）</translation>
    </message>
    <message id="IDD_NOTHING_RECORDED">
        <source>Nothing was recorded.</source>
        <translation>何も録画されませんでした。</translation>
    </message>
    <message id="IDD_FRAMES_MISSING" numerus="yes">
        <source>%1 of %Ln frames could not be written to %2: %3</source>
        <translation>
            <numerusform>%Ln フレームのうち %1 フレームを %2 に書き込めませんでした: %3</numerusform>
        </translation>
    </message>
    <message id="IDD_CLOSE_WAITS">
        <source>Tovarel closes as soon as the recording is saved.</source>
        <translation>録画の保存が終わりしだい Tovarel を終了します。</translation>
    </message>
    <message id="IDD_RECOVER_QUESTION">
        <source>An earlier recording is still there.</source>
        <translation>以前の録画が残っています。</translation>
    </message>
    <message id="IDD_RECOVER_DETAIL" numerus="yes">
        <source>The recording of %1 is complete: %Ln frames, %2&#xa0;s. You can open it on the “Cut” tab or delete it.</source>
        <translation>
            <numerusform>%1 の録画はすべて残っています（%Ln フレーム、%2&#xa0;秒）。「カット」タブで開くか、削除できます。</numerusform>
        </translation>
    </message>
    <message id="IDD_RECOVER_OPEN">
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message id="IDD_RECOVER_DELETE">
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message id="IDD_RECOVER_LOADING">
        <source>Opening the recording…</source>
        <translation>録画を開いています…</translation>
    </message>
    <message id="IDD_RECOVER_FAILED">
        <source>The recording could not be opened: the file %1 is damaged.</source>
        <translation>録画を開けませんでした: ファイル %1 が破損しています。</translation>
    </message>
    <message id="IDD_RECORD_PREVIOUS">
        <source>Bring Back Previous Recording</source>
        <translation>前の録画に戻す</translation>
    </message>
    <message id="IDD_PREVIOUS_GONE">
        <source>The previous recording is no longer complete.</source>
        <translation>前の録画はもう完全には残っていません。</translation>
    </message>
    <message id="IDD_SAVE_AGAIN">
        <source>Save Again</source>
        <translation>もう一度保存</translation>
    </message>
    <message id="IDD_MODE_FULL_SCREEN">
        <source>Full screen, without this window</source>
        <translation>全画面（このウィンドウを除く）</translation>
    </message>
    <message id="IDD_MODE_REGION">
        <source>Region %1 × %2 at %3,&#xa0;%4</source>
        <translation>範囲 %1 × %2（位置 %3,&#xa0;%4）</translation>
    </message>
    <message id="IDD_CAPTURE_RATE">
        <source>%1&#xa0;fps</source>
        <translation>%1&#xa0;fps</translation>
    </message>
    <message id="IDD_OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="IDD_CANCEL">
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <!-- region -->
    <message id="IDD_REGION_OVERLAY">
        <source>Select a Region</source>
        <translation>範囲の選択</translation>
    </message>
    <message id="IDD_REGION_TIP">
        <source>%1: %2 × %3 pixels at %4, %5</source>
        <translation>%1: %2 × %3 ピクセル（位置 %4, %5）</translation>
    </message>
    <message id="IDD_REGION_TOO_SMALL">
        <source>Too small: at least %1 × %1 pixels are needed</source>
        <translation>小さすぎます。%1 × %1 ピクセル以上が必要です</translation>
    </message>
    <message id="IDD_REGION_LOWER_LEFT">
        <source>Lower left</source>
        <translation>左下</translation>
    </message>
    <message id="IDD_REGION_LOWER_RIGHT">
        <source>Lower right</source>
        <translation>右下</translation>
    </message>
    <message id="IDD_REGION_UPPER_LEFT">
        <source>Upper left</source>
        <translation>左上</translation>
    </message>
    <message id="IDD_REGION_UPPER_RIGHT">
        <source>Upper right</source>
        <translation>右上</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_TITLE">
        <source>How to Select a Region</source>
        <translation>範囲の選び方</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_TEXT">
        <source>A rectangle with five squares appears on the screen. Drag the green squares until it frames what you want to record, then click the red one or press “Use Region”. Drag inside the rectangle to move it, or outside to draw a new one.</source>
        <translation>画面に 5 つの四角が付いた枠が表示されます。緑の四角をドラッグして録画したい部分を囲み、赤い四角か「この範囲を使用」をクリックしてください。枠の内側をドラッグすると移動し、外側をドラッグすると新しい枠を描けます。</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_WINDOW">
        <source>To record a single window, press “Pick a Window” or hold W, then click the window.</source>
        <translation>ウィンドウを 1 つだけ録画するには、「ウィンドウを選択」を押すか、W キーを押しながら、そのウィンドウをクリックします。</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_PICTURE">
        <source>A rectangle on a screen: a green square on each corner resizes it, the red square in its middle accepts it.</source>
        <translation>画面上の枠の図。四隅の緑の四角で大きさを変え、中央の赤い四角で確定します。</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_DRAG">
        <source>Drag a corner</source>
        <translation>角をドラッグ</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_ACCEPT">
        <source>Click to accept</source>
        <translation>クリックで確定</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_KEYS">
        <source>With the keyboard: the arrow keys move a corner (faster with Shift), Tab selects the next one, Enter accepts, Esc cancels.</source>
        <translation>キーボード操作: 矢印キーで角を移動（Shift で速く）、Tab で次の角を選択、Enter で確定、Esc でキャンセル。</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_AGAIN">
        <source>Don’t show this again</source>
        <translation>次回から表示しない</translation>
    </message>
    <!-- trim -->
    <message id="IDD_HANDLE_FIRST">
        <source>First frame</source>
        <translation>最初のフレーム</translation>
    </message>
    <message id="IDD_HANDLE_LAST">
        <source>Last frame</source>
        <translation>最後のフレーム</translation>
    </message>
    <message id="IDD_CUT_KEPT" numerus="yes">
        <source>Kept: %1&#xa0;s of %2&#xa0;s · %3 of %Ln frames</source>
        <translation>
            <numerusform>残す部分: %1&#xa0;秒 / %2&#xa0;秒 · %3 / %Ln&#xa0;フレーム</numerusform>
        </translation>
    </message>
    <message id="IDD_CUT_PREVIOUS">
        <source>Previous Frame</source>
        <translation>前のフレーム</translation>
    </message>
    <message id="IDD_CUT_NEXT">
        <source>Next Frame</source>
        <translation>次のフレーム</translation>
    </message>
    <message id="IDD_CUT_BACK_TEN">
        <source>Back 10&#xa0;Frames</source>
        <translation>10&#xa0;フレーム戻る</translation>
    </message>
    <message id="IDD_CUT_FORWARD_TEN">
        <source>Forward 10&#xa0;Frames</source>
        <translation>10&#xa0;フレーム進む</translation>
    </message>
    <message id="IDD_CUT_TO_START">
        <source>Go to Start</source>
        <translation>先頭へ移動</translation>
    </message>
    <message id="IDD_CUT_TO_END">
        <source>Go to End</source>
        <translation>末尾へ移動</translation>
    </message>
    <message id="IDD_CUT_START_HERE">
        <source>Start Here</source>
        <translation>ここから開始</translation>
    </message>
    <message id="IDD_CUT_END_HERE">
        <source>End Here</source>
        <translation>ここで終了</translation>
    </message>
    <message id="IDD_PLAYHEAD">
        <source>Playhead</source>
        <translation>再生ヘッド</translation>
    </message>
    <message id="IDD_CUT_FRAME">
        <source>Frame %1 of %2, at %3&#xa0;s</source>
        <translation>%2&#xa0;フレーム中の %1 番目、%3&#xa0;秒</translation>
    </message>
    <message id="IDD_TIP_SHORTCUT">
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message id="IDD_CUT_PREVIEW">
        <source>Frame preview</source>
        <translation>フレームのプレビュー</translation>
    </message>
    <message id="IDD_CUT_RANGE">
        <source>Part of the recording to keep</source>
        <translation>録画のうち残す部分</translation>
    </message>
    <message id="IDD_RANGE_EMPTY">
        <source>No frame in this range</source>
        <translation>この区間にフレームはありません</translation>
    </message>
    <message id="IDD_CUT_DELETE">
        <source>Delete Selection</source>
        <translation>選択範囲を削除</translation>
    </message>
    <message id="IDD_CUT_STILL">
        <source>Shorten Still Time</source>
        <translation>静止部分を短縮</translation>
    </message>
    <message id="IDD_UNDO">
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message id="IDD_REDO">
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message id="IDD_CUT_SELECTED">
        <source>Selected: %1 to %2, %3&#xa0;s</source>
        <translation>選択範囲: %1～%2、%3&#xa0;秒</translation>
    </message>
    <message id="IDD_STRIP_TIP">
        <source>Drag a handle to leave an end out, or drag between the handles to select a part to delete.</source>
        <translation>つまみをドラッグすると端を除けます。つまみの間をドラッグすると、削除する部分を選択できます。</translation>
    </message>
    <message id="IDD_TAB_NEEDS_STOP_RECORDING">
        <source>Stop the recording to open another tab.</source>
        <translation>ほかのタブを開くには、録画を停止してください。</translation>
    </message>
    <message id="IDD_TAB_NEEDS_STOP_PLAYBACK">
        <source>Stop the playback to open another tab.</source>
        <translation>ほかのタブを開くには、再生を停止してください。</translation>
    </message>
    <message id="IDD_KEY_ON_RECORD_TAB">
        <source>To record again, open the “Record” tab.</source>
        <translation>もう一度録画するには、「録画」タブを開いてください。</translation>
    </message>
    <message id="IDD_STILL_LENGTH">
        <source>To %1&#xa0;s at Most</source>
        <translation>最長 %1&#xa0;秒に</translation>
    </message>
    <message id="IDD_STILL_NONE">
        <source>Nothing stands still for longer than %1&#xa0;s.</source>
        <translation>%1&#xa0;秒を超えて静止している部分はありません。</translation>
    </message>
    <message id="IDD_STILL_SHORTENED">
        <source>Still time was shortened by %1&#xa0;s.</source>
        <translation>静止部分を %1&#xa0;秒短縮しました。</translation>
    </message>
    <!-- export -->
    <message id="IDD_PROGRESS_GIF">
        <source>Generating the GIF…</source>
        <translation>GIF を作成しています…</translation>
    </message>
    <message id="IDD_PROGRESS_WEBP">
        <source>Generating the WebP…</source>
        <translation>WebP を作成しています…</translation>
    </message>
    <message id="IDD_PROGRESS_PALETTE">
        <source>Step 1 of 2: choosing the colors</source>
        <translation>手順 1/2: 色を選択しています</translation>
    </message>
    <message id="IDD_PROGRESS_SCALING">
        <source>Step 1 of 2, scaling: %p%</source>
        <translation>手順 1/2: サイズを変更しています %p%</translation>
    </message>
    <message id="IDD_PROGRESS_PICTURES">
        <source>Step 2 of 2: %p%</source>
        <translation>手順 2/2: %p%</translation>
    </message>
    <message id="IDD_PROGRESS_AGAIN">
        <source>Attempt %1: making it fit under %2…</source>
        <translation>%1 回目: %2 に収まるように作成しています…</translation>
    </message>
    <message id="IDD_EXPORT_CANCELLED">
        <source>The export was canceled.</source>
        <translation>書き出しをキャンセルしました。</translation>
    </message>
    <message id="IDD_TOOL_MISSING">
        <source>The program “%1” is missing: it was not found when Tovarel started.</source>
        <translation>プログラム「%1」がありません。Tovarel の起動時に見つかりませんでした。</translation>
    </message>
    <message id="IDD_TOOL_NOT_STARTED">
        <source>The program “%1” could not be started: %2</source>
        <translation>プログラム「%1」を起動できませんでした: %2</translation>
    </message>
    <message id="IDD_TOOL_CRASHED">
        <source>The program “%1” crashed (signal %2, %3).</source>
        <translation>プログラム「%1」が異常終了しました（シグナル %2、%3）。</translation>
    </message>
    <message id="IDD_TOOL_FAILED">
        <source>The program “%1” failed (exit status %2).</source>
        <translation>プログラム「%1」がエラーで終了しました（終了ステータス %2）。</translation>
    </message>
    <message id="IDD_TOOL_NO_RESULT">
        <source>The program “%1” ended without writing its result, %2.</source>
        <translation>プログラム「%1」は結果 %2 を書き出さずに終了しました。</translation>
    </message>
    <message id="IDD_REFUSED_SIZE">
        <source>The requested size was %1 × %2.</source>
        <translation>指定されたサイズは %1 × %2 です。</translation>
    </message>
    <message id="IDD_GIF_TOO_LARGE">
        <source>A GIF of %1 × %2 pixels needs about %3 of memory. At most %4 may be used, half of what is free. Choose a smaller size.</source>
        <translation>%1 × %2 ピクセルの GIF には約 %3 のメモリが必要です。使用できるのは空きメモリの半分、%4 までです。より小さいサイズを選択してください。</translation>
    </message>
    <message id="IDD_GIF_NO_MEMORY">
        <source>There is not enough memory for the GIF. Choose a smaller size or close other programs.</source>
        <translation>GIF を作成するためのメモリが足りません。より小さいサイズを選択するか、他のプログラムを終了してください。</translation>
    </message>
    <message id="IDD_GIF_NOT_WRITTEN">
        <source>The GIF could not be written to %1.
%2

The recording is still there.</source>
        <translation>GIF を %1 に書き込めませんでした。
%2

録画は残っています。</translation>
    </message>
    <message id="IDD_GIF_NO_FRAMES">
        <source>The frames of the recording could not be read from %1.</source>
        <translation>録画のフレームを %1 から読み込めませんでした。</translation>
    </message>
    <message id="IDD_MOVE_FAILED">
        <source>The file could not be saved as %1.
%2

It is still at %3.</source>
        <translation>ファイルを %1 に保存できませんでした。
%2

ファイルは %3 に残っています。</translation>
    </message>
    <message id="IDD_CLI_ABOUT">
        <source>Records the screen and makes an animated GIF, WebP or MP4 of it. Without arguments it shows its window.</source>
        <translation>画面を録画し、アニメーション GIF、WebP、MP4 を作成します。引数がなければウィンドウを表示します。</translation>
    </message>
    <message id="IDD_CLI_RECORD_ABOUT">
        <source>Records without showing a window and writes the file. Say what to record with one of --region, --screen and --window.</source>
        <translation>ウィンドウを表示せずに録画し、ファイルに書き込みます。録画する対象は --region、--screen、--window のいずれかで指定します。</translation>
    </message>
    <message id="IDD_CLI_RECORD">
        <source>Record without a window</source>
        <translation>ウィンドウなしで録画</translation>
    </message>
    <message id="IDD_CLI_TOGGLE">
        <source>Start a recording in the running Tovarel, or stop the one in progress</source>
        <translation>起動中の Tovarel で録画を開始、または録画中なら停止</translation>
    </message>
    <message id="IDD_CLI_PAUSE">
        <source>Pause the recording in progress, or continue it</source>
        <translation>録画を一時停止、または再開</translation>
    </message>
    <message id="IDD_CLI_STOP">
        <source>Stop the recording in progress</source>
        <translation>録画を停止</translation>
    </message>
    <message id="IDD_CLI_HELP">
        <source>Show this help</source>
        <translation>このヘルプを表示</translation>
    </message>
    <message id="IDD_CLI_VERSION">
        <source>Show the version</source>
        <translation>バージョンを表示</translation>
    </message>
    <message id="IDD_CLI_REGION">
        <source>Record W × H pixels of the desktop, X to the right and Y down from its upper left corner</source>
        <translation>デスクトップの左上から右へ X、下へ Y の位置にある W × H ピクセルを録画</translation>
    </message>
    <message id="IDD_CLI_SCREEN">
        <source>Record monitor number N, counted from 1; without N all monitors, or on Wayland the one that you choose</source>
        <translation>N 番目（1 から数える）のモニターを録画。N がなければすべてのモニター、Wayland では選択したモニター</translation>
    </message>
    <message id="IDD_CLI_WINDOW">
        <source>Record the part of the screen where the window with TITLE in its title is</source>
        <translation>タイトルに TITLE を含むウィンドウが占める画面の部分を録画</translation>
    </message>
    <message id="IDD_CLI_SECONDS">
        <source>Record for S seconds; Ctrl+C stops earlier</source>
        <translation>S 秒間録画（Ctrl+C で途中停止）</translation>
    </message>
    <message id="IDD_CLI_RATE">
        <source>Frames per second, 1 to 60; 15 if not given</source>
        <translation>フレーム/秒（1～60、既定値 15）</translation>
    </message>
    <message id="IDD_CLI_DELAY">
        <source>Wait S seconds before recording</source>
        <translation>録画の前に S 秒待つ</translation>
    </message>
    <message id="IDD_CLI_QUALITY">
        <source>best, balanced, small or classic; balanced if not given</source>
        <translation>best、balanced、small、classic のいずれか（既定値 balanced）</translation>
    </message>
    <message id="IDD_CLI_OUTPUT">
        <source>Write to FILE, which ends in .gif, .webp or .mp4; if not given, to a GIF here, named after the time</source>
        <translation>FILE に書き込む（末尾は .gif、.webp、.mp4 のいずれか）。なければ、時刻を名前にした GIF をここに作成</translation>
    </message>
    <message id="IDD_CLI_FORCE">
        <source>Replace the file if it exists</source>
        <translation>ファイルが既にあれば置き換える</translation>
    </message>
    <message id="IDD_CLI_SEE_HELP">
        <source>“tovarel --help” and “tovarel record --help” say more.</source>
        <translation>詳しくは「tovarel --help」と「tovarel record --help」をご覧ください。</translation>
    </message>
    <message id="IDD_CLI_EXAMPLES">
        <source>Examples:</source>
        <translation>例:</translation>
    </message>
    <message id="IDD_CLI_ONE_TARGET">
        <source>Give exactly one of --region, --screen and --window.</source>
        <translation>--region、--screen、--window のうち 1 つだけを指定してください。</translation>
    </message>
    <message id="IDD_CLI_ONE_WISH">
        <source>Give only one of --toggle, --pause and --stop.</source>
        <translation>--toggle、--pause、--stop は 1 つだけ指定してください。</translation>
    </message>
    <message id="IDD_CLI_UNKNOWN">
        <source>“%1” is not a command of Tovarel.</source>
        <translation>「%1」は Tovarel のコマンドではありません。</translation>
    </message>
    <message id="IDD_CLI_NEEDS_SECONDS">
        <source>Say how long to record with --seconds.</source>
        <translation>録画する長さを --seconds で指定してください。</translation>
    </message>
    <message id="IDD_CLI_NOT_NUMBER">
        <source>%1 takes a number from %2 to %3.</source>
        <translation>%1 には %2～%3 の数を指定してください。</translation>
    </message>
    <message id="IDD_CLI_NOT_REGION">
        <source>“%1” is not a region. --region takes width, height and place in pixels, as in 640x480+100+80.</source>
        <translation>「%1」は範囲ではありません。--region には 640x480+100+80 のように幅、高さ、位置をピクセルで指定してください。</translation>
    </message>
    <message id="IDD_CLI_NOT_QUALITY">
        <source>“%1” is not a quality. --quality takes best, balanced, small or classic.</source>
        <translation>「%1」という画質はありません。--quality には best、balanced、small、classic のいずれかを指定してください。</translation>
    </message>
    <message id="IDD_CLI_NOT_FORMAT">
        <source>The name of the file must end in .gif, .webp or .mp4: “%1”</source>
        <translation>ファイル名の末尾は .gif、.webp、.mp4 のいずれかにしてください: 「%1」</translation>
    </message>
    <message id="IDD_CLI_NO_PLACE">
        <source>No file can be written there: %1</source>
        <translation>そこにはファイルを書き込めません: %1</translation>
    </message>
    <message id="IDD_CLI_EXISTS">
        <source>There is already a file %1. --force replaces it.</source>
        <translation>ファイル %1 は既にあります。--force で置き換えられます。</translation>
    </message>
    <message id="IDD_CLI_TOO_SHORT">
        <source>The recording is too short: an animation needs at least three frames.</source>
        <translation>録画が短すぎます。アニメーションには 3 フレーム以上が必要です。</translation>
    </message>
    <message id="IDD_CLI_NOBODY">
        <source>Tovarel is not running.</source>
        <translation>Tovarel は起動していません。</translation>
    </message>
    <message id="IDD_CLI_NOT_NOW">
        <source>Tovarel cannot do that now.</source>
        <translation>Tovarel は今それを実行できません。</translation>
    </message>
    <message id="IDD_CLI_NOT_RECORDING">
        <source>Tovarel is not recording.</source>
        <translation>Tovarel は録画していません。</translation>
    </message>
    <message id="IDD_CLI_SAVING">
        <source>Tovarel is still saving the last recording.</source>
        <translation>Tovarel は直前の録画を保存しています。</translation>
    </message>
    <message id="IDD_CLI_ASKING">
        <source>Tovarel is waiting for an answer in its window.</source>
        <translation>Tovarel はウィンドウで応答を待っています。</translation>
    </message>
    <message id="IDD_CLI_NO_PICTURE">
        <source>The display server provides no picture of the screen.</source>
        <translation>ディスプレイサーバーから画面の画像を取得できません。</translation>
    </message>
    <message id="IDD_CLI_REGION_OUTSIDE">
        <source>That is not wholly on the desktop, which has %1 × %2 pixels.</source>
        <translation>デスクトップ（%1 × %2 ピクセル）からはみ出しています。</translation>
    </message>
    <message id="IDD_CLI_NO_SCREEN">
        <source>There is no monitor number %1. Monitors: %2</source>
        <translation>%1 番目のモニターはありません。モニター数: %2</translation>
    </message>
    <message id="IDD_CLI_DESKTOP_CHOOSES">
        <source>Here the desktop’s own dialog decides which monitor is recorded: use --screen without a number, or --region.</source>
        <translation>ここでは、録画するモニターをデスクトップのダイアログで選択します。番号なしの --screen か --region を使ってください。</translation>
    </message>
    <message id="IDD_CLI_NO_WINDOW">
        <source>No window on the screen has “%1” in its title.</source>
        <translation>タイトルに「%1」を含むウィンドウが画面にありません。</translation>
    </message>
    <message id="IDD_CLI_STARTS">
        <source>Recording starts in %1&#xa0;s</source>
        <translation>録画開始まで %1&#xa0;秒</translation>
    </message>
    <message id="IDD_CLI_RECORDING">
        <source>Recording: %1 of %2&#xa0;s · Frames: %3</source>
        <translation>録画中: %1/%2&#xa0;秒 · フレーム数: %3</translation>
    </message>
    <message id="IDD_CLI_ENCODING">
        <source>Generating the file: %1%</source>
        <translation>ファイルを作成中: %1%</translation>
    </message>
    <message id="IDD_MOVE_IS_FOLDER">
        <source>There is already a folder with that name.</source>
        <translation>同じ名前のフォルダーが既にあります。</translation>
    </message>
    <message id="IDD_MOVE_NOT_A_FILE">
        <source>There is already something with that name, and it is not a regular file.</source>
        <translation>同じ名前の項目が既にあり、通常のファイルではありません。</translation>
    </message>
    <message id="IDD_MOVE_SAME_FILE">
        <source>Source and destination are the same file.</source>
        <translation>保存元と保存先が同じファイルです。</translation>
    </message>
    <message id="IDD_MOVE_WORKING_FOLDER">
        <source>Tovarel empties that folder automatically. Choose another one.</source>
        <translation>そのフォルダーの中身は Tovarel が自動的に削除します。別のフォルダーを選んでください。</translation>
    </message>
    <message id="IDD_STATUS_SAVED">
        <source>Saved: %1 (%2).</source>
        <translation>保存しました: %1（%2）。</translation>
    </message>
    <message id="IDD_STATUS_SAVED_NOTE">
        <source>Saved: %1 (%2). %3</source>
        <translation>保存しました: %1（%2）。%3</translation>
    </message>
    <message id="IDD_STATUS_UNSAVED">
        <source>The %1 has not been saved, but it is still there.</source>
        <translation>%1 は保存されていませんが、まだ残っています。</translation>
    </message>
    <message id="IDD_SAVE_RESULT">
        <source>Save…</source>
        <translation>保存…</translation>
    </message>
    <message id="IDD_SAVE_WITHOUT_ASKING">
        <source>Save Without Asking</source>
        <translation>確認せずに保存</translation>
    </message>
    <message id="IDD_GENERATE_AND_COPY">
        <source>Generate GIF and Copy</source>
        <translation>GIF を作成してコピー</translation>
    </message>
    <message id="IDD_SAVING_OPTIONS">
        <source>Saving Options</source>
        <translation>保存の設定</translation>
    </message>
    <message id="IDD_LAST_FILE">
        <source>Last File</source>
        <translation>最後のファイル</translation>
    </message>
    <message id="IDD_FILE_PICTURE">
        <source>Picture of the file</source>
        <translation>ファイルの画像</translation>
    </message>
    <message id="IDD_FILE_FIGURES">
        <source>%1 · %2 × %3 · %4&#xa0;s</source>
        <translation>%1 · %2 × %3 · %4&#xa0;秒</translation>
    </message>
    <message id="IDD_FILE_DRAG">
        <source>Drag it into another program</source>
        <translation>他のプログラムへドラッグできます</translation>
    </message>
    <message id="IDD_FILE_COPY">
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message id="IDD_FILE_OPEN">
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message id="IDD_FILE_SHOW">
        <source>Show in Folder</source>
        <translation>フォルダーで表示</translation>
    </message>
    <message id="IDD_FILE_COPIED">
        <source>Copied: %1. Paste it into another program.</source>
        <translation>コピーしました: %1。他のプログラムに貼り付けられます。</translation>
    </message>
    <message id="IDD_FILE_GONE">
        <source>The file has been deleted or moved. Generate it again if you need it.</source>
        <translation>ファイルが見つかりません。もう一度作成できます。</translation>
    </message>
    <message id="IDD_FILE_UNSAVED">
        <source>Not saved yet</source>
        <translation>未保存</translation>
    </message>
    <message id="IDD_FILE_REPLACED">
        <source>Another program has changed this file. Generate it again.</source>
        <translation>このファイルは他のプログラムによって変更されました。もう一度作成してください。</translation>
    </message>
    <message id="IDD_FILE_NOT_OPENED">
        <source>No program was found to open %1.</source>
        <translation>%1 を開くプログラムが見つかりません。</translation>
    </message>
    <message id="IDD_FILE_READY">
        <source>The file is ready</source>
        <translation>ファイルができました</translation>
    </message>
    <message id="IDD_UNSAVED_QUESTION">
        <source>The %1 has not been saved.</source>
        <translation>%1 は保存されていません。</translation>
    </message>
    <message id="IDD_UNSAVED_DETAIL">
        <source>Save it before you continue? If you discard it, the file is deleted; the recording stays.</source>
        <translation>続行する前に保存しますか？破棄するとファイルは削除されますが、録画は残ります。</translation>
    </message>
    <message id="IDD_DISCARD">
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message id="IDD_STATUS_GAP" numerus="yes">
        <source>The GIF contains only %1 of %Ln frames; the rest are missing.</source>
        <translation>
            <numerusform>GIF に含まれるのは %Ln フレーム中 %1 フレームです。残りは見つかりませんでした。</numerusform>
        </translation>
    </message>
    <message id="IDD_STATUS_WEBP_GAP" numerus="yes">
        <source>The WebP contains only the first %1 of %Ln frames; the next one is missing.</source>
        <translation>
            <numerusform>WebP に含まれるのは %Ln フレーム中、最初の %1 フレームです。次のフレームが見つかりませんでした。</numerusform>
        </translation>
    </message>
    <message id="IDD_STATUS_STILL">
        <source>The GIF does not move: all its frames are the same.</source>
        <translation>すべてのフレームが同じため、GIF は動きません。</translation>
    </message>
    <message id="IDD_QUALITY">
        <source>Quality</source>
        <translation>画質</translation>
    </message>
    <message id="IDD_QUALITY_TIP">
        <source>Quality of the GIF: “Best” keeps colors as exact as possible, “Small” gives the smallest file, “Classic” uses ffmpeg</source>
        <translation>GIF の画質: 「最高」は色をできるだけ正確に保ち、「小サイズ」はファイルが最小になり、「クラシック」は ffmpeg を使用します</translation>
    </message>
    <message id="IDD_QUALITY_BEST">
        <source>Best</source>
        <translation>最高</translation>
    </message>
    <message id="IDD_QUALITY_BALANCED">
        <source>Balanced</source>
        <translation>標準</translation>
    </message>
    <message id="IDD_QUALITY_SMALL">
        <source>Small</source>
        <translation>小サイズ</translation>
    </message>
    <message id="IDD_QUALITY_CLASSIC">
        <source>Classic</source>
        <translation>クラシック</translation>
    </message>
    <message id="IDD_SPEED">
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message id="IDD_GIF_THINNED">
        <source>GIF: reduced to 50&#xa0;fps</source>
        <translation>GIF は 50&#xa0;fps に間引かれます</translation>
    </message>
    <message id="IDD_FIT_UNDER">
        <source>Max. file size</source>
        <translation>ファイルサイズの上限</translation>
    </message>
    <message id="IDD_FIT_UNDER_TIP">
        <source>Maximum size of the GIF or WebP file. To stay below it, color accuracy is reduced first, then the frame rate, then the width and height</source>
        <translation>GIF または WebP のファイルサイズの上限です。収まるように、色の正確さ、フレームレート、幅と高さの順に下げます</translation>
    </message>
    <message id="IDD_FIT_NOTE">
        <source>Colors, then frame rate, then size are lowered as far as needed.</source>
        <translation>必要に応じて、色、フレームレート、サイズの順に下げます。</translation>
    </message>
    <message id="IDD_NO_LIMIT">
        <source>No limit</source>
        <translation>制限なし</translation>
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
        <translation>ファイルサイズ（例: 8&#xa0;MB、500&#xa0;kB）を入力するか、「制限なし」を選択してください。</translation>
    </message>
    <message id="IDD_FIT_IMPOSSIBLE">
        <source>The file does not fit under %1: even at the lowest frame rate and half the size it takes %2. Choose a higher limit or a smaller size, or keep less of the recording.</source>
        <translation>ファイルは %1 に収まりません。フレームレートを最低にし、サイズを半分にしても %2 になります。上限を大きくするか、サイズを小さくするか、残す区間を短くしてください。</translation>
    </message>
    <message id="IDD_FIT_ASK">
        <source>To fit under %1, the frame rate or the size that you chose must be lowered.</source>
        <translation>%1 に収めるには、選択したフレームレートまたはサイズを下げる必要があります。</translation>
    </message>
    <message id="IDD_FIT_ASK_DETAIL">
        <source>What you chose stays in the fields.</source>
        <translation>選択した値は欄に残ります。</translation>
    </message>
    <message id="IDD_FIT_KEEP">
        <source>Don’t Generate</source>
        <translation>作成しない</translation>
    </message>
    <message id="IDD_FIT_LOWER">
        <source>Lower</source>
        <translation>下げる</translation>
    </message>
    <message id="IDD_STATUS_FITTED">
        <source>To fit under %1, the size was reduced to %2 × %3 pixels and the frame rate to %4&#xa0;fps.</source>
        <translation>%1 に収めるため %2 × %3 ピクセル、%4&#xa0;fps に下げました。</translation>
    </message>
    <message id="IDD_STATUS_FITTED_RATE">
        <source>To fit under %1, the frame rate was lowered from %2 to %3&#xa0;fps.</source>
        <translation>%1 に収めるため、フレームレートを %2 から %3&#xa0;fps に下げました。</translation>
    </message>
    <message id="IDD_STATUS_FITTED_SIZE">
        <source>To fit under %1, the size was reduced to %2 × %3 pixels.</source>
        <translation>%1 に収めるため、サイズを %2 × %3 ピクセルに縮小しました。</translation>
    </message>
    <message id="IDD_STATUS_FITTED_COLORS">
        <source>To fit under %1, the file has less exact colors.</source>
        <translation>%1 に収めるため、色の正確さを下げました。</translation>
    </message>
    <message id="IDD_ABOUT_SIZE">
        <source>GIF: about %1</source>
        <translation>GIF: 約 %1</translation>
    </message>
    <message id="IDD_AT_MOST_SIZE">
        <source>GIF: at most %1</source>
        <translation>GIF: 最大 %1</translation>
    </message>
    <message id="IDD_GIF_SIZE">
        <source>GIF: %1</source>
        <translation>GIF: %1</translation>
    </message>
    <message id="IDD_PERCENT">
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message id="IDD_PERCENT_TIP">
        <source>%1% of the recording’s width and height</source>
        <translation>録画の幅と高さの %1%</translation>
    </message>
    <message id="IDD_GENERATE_MP4">
        <source>Generate MP4</source>
        <translation>MP4 を作成</translation>
    </message>
    <message id="IDD_GENERATE_MP4_TIP">
        <source>Generates an MP4 video with the size, frame rate and speed chosen here</source>
        <translation>ここで選択したサイズ、フレームレート、速度で MP4 動画を作成します</translation>
    </message>
    <message id="IDD_PROGRESS_MP4">
        <source>Generating the MP4…</source>
        <translation>MP4 を作成しています…</translation>
    </message>
    <message id="IDD_MP4_PANEL">
        <source>Select a folder to save the MP4 video</source>
        <translation>MP4 動画の保存先の選択</translation>
    </message>
    <message id="IDD_MP4_SAVED_OK">
        <source>The MP4 has been saved.</source>
        <translation>MP4 を保存しました。</translation>
    </message>
    <message id="IDD_MP4_NO_ENCODER">
        <source>This ffmpeg has no H.264 encoder (libx264), which an MP4 needs. Install an ffmpeg that has one, or generate a GIF or a WebP.</source>
        <translation>この ffmpeg には、MP4 に必要な H.264 エンコーダー（libx264）がありません。エンコーダーのある ffmpeg をインストールするか、GIF または WebP を作成してください。</translation>
    </message>
    <message id="IDD_STATUS_MP4_GAP" numerus="yes">
        <source>The MP4 contains only the first %1 of %Ln frames; the next one is missing.</source>
        <translation>
            <numerusform>MP4 に含まれるのは %Ln フレーム中、最初の %1 フレームです。次のフレームが見つかりませんでした。</numerusform>
        </translation>
    </message>
    <message id="IDD_GENERATE_WEBP">
        <source>Generate WebP</source>
        <translation>WebP を作成</translation>
    </message>
    <message id="IDD_WEBP_ABOUT">
        <source>WebP: about %1</source>
        <translation>WebP: 約 %1</translation>
    </message>
    <message id="IDD_GENERATE_WEBP_TIP">
        <source>Generates a WebP with the size, frame rate and speed chosen here</source>
        <translation>ここで選択したサイズ、フレームレート、速度で WebP を作成します</translation>
    </message>
    <message id="IDD_WEBP_LOOPS">
        <source>Repeat</source>
        <translation>繰り返し</translation>
    </message>
    <message id="IDD_LOOP_FOREVER">
        <source>Forever</source>
        <translation>無限</translation>
    </message>
    <message id="IDD_LOOP_ONCE">
        <source>Once</source>
        <translation>1&#xa0;回</translation>
    </message>
    <message id="IDD_LOOPS_REFUSED">
        <source>Enter a number from 0 to %1 for “Repeat”.</source>
        <translation>「繰り返し」には 0～%1 の数を指定してください。</translation>
    </message>
    <message id="IDD_HOLD">
        <source>Hold last frame</source>
        <translation>最後のフレームを保持</translation>
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
        <translation>幅には 0 より大きい数を入力してください。</translation>
    </message>
    <message id="IDD_WIDTH_NEGATIVE">
        <source>The width must not be negative.</source>
        <translation>幅に負の数は指定できません。</translation>
    </message>
    <message id="IDD_WIDTH_NOT_PLAIN">
        <source>The width may contain digits only.</source>
        <translation>幅には数字だけを入力してください。</translation>
    </message>
    <message id="IDD_WIDTH_TOO_LARGE">
        <source>The width can be %1 pixels at most.</source>
        <translation>幅は %1 ピクセルまでです。</translation>
    </message>
    <message id="IDD_HEIGHT_ZERO">
        <source>The height must be a number greater than 0.</source>
        <translation>高さには 0 より大きい数を入力してください。</translation>
    </message>
    <message id="IDD_HEIGHT_NEGATIVE">
        <source>The height must not be negative.</source>
        <translation>高さに負の数は指定できません。</translation>
    </message>
    <message id="IDD_HEIGHT_NOT_PLAIN">
        <source>The height may contain digits only.</source>
        <translation>高さには数字だけを入力してください。</translation>
    </message>
    <message id="IDD_HEIGHT_TOO_LARGE">
        <source>The height can be %1 pixels at most.</source>
        <translation>高さは %1 ピクセルまでです。</translation>
    </message>
    <message id="IDD_GIF_SUMMARY" numerus="yes">
        <source>%Ln frames, %1&#xa0;s at&#xa0;%2&#xa0;fps</source>
        <translation>
            <numerusform>%Ln フレーム、%1&#xa0;秒（%2&#xa0;fps）</numerusform>
        </translation>
    </message>
    <message id="IDD_GIF_WEBP_SUMMARY">
        <source>GIF: %1 · WebP: %2</source>
        <translation>GIF: %1 · WebP: %2</translation>
    </message>
</context>
</TS>
