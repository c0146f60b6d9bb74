<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Tovarel authors
     SPDX-License-Identifier: MIT -->
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="IDD_ABOUT">
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message id="IDD_HELP">
        <source>Help</source>
        <translation>– Hilfe</translation>
    </message>
    <message id="IDD_QUIT">
        <source>Quit</source>
        <translation>Beenden von</translation>
    </message>
    <message id="IDD_APP_HOME_PAGE">
        <source>Home Page</source>
        <translation>Startseite</translation>
    </message>
    <message id="IDD_COMPANY_PAGE">
        <source>About the Authors</source>
        <translation>Über die Entwickler</translation>
    </message>
    <message id="IDD_PRIVACY_POLICY">
        <source>Privacy Policy</source>
        <translation>Datenschutzerklärung</translation>
    </message>
    <message id="IDD_SUBMIT_TICKET">
        <source>Report a Problem</source>
        <translation>Problem melden</translation>
    </message>
    <message id="IDD_RECORD">
        <source>Record</source>
        <translation>Aufnehmen</translation>
    </message>
    <message id="IDD_PAUSE">
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message id="IDD_STOP">
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message id="IDD_COUNTDOWN">
        <source>Countdown</source>
        <translation>Countdown</translation>
    </message>
    <message id="IDD_AT_ONCE">
        <source>At Once</source>
        <translation>Sofort</translation>
    </message>
    <message id="IDD_AFTER_SECONDS" numerus="yes">
        <source>After %Ln&#xa0;Seconds</source>
        <translation>
            <numerusform>Nach %Ln&#xa0;Sekunde</numerusform>
            <numerusform>Nach %Ln&#xa0;Sekunden</numerusform>
        </translation>
    </message>
    <message id="IDD_SECONDS">
        <source>%1&#xa0;s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message id="IDD_RECORD_AFTER" numerus="yes">
        <source>Record after %Ln&#xa0;seconds</source>
        <translation>
            <numerusform>Aufnehmen nach %Ln&#xa0;Sekunde</numerusform>
            <numerusform>Aufnehmen nach %Ln&#xa0;Sekunden</numerusform>
        </translation>
    </message>
    <message id="IDD_COUNTDOWN_RUNS">
        <source>The recording begins in a moment. Esc or “Stop” cancels it.</source>
        <translation>Die Aufnahme beginnt gleich. Esc oder „Stopp“ bricht sie ab.</translation>
    </message>
    <message id="IDD_COUNTDOWN_RUNS_KEY">
        <source>The recording begins in a moment. Esc, “Stop” or, in any window, %1 cancels it.</source>
        <translation>Die Aufnahme beginnt gleich. Esc, „Stopp“ oder, in jedem Fenster, %1 bricht sie ab.</translation>
    </message>
    <message id="IDD_COUNTDOWN_CANCELLED">
        <source>The countdown was canceled.</source>
        <translation>Der Countdown wurde abgebrochen.</translation>
    </message>
    <message id="IDD_MONITORS">
        <source>Monitors</source>
        <translation>Monitore</translation>
    </message>
    <message id="IDD_ALL_MONITORS">
        <source>All Monitors</source>
        <translation>Alle Monitore</translation>
    </message>
    <message id="IDD_MODE_MONITOR">
        <source>%1 · %2 × %3</source>
        <translation>%1 · %2 × %3</translation>
    </message>
    <message id="IDD_REGION_DOES_NOT_FIT">
        <source>The last region does not fit on this screen.</source>
        <translation>Der letzte Bereich passt nicht auf diesen Bildschirm.</translation>
    </message>
    <message id="IDD_MOVE_REGION">
        <source>Move It Inside</source>
        <translation>Hineinrücken</translation>
    </message>
    <message id="IDD_CUT">
        <source>Cut</source>
        <translation>Schneiden</translation>
    </message>
    <message id="IDD_SAVE">
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message id="IDD_FULL_SCREEN">
        <source>Full Screen</source>
        <translation>Ganzer Bildschirm</translation>
    </message>
    <message id="IDD_REGION">
        <source>Region</source>
        <translation>Bildschirmbereich</translation>
    </message>
    <message id="IDD_REGION_SIZES">
        <source>Sizes</source>
        <translation>Größen</translation>
    </message>
    <message id="IDD_REGION_SQUARE">
        <source>Square</source>
        <translation>Quadrat</translation>
    </message>
    <message id="IDD_REGION_LAST">
        <source>Last Used</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message id="IDD_PICK_WINDOW">
        <source>Pick a Window</source>
        <translation>Fenster wählen</translation>
    </message>
    <message id="IDD_PICK_WINDOW_TIP">
        <source>Then click a window, or hold W</source>
        <translation>Danach ein Fenster anklicken (oder W gedrückt halten)</translation>
    </message>
    <message id="IDD_PICK_WINDOW_HINT">
        <source>Click the window to record. Esc goes back to the region.</source>
        <translation>Klicken Sie das Fenster an, das Sie aufnehmen möchten. Esc führt zum Bereich zurück.</translation>
    </message>
    <message id="IDD_REGION_KEYS">
        <source>Enter uses the region, Esc cancels.</source>
        <translation>Eingabetaste verwendet den Bereich, Esc bricht ab.</translation>
    </message>
    <message id="IDD_USE_REGION">
        <source>Use Region</source>
        <translation>Bereich verwenden</translation>
    </message>
    <message id="IDD_FPS">
        <source>Frames per Second</source>
        <translation>Bilder pro Sekunde</translation>
    </message>
    <message id="IDD_INSTRUCTIONS">
        <source>Choose the size, the frame rate and the speed, then generate the GIF.</source>
        <translation>Wählen Sie Größe, Bildrate und Geschwindigkeit und erzeugen Sie dann das GIF.</translation>
    </message>
    <message id="IDD_RECORD_FIRST">
        <source>There is no recording yet. Make one on the “Record” tab.</source>
        <translation>Es gibt noch keine Aufnahme. Nehmen Sie zuerst unter „Aufnehmen“ etwas auf.</translation>
    </message>
    <message id="IDD_RESOLUTION_EQUAL">
        <source>Same size as the recording</source>
        <translation>Größe der Aufnahme</translation>
    </message>
    <message id="IDD_RESOLUTION_CUSTOM">
        <source>Custom size</source>
        <translation>Eigene Größe</translation>
    </message>
    <message id="IDD_WIDTH">
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message id="IDD_HEIGHT">
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message id="IDD_KEEP_ASPECT_RATIO">
        <source>Keep aspect ratio</source>
        <translation>Seitenverhältnis beibehalten</translation>
    </message>
    <message id="IDD_FPS_EQUAL">
        <source>Same frame rate as the recording</source>
        <translation>Bildrate der Aufnahme</translation>
    </message>
    <message id="IDD_FORCE_FPS">
        <source>Custom frame rate</source>
        <translation>Eigene Bildrate</translation>
    </message>
    <message id="IDD_NOTE">
        <source>When the computer is busy, a recording can have fewer frames per second than chosen.</source>
        <translation>Ist der Computer ausgelastet, kann die Aufnahme weniger Bilder pro Sekunde haben als gewählt.</translation>
    </message>
    <message id="IDD_GENERATE_GIF">
        <source>Generate GIF</source>
        <translation>GIF erzeugen</translation>
    </message>
    <message id="IDD_LOW_FRAME_NUMBER">
        <source>The selected range has too few frames. Select at least three on the “Cut” tab.</source>
        <translation>Der gewählte Abschnitt enthält zu wenige Bilder. Wählen Sie unter „Schneiden“ mindestens drei aus.</translation>
    </message>
    <message id="IDD_INVALID_DIMENSION">
        <source>Width and height must be whole numbers greater than 0.</source>
        <translation>Breite und Höhe müssen ganze Zahlen größer als 0 sein.</translation>
    </message>
    <message id="IDD_GIF_SAVED_OK">
        <source>The GIF has been saved.</source>
        <translation>Das GIF wurde gespeichert.</translation>
    </message>
    <message id="IDD_PLAY">
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <!-- app -->
    <message id="IDD_MENU_TAB">
        <source>Tab</source>
        <translation>Ansicht</translation>
    </message>
    <message id="IDD_MENU_ACTION">
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message id="IDD_MENU_HELP">
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message id="IDD_GROUP_SIZE">
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message id="IDD_GROUP_RATE">
        <source>Frame rate</source>
        <translation>Bildrate</translation>
    </message>
    <message id="IDD_ABOUT_TEXT">
        <source>Records your screen and turns it into an animated GIF.</source>
        <translation>Nimmt den Bildschirm auf und macht daraus ein animiertes GIF.</translation>
    </message>
    <message id="IDD_ABOUT_VERSION">
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message id="IDD_ABOUT_LICENCE">
        <source>Free software under the %1 License.</source>
        <translation>Freie Software unter der %1-Lizenz.</translation>
    </message>
    <message id="IDD_ABOUT_TOOLS">
        <source>Tools in use:</source>
        <translation>Verwendete Werkzeuge:</translation>
    </message>
    <message id="IDD_ABOUT_TOOL">
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message id="IDD_ABOUT_TOOL_MISSING">
        <source>not found</source>
        <translation>nicht gefunden</translation>
    </message>
    <message id="IDD_HELP_NOT_OPENED">
        <source>No program was found to show the help pages. Open this file in a browser:</source>
        <translation>Es wurde kein Programm gefunden, das die Hilfeseiten anzeigt. Öffnen Sie diese Datei in einem Browser:</translation>
    </message>
    <message id="IDD_RECORD_PREVIEW">
        <source>Live preview</source>
        <translation>Live-Vorschau</translation>
    </message>
    <message id="IDD_KEYS_GRANTED">
        <source>Shortcuts in any window, with %1: %2</source>
        <translation>Tastenkürzel überall, mit %1: %2</translation>
    </message>
    <message id="IDD_KEYS_BOUND">
        <source>Shortcuts in any window: %1</source>
        <translation>Tastenkürzel überall: %1</translation>
    </message>
    <message id="IDD_KEYS_TAKEN">
        <source>Already in use: %1</source>
        <translation>Bereits belegt: %1</translation>
    </message>
    <!-- platform -->
    <message id="IDD_REASON_NO_DISPLAY">
        <source>The screen cannot be recorded: there is no display server.</source>
        <translation>Der Bildschirm kann nicht aufgenommen werden: Es ist kein Anzeigeserver erreichbar.</translation>
    </message>
    <message id="IDD_REASON_NO_COMPOSITE">
        <source>The screen cannot be recorded: this display server lacks the Composite extension, so the program could not leave out its own windows.</source>
        <translation>Der Bildschirm kann nicht aufgenommen werden: Diesem Anzeigeserver fehlt die Erweiterung Composite, so dass das Programm seine eigenen Fenster nicht auslassen könnte.</translation>
    </message>
    <message id="IDD_REASON_MISSING_EXTENSION">
        <source>The screen cannot be recorded: this display server lacks one of the extensions Damage, XFixes, Render and Shape.</source>
        <translation>Der Bildschirm kann nicht aufgenommen werden: Diesem Anzeigeserver fehlt eine der Erweiterungen Damage, XFixes, Render und Shape.</translation>
    </message>
    <message id="IDD_REASON_PICTURE_FORMAT">
        <source>The screen cannot be recorded: this display server does not use 24-bit color.</source>
        <translation>Der Bildschirm kann nicht aufgenommen werden: Dieser Anzeigeserver verwendet keine 24-Bit-Farben.</translation>
    </message>
    <!-- record -->
    <message id="IDD_SAVING_RECORDING">
        <source>Saving the recording…</source>
        <translation>Die Aufnahme wird gespeichert&#xa0;…</translation>
    </message>
    <message id="IDD_REASON_NO_PORTAL">
        <source>The screen cannot be recorded: this Wayland desktop has no portal for it. Install xdg-desktop-portal with your desktop’s back end, or log in to an X11 session.</source>
        <translation>Der Bildschirm kann nicht aufgenommen werden: Diese Wayland-Sitzung hat kein Portal dafür. Installieren Sie xdg-desktop-portal mit dem Backend Ihrer Arbeitsumgebung, oder melden Sie sich in einer X11-Sitzung an.</translation>
    </message>
    <message id="IDD_CHOOSE_SOURCE">
        <source>Choose What to Record…</source>
        <translation>Aufnahmequelle wählen&#xa0;…</translation>
    </message>
    <message id="IDD_SOURCE_IDLE">
        <source>Your desktop asks what may be recorded: a monitor or a window.</source>
        <translation>Ihre Arbeitsumgebung fragt, was aufgenommen werden darf: ein Monitor oder ein Fenster.</translation>
    </message>
    <message id="IDD_SOURCE_ASKING">
        <source>Choose in the desktop’s dialog what to record.</source>
        <translation>Wählen Sie im Dialog der Arbeitsumgebung, was aufgenommen werden soll.</translation>
    </message>
    <message id="IDD_SOURCE_WAITING">
        <source>Waiting for the first picture…</source>
        <translation>Das erste Bild wird erwartet&#xa0;…</translation>
    </message>
    <message id="IDD_SOURCE_ENDED">
        <source>The desktop has stopped sharing the screen.</source>
        <translation>Die Arbeitsumgebung hat die Freigabe des Bildschirms beendet.</translation>
    </message>
    <message id="IDD_SOURCE_FAILED">
        <source>The desktop provides no pictures of the screen: %1</source>
        <translation>Die Arbeitsumgebung liefert keine Bilder des Bildschirms: %1</translation>
    </message>
    <message id="IDD_SOURCE_REFUSED">
        <source>Nothing was chosen.</source>
        <translation>Es wurde nichts ausgewählt.</translation>
    </message>
    <message id="IDD_SOURCE_RESIZED">
        <source>Size changed: scaled to fit</source>
        <translation>Größe geändert: wird angepasst</translation>
    </message>
    <message id="IDD_CHOSEN_MONITOR">
        <source>Monitor %1 × %2</source>
        <translation>Monitor %1 × %2</translation>
    </message>
    <message id="IDD_CHOSEN_WINDOW">
        <source>Window %1 × %2</source>
        <translation>Fenster %1 × %2</translation>
    </message>
    <message id="IDD_CHOSEN_OTHER">
        <source>Chosen: %1 × %2</source>
        <translation>Ausgewählt: %1 × %2</translation>
    </message>
    <message id="IDD_STEP_ASIDE">
        <source>Tovarel gets out of the way while it records.</source>
        <translation>Tovarel geht während der Aufnahme aus dem Bild.</translation>
    </message>
    <message id="IDD_STEP_ASIDE_HOW_TO_STOP">
        <source>Everything that is visible is recorded, so this window is minimized first. To stop, bring it back with a click in the dock or by starting Tovarel again: the recording pauses, and “Stop” saves it.</source>
        <translation>Alles Sichtbare wird aufgenommen, deshalb wird dieses Fenster vorher minimiert. Zum Beenden holen Sie es mit einem Klick im Dock oder durch erneutes Starten von Tovarel zurück: Die Aufnahme pausiert, und „Stopp“ speichert sie.</translation>
    </message>
    <message id="IDD_REASON_WAYLAND">
        <source>In a Wayland session Tovarel can record from its window only: start it without arguments, or log in to an X11 session.</source>
        <translation>In einer Wayland-Sitzung kann Tovarel nur von seinem Fenster aus aufnehmen: Starten Sie es ohne Argumente, oder melden Sie sich in einer X11-Sitzung an.</translation>
    </message>
    <message id="IDD_REGION_OF_WINDOW">
        <source>A window is recorded as a whole. Choose a monitor to record a region of it.</source>
        <translation>Ein Fenster wird als Ganzes aufgenommen. Wählen Sie einen Monitor, um einen Bereich davon aufzunehmen.</translation>
    </message>
    <message id="IDD_STATE_RECORDING">
        <source>Recording</source>
        <translation>Aufnahme läuft</translation>
    </message>
    <message id="IDD_STATE_PAUSED">
        <source>Paused</source>
        <translation>Pausiert</translation>
    </message>
    <message id="IDD_PAUSED_HINT">
        <source>Paused – press “%1” to continue</source>
        <translation>Pausiert – weiter mit „%1“</translation>
    </message>
    <message id="IDD_RECORDING_FIGURES">
        <source>%1 · Frames: %2 · %3&#xa0;fps</source>
        <translation>%1 · Bilder: %2 · %3&#xa0;fps</translation>
    </message>
    <message id="IDD_POINTER">
        <source>Pointer</source>
        <translation>Mauszeiger</translation>
    </message>
    <message id="IDD_POINTER_TIP">
        <source>Pointer: shows the mouse pointer in the recording</source>
        <translation>Mauszeiger: zeigt den Mauszeiger in der Aufnahme</translation>
    </message>
    <message id="IDD_HANDS_NOT_OFFERED">
        <source>Not possible with this display server: it does not report mouse buttons and keys</source>
        <translation>Mit diesem Anzeigeserver nicht möglich: Er meldet weder Maustasten noch Tastatureingaben</translation>
    </message>
    <message id="IDD_CLICKS">
        <source>Clicks</source>
        <translation>Klicks</translation>
    </message>
    <message id="IDD_CLICKS_TIP">
        <source>Clicks: shows in the recording where a mouse button is pressed</source>
        <translation>Klicks: zeigt in der Aufnahme, wo eine Maustaste gedrückt wird</translation>
    </message>
    <message id="IDD_KEYS">
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message id="IDD_KEYS_TIP">
        <source>Keys: shows keyboard shortcuts in the recording, never the text you type</source>
        <translation>Tasten: zeigt Tastenkürzel in der Aufnahme, niemals den Text, den Sie tippen</translation>
    </message>
    <message id="IDD_KEYS_SHOWN">
        <source>Shortcuts that you press are shown</source>
        <translation>Gedrückte Tastenkürzel werden gezeigt</translation>
    </message>
    <message id="IDD_PAUSED_FOR_MEMORY">
        <source>Memory is low (%1 left). “Stop” saves the recording.</source>
        <translation>Arbeitsspeicher fast voll (%1 frei). Mit „Stopp“ speichern.</translation>
    </message>
    <message id="IDD_RECORDING_MEMORY">
        <source>Memory: %1</source>
        <translation>Arbeitsspeicher: %1</translation>
    </message>
    <message id="IDD_RECORDING_MEMORY_LASTS">
        <source>Memory: %1, enough for %2&#xa0;min more</source>
        <translation>Arbeitsspeicher: %1, reicht noch für %2&#xa0;min</translation>
    </message>
    <message id="IDD_RECORDING_SAVED">
        <source>The recording is complete. Frames: %1 · %2&#xa0;fps</source>
        <translation>Die Aufnahme ist abgeschlossen. Bilder: %1 · %2&#xa0;fps</translation>
    </message>
    <message id="IDD_RECORDING_BEHIND">
        <source>The recording is complete. Frames: %1 · %3&#xa0;fps instead of %2&#xa0;fps</source>
        <translation>Die Aufnahme ist abgeschlossen. Bilder: %1 · %3&#xa0;fps statt %2&#xa0;fps</translation>
    </message>
    <message id="IDD_NOTHING_RECORDED">
        <source>Nothing was recorded.</source>
        <translation>Es wurde nichts aufgenommen.</translation>
    </message>
    <message id="IDD_FRAMES_MISSING" numerus="yes">
        <source>%1 of %Ln frames could not be written to %2: %3</source>
        <translation>
            <numerusform>Nicht nach %2 geschrieben: %1 von %Ln Bild (%3)</numerusform>
            <numerusform>Nicht nach %2 geschrieben: %1 von %Ln Bildern (%3)</numerusform>
        </translation>
    </message>
    <message id="IDD_CLOSE_WAITS">
        <source>Tovarel closes as soon as the recording is saved.</source>
        <translation>Tovarel wird geschlossen, sobald die Aufnahme gespeichert ist.</translation>
    </message>
    <message id="IDD_RECOVER_QUESTION">
        <source>An earlier recording is still there.</source>
        <translation>Eine frühere Aufnahme ist noch vorhanden.</translation>
    </message>
    <message id="IDD_RECOVER_DETAIL" numerus="yes">
        <source>The recording of %1 is complete: %Ln frames, %2&#xa0;s. You can open it on the “Cut” tab or delete it.</source>
        <translation>
            <numerusform>Die Aufnahme vom %1 ist vollständig: %Ln Bild, %2&#xa0;s. Sie können sie unter „Schneiden“ öffnen oder löschen.</numerusform>
            <numerusform>Die Aufnahme vom %1 ist vollständig: %Ln Bilder, %2&#xa0;s. Sie können sie unter „Schneiden“ öffnen oder löschen.</numerusform>
        </translation>
    </message>
    <message id="IDD_RECOVER_OPEN">
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message id="IDD_RECOVER_DELETE">
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message id="IDD_RECOVER_LOADING">
        <source>Opening the recording…</source>
        <translation>Die Aufnahme wird geöffnet&#xa0;…</translation>
    </message>
    <message id="IDD_RECOVER_FAILED">
        <source>The recording could not be opened: the file %1 is damaged.</source>
        <translation>Die Aufnahme konnte nicht geöffnet werden: Die Datei %1 ist beschädigt.</translation>
    </message>
    <message id="IDD_RECORD_PREVIOUS">
        <source>Bring Back Previous Recording</source>
        <translation>Vorherige Aufnahme zurückholen</translation>
    </message>
    <message id="IDD_PREVIOUS_GONE">
        <source>The previous recording is no longer complete.</source>
        <translation>Die vorherige Aufnahme ist nicht mehr vollständig.</translation>
    </message>
    <message id="IDD_SAVE_AGAIN">
        <source>Save Again</source>
        <translation>Nochmals speichern</translation>
    </message>
    <message id="IDD_MODE_FULL_SCREEN">
        <source>Full screen, without this window</source>
        <translation>Ganzer Bildschirm, ohne dieses Fenster</translation>
    </message>
    <message id="IDD_MODE_REGION">
        <source>Region %1 × %2 at %3,&#xa0;%4</source>
        <translation>Bereich %1 × %2 bei %3,&#xa0;%4</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <!-- region -->
    <message id="IDD_REGION_OVERLAY">
        <source>Select a Region</source>
        <translation>Bereich wählen</translation>
    </message>
    <message id="IDD_REGION_TIP">
        <source>%1: %2 × %3 pixels at %4, %5</source>
        <translation>%1: %2 × %3 Pixel bei %4, %5</translation>
    </message>
    <message id="IDD_REGION_TOO_SMALL">
        <source>Too small: at least %1 × %1 pixels are needed</source>
        <translation>Zu klein: Mindestens %1 × %1 Pixel sind nötig</translation>
    </message>
    <message id="IDD_REGION_LOWER_LEFT">
        <source>Lower left</source>
        <translation>Unten links</translation>
    </message>
    <message id="IDD_REGION_LOWER_RIGHT">
        <source>Lower right</source>
        <translation>Unten rechts</translation>
    </message>
    <message id="IDD_REGION_UPPER_LEFT">
        <source>Upper left</source>
        <translation>Oben links</translation>
    </message>
    <message id="IDD_REGION_UPPER_RIGHT">
        <source>Upper right</source>
        <translation>Oben rechts</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_TITLE">
        <source>How to Select a Region</source>
        <translation>So wählen Sie einen Bereich</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_TEXT">
        <source>A rectangle with five squares appears on the screen. Drag the green squares until it frames what you want to record, then click the red one or press “Use Region”. Drag inside the rectangle to move it, or outside to draw a new one.</source>
        <translation>Auf dem Bildschirm erscheint ein Rechteck mit fünf Quadraten. Ziehen Sie die grünen, bis es umrahmt, was Sie aufnehmen möchten, und klicken Sie dann auf das rote oder auf „Bereich verwenden“. Ziehen innerhalb des Rechtecks verschiebt es, Ziehen außerhalb zeichnet ein neues.</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_WINDOW">
        <source>To record a single window, press “Pick a Window” or hold W, then click the window.</source>
        <translation>Für ein einzelnes Fenster drücken Sie „Fenster wählen“ oder halten Sie W gedrückt und klicken Sie es an.</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_PICTURE">
        <source>A rectangle on a screen: a green square on each corner resizes it, the red square in its middle accepts it.</source>
        <translation>Ein Rechteck auf einem Bildschirm: Ein grünes Quadrat an jeder Ecke ändert die Größe, das rote in der Mitte bestätigt.</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_DRAG">
        <source>Drag a corner</source>
        <translation>Ecke ziehen</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_ACCEPT">
        <source>Click to accept</source>
        <translation>Klicken zum Bestätigen</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_KEYS">
        <source>With the keyboard: the arrow keys move a corner (faster with Shift), Tab selects the next one, Enter accepts, Esc cancels.</source>
        <translation>Mit der Tastatur: Die Pfeiltasten verschieben eine Ecke (mit Umschalt schneller), Tab wählt die nächste, die Eingabetaste bestätigt, Esc bricht ab.</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_AGAIN">
        <source>Don’t show this again</source>
        <translation>Nicht mehr anzeigen</translation>
    </message>
    <!-- trim -->
    <message id="IDD_HANDLE_FIRST">
        <source>First frame</source>
        <translation>Erstes Bild</translation>
    </message>
    <message id="IDD_HANDLE_LAST">
        <source>Last frame</source>
        <translation>Letztes Bild</translation>
    </message>
    <message id="IDD_CUT_KEPT" numerus="yes">
        <source>Kept: %1&#xa0;s of %2&#xa0;s · %3 of %Ln frames</source>
        <translation>
            <numerusform>Behalten: %1&#xa0;s von %2&#xa0;s · %3 von %Ln Bild</numerusform>
            <numerusform>Behalten: %1&#xa0;s von %2&#xa0;s · %3 von %Ln Bildern</numerusform>
        </translation>
    </message>
    <message id="IDD_CUT_PREVIOUS">
        <source>Previous Frame</source>
        <translation>Vorheriges Bild</translation>
    </message>
    <message id="IDD_CUT_NEXT">
        <source>Next Frame</source>
        <translation>Nächstes Bild</translation>
    </message>
    <message id="IDD_CUT_BACK_TEN">
        <source>Back 10&#xa0;Frames</source>
        <translation>10&#xa0;Bilder zurück</translation>
    </message>
    <message id="IDD_CUT_FORWARD_TEN">
        <source>Forward 10&#xa0;Frames</source>
        <translation>10&#xa0;Bilder vor</translation>
    </message>
    <message id="IDD_CUT_TO_START">
        <source>Go to Start</source>
        <translation>Zum Anfang</translation>
    </message>
    <message id="IDD_CUT_TO_END">
        <source>Go to End</source>
        <translation>Zum Ende</translation>
    </message>
    <message id="IDD_CUT_START_HERE">
        <source>Start Here</source>
        <translation>Hier beginnen</translation>
    </message>
    <message id="IDD_CUT_END_HERE">
        <source>End Here</source>
        <translation>Hier enden</translation>
    </message>
    <message id="IDD_PLAYHEAD">
        <source>Playhead</source>
        <translation>Abspielposition</translation>
    </message>
    <message id="IDD_CUT_FRAME">
        <source>Frame %1 of %2, at %3&#xa0;s</source>
        <translation>Bild %1 von %2, bei %3&#xa0;s</translation>
    </message>
    <message id="IDD_TIP_SHORTCUT">
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="IDD_CUT_PREVIEW">
        <source>Frame preview</source>
        <translation>Bildvorschau</translation>
    </message>
    <message id="IDD_CUT_RANGE">
        <source>Part of the recording to keep</source>
        <translation>Abschnitt der Aufnahme, der bleibt</translation>
    </message>
    <message id="IDD_RANGE_EMPTY">
        <source>No frame in this range</source>
        <translation>Kein Bild in diesem Abschnitt</translation>
    </message>
    <message id="IDD_CUT_DELETE">
        <source>Delete Selection</source>
        <translation>Auswahl löschen</translation>
    </message>
    <message id="IDD_CUT_STILL">
        <source>Shorten Still Time</source>
        <translation>Standzeiten kürzen</translation>
    </message>
    <message id="IDD_UNDO">
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message id="IDD_REDO">
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message id="IDD_CUT_SELECTED">
        <source>Selected: %1 to %2, %3&#xa0;s</source>
        <translation>Ausgewählt: %1 bis %2, %3&#xa0;s</translation>
    </message>
    <message id="IDD_STRIP_TIP">
        <source>Drag a handle to leave an end out, or drag between the handles to select a part to delete.</source>
        <translation>Ziehen Sie an einem Griff, um ein Ende wegzulassen, oder zwischen den Griffen, um einen Teil zum Löschen auszuwählen.</translation>
    </message>
    <message id="IDD_TAB_NEEDS_STOP_RECORDING">
        <source>Stop the recording to open another tab.</source>
        <translation>Beenden Sie die Aufnahme, um eine andere Ansicht zu öffnen.</translation>
    </message>
    <message id="IDD_TAB_NEEDS_STOP_PLAYBACK">
        <source>Stop the playback to open another tab.</source>
        <translation>Beenden Sie die Wiedergabe, um eine andere Ansicht zu öffnen.</translation>
    </message>
    <message id="IDD_KEY_ON_RECORD_TAB">
        <source>To record again, open the “Record” tab.</source>
        <translation>Öffnen Sie die Ansicht „Aufnehmen“, um wieder aufzunehmen.</translation>
    </message>
    <message id="IDD_STILL_LENGTH">
        <source>To %1&#xa0;s at Most</source>
        <translation>Auf höchstens %1&#xa0;s</translation>
    </message>
    <message id="IDD_STILL_NONE">
        <source>Nothing stands still for longer than %1&#xa0;s.</source>
        <translation>Nichts steht länger als %1&#xa0;s still.</translation>
    </message>
    <message id="IDD_STILL_SHORTENED">
        <source>Still time was shortened by %1&#xa0;s.</source>
        <translation>Standzeiten wurden um %1&#xa0;s gekürzt.</translation>
    </message>
    <!-- export -->
    <message id="IDD_PROGRESS_GIF">
        <source>Generating the GIF…</source>
        <translation>Das GIF wird erzeugt&#xa0;…</translation>
    </message>
    <message id="IDD_PROGRESS_WEBP">
        <source>Generating the WebP…</source>
        <translation>Das WebP wird erzeugt&#xa0;…</translation>
    </message>
    <message id="IDD_PROGRESS_PALETTE">
        <source>Step 1 of 2: choosing the colors</source>
        <translation>Schritt 1 von 2: Farben auswählen</translation>
    </message>
    <message id="IDD_PROGRESS_SCALING">
        <source>Step 1 of 2, scaling: %p%</source>
        <translation>Schritt 1 von 2, Skalieren: %p&#xa0;%</translation>
    </message>
    <message id="IDD_PROGRESS_PICTURES">
        <source>Step 2 of 2: %p%</source>
        <translation>Schritt 2 von 2: %p&#xa0;%</translation>
    </message>
    <message id="IDD_PROGRESS_AGAIN">
        <source>Attempt %1: making it fit under %2…</source>
        <translation>Versuch %1: wird auf höchstens %2 verkleinert&#xa0;…</translation>
    </message>
    <message id="IDD_EXPORT_CANCELLED">
        <source>The export was canceled.</source>
        <translation>Der Export wurde abgebrochen.</translation>
    </message>
    <message id="IDD_TOOL_MISSING">
        <source>The program “%1” is missing: it was not found when Tovarel started.</source>
        <translation>Das Programm „%1“ fehlt: Es wurde beim Start von Tovarel nicht gefunden.</translation>
    </message>
    <message id="IDD_TOOL_NOT_STARTED">
        <source>The program “%1” could not be started: %2</source>
        <translation>Das Programm „%1“ konnte nicht gestartet werden: %2</translation>
    </message>
    <message id="IDD_TOOL_CRASHED">
        <source>The program “%1” crashed (signal %2, %3).</source>
        <translation>Das Programm „%1“ ist abgestürzt (Signal %2, %3).</translation>
    </message>
    <message id="IDD_TOOL_FAILED">
        <source>The program “%1” failed (exit status %2).</source>
        <translation>Das Programm „%1“ wurde mit einem Fehler beendet (Rückgabewert %2).</translation>
    </message>
    <message id="IDD_TOOL_NO_RESULT">
        <source>The program “%1” ended without writing its result, %2.</source>
        <translation>Das Programm „%1“ endete, ohne sein Ergebnis zu schreiben: %2.</translation>
    </message>
    <message id="IDD_REFUSED_SIZE">
        <source>The requested size was %1 × %2.</source>
        <translation>Die angeforderte Größe war %1 × %2.</translation>
    </message>
    <message id="IDD_GIF_TOO_LARGE">
        <source>A GIF of %1 × %2 pixels needs about %3 of memory. At most %4 may be used, half of what is free. Choose a smaller size.</source>
        <translation>Ein GIF mit %1 × %2 Pixeln benötigt etwa %3 Arbeitsspeicher. Höchstens %4 dürfen verwendet werden, die Hälfte des freien Speichers. Wählen Sie eine kleinere Größe.</translation>
    </message>
    <message id="IDD_GIF_NO_MEMORY">
        <source>There is not enough memory for the GIF. Choose a smaller size or close other programs.</source>
        <translation>Der Arbeitsspeicher reicht für das GIF nicht aus. Wählen Sie eine kleinere Größe oder schließen Sie andere Programme.</translation>
    </message>
    <message id="IDD_GIF_NOT_WRITTEN">
        <source>The GIF could not be written to %1.
