<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Tovarel authors
     SPDX-License-Identifier: MIT -->
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name></name>
    <message id="IDD_ABOUT">
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message id="IDD_HELP">
        <source>Help</source>
        <translation>– Ayuda</translation>
    </message>
    <message id="IDD_QUIT">
        <source>Quit</source>
        <translation>Salir de</translation>
    </message>
    <message id="IDD_APP_HOME_PAGE">
        <source>Home Page</source>
        <translation>Página de inicio</translation>
    </message>
    <message id="IDD_COMPANY_PAGE">
        <source>About the Authors</source>
        <translation>Acerca de los autores</translation>
    </message>
    <message id="IDD_PRIVACY_POLICY">
        <source>Privacy Policy</source>
        <translation>Política de privacidad</translation>
    </message>
    <message id="IDD_SUBMIT_TICKET">
        <source>Report a Problem</source>
        <translation>Informar de un problema</translation>
    </message>
    <message id="IDD_RECORD">
        <source>Record</source>
        <translation>Grabar</translation>
    </message>
    <message id="IDD_PAUSE">
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message id="IDD_STOP">
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message id="IDD_COUNTDOWN">
        <source>Countdown</source>
        <translation>Cuenta atrás</translation>
    </message>
    <message id="IDD_AT_ONCE">
        <source>At Once</source>
        <translation>De inmediato</translation>
    </message>
    <message id="IDD_AFTER_SECONDS" numerus="yes">
        <source>After %Ln&#xa0;Seconds</source>
        <translation>
            <numerusform>Tras %Ln&#xa0;segundo</numerusform>
            <numerusform>Tras %Ln&#xa0;segundos</numerusform>
        </translation>
    </message>
    <message id="IDD_SECONDS">
        <source>%1&#xa0;s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message id="IDD_RECORD_AFTER" numerus="yes">
        <source>Record after %Ln&#xa0;seconds</source>
        <translation>
            <numerusform>Grabar tras %Ln&#xa0;segundo</numerusform>
            <numerusform>Grabar tras %Ln&#xa0;segundos</numerusform>
        </translation>
    </message>
    <message id="IDD_COUNTDOWN_RUNS">
        <source>The recording begins in a moment. Esc or “Stop” cancels it.</source>
        <translation>La grabación está a punto de empezar. Esc o «Detener» la cancela.</translation>
    </message>
    <message id="IDD_COUNTDOWN_RUNS_KEY">
        <source>The recording begins in a moment. Esc, “Stop” or, in any window, %1 cancels it.</source>
        <translation>La grabación empieza enseguida. Esc, «Detener» o, en cualquier ventana, %1 la cancela.</translation>
    </message>
    <message id="IDD_COUNTDOWN_CANCELLED">
        <source>The countdown was canceled.</source>
        <translation>La cuenta atrás se ha cancelado.</translation>
    </message>
    <message id="IDD_MONITORS">
        <source>Monitors</source>
        <translation>Monitores</translation>
    </message>
    <message id="IDD_ALL_MONITORS">
        <source>All Monitors</source>
        <translation>Todos los monitores</translation>
    </message>
    <message id="IDD_MODE_MONITOR">
        <source>%1 · %2 × %3</source>
        <translation>%1 · %2 × %3</translation>
    </message>
    <message id="IDD_REGION_DOES_NOT_FIT">
        <source>The last region does not fit on this screen.</source>
        <translation>La última zona no cabe en esta pantalla.</translation>
    </message>
    <message id="IDD_MOVE_REGION">
        <source>Move It Inside</source>
        <translation>Moverla dentro</translation>
    </message>
    <message id="IDD_CUT">
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message id="IDD_SAVE">
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message id="IDD_FULL_SCREEN">
        <source>Full Screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message id="IDD_REGION">
        <source>Region</source>
        <translation>Zona de la pantalla</translation>
    </message>
    <message id="IDD_REGION_SIZES">
        <source>Sizes</source>
        <translation>Tamaños</translation>
    </message>
    <message id="IDD_REGION_SQUARE">
        <source>Square</source>
        <translation>Cuadrado</translation>
    </message>
    <message id="IDD_REGION_LAST">
        <source>Last Used</source>
        <translation>Última utilizada</translation>
    </message>
    <message id="IDD_PICK_WINDOW">
        <source>Pick a Window</source>
        <translation>Elegir una ventana</translation>
    </message>
    <message id="IDD_PICK_WINDOW_TIP">
        <source>Then click a window, or hold W</source>
        <translation>Después haga clic en una ventana, o mantenga pulsada W</translation>
    </message>
    <message id="IDD_PICK_WINDOW_HINT">
        <source>Click the window to record. Esc goes back to the region.</source>
        <translation>Haga clic en la ventana que quiere grabar. Esc vuelve a la zona.</translation>
    </message>
    <message id="IDD_REGION_KEYS">
        <source>Enter uses the region, Esc cancels.</source>
        <translation>Intro usa la zona, Esc cancela.</translation>
    </message>
    <message id="IDD_USE_REGION">
        <source>Use Region</source>
        <translation>Usar la zona</translation>
    </message>
    <message id="IDD_FPS">
        <source>Frames per Second</source>
        <translation>Fotogramas por segundo</translation>
    </message>
    <message id="IDD_INSTRUCTIONS">
        <source>Choose the size, the frame rate and the speed, then generate the GIF.</source>
        <translation>Elija el tamaño, la frecuencia de fotogramas y la velocidad, y luego cree el GIF.</translation>
    </message>
    <message id="IDD_RECORD_FIRST">
        <source>There is no recording yet. Make one on the “Record” tab.</source>
        <translation>Aún no hay ninguna grabación. Grabe primero algo en la pestaña «Grabar».</translation>
    </message>
    <message id="IDD_RESOLUTION_EQUAL">
        <source>Same size as the recording</source>
        <translation>Tamaño de la grabación</translation>
    </message>
    <message id="IDD_RESOLUTION_CUSTOM">
        <source>Custom size</source>
        <translation>Otro tamaño</translation>
    </message>
    <message id="IDD_WIDTH">
        <source>Width</source>
        <translation>Ancho</translation>
    </message>
    <message id="IDD_HEIGHT">
        <source>Height</source>
        <translation>Alto</translation>
    </message>
    <message id="IDD_KEEP_ASPECT_RATIO">
        <source>Keep aspect ratio</source>
        <translation>Fijar la proporción</translation>
    </message>
    <message id="IDD_FPS_EQUAL">
        <source>Same frame rate as the recording</source>
        <translation>Frecuencia de la grabación</translation>
    </message>
    <message id="IDD_FORCE_FPS">
        <source>Custom frame rate</source>
        <translation>Otra frecuencia</translation>
    </message>
    <message id="IDD_NOTE">
        <source>When the computer is busy, a recording can have fewer frames per second than chosen.</source>
        <translation>Si el equipo está muy ocupado, la grabación puede tener menos fotogramas por segundo de los elegidos.</translation>
    </message>
    <message id="IDD_GENERATE_GIF">
        <source>Generate GIF</source>
        <translation>Crear GIF</translation>
    </message>
    <message id="IDD_LOW_FRAME_NUMBER">
        <source>The selected range has too few frames. Select at least three on the “Cut” tab.</source>
        <translation>El intervalo elegido no tiene suficientes fotogramas. Elija al menos tres en la pestaña «Cortar».</translation>
    </message>
    <message id="IDD_INVALID_DIMENSION">
        <source>Width and height must be whole numbers greater than 0.</source>
        <translation>El ancho y el alto deben ser números enteros mayores que 0.</translation>
    </message>
    <message id="IDD_GIF_SAVED_OK">
        <source>The GIF has been saved.</source>
        <translation>El GIF se ha guardado.</translation>
    </message>
    <message id="IDD_PLAY">
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <!-- app -->
    <message id="IDD_MENU_TAB">
        <source>Tab</source>
        <translation>Pestaña</translation>
    </message>
    <message id="IDD_MENU_ACTION">
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message id="IDD_MENU_HELP">
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message id="IDD_GROUP_SIZE">
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message id="IDD_GROUP_RATE">
        <source>Frame rate</source>
        <translation>Frecuencia de fotogramas</translation>
    </message>
    <message id="IDD_ABOUT_TEXT">
        <source>Records your screen and turns it into an animated GIF.</source>
        <translation>Graba la pantalla y la convierte en un GIF animado.</translation>
    </message>
    <message id="IDD_ABOUT_VERSION">
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message id="IDD_ABOUT_LICENCE">
        <source>Free software under the %1 License.</source>
        <translation>Software libre con licencia %1.</translation>
    </message>
    <message id="IDD_ABOUT_TOOLS">
        <source>Tools in use:</source>
        <translation>Herramientas en uso:</translation>
    </message>
    <message id="IDD_ABOUT_TOOL">
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message id="IDD_ABOUT_TOOL_MISSING">
        <source>not found</source>
        <translation>no encontrada</translation>
    </message>
    <message id="IDD_HELP_NOT_OPENED">
        <source>No program was found to show the help pages. Open this file in a browser:</source>
        <translation>No se encontró ningún programa que muestre las páginas de ayuda. Abra este archivo en un navegador:</translation>
    </message>
    <message id="IDD_RECORD_PREVIEW">
        <source>Live preview</source>
        <translation>Vista previa en directo</translation>
    </message>
    <message id="IDD_KEYS_GRANTED">
        <source>Shortcuts in any window, with %1: %2</source>
        <translation>Atajos en cualquier ventana, con %1: %2</translation>
    </message>
    <message id="IDD_KEYS_BOUND">
        <source>Shortcuts in any window: %1</source>
        <translation>Atajos en cualquier ventana: %1</translation>
    </message>
    <message id="IDD_KEYS_TAKEN">
        <source>Already in use: %1</source>
        <translation>Ya en uso: %1</translation>
    </message>
    <!-- platform -->
    <message id="IDD_REASON_NO_DISPLAY">
        <source>The screen cannot be recorded: there is no display server.</source>
        <translation>No se puede grabar la pantalla: no hay ningún servidor gráfico.</translation>
    </message>
    <message id="IDD_REASON_NO_COMPOSITE">
        <source>The screen cannot be recorded: this display server lacks the Composite extension, so the program could not leave out its own windows.</source>
        <translation>No se puede grabar la pantalla: este servidor gráfico no tiene la extensión Composite y el programa no podría dejar fuera sus propias ventanas.</translation>
    </message>
    <message id="IDD_REASON_MISSING_EXTENSION">
        <source>The screen cannot be recorded: this display server lacks one of the extensions Damage, XFixes, Render and Shape.</source>
        <translation>No se puede grabar la pantalla: a este servidor gráfico le falta una de las extensiones Damage, XFixes, Render y Shape.</translation>
    </message>
    <message id="IDD_REASON_PICTURE_FORMAT">
        <source>The screen cannot be recorded: this display server does not use 24-bit color.</source>
        <translation>No se puede grabar la pantalla: este servidor gráfico no usa imágenes en color de 24 bits.</translation>
    </message>
    <!-- record -->
    <message id="IDD_SAVING_RECORDING">
        <source>Saving the recording…</source>
        <translation>Guardando la grabación…</translation>
    </message>
    <message id="IDD_REASON_NO_PORTAL">
        <source>The screen cannot be recorded: this Wayland desktop has no portal for it. Install xdg-desktop-portal with your desktop’s back end, or log in to an X11 session.</source>
        <translation>No se puede grabar la pantalla: este escritorio Wayland no tiene un portal para ello. Instale xdg-desktop-portal con el módulo de su escritorio o inicie una sesión de X11.</translation>
    </message>
    <message id="IDD_CHOOSE_SOURCE">
        <source>Choose What to Record…</source>
        <translation>Elegir qué grabar…</translation>
    </message>
    <message id="IDD_SOURCE_IDLE">
        <source>Your desktop asks what may be recorded: a monitor or a window.</source>
        <translation>Su escritorio pregunta qué se puede grabar: un monitor o una ventana.</translation>
    </message>
    <message id="IDD_SOURCE_ASKING">
        <source>Choose in the desktop’s dialog what to record.</source>
        <translation>Elija en el cuadro de diálogo del escritorio qué se debe grabar.</translation>
    </message>
    <message id="IDD_SOURCE_WAITING">
        <source>Waiting for the first picture…</source>
        <translation>Esperando la primera imagen…</translation>
    </message>
    <message id="IDD_SOURCE_ENDED">
        <source>The desktop has stopped sharing the screen.</source>
        <translation>El escritorio ha dejado de compartir la pantalla.</translation>
    </message>
    <message id="IDD_SOURCE_FAILED">
        <source>The desktop provides no pictures of the screen: %1</source>
        <translation>El escritorio no proporciona imágenes de la pantalla: %1</translation>
    </message>
    <message id="IDD_SOURCE_REFUSED">
        <source>Nothing was chosen.</source>
        <translation>No se ha elegido nada.</translation>
    </message>
    <message id="IDD_SOURCE_RESIZED">
        <source>Size changed: scaled to fit</source>
        <translation>Tamaño cambiado: se ajusta</translation>
    </message>
    <message id="IDD_CHOSEN_MONITOR">
        <source>Monitor %1 × %2</source>
        <translation>Monitor %1 × %2</translation>
    </message>
    <message id="IDD_CHOSEN_WINDOW">
        <source>Window %1 × %2</source>
        <translation>Ventana %1 × %2</translation>
    </message>
    <message id="IDD_CHOSEN_OTHER">
        <source>Chosen: %1 × %2</source>
        <translation>Elegido: %1 × %2</translation>
    </message>
    <message id="IDD_STEP_ASIDE">
        <source>Tovarel gets out of the way while it records.</source>
        <translation>Tovarel se aparta mientras graba.</translation>
    </message>
    <message id="IDD_STEP_ASIDE_HOW_TO_STOP">
        <source>Everything that is visible is recorded, so this window is minimized first. To stop, bring it back with a click in the dock or by starting Tovarel again: the recording pauses, and “Stop” saves it.</source>
        <translation>Se graba todo lo visible, por lo que esta ventana se minimiza antes. Para detener la grabación, recupere la ventana con un clic en el dock o iniciando Tovarel de nuevo: la grabación queda en pausa y «Detener» la guarda.</translation>
    </message>
    <message id="IDD_REASON_WAYLAND">
        <source>In a Wayland session Tovarel can record from its window only: start it without arguments, or log in to an X11 session.</source>
        <translation>En una sesión de Wayland, Tovarel solo puede grabar desde su ventana: inícielo sin argumentos o inicie una sesión de X11.</translation>
    </message>
    <message id="IDD_REGION_OF_WINDOW">
        <source>A window is recorded as a whole. Choose a monitor to record a region of it.</source>
        <translation>Una ventana se graba completa. Elija un monitor para grabar una zona de él.</translation>
    </message>
    <message id="IDD_STATE_RECORDING">
        <source>Recording</source>
        <translation>Grabando</translation>
    </message>
    <message id="IDD_STATE_PAUSED">
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message id="IDD_PAUSED_HINT">
        <source>Paused – press “%1” to continue</source>
        <translation>En pausa: «%1» para continuar</translation>
    </message>
    <message id="IDD_RECORDING_FIGURES">
        <source>%1 · Frames: %2 · %3&#xa0;fps</source>
        <translation>%1 · Fotogramas: %2 · %3&#xa0;fps</translation>
    </message>
    <message id="IDD_POINTER">
        <source>Pointer</source>
        <translation>Puntero</translation>
    </message>
    <message id="IDD_POINTER_TIP">
        <source>Pointer: shows the mouse pointer in the recording</source>
        <translation>Puntero: muestra el puntero del ratón en la grabación</translation>
    </message>
    <message id="IDD_HANDS_NOT_OFFERED">
        <source>Not possible with this display server: it does not report mouse buttons and keys</source>
        <translation>No es posible con este servidor gráfico: no informa de los botones del ratón ni de las teclas</translation>
    </message>
    <message id="IDD_CLICKS">
        <source>Clicks</source>
        <translation>Clics</translation>
    </message>
    <message id="IDD_CLICKS_TIP">
        <source>Clicks: shows in the recording where a mouse button is pressed</source>
        <translation>Clics: muestra en la grabación dónde se pulsa un botón del ratón</translation>
    </message>
    <message id="IDD_KEYS">
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message id="IDD_KEYS_TIP">
        <source>Keys: shows keyboard shortcuts in the recording, never the text you type</source>
        <translation>Teclas: muestra los atajos de teclado en la grabación, nunca el texto que escribe</translation>
    </message>
    <message id="IDD_KEYS_SHOWN">
        <source>Shortcuts that you press are shown</source>
        <translation>Se muestran los atajos de teclado</translation>
    </message>
    <message id="IDD_PAUSED_FOR_MEMORY">
        <source>Memory is low (%1 left). “Stop” saves the recording.</source>
        <translation>Queda poca memoria (%1). «Detener» guarda todo.</translation>
    </message>
    <message id="IDD_RECORDING_MEMORY">
        <source>Memory: %1</source>
        <translation>Memoria: %1</translation>
    </message>
    <message id="IDD_RECORDING_MEMORY_LASTS">
        <source>Memory: %1, enough for %2&#xa0;min more</source>
        <translation>Memoria: %1, alcanza para %2&#xa0;min más</translation>
    </message>
    <message id="IDD_RECORDING_SAVED">
        <source>The recording is complete. Frames: %1 · %2&#xa0;fps</source>
        <translation>La grabación ha terminado. Fotogramas: %1 · %2&#xa0;fps</translation>
    </message>
    <message id="IDD_RECORDING_BEHIND">
        <source>The recording is complete. Frames: %1 · %3&#xa0;fps instead of %2&#xa0;fps</source>
        <translation>La grabación ha terminado. Fotogramas: %1 · %3&#xa0;fps en lugar de %2&#xa0;fps</translation>
    </message>
    <message id="IDD_NOTHING_RECORDED">
        <source>Nothing was recorded.</source>
        <translation>No se ha grabado nada.</translation>
    </message>
    <message id="IDD_FRAMES_MISSING" numerus="yes">
        <source>%1 of %Ln frames could not be written to %2: %3</source>
        <translation>
            <numerusform>Fotograma sin escribir en %2: %1 de %Ln (%3)</numerusform>
            <numerusform>Fotogramas sin escribir en %2: %1 de %Ln (%3)</numerusform>
        </translation>
    </message>
    <message id="IDD_CLOSE_WAITS">
        <source>Tovarel closes as soon as the recording is saved.</source>
        <translation>Tovarel se cerrará en cuanto se guarde la grabación.</translation>
    </message>
    <message id="IDD_RECOVER_QUESTION">
        <source>An earlier recording is still there.</source>
        <translation>Aún existe una grabación anterior.</translation>
    </message>
    <message id="IDD_RECOVER_DETAIL" numerus="yes">
        <source>The recording of %1 is complete: %Ln frames, %2&#xa0;s. You can open it on the “Cut” tab or delete it.</source>
        <translation>
            <numerusform>La grabación del %1 está completa: %Ln fotograma, %2&#xa0;s. Puede abrirla en la pestaña «Cortar» o eliminarla.</numerusform>
            <numerusform>La grabación del %1 está completa: %Ln fotogramas, %2&#xa0;s. Puede abrirla en la pestaña «Cortar» o eliminarla.</numerusform>
        </translation>
    </message>
    <message id="IDD_RECOVER_OPEN">
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message id="IDD_RECOVER_DELETE">
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message id="IDD_RECOVER_LOADING">
        <source>Opening the recording…</source>
        <translation>Abriendo la grabación…</translation>
    </message>
    <message id="IDD_RECOVER_FAILED">
        <source>The recording could not be opened: the file %1 is damaged.</source>
        <translation>No se pudo abrir la grabación: el archivo %1 está dañado.</translation>
    </message>
    <message id="IDD_RECORD_PREVIOUS">
        <source>Bring Back Previous Recording</source>
        <translation>Recuperar la grabación anterior</translation>
    </message>
    <message id="IDD_PREVIOUS_GONE">
        <source>The previous recording is no longer complete.</source>
        <translation>La grabación anterior ya no está completa.</translation>
    </message>
    <message id="IDD_SAVE_AGAIN">
        <source>Save Again</source>
        <translation>Guardar de nuevo</translation>
    </message>
    <message id="IDD_MODE_FULL_SCREEN">
        <source>Full screen, without this window</source>
        <translation>Pantalla completa, sin esta ventana</translation>
    </message>
    <message id="IDD_MODE_REGION">
        <source>Region %1 × %2 at %3,&#xa0;%4</source>
        <translation>Zona %1 × %2 en %3,&#xa0;%4</translation>
    </message>
    <message id="IDD_CAPTURE_RATE">
        <source>%1&#xa0;fps</source>
        <translation>%1&#xa0;fps</translation>
    </message>
    <message id="IDD_OK">
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message id="IDD_CANCEL">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <!-- region -->
    <message id="IDD_REGION_OVERLAY">
        <source>Select a Region</source>
        <translation>Elegir una zona</translation>
    </message>
    <message id="IDD_REGION_TIP">
        <source>%1: %2 × %3 pixels at %4, %5</source>
        <translation>%1: %2 × %3 píxeles en %4, %5</translation>
    </message>
    <message id="IDD_REGION_TOO_SMALL">
        <source>Too small: at least %1 × %1 pixels are needed</source>
        <translation>Demasiado pequeña: se necesitan al menos %1 × %1 píxeles</translation>
    </message>
    <message id="IDD_REGION_LOWER_LEFT">
        <source>Lower left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message id="IDD_REGION_LOWER_RIGHT">
        <source>Lower right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message id="IDD_REGION_UPPER_LEFT">
        <source>Upper left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message id="IDD_REGION_UPPER_RIGHT">
        <source>Upper right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_TITLE">
        <source>How to Select a Region</source>
        <translation>Cómo elegir una zona</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_TEXT">
        <source>A rectangle with five squares appears on the screen. Drag the green squares until it frames what you want to record, then click the red one or press “Use Region”. Drag inside the rectangle to move it, or outside to draw a new one.</source>
        <translation>En la pantalla aparece un rectángulo con cinco cuadrados. Arrastre los verdes hasta enmarcar lo que quiere grabar y haga clic en el rojo o en «Usar la zona». Arrastre dentro del rectángulo para moverlo o fuera de él para dibujar uno nuevo.</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_WINDOW">
        <source>To record a single window, press “Pick a Window” or hold W, then click the window.</source>
        <translation>Para grabar una sola ventana, pulse «Elegir una ventana» o mantenga pulsada la tecla W y haga clic en la ventana.</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_PICTURE">
        <source>A rectangle on a screen: a green square on each corner resizes it, the red square in its middle accepts it.</source>
        <translation>Un rectángulo en una pantalla: el cuadrado verde de cada esquina cambia su tamaño y el rojo del centro lo acepta.</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_DRAG">
        <source>Drag a corner</source>
        <translation>Arrastre una esquina</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_ACCEPT">
        <source>Click to accept</source>
        <translation>Haga clic para aceptar</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_KEYS">
        <source>With the keyboard: the arrow keys move a corner (faster with Shift), Tab selects the next one, Enter accepts, Esc cancels.</source>
        <translation>Con el teclado: las flechas mueven una esquina (más rápido con Mayús), Tab elige la siguiente, Intro acepta y Esc cancela.</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_AGAIN">
        <source>Don’t show this again</source>
        <translation>No volver a mostrar</translation>
    </message>
    <!-- trim -->
    <message id="IDD_HANDLE_FIRST">
        <source>First frame</source>
        <translation>Primer fotograma</translation>
    </message>
    <message id="IDD_HANDLE_LAST">
        <source>Last frame</source>
        <translation>Último fotograma</translation>
    </message>
    <message id="IDD_CUT_KEPT" numerus="yes">
        <source>Kept: %1&#xa0;s of %2&#xa0;s · %3 of %Ln frames</source>
        <translation>
            <numerusform>Se conserva: %1&#xa0;s de %2&#xa0;s · %3 de %Ln fotograma</numerusform>
            <numerusform>Se conserva: %1&#xa0;s de %2&#xa0;s · %3 de %Ln fotogramas</numerusform>
        </translation>
    </message>
    <message id="IDD_CUT_PREVIOUS">
        <source>Previous Frame</source>
        <translation>Fotograma anterior</translation>
    </message>
    <message id="IDD_CUT_NEXT">
        <source>Next Frame</source>
        <translation>Fotograma siguiente</translation>
    </message>
    <message id="IDD_CUT_BACK_TEN">
        <source>Back 10&#xa0;Frames</source>
        <translation>Retroceder 10&#xa0;fotogramas</translation>
    </message>
    <message id="IDD_CUT_FORWARD_TEN">
        <source>Forward 10&#xa0;Frames</source>
        <translation>Avanzar 10&#xa0;fotogramas</translation>
    </message>
    <message id="IDD_CUT_TO_START">
        <source>Go to Start</source>
        <translation>Ir al principio</translation>
    </message>
    <message id="IDD_CUT_TO_END">
        <source>Go to End</source>
        <translation>Ir al final</translation>
    </message>
    <message id="IDD_CUT_START_HERE">
        <source>Start Here</source>
        <translation>Empezar aquí</translation>
    </message>
    <message id="IDD_CUT_END_HERE">
        <source>End Here</source>
        <translation>Terminar aquí</translation>
    </message>
    <message id="IDD_PLAYHEAD">
        <source>Playhead</source>
        <translation>Cabezal de reproducción</translation>
    </message>
    <message id="IDD_CUT_FRAME">
        <source>Frame %1 of %2, at %3&#xa0;s</source>
        <translation>Fotograma %1 de %2, en %3&#xa0;s</translation>
    </message>
    <message id="IDD_TIP_SHORTCUT">
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="IDD_CUT_PREVIEW">
        <source>Frame preview</source>
        <translation>Vista previa del fotograma</translation>
    </message>
    <message id="IDD_CUT_RANGE">
        <source>Part of the recording to keep</source>
        <translation>Parte de la grabación que se conserva</translation>
    </message>
    <message id="IDD_RANGE_EMPTY">
        <source>No frame in this range</source>
        <translation>No hay fotogramas en este intervalo</translation>
    </message>
    <message id="IDD_CUT_DELETE">
        <source>Delete Selection</source>
        <translation>Eliminar selección</translation>
    </message>
    <message id="IDD_CUT_STILL">
        <source>Shorten Still Time</source>
        <translation>Acortar las pausas</translation>
    </message>
    <message id="IDD_UNDO">
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message id="IDD_REDO">
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message id="IDD_CUT_SELECTED">
        <source>Selected: %1 to %2, %3&#xa0;s</source>
        <translation>Selección: de %1 a %2, %3&#xa0;s</translation>
    </message>
    <message id="IDD_STRIP_TIP">
        <source>Drag a handle to leave an end out, or drag between the handles to select a part to delete.</source>
        <translation>Arrastre un tirador para omitir un extremo, o arrastre entre los tiradores para seleccionar una parte que eliminar.</translation>
    </message>
    <message id="IDD_TAB_NEEDS_STOP_RECORDING">
        <source>Stop the recording to open another tab.</source>
        <translation>Detenga la grabación para abrir otra pestaña.</translation>
    </message>
    <message id="IDD_TAB_NEEDS_STOP_PLAYBACK">
        <source>Stop the playback to open another tab.</source>
        <translation>Detenga la reproducción para abrir otra pestaña.</translation>
    </message>
    <message id="IDD_KEY_ON_RECORD_TAB">
        <source>To record again, open the “Record” tab.</source>
        <translation>Para volver a grabar, abra la pestaña «Grabar».</translation>
    </message>
    <message id="IDD_STILL_LENGTH">
        <source>To %1&#xa0;s at Most</source>
        <translation>A %1&#xa0;s como máximo</translation>
    </message>
    <message id="IDD_STILL_NONE">
        <source>Nothing stands still for longer than %1&#xa0;s.</source>
        <translation>Nada permanece quieto más de %1&#xa0;s.</translation>
    </message>
    <message id="IDD_STILL_SHORTENED">
        <source>Still time was shortened by %1&#xa0;s.</source>
        <translation>Las pausas se han acortado %1&#xa0;s.</translation>
    </message>
    <!-- export -->
    <message id="IDD_PROGRESS_GIF">
        <source>Generating the GIF…</source>
        <translation>Creando el GIF…</translation>
    </message>
    <message id="IDD_PROGRESS_WEBP">
        <source>Generating the WebP…</source>
        <translation>Creando el WebP…</translation>
    </message>
    <message id="IDD_PROGRESS_PALETTE">
        <source>Step 1 of 2: choosing the colors</source>
        <translation>Paso 1 de 2: elección de los colores</translation>
    </message>
    <message id="IDD_PROGRESS_SCALING">
        <source>Step 1 of 2, scaling: %p%</source>
        <translation>Paso 1 de 2, cambio de tamaño: %p&#xa0;%</translation>
    </message>
    <message id="IDD_PROGRESS_PICTURES">
        <source>Step 2 of 2: %p%</source>
        <translation>Paso 2 de 2: %p&#xa0;%</translation>
    </message>
    <message id="IDD_PROGRESS_AGAIN">
        <source>Attempt %1: making it fit under %2…</source>
        <translation>Intento %1: reduciendo a %2 como máximo…</translation>
    </message>
    <message id="IDD_EXPORT_CANCELLED">
        <source>The export was canceled.</source>
        <translation>La exportación se ha cancelado.</translation>
    </message>
    <message id="IDD_TOOL_MISSING">
        <source>The program “%1” is missing: it was not found when Tovarel started.</source>
        <translation>Falta el programa «%1»: no se encontró al iniciar Tovarel.</translation>
    </message>
    <message id="IDD_TOOL_NOT_STARTED">
        <source>The program “%1” could not be started: %2</source>
        <translation>No se pudo iniciar el programa «%1»: %2</translation>
    </message>
    <message id="IDD_TOOL_CRASHED">
        <source>The program “%1” crashed (signal %2, %3).</source>
        <translation>El programa «%1» se cerró de forma inesperada (señal %2, %3).</translation>
    </message>
    <message id="IDD_TOOL_FAILED">
        <source>The program “%1” failed (exit status %2).</source>
        <translation>El programa «%1» falló (estado de salida %2).</translation>
    </message>
    <message id="IDD_TOOL_NO_RESULT">
        <source>The program “%1” ended without writing its result, %2.</source>
        <translation>El programa «%1» terminó sin escribir su resultado, %2.</translation>
    </message>
    <message id="IDD_REFUSED_SIZE">
        <source>The requested size was %1 × %2.</source>
        <translation>El tamaño solicitado era %1 × %2.</translation>
    </message>
    <message id="IDD_GIF_TOO_LARGE">
        <source>A GIF of %1 × %2 pixels needs about %3 of memory. At most %4 may be used, half of what is free. Choose a smaller size.</source>
        <translation>Un GIF de %1 × %2 píxeles necesita aproximadamente %3 de memoria. Se pueden usar %4 como máximo, la mitad de la memoria libre. Elija un tamaño menor.</translation>
    </message>
    <message id="IDD_GIF_NO_MEMORY">
        <source>There is not enough memory for the GIF. Choose a smaller size or close other programs.</source>
        <translation>No hay memoria suficiente para el GIF. Elija un tamaño menor o cierre otros programas.</translation>
    </message>
    <message id="IDD_GIF_NOT_WRITTEN">
        <source>The GIF could not be written to %1.
