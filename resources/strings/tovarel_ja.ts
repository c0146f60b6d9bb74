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
        <source>Maker's Page</source>
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
    <message id="IDD_FPS">
        <source>Frames per Second</source>
        <translation>1 秒あたりのフレーム数</translation>
    </message>
    <message id="IDD_INSTRUCTIONS">
        <source>Choose the size and the frame rate, then generate the GIF.</source>
        <translation>サイズとフレームレートを選んで、GIF を作成します。</translation>
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
        <source>The rate measured while recording is the one that counts; it may be lower than the one you chose.</source>
        <translation>実際に使われるのは録画中に測定されたフレームレートです。指定した値より低くなることがあります。</translation>
    </message>
    <message id="IDD_GENERATE_GIF">
        <source>Generate GIF</source>
        <translation>GIF を作成</translation>
    </message>
    <message id="IDD_LOW_FRAME_NUMBER">
        <source>The selected range has too few frames. Select at least three on the Cut tab.</source>
        <translation>選択した範囲のフレームが足りません。「カット」タブで 3 フレーム以上を選択してください。</translation>
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
        <source>Free software under the %1 licence.</source>
        <translation>%1 ライセンスのフリーソフトウェアです。</translation>
    </message>
    <message id="IDD_ABOUT_TOOLS">
        <source>Tools in use:</source>
        <translation>使用するツール:</translation>
    </message>
    <message id="IDD_ABOUT_TOOL_MISSING">
        <source>not found</source>
        <translation>見つかりません</translation>
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
        <source>The screen cannot be recorded: this display server does not hold pictures in 24-bit colour.</source>
        <translation>画面を録画できません。このディスプレイサーバーは 24 ビットカラーの画像を扱っていません。</translation>
    </message>
    <message id="IDD_REASON_WAYLAND">
        <source>The screen cannot be recorded in a Wayland session; log in to an X11 session to record.</source>
        <translation>Wayland セッションでは画面を録画できません。録画するには X11 セッションにログインしてください。</translation>
    </message>
    <!-- record -->
    <message id="IDD_SAVING_RECORDING">
        <source>Saving the recording…</source>
        <translation>録画を保存しています…</translation>
    </message>
    <message id="IDD_GENERATING_GIF">
        <source>Generating the GIF…</source>
        <translation>GIF を作成しています…</translation>
    </message>
    <message id="IDD_STATE_RECORDING">
        <source>Recording</source>
        <translation>録画中</translation>
    </message>
    <message id="IDD_STATE_PAUSED">
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message id="IDD_RECORDING_FIGURES">
        <source>%1 · Frames: %2 · Frames per second: %3</source>
        <translation>%1 · フレーム数: %2 · 1 秒あたりのフレーム数: %3</translation>
    </message>
    <message id="IDD_RECORDING_SAVED">
        <source>The recording is complete. Frames: %1 · Frames per second: %2</source>
        <translation>録画が完了しました。フレーム数: %1 · 1 秒あたりのフレーム数: %2</translation>
    </message>
    <message id="IDD_NOTHING_RECORDED">
        <source>Nothing was recorded.</source>
        <translation>何も録画されませんでした。</translation>
    </message>
    <message id="IDD_FRAMES_MISSING">
        <source>%1 of %2 frames could not be written to %3: %4</source>
        <translation>%2 フレームのうち %1 フレームを %3 に書き込めませんでした: %4</translation>
    </message>
    <message id="IDD_MODE_FULL_SCREEN">
        <source>Full screen</source>
        <translation>全画面</translation>
    </message>
    <message id="IDD_MODE_REGION">
        <source>Region %1 × %2 at %3, %4</source>
        <translation>範囲 %1 × %2（位置 %3, %4）</translation>
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
        <source>Select a region</source>
        <translation>範囲の選択</translation>
    </message>
    <message id="IDD_REGION_TIP">
        <source>%1: %2 × %3 pixels at %4, %5</source>
        <translation>%1: %2 × %3 ピクセル（位置 %4, %5）</translation>
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
        <source>How to select a region</source>
        <translation>範囲の選び方</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_TEXT">
        <source>A rectangle with five squares appears on the screen. Drag the green squares until it frames what you want to record, then click the red one.</source>
        <translation>画面に 5 つの四角が付いた枠が表示されます。緑の四角をドラッグして録画したい部分を囲み、赤い四角をクリックしてください。</translation>
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
        <source>By keyboard: the arrow keys move a corner (Shift: faster), Tab chooses another one, Return accepts, Escape gives up.</source>
        <translation>キーボード操作: 矢印キーで角を移動（Shift で速く）、Tab で別の角を選択、Enter で確定、Esc で中止。</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_AGAIN">
        <source>&amp;Don't show this again</source>
        <translation>次回から表示しない(&amp;D)</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_OK">
        <source>&amp;OK</source>
        <translation>OK(&amp;O)</translation>
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
    <message id="IDD_RANGE_HOLDS">
        <source>Frames %1 to %2: %3 frames, %4 s</source>
        <translation>フレーム %1～%2: %3 フレーム、%4 秒</translation>
    </message>
    <message id="IDD_RANGE_ONE">
        <source>Frame %1 only, %2 s</source>
        <translation>フレーム %1 のみ、%2 秒</translation>
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
        <translation>この範囲にフレームはありません</translation>
    </message>
    <!-- export -->
</context>
</TS>