%2

The recording is still there.</source>
        <translation>Das GIF konnte nicht nach %1 geschrieben werden.
%2

Die Aufnahme ist noch vorhanden.</translation>
    </message>
    <message id="IDD_GIF_NO_FRAMES">
        <source>The frames of the recording could not be read from %1.</source>
        <translation>Die Bilder der Aufnahme konnten nicht aus %1 gelesen werden.</translation>
    </message>
    <message id="IDD_MOVE_FAILED">
        <source>The file could not be saved as %1.
%2

It is still at %3.</source>
        <translation>Die Datei konnte nicht als %1 gespeichert werden.
%2

Sie liegt weiterhin unter %3.</translation>
    </message>
    <message id="IDD_CLI_ABOUT">
        <source>Records the screen and makes an animated GIF, WebP or MP4 of it. Without arguments it shows its window.</source>
        <translation>Nimmt den Bildschirm auf und macht ein animiertes GIF, WebP oder MP4 daraus. Ohne Argumente zeigt es sein Fenster.</translation>
    </message>
    <message id="IDD_CLI_RECORD_ABOUT">
        <source>Records without showing a window and writes the file. Say what to record with one of --region, --screen and --window.</source>
        <translation>Nimmt auf, ohne ein Fenster zu zeigen, und schreibt die Datei. Was aufgenommen wird, sagt eine der Optionen --region, --screen und --window.</translation>
    </message>
    <message id="IDD_CLI_RECORD">
        <source>Record without a window</source>
        <translation>Ohne Fenster aufnehmen</translation>
    </message>
    <message id="IDD_CLI_TOGGLE">
        <source>Start a recording in the running Tovarel, or stop the one in progress</source>
        <translation>Im laufenden Tovarel eine Aufnahme beginnen oder die begonnene stoppen</translation>
    </message>
    <message id="IDD_CLI_PAUSE">
        <source>Pause the recording in progress, or continue it</source>
        <translation>Die laufende Aufnahme pausieren oder fortsetzen</translation>
    </message>
    <message id="IDD_CLI_STOP">
        <source>Stop the recording in progress</source>
        <translation>Die laufende Aufnahme stoppen</translation>
    </message>
    <message id="IDD_CLI_HELP">
        <source>Show this help</source>
        <translation>Diese Hilfe anzeigen</translation>
    </message>
    <message id="IDD_CLI_VERSION">
        <source>Show the version</source>
        <translation>Die Version anzeigen</translation>
    </message>
    <message id="IDD_CLI_REGION">
        <source>Record W × H pixels of the desktop, X to the right and Y down from its upper left corner</source>
        <translation>W × H Pixel des Desktops aufnehmen, X nach rechts und Y nach unten von seiner linken oberen Ecke aus</translation>
    </message>
    <message id="IDD_CLI_SCREEN">
        <source>Record monitor number N, counted from 1; without N all monitors, or on Wayland the one that you choose</source>
        <translation>Den Monitor mit der Nummer N aufnehmen, ab 1 gezählt; ohne N alle Monitore, unter Wayland den, den Sie wählen</translation>
    </message>
    <message id="IDD_CLI_WINDOW">
        <source>Record the part of the screen where the window with TITLE in its title is</source>
        <translation>Den Teil des Bildschirms aufnehmen, den das Fenster mit TITLE im Titel einnimmt</translation>
    </message>
    <message id="IDD_CLI_SECONDS">
        <source>Record for S seconds; Ctrl+C stops earlier</source>
        <translation>S Sekunden lang aufnehmen; Strg+C stoppt früher</translation>
    </message>
    <message id="IDD_CLI_RATE">
        <source>Frames per second, 1 to 60; 15 if not given</source>
        <translation>Bilder pro Sekunde, 1 bis 60; sonst 15</translation>
    </message>
    <message id="IDD_CLI_DELAY">
        <source>Wait S seconds before recording</source>
        <translation>Vor der Aufnahme S Sekunden warten</translation>
    </message>
    <message id="IDD_CLI_QUALITY">
        <source>best, balanced, small or classic; balanced if not given</source>
        <translation>best, balanced, small oder classic; sonst balanced</translation>
    </message>
    <message id="IDD_CLI_OUTPUT">
        <source>Write to FILE, which ends in .gif, .webp or .mp4; if not given, to a GIF here, named after the time</source>
        <translation>In die Datei FILE schreiben, die auf .gif, .webp oder .mp4 endet; sonst hier in ein GIF, das nach der Zeit benannt ist</translation>
    </message>
    <message id="IDD_CLI_FORCE">
        <source>Replace the file if it exists</source>
        <translation>Die Datei ersetzen, falls es sie gibt</translation>
    </message>
    <message id="IDD_CLI_SEE_HELP">
        <source>“tovarel --help” and “tovarel record --help” say more.</source>
        <translation>Mehr dazu sagen „tovarel --help“ und „tovarel record --help“.</translation>
    </message>
    <message id="IDD_CLI_EXAMPLES">
        <source>Examples:</source>
        <translation>Beispiele:</translation>
    </message>
    <message id="IDD_CLI_ONE_TARGET">
        <source>Give exactly one of --region, --screen and --window.</source>
        <translation>Geben Sie genau eine der Optionen --region, --screen und --window an.</translation>
    </message>
    <message id="IDD_CLI_ONE_WISH">
        <source>Give only one of --toggle, --pause and --stop.</source>
        <translation>Geben Sie nur eine der Optionen --toggle, --pause und --stop an.</translation>
    </message>
    <message id="IDD_CLI_UNKNOWN">
        <source>“%1” is not a command of Tovarel.</source>
        <translation>„%1“ ist kein Befehl von Tovarel.</translation>
    </message>
    <message id="IDD_CLI_NEEDS_SECONDS">
        <source>Say how long to record with --seconds.</source>
        <translation>Geben Sie mit --seconds an, wie lange aufgenommen wird.</translation>
    </message>
    <message id="IDD_CLI_NOT_NUMBER">
        <source>%1 takes a number from %2 to %3.</source>
        <translation>%1 verlangt eine Zahl von %2 bis %3.</translation>
    </message>
    <message id="IDD_CLI_NOT_REGION">
        <source>“%1” is not a region. --region takes width, height and place in pixels, as in 640x480+100+80.</source>
        <translation>„%1“ ist kein Bereich. --region verlangt Breite, Höhe und Platz in Pixeln wie in 640x480+100+80.</translation>
    </message>
    <message id="IDD_CLI_NOT_QUALITY">
        <source>“%1” is not a quality. --quality takes best, balanced, small or classic.</source>
        <translation>„%1“ ist keine Qualität. --quality verlangt best, balanced, small oder classic.</translation>
    </message>
    <message id="IDD_CLI_NOT_FORMAT">
        <source>The name of the file must end in .gif, .webp or .mp4: “%1”</source>
        <translation>Der Name der Datei muss auf .gif, .webp oder .mp4 enden: „%1“</translation>
    </message>
    <message id="IDD_CLI_NO_PLACE">
        <source>No file can be written there: %1</source>
        <translation>Dort kann keine Datei geschrieben werden: %1</translation>
    </message>
    <message id="IDD_CLI_EXISTS">
        <source>There is already a file %1. --force replaces it.</source>
        <translation>Die Datei %1 gibt es bereits. --force ersetzt sie.</translation>
    </message>
    <message id="IDD_CLI_TOO_SHORT">
        <source>The recording is too short: an animation needs at least three frames.</source>
        <translation>Die Aufnahme ist zu kurz: Eine Animation braucht mindestens drei Bilder.</translation>
    </message>
    <message id="IDD_CLI_NOBODY">
        <source>Tovarel is not running.</source>
        <translation>Tovarel läuft nicht.</translation>
    </message>
    <message id="IDD_CLI_NOT_NOW">
        <source>Tovarel cannot do that now.</source>
        <translation>Tovarel kann das jetzt nicht tun.</translation>
    </message>
    <message id="IDD_CLI_NOT_RECORDING">
        <source>Tovarel is not recording.</source>
        <translation>Tovarel nimmt gerade nicht auf.</translation>
    </message>
    <message id="IDD_CLI_SAVING">
        <source>Tovarel is still saving the last recording.</source>
        <translation>Tovarel speichert noch die letzte Aufnahme.</translation>
    </message>
    <message id="IDD_CLI_ASKING">
        <source>Tovarel is waiting for an answer in its window.</source>
        <translation>Tovarel wartet in seinem Fenster auf eine Antwort.</translation>
    </message>
    <message id="IDD_CLI_NO_PICTURE">
        <source>The display server provides no picture of the screen.</source>
        <translation>Der Anzeigeserver liefert kein Bild des Bildschirms.</translation>
    </message>
    <message id="IDD_CLI_REGION_OUTSIDE">
        <source>That is not wholly on the desktop, which has %1 × %2 pixels.</source>
        <translation>Das liegt nicht ganz auf dem Desktop, der %1 × %2 Pixel hat.</translation>
    </message>
    <message id="IDD_CLI_NO_SCREEN">
        <source>There is no monitor number %1. Monitors: %2</source>
        <translation>Es gibt keinen Monitor mit der Nummer %1. Monitore: %2</translation>
    </message>
    <message id="IDD_CLI_DESKTOP_CHOOSES">
        <source>Here the desktop’s own dialog decides which monitor is recorded: use --screen without a number, or --region.</source>
        <translation>Hier bestimmt der Dialog der Arbeitsumgebung, welcher Monitor aufgenommen wird: Verwenden Sie --screen ohne Nummer oder --region.</translation>
    </message>
    <message id="IDD_CLI_NO_WINDOW">
        <source>No window on the screen has “%1” in its title.</source>
        <translation>Kein Fenster auf dem Bildschirm hat „%1“ im Titel.</translation>
    </message>
    <message id="IDD_CLI_STARTS">
        <source>Recording starts in %1&#xa0;s</source>
        <translation>Die Aufnahme beginnt in %1&#xa0;s</translation>
    </message>
    <message id="IDD_CLI_RECORDING">
        <source>Recording: %1 of %2&#xa0;s · Frames: %3</source>
        <translation>Aufnahme: %1 von %2&#xa0;s · Bilder: %3</translation>
    </message>
    <message id="IDD_CLI_ENCODING">
        <source>Generating the file: %1%</source>
        <translation>Datei wird erzeugt: %1&#xa0;%</translation>
    </message>
    <message id="IDD_MOVE_IS_FOLDER">
        <source>There is already a folder with that name.</source>
        <translation>Dort gibt es bereits einen Ordner mit diesem Namen.</translation>
    </message>
    <message id="IDD_MOVE_NOT_A_FILE">
        <source>There is already something with that name, and it is not a regular file.</source>
        <translation>Unter diesem Namen gibt es dort bereits etwas, das keine normale Datei ist.</translation>
    </message>
    <message id="IDD_MOVE_SAME_FILE">
        <source>Source and destination are the same file.</source>
        <translation>Quelle und Ziel sind dieselbe Datei.</translation>
    </message>
    <message id="IDD_MOVE_WORKING_FOLDER">
        <source>Tovarel empties that folder automatically. Choose another one.</source>
        <translation>Tovarel leert diesen Ordner automatisch. Wählen Sie einen anderen.</translation>
    </message>
    <message id="IDD_STATUS_SAVED">
        <source>Saved: %1 (%2).</source>
        <translation>Gespeichert: %1 (%2).</translation>
    </message>
    <message id="IDD_STATUS_SAVED_NOTE">
        <source>Saved: %1 (%2). %3</source>
        <translation>Gespeichert: %1 (%2). %3</translation>
    </message>
    <message id="IDD_STATUS_UNSAVED">
        <source>The %1 has not been saved, but it is still there.</source>
        <translation>Das %1 ist nicht gespeichert, aber noch vorhanden.</translation>
    </message>
    <message id="IDD_SAVE_RESULT">
        <source>Save…</source>
        <translation>Speichern&#xa0;…</translation>
    </message>
    <message id="IDD_SAVE_WITHOUT_ASKING">
        <source>Save Without Asking</source>
        <translation>Ohne Rückfrage speichern</translation>
    </message>
    <message id="IDD_GENERATE_AND_COPY">
        <source>Generate GIF and Copy</source>
        <translation>GIF erzeugen und kopieren</translation>
    </message>
    <message id="IDD_SAVING_OPTIONS">
        <source>Saving Options</source>
        <translation>Optionen zum Speichern</translation>
    </message>
    <message id="IDD_LAST_FILE">
        <source>Last File</source>
        <translation>Letzte Datei</translation>
    </message>
    <message id="IDD_FILE_PICTURE">
        <source>Picture of the file</source>
        <translation>Bild der Datei</translation>
    </message>
    <message id="IDD_FILE_FIGURES">
        <source>%1 · %2 × %3 · %4&#xa0;s</source>
        <translation>%1 · %2 × %3 · %4&#xa0;s</translation>
    </message>
    <message id="IDD_FILE_DRAG">
        <source>Drag it into another program</source>
        <translation>In ein anderes Programm ziehen</translation>
    </message>
    <message id="IDD_FILE_COPY">
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message id="IDD_FILE_OPEN">
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message id="IDD_FILE_SHOW">
        <source>Show in Folder</source>
        <translation>Im Ordner anzeigen</translation>
    </message>
    <message id="IDD_FILE_COPIED">
        <source>Copied: %1. Paste it into another program.</source>
        <translation>Kopiert: %1. Fügen Sie die Datei in ein anderes Programm ein.</translation>
    </message>
    <message id="IDD_FILE_GONE">
        <source>The file has been deleted or moved. Generate it again if you need it.</source>
        <translation>Die Datei wurde gelöscht oder verschoben. Bei Bedarf erzeugen Sie sie neu.</translation>
    </message>
    <message id="IDD_FILE_UNSAVED">
        <source>Not saved yet</source>
        <translation>Noch nicht gespeichert</translation>
    </message>
    <message id="IDD_FILE_REPLACED">
        <source>Another program has changed this file. Generate it again.</source>
        <translation>Ein anderes Programm hat diese Datei geändert. Erzeugen Sie sie neu.</translation>
    </message>
    <message id="IDD_FILE_NOT_OPENED">
        <source>No program was found to open %1.</source>
        <translation>Es wurde kein Programm gefunden, das %1 öffnet.</translation>
    </message>
    <message id="IDD_FILE_READY">
        <source>The file is ready</source>
        <translation>Die Datei ist fertig</translation>
    </message>
    <message id="IDD_UNSAVED_QUESTION">
        <source>The %1 has not been saved.</source>
        <translation>Das %1 ist noch nicht gespeichert.</translation>
    </message>
    <message id="IDD_UNSAVED_DETAIL">
        <source>Save it before you continue? If you discard it, the file is deleted; the recording stays.</source>
        <translation>Vor dem Fortfahren speichern? Wenn Sie es verwerfen, wird die Datei gelöscht; die Aufnahme bleibt erhalten.</translation>
    </message>
    <message id="IDD_DISCARD">
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message id="IDD_STATUS_GAP" numerus="yes">
        <source>The GIF contains only %1 of %Ln frames; the rest are missing.</source>
        <translation>
            <numerusform>Das GIF enthält nur %1 von %Ln Bild; der Rest fehlte.</numerusform>
            <numerusform>Das GIF enthält nur %1 von %Ln Bildern; der Rest fehlte.</numerusform>
        </translation>
    </message>
    <message id="IDD_STATUS_WEBP_GAP" numerus="yes">
        <source>The WebP contains only the first %1 of %Ln frames; the next one is missing.</source>
        <translation>
            <numerusform>Das WebP enthält nur %1 von %Ln Bild; das nächste fehlte.</numerusform>
            <numerusform>Das WebP enthält nur %1 von %Ln Bildern; das nächste fehlte.</numerusform>
        </translation>
    </message>
    <message id="IDD_STATUS_STILL">
        <source>The GIF does not move: all its frames are the same.</source>
        <translation>Das GIF bewegt sich nicht: Alle Bilder sind gleich.</translation>
    </message>
    <message id="IDD_QUALITY">
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message id="IDD_QUALITY_TIP">
        <source>Quality of the GIF: “Best” keeps colors as exact as possible, “Small” gives the smallest file, “Classic” uses ffmpeg</source>
        <translation>Qualität des GIF: „Beste“ erhält die Farben so genau wie möglich, „Klein“ ergibt die kleinste Datei, „Klassisch“ verwendet ffmpeg</translation>
    </message>
    <message id="IDD_QUALITY_BEST">
        <source>Best</source>
        <translation>Beste</translation>
    </message>
    <message id="IDD_QUALITY_BALANCED">
        <source>Balanced</source>
        <translation>Ausgewogen</translation>
    </message>
    <message id="IDD_QUALITY_SMALL">
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message id="IDD_QUALITY_CLASSIC">
        <source>Classic</source>
        <translation>Klassisch</translation>
    </message>
    <message id="IDD_SPEED">
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message id="IDD_GIF_THINNED">
        <source>GIF: reduced to 50&#xa0;fps</source>
        <translation>GIF: auf 50&#xa0;fps verringert</translation>
    </message>
    <message id="IDD_FIT_UNDER">
        <source>Max. file size</source>
        <translation>Max. Dateigröße</translation>
    </message>
    <message id="IDD_FIT_UNDER_TIP">
        <source>Maximum size of the GIF or WebP file. To stay below it, color accuracy is reduced first, then the frame rate, then the width and height</source>
        <translation>Maximale Größe der GIF- oder WebP-Datei. Um sie einzuhalten, werden zuerst die Farbgenauigkeit, dann die Bildrate und dann Breite und Höhe verringert</translation>
    </message>
    <message id="IDD_FIT_NOTE">
        <source>Colors, then frame rate, then size are lowered as far as needed.</source>
        <translation>Bei Bedarf sinken erst Farbgenauigkeit, dann Bildrate, dann Größe.</translation>
    </message>
    <message id="IDD_NO_LIMIT">
        <source>No limit</source>
        <translation>Unbegrenzt</translation>
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
        <translation>Geben Sie eine Dateigröße wie 8&#xa0;MB oder 500&#xa0;kB ein, oder wählen Sie „Unbegrenzt“.</translation>
    </message>
    <message id="IDD_FIT_IMPOSSIBLE">
        <source>The file does not fit under %1: even at the lowest frame rate and half the size it takes %2. Choose a higher limit or a smaller size, or keep less of the recording.</source>
        <translation>Die Datei lässt sich nicht auf %1 verkleinern: Selbst mit der niedrigsten Bildrate und halber Größe ist sie %2 groß. Wählen Sie eine höhere Grenze oder eine kleinere Größe, oder behalten Sie weniger von der Aufnahme.</translation>
    </message>
    <message id="IDD_FIT_ASK">
        <source>To fit under %1, the frame rate or the size that you chose must be lowered.</source>
        <translation>Damit die Datei höchstens %1 groß wird, muss die von Ihnen gewählte Bildrate oder Größe verringert werden.</translation>
    </message>
    <message id="IDD_FIT_ASK_DETAIL">
        <source>What you chose stays in the fields.</source>
        <translation>Ihre Auswahl bleibt in den Feldern stehen.</translation>
    </message>
    <message id="IDD_FIT_KEEP">
        <source>Don’t Generate</source>
        <translation>Nicht erzeugen</translation>
    </message>
    <message id="IDD_FIT_LOWER">
        <source>Lower</source>
        <translation>Verringern</translation>
    </message>
    <message id="IDD_STATUS_FITTED">
        <source>To fit under %1, the size was reduced to %2 × %3 pixels and the frame rate to %4&#xa0;fps.</source>
        <translation>Für höchstens %1 wurden die Größe auf %2 × %3 Pixel und die Bildrate auf %4&#xa0;fps verringert.</translation>
    </message>
    <message id="IDD_STATUS_FITTED_RATE">
        <source>To fit under %1, the frame rate was lowered from %2 to %3&#xa0;fps.</source>
        <translation>Für höchstens %1 wurde die Bildrate von %2 auf %3&#xa0;fps verringert.</translation>
    </message>
    <message id="IDD_STATUS_FITTED_SIZE">
        <source>To fit under %1, the size was reduced to %2 × %3 pixels.</source>
        <translation>Für höchstens %1 wurde die Größe auf %2 × %3 Pixel verringert.</translation>
    </message>
    <message id="IDD_STATUS_FITTED_COLORS">
        <source>To fit under %1, the file has less exact colors.</source>
        <translation>Für höchstens %1 hat die Datei weniger genaue Farben.</translation>
    </message>
    <message id="IDD_ABOUT_SIZE">
        <source>GIF: about %1</source>
        <translation>GIF: etwa %1</translation>
    </message>
    <message id="IDD_AT_MOST_SIZE">
        <source>GIF: at most %1</source>
        <translation>GIF: höchstens %1</translation>
    </message>
    <message id="IDD_GIF_SIZE">
        <source>GIF: %1</source>
        <translation>GIF: %1</translation>
    </message>
    <message id="IDD_PERCENT">
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message id="IDD_PERCENT_TIP">
        <source>%1% of the recording’s width and height</source>
        <translation>%1&#xa0;% der Breite und Höhe der Aufnahme</translation>
    </message>
    <message id="IDD_GENERATE_MP4">
        <source>Generate MP4</source>
        <translation>MP4 erzeugen</translation>
    </message>
    <message id="IDD_GENERATE_MP4_TIP">
        <source>Generates an MP4 video with the size, frame rate and speed chosen here</source>
        <translation>Erzeugt ein MP4-Video mit der hier gewählten Größe, Bildrate und Geschwindigkeit</translation>
    </message>
    <message id="IDD_PROGRESS_MP4">
        <source>Generating the MP4…</source>
        <translation>Das MP4 wird erzeugt&#xa0;…</translation>
    </message>
    <message id="IDD_MP4_PANEL">
        <source>Select a folder to save the MP4 video</source>
        <translation>Ordner zum Speichern des MP4-Videos wählen</translation>
    </message>
    <message id="IDD_MP4_SAVED_OK">
        <source>The MP4 has been saved.</source>
        <translation>Das MP4 wurde gespeichert.</translation>
    </message>
    <message id="IDD_MP4_NO_ENCODER">
        <source>This ffmpeg has no H.264 encoder (libx264), which an MP4 needs. Install an ffmpeg that has one, or generate a GIF or a WebP.</source>
        <translation>Diesem ffmpeg fehlt der H.264-Encoder (libx264), den ein MP4 braucht. Installieren Sie ein ffmpeg, das ihn hat, oder erzeugen Sie ein GIF oder WebP.</translation>
    </message>
    <message id="IDD_STATUS_MP4_GAP" numerus="yes">
        <source>The MP4 contains only the first %1 of %Ln frames; the next one is missing.</source>
        <translation>
            <numerusform>Das MP4 enthält nur %1 von %Ln Bild; das nächste fehlte.</numerusform>
            <numerusform>Das MP4 enthält nur %1 von %Ln Bildern; das nächste fehlte.</numerusform>
        </translation>
    </message>
    <message id="IDD_GENERATE_WEBP">
        <source>Generate WebP</source>
        <translation>WebP erzeugen</translation>
    </message>
    <message id="IDD_WEBP_ABOUT">
        <source>WebP: about %1</source>
        <translation>WebP: etwa %1</translation>
    </message>
    <message id="IDD_GENERATE_WEBP_TIP">
        <source>Generates a WebP with the size, frame rate and speed chosen here</source>
        <translation>Erzeugt ein WebP mit der hier gewählten Größe, Bildrate und Geschwindigkeit</translation>
    </message>
    <message id="IDD_WEBP_LOOPS">
        <source>Repeat</source>
        <translation>Wiederholung</translation>
    </message>
    <message id="IDD_LOOP_FOREVER">
        <source>Forever</source>
        <translation>Endlos</translation>
    </message>
    <message id="IDD_LOOP_ONCE">
        <source>Once</source>
        <translation>Einmal</translation>
    </message>
    <message id="IDD_LOOPS_REFUSED">
        <source>Enter a number from 0 to %1 for “Repeat”.</source>
        <translation>Geben Sie bei „Wiederholung“ eine Zahl von 0 bis %1 ein.</translation>
    </message>
    <message id="IDD_HOLD">
        <source>Hold last frame</source>
        <translation>Letztes Bild halten</translation>
    </message>
    <message id="IDD_HOLD_SECONDS">
        <source>%1&#xa0;s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message id="IDD_LOOPS_RANGE">
        <source>0 to %1</source>
        <translation>0 bis %1</translation>
    </message>
    <message id="IDD_WIDTH_ZERO">
        <source>The width must be a number greater than 0.</source>
        <translation>Die Breite muss eine Zahl größer als 0 sein.</translation>
    </message>
    <message id="IDD_WIDTH_NEGATIVE">
        <source>The width must not be negative.</source>
        <translation>Die Breite darf nicht negativ sein.</translation>
    </message>
    <message id="IDD_WIDTH_NOT_PLAIN">
        <source>The width may contain digits only.</source>
        <translation>Die Breite darf nur Ziffern enthalten.</translation>
    </message>
    <message id="IDD_WIDTH_TOO_LARGE">
        <source>The width can be %1 pixels at most.</source>
        <translation>Die Breite darf höchstens %1 Pixel betragen.</translation>
    </message>
    <message id="IDD_HEIGHT_ZERO">
        <source>The height must be a number greater than 0.</source>
        <translation>Die Höhe muss eine Zahl größer als 0 sein.</translation>
    </message>
    <message id="IDD_HEIGHT_NEGATIVE">
        <source>The height must not be negative.</source>
        <translation>Die Höhe darf nicht negativ sein.</translation>
    </message>
    <message id="IDD_HEIGHT_NOT_PLAIN">
        <source>The height may contain digits only.</source>
        <translation>Die Höhe darf nur Ziffern enthalten.</translation>
    </message>
    <message id="IDD_HEIGHT_TOO_LARGE">
        <source>The height can be %1 pixels at most.</source>
        <translation>Die Höhe darf höchstens %1 Pixel betragen.</translation>
    </message>
    <message id="IDD_GIF_SUMMARY" numerus="yes">
        <source>%Ln frames, %1&#xa0;s at&#xa0;%2&#xa0;fps</source>
        <translation>
            <numerusform>%Ln Bild, %1&#xa0;s bei&#xa0;%2&#xa0;fps</numerusform>
            <numerusform>%Ln Bilder, %1&#xa0;s bei&#xa0;%2&#xa0;fps</numerusform>
        </translation>
    </message>
    <message id="IDD_GIF_WEBP_SUMMARY">
        <source>GIF: %1 · WebP: %2</source>
        <translation>GIF: %1 · WebP: %2</translation>
    </message>
</context>
</TS>