%2

The recording is still there.</source>
        <translation>No se pudo escribir el GIF en %1.
%2

La grabación sigue disponible.</translation>
    </message>
    <message id="IDD_GIF_NO_FRAMES">
        <source>The frames of the recording could not be read from %1.</source>
        <translation>No se pudieron leer los fotogramas de la grabación en %1.</translation>
    </message>
    <message id="IDD_MOVE_FAILED">
        <source>The file could not be saved as %1.
%2

It is still at %3.</source>
        <translation>No se pudo guardar el archivo como %1.
%2

Sigue en %3.</translation>
    </message>
    <message id="IDD_CLI_ABOUT">
        <source>Records the screen and makes an animated GIF, WebP or MP4 of it. Without arguments it shows its window.</source>
        <translation>Graba la pantalla y crea un GIF animado, un WebP o un MP4. Sin argumentos, muestra su ventana.</translation>
    </message>
    <message id="IDD_CLI_RECORD_ABOUT">
        <source>Records without showing a window and writes the file. Say what to record with one of --region, --screen and --window.</source>
        <translation>Graba sin mostrar ninguna ventana y escribe el archivo. Indique qué grabar con --region, --screen o --window.</translation>
    </message>
    <message id="IDD_CLI_RECORD">
        <source>Record without a window</source>
        <translation>Grabar sin ventana</translation>
    </message>
    <message id="IDD_CLI_TOGGLE">
        <source>Start a recording in the running Tovarel, or stop the one in progress</source>
        <translation>Iniciar una grabación en el Tovarel en ejecución, o detener la que está en curso</translation>
    </message>
    <message id="IDD_CLI_PAUSE">
        <source>Pause the recording in progress, or continue it</source>
        <translation>Pausar la grabación en curso, o continuarla</translation>
    </message>
    <message id="IDD_CLI_STOP">
        <source>Stop the recording in progress</source>
        <translation>Detener la grabación en curso</translation>
    </message>
    <message id="IDD_CLI_HELP">
        <source>Show this help</source>
        <translation>Mostrar esta ayuda</translation>
    </message>
    <message id="IDD_CLI_VERSION">
        <source>Show the version</source>
        <translation>Mostrar la versión</translation>
    </message>
    <message id="IDD_CLI_REGION">
        <source>Record W × H pixels of the desktop, X to the right and Y down from its upper left corner</source>
        <translation>Grabar W × H píxeles del escritorio, a X hacia la derecha y a Y hacia abajo desde su esquina superior izquierda</translation>
    </message>
    <message id="IDD_CLI_SCREEN">
        <source>Record monitor number N, counted from 1; without N all monitors, or on Wayland the one that you choose</source>
        <translation>Grabar el monitor número N, contando desde 1; sin N, todos los monitores, o en Wayland el que usted elija</translation>
    </message>
    <message id="IDD_CLI_WINDOW">
        <source>Record the part of the screen where the window with TITLE in its title is</source>
        <translation>Grabar la parte de la pantalla que ocupa la ventana cuyo título contiene TITLE</translation>
    </message>
    <message id="IDD_CLI_SECONDS">
        <source>Record for S seconds; Ctrl+C stops earlier</source>
        <translation>Grabar durante S segundos; Ctrl+C la detiene antes</translation>
    </message>
    <message id="IDD_CLI_RATE">
        <source>Frames per second, 1 to 60; 15 if not given</source>
        <translation>Fotogramas por segundo, de 1 a 60; 15 si no se indica</translation>
    </message>
    <message id="IDD_CLI_DELAY">
        <source>Wait S seconds before recording</source>
        <translation>Esperar S segundos antes de grabar</translation>
    </message>
    <message id="IDD_CLI_QUALITY">
        <source>best, balanced, small or classic; balanced if not given</source>
        <translation>best, balanced, small o classic; balanced si no se indica</translation>
    </message>
    <message id="IDD_CLI_OUTPUT">
        <source>Write to FILE, which ends in .gif, .webp or .mp4; if not given, to a GIF here, named after the time</source>
        <translation>Escribir en FILE, que termina en .gif, .webp o .mp4; si no se indica, en un GIF aquí con la hora como nombre</translation>
    </message>
    <message id="IDD_CLI_FORCE">
        <source>Replace the file if it exists</source>
        <translation>Reemplazar el archivo si existe</translation>
    </message>
    <message id="IDD_CLI_SEE_HELP">
        <source>“tovarel --help” and “tovarel record --help” say more.</source>
        <translation>Vea «tovarel --help» y «tovarel record --help».</translation>
    </message>
    <message id="IDD_CLI_EXAMPLES">
        <source>Examples:</source>
        <translation>Ejemplos:</translation>
    </message>
    <message id="IDD_CLI_ONE_TARGET">
        <source>Give exactly one of --region, --screen and --window.</source>
        <translation>Indique exactamente una de las opciones --region, --screen y --window.</translation>
    </message>
    <message id="IDD_CLI_ONE_WISH">
        <source>Give only one of --toggle, --pause and --stop.</source>
        <translation>Indique solo una de las opciones --toggle, --pause y --stop.</translation>
    </message>
    <message id="IDD_CLI_UNKNOWN">
        <source>“%1” is not a command of Tovarel.</source>
        <translation>«%1» no es una orden de Tovarel.</translation>
    </message>
    <message id="IDD_CLI_NEEDS_SECONDS">
        <source>Say how long to record with --seconds.</source>
        <translation>Indique con --seconds cuánto tiempo se graba.</translation>
    </message>
    <message id="IDD_CLI_NOT_NUMBER">
        <source>%1 takes a number from %2 to %3.</source>
        <translation>%1 requiere un número del %2 al %3.</translation>
    </message>
    <message id="IDD_CLI_NOT_REGION">
        <source>“%1” is not a region. --region takes width, height and place in pixels, as in 640x480+100+80.</source>
        <translation>«%1» no es una zona. --region requiere ancho, alto y posición en píxeles, como 640x480+100+80.</translation>
    </message>
    <message id="IDD_CLI_NOT_QUALITY">
        <source>“%1” is not a quality. --quality takes best, balanced, small or classic.</source>
        <translation>«%1» no es una calidad. --quality requiere best, balanced, small o classic.</translation>
    </message>
    <message id="IDD_CLI_NOT_FORMAT">
        <source>The name of the file must end in .gif, .webp or .mp4: “%1”</source>
        <translation>El nombre del archivo debe terminar en .gif, .webp o .mp4: «%1»</translation>
    </message>
    <message id="IDD_CLI_NO_PLACE">
        <source>No file can be written there: %1</source>
        <translation>No se puede escribir ningún archivo ahí: %1</translation>
    </message>
    <message id="IDD_CLI_EXISTS">
        <source>There is already a file %1. --force replaces it.</source>
        <translation>El archivo %1 ya existe. --force lo reemplaza.</translation>
    </message>
    <message id="IDD_CLI_TOO_SHORT">
        <source>The recording is too short: an animation needs at least three frames.</source>
        <translation>La grabación es demasiado corta: una animación necesita al menos tres fotogramas.</translation>
    </message>
    <message id="IDD_CLI_NOBODY">
        <source>Tovarel is not running.</source>
        <translation>Tovarel no está en ejecución.</translation>
    </message>
    <message id="IDD_CLI_NOT_NOW">
        <source>Tovarel cannot do that now.</source>
        <translation>Tovarel no puede hacerlo ahora.</translation>
    </message>
    <message id="IDD_CLI_NOT_RECORDING">
        <source>Tovarel is not recording.</source>
        <translation>Tovarel no está grabando.</translation>
    </message>
    <message id="IDD_CLI_SAVING">
        <source>Tovarel is still saving the last recording.</source>
        <translation>Tovarel aún está guardando la última grabación.</translation>
    </message>
    <message id="IDD_CLI_ASKING">
        <source>Tovarel is waiting for an answer in its window.</source>
        <translation>Tovarel espera una respuesta en su ventana.</translation>
    </message>
    <message id="IDD_CLI_NO_PICTURE">
        <source>The display server provides no picture of the screen.</source>
        <translation>El servidor gráfico no entrega ninguna imagen de la pantalla.</translation>
    </message>
    <message id="IDD_CLI_REGION_OUTSIDE">
        <source>That is not wholly on the desktop, which has %1 × %2 pixels.</source>
        <translation>Eso no está por completo en el escritorio, que tiene %1 × %2 píxeles.</translation>
    </message>
    <message id="IDD_CLI_NO_SCREEN">
        <source>There is no monitor number %1. Monitors: %2</source>
        <translation>No hay ningún monitor número %1. Monitores: %2</translation>
    </message>
    <message id="IDD_CLI_DESKTOP_CHOOSES">
        <source>Here the desktop’s own dialog decides which monitor is recorded: use --screen without a number, or --region.</source>
        <translation>Aquí el cuadro de diálogo del escritorio decide qué monitor se graba: use --screen sin número, o --region.</translation>
    </message>
    <message id="IDD_CLI_NO_WINDOW">
        <source>No window on the screen has “%1” in its title.</source>
        <translation>Ninguna ventana de la pantalla tiene «%1» en su título.</translation>
    </message>
    <message id="IDD_CLI_STARTS">
        <source>Recording starts in %1&#xa0;s</source>
        <translation>La grabación empieza en %1&#xa0;s</translation>
    </message>
    <message id="IDD_CLI_RECORDING">
        <source>Recording: %1 of %2&#xa0;s · Frames: %3</source>
        <translation>Grabación: %1 de %2&#xa0;s · Fotogramas: %3</translation>
    </message>
    <message id="IDD_CLI_ENCODING">
        <source>Generating the file: %1%</source>
        <translation>Creando el archivo: %1&#xa0;%</translation>
    </message>
    <message id="IDD_MOVE_IS_FOLDER">
        <source>There is already a folder with that name.</source>
        <translation>Ya existe una carpeta con ese nombre.</translation>
    </message>
    <message id="IDD_MOVE_NOT_A_FILE">
        <source>There is already something with that name, and it is not a regular file.</source>
        <translation>Ya existe un elemento con ese nombre que no es un archivo normal.</translation>
    </message>
    <message id="IDD_MOVE_SAME_FILE">
        <source>Source and destination are the same file.</source>
        <translation>El origen y el destino son el mismo archivo.</translation>
    </message>
    <message id="IDD_MOVE_WORKING_FOLDER">
        <source>Tovarel empties that folder automatically. Choose another one.</source>
        <translation>Tovarel vacía esa carpeta automáticamente. Elija otra.</translation>
    </message>
    <message id="IDD_STATUS_SAVED">
        <source>Saved: %1 (%2).</source>
        <translation>Guardado: %1 (%2).</translation>
    </message>
    <message id="IDD_STATUS_SAVED_NOTE">
        <source>Saved: %1 (%2). %3</source>
        <translation>Guardado: %1 (%2). %3</translation>
    </message>
    <message id="IDD_STATUS_UNSAVED">
        <source>The %1 has not been saved, but it is still there.</source>
        <translation>El %1 no se ha guardado, pero sigue disponible.</translation>
    </message>
    <message id="IDD_SAVE_RESULT">
        <source>Save…</source>
        <translation>Guardar…</translation>
    </message>
    <message id="IDD_SAVE_WITHOUT_ASKING">
        <source>Save Without Asking</source>
        <translation>Guardar sin preguntar</translation>
    </message>
    <message id="IDD_GENERATE_AND_COPY">
        <source>Generate GIF and Copy</source>
        <translation>Crear GIF y copiar</translation>
    </message>
    <message id="IDD_SAVING_OPTIONS">
        <source>Saving Options</source>
        <translation>Opciones de guardado</translation>
    </message>
    <message id="IDD_LAST_FILE">
        <source>Last File</source>
        <translation>Último archivo</translation>
    </message>
    <message id="IDD_FILE_PICTURE">
        <source>Picture of the file</source>
        <translation>Imagen del archivo</translation>
    </message>
    <message id="IDD_FILE_FIGURES">
        <source>%1 · %2 × %3 · %4&#xa0;s</source>
        <translation>%1 · %2 × %3 · %4&#xa0;s</translation>
    </message>
    <message id="IDD_FILE_DRAG">
        <source>Drag it into another program</source>
        <translation>Arrástrelo a otro programa</translation>
    </message>
    <message id="IDD_FILE_COPY">
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message id="IDD_FILE_OPEN">
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message id="IDD_FILE_SHOW">
        <source>Show in Folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message id="IDD_FILE_COPIED">
        <source>Copied: %1. Paste it into another program.</source>
        <translation>Copiado: %1. Péguelo en otro programa.</translation>
    </message>
    <message id="IDD_FILE_GONE">
        <source>The file has been deleted or moved. Generate it again if you need it.</source>
        <translation>El archivo se ha eliminado o movido. Vuelva a crearlo si lo necesita.</translation>
    </message>
    <message id="IDD_FILE_UNSAVED">
        <source>Not saved yet</source>
        <translation>Aún sin guardar</translation>
    </message>
    <message id="IDD_FILE_REPLACED">
        <source>Another program has changed this file. Generate it again.</source>
        <translation>Otro programa ha modificado este archivo. Vuelva a crearlo.</translation>
    </message>
    <message id="IDD_FILE_NOT_OPENED">
        <source>No program was found to open %1.</source>
        <translation>No se encontró ningún programa que abra %1.</translation>
    </message>
    <message id="IDD_FILE_READY">
        <source>The file is ready</source>
        <translation>El archivo está listo</translation>
    </message>
    <message id="IDD_UNSAVED_QUESTION">
        <source>The %1 has not been saved.</source>
        <translation>El %1 no se ha guardado.</translation>
    </message>
    <message id="IDD_UNSAVED_DETAIL">
        <source>Save it before you continue? If you discard it, the file is deleted; the recording stays.</source>
        <translation>¿Desea guardarlo antes de continuar? Si lo descarta, se borrará el archivo; la grabación se conservará.</translation>
    </message>
    <message id="IDD_DISCARD">
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message id="IDD_STATUS_GAP" numerus="yes">
        <source>The GIF contains only %1 of %Ln frames; the rest are missing.</source>
        <translation>
            <numerusform>El GIF contiene solo %1 de %Ln fotograma; faltaba el resto.</numerusform>
            <numerusform>El GIF contiene solo %1 de %Ln fotogramas; faltaba el resto.</numerusform>
        </translation>
    </message>
    <message id="IDD_STATUS_WEBP_GAP" numerus="yes">
        <source>The WebP contains only the first %1 of %Ln frames; the next one is missing.</source>
        <translation>
            <numerusform>El WebP contiene solo %1 de %Ln fotograma; faltaba el siguiente.</numerusform>
            <numerusform>El WebP contiene solo %1 de %Ln fotogramas; faltaba el siguiente.</numerusform>
        </translation>
    </message>
    <message id="IDD_STATUS_STILL">
        <source>The GIF does not move: all its frames are the same.</source>
        <translation>El GIF no se mueve: todos sus fotogramas son iguales.</translation>
    </message>
    <message id="IDD_QUALITY">
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message id="IDD_QUALITY_TIP">
        <source>Quality of the GIF: “Best” keeps colors as exact as possible, “Small” gives the smallest file, “Classic” uses ffmpeg</source>
        <translation>Calidad del GIF: «Óptima» conserva los colores con la mayor exactitud posible, «Compacta» da el archivo más pequeño, «Clásica» usa ffmpeg</translation>
    </message>
    <message id="IDD_QUALITY_BEST">
        <source>Best</source>
        <translation>Óptima</translation>
    </message>
    <message id="IDD_QUALITY_BALANCED">
        <source>Balanced</source>
        <translation>Equilibrada</translation>
    </message>
    <message id="IDD_QUALITY_SMALL">
        <source>Small</source>
        <translation>Compacta</translation>
    </message>
    <message id="IDD_QUALITY_CLASSIC">
        <source>Classic</source>
        <translation>Clásica</translation>
    </message>
    <message id="IDD_SPEED">
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message id="IDD_GIF_THINNED">
        <source>GIF: reduced to 50&#xa0;fps</source>
        <translation>GIF: se reduce a 50&#xa0;fps</translation>
    </message>
    <message id="IDD_FIT_UNDER">
        <source>Max. file size</source>
        <translation>Tamaño máx. del archivo</translation>
    </message>
    <message id="IDD_FIT_UNDER_TIP">
        <source>Maximum size of the GIF or WebP file. To stay below it, color accuracy is reduced first, then the frame rate, then the width and height</source>
        <translation>Tamaño máximo del archivo GIF o WebP. Para no superarlo se reducen primero la exactitud de los colores, luego la frecuencia de fotogramas y por último el ancho y el alto</translation>
    </message>
    <message id="IDD_FIT_NOTE">
        <source>Colors, then frame rate, then size are lowered as far as needed.</source>
        <translation>Si hace falta bajan los colores, la frecuencia y el tamaño, en ese orden.</translation>
    </message>
    <message id="IDD_NO_LIMIT">
        <source>No limit</source>
        <translation>Sin límite</translation>
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
        <translation>Escriba un tamaño de archivo, por ejemplo 8&#xa0;MB o 500&#xa0;kB, o elija «Sin límite».</translation>
    </message>
    <message id="IDD_FIT_IMPOSSIBLE">
        <source>The file does not fit under %1: even at the lowest frame rate and half the size it takes %2. Choose a higher limit or a smaller size, or keep less of the recording.</source>
        <translation>El archivo no cabe en %1: incluso con la menor frecuencia de fotogramas y la mitad del tamaño ocupa %2. Elija un límite mayor o un tamaño menor, o conserve menos de la grabación.</translation>
    </message>
    <message id="IDD_FIT_ASK">
        <source>To fit under %1, the frame rate or the size that you chose must be lowered.</source>
        <translation>Para caber en %1 hay que reducir la frecuencia de fotogramas o el tamaño que eligió.</translation>
    </message>
    <message id="IDD_FIT_ASK_DETAIL">
        <source>What you chose stays in the fields.</source>
        <translation>Lo que eligió permanece en los campos.</translation>
    </message>
    <message id="IDD_FIT_KEEP">
        <source>Don’t Generate</source>
        <translation>No crear</translation>
    </message>
    <message id="IDD_FIT_LOWER">
        <source>Lower</source>
        <translation>Reducir</translation>
    </message>
    <message id="IDD_STATUS_FITTED">
        <source>To fit under %1, the size was reduced to %2 × %3 pixels and the frame rate to %4&#xa0;fps.</source>
        <translation>Para caber en %1, el tamaño se redujo a %2 × %3 píxeles y la frecuencia a %4&#xa0;fps.</translation>
    </message>
    <message id="IDD_STATUS_FITTED_RATE">
        <source>To fit under %1, the frame rate was lowered from %2 to %3&#xa0;fps.</source>
        <translation>Para caber en %1, la frecuencia de fotogramas se redujo de %2 a %3&#xa0;fps.</translation>
    </message>
    <message id="IDD_STATUS_FITTED_SIZE">
        <source>To fit under %1, the size was reduced to %2 × %3 pixels.</source>
        <translation>Para caber en %1, el tamaño se redujo a %2 × %3 píxeles.</translation>
    </message>
    <message id="IDD_STATUS_FITTED_COLORS">
        <source>To fit under %1, the file has less exact colors.</source>
        <translation>Para caber en %1, el archivo tiene colores menos exactos.</translation>
    </message>
    <message id="IDD_ABOUT_SIZE">
        <source>GIF: about %1</source>
        <translation>GIF: aproximadamente %1</translation>
    </message>
    <message id="IDD_AT_MOST_SIZE">
        <source>GIF: at most %1</source>
        <translation>GIF: %1 como máximo</translation>
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
        <translation>%1&#xa0;% del ancho y el alto de la grabación</translation>
    </message>
    <message id="IDD_GENERATE_MP4">
        <source>Generate MP4</source>
        <translation>Crear MP4</translation>
    </message>
    <message id="IDD_GENERATE_MP4_TIP">
        <source>Generates an MP4 video with the size, frame rate and speed chosen here</source>
        <translation>Crea un vídeo MP4 con el tamaño, la frecuencia de fotogramas y la velocidad elegidos aquí</translation>
    </message>
    <message id="IDD_PROGRESS_MP4">
        <source>Generating the MP4…</source>
        <translation>Creando el MP4…</translation>
    </message>
    <message id="IDD_MP4_PANEL">
        <source>Select a folder to save the MP4 video</source>
        <translation>Elegir una carpeta para guardar el vídeo MP4</translation>
    </message>
    <message id="IDD_MP4_SAVED_OK">
        <source>The MP4 has been saved.</source>
        <translation>El MP4 se ha guardado.</translation>
    </message>
    <message id="IDD_MP4_NO_ENCODER">
        <source>This ffmpeg has no H.264 encoder (libx264), which an MP4 needs. Install an ffmpeg that has one, or generate a GIF or a WebP.</source>
        <translation>Este ffmpeg no tiene el codificador H.264 (libx264) que necesita un MP4. Instale un ffmpeg que lo tenga, o cree un GIF o un WebP.</translation>
    </message>
    <message id="IDD_STATUS_MP4_GAP" numerus="yes">
        <source>The MP4 contains only the first %1 of %Ln frames; the next one is missing.</source>
        <translation>
            <numerusform>El MP4 contiene solo %1 de %Ln fotograma; faltaba el siguiente.</numerusform>
            <numerusform>El MP4 contiene solo %1 de %Ln fotogramas; faltaba el siguiente.</numerusform>
        </translation>
    </message>
    <message id="IDD_GENERATE_WEBP">
        <source>Generate WebP</source>
        <translation>Crear WebP</translation>
    </message>
    <message id="IDD_WEBP_ABOUT">
        <source>WebP: about %1</source>
        <translation>WebP: aproximadamente %1</translation>
    </message>
    <message id="IDD_GENERATE_WEBP_TIP">
        <source>Generates a WebP with the size, frame rate and speed chosen here</source>
        <translation>Crea un WebP con el tamaño, la frecuencia de fotogramas y la velocidad elegidos aquí</translation>
    </message>
    <message id="IDD_WEBP_LOOPS">
        <source>Repeat</source>
        <translation>Repetición</translation>
    </message>
    <message id="IDD_LOOP_FOREVER">
        <source>Forever</source>
        <translation>Sin fin</translation>
    </message>
    <message id="IDD_LOOP_ONCE">
        <source>Once</source>
        <translation>Una vez</translation>
    </message>
    <message id="IDD_LOOPS_REFUSED">
        <source>Enter a number from 0 to %1 for “Repeat”.</source>
        <translation>Escriba en «Repetición» un número del 0 al %1.</translation>
    </message>
    <message id="IDD_HOLD">
        <source>Hold last frame</source>
        <translation>Pausa final</translation>
    </message>
    <message id="IDD_HOLD_SECONDS">
        <source>%1&#xa0;s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message id="IDD_LOOPS_RANGE">
        <source>0 to %1</source>
        <translation>0 a %1</translation>
    </message>
    <message id="IDD_WIDTH_ZERO">
        <source>The width must be a number greater than 0.</source>
        <translation>El ancho debe ser un número mayor que 0.</translation>
    </message>
    <message id="IDD_WIDTH_NEGATIVE">
        <source>The width must not be negative.</source>
        <translation>El ancho no puede ser negativo.</translation>
    </message>
    <message id="IDD_WIDTH_NOT_PLAIN">
        <source>The width may contain digits only.</source>
        <translation>El ancho solo puede contener cifras.</translation>
    </message>
    <message id="IDD_WIDTH_TOO_LARGE">
        <source>The width can be %1 pixels at most.</source>
        <translation>El ancho puede ser de %1 píxeles como máximo.</translation>
    </message>
    <message id="IDD_HEIGHT_ZERO">
        <source>The height must be a number greater than 0.</source>
        <translation>El alto debe ser un número mayor que 0.</translation>
    </message>
    <message id="IDD_HEIGHT_NEGATIVE">
        <source>The height must not be negative.</source>
        <translation>El alto no puede ser negativo.</translation>
    </message>
    <message id="IDD_HEIGHT_NOT_PLAIN">
        <source>The height may contain digits only.</source>
        <translation>El alto solo puede contener cifras.</translation>
    </message>
    <message id="IDD_HEIGHT_TOO_LARGE">
        <source>The height can be %1 pixels at most.</source>
        <translation>El alto puede ser de %1 píxeles como máximo.</translation>
    </message>
    <message id="IDD_GIF_SUMMARY" numerus="yes">
        <source>%Ln frames, %1&#xa0;s at&#xa0;%2&#xa0;fps</source>
        <translation>
            <numerusform>%Ln fotograma, %1&#xa0;s a&#xa0;%2&#xa0;fps</numerusform>
            <numerusform>%Ln fotogramas, %1&#xa0;s a&#xa0;%2&#xa0;fps</numerusform>
        </translation>
    </message>
    <message id="IDD_GIF_WEBP_SUMMARY">
        <source>GIF: %1 · WebP: %2</source>
        <translation>GIF: %1 · WebP: %2</translation>
    </message>
</context>
</TS>
