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
        <source>Maker's Page</source>
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
        <translation>Pausa</translation>
    </message>
    <message id="IDD_STOP">
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message id="IDD_CUT">
        <source>Cut</source>
        <translation>Recortar</translation>
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
    <message id="IDD_FPS">
        <source>Frames per Second</source>
        <translation>Fotogramas por segundo</translation>
    </message>
    <message id="IDD_INSTRUCTIONS">
        <source>Choose the size, the frame rate and the speed, then generate the GIF.</source>
        <translation>Elija el tamaño, la frecuencia de fotogramas y la velocidad, y luego cree el GIF.</translation>
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
        <source>The rate measured while recording is the one that counts; it may be lower than the one you chose.</source>
        <translation>La frecuencia que cuenta es la medida durante la grabación; puede ser menor que la elegida.</translation>
    </message>
    <message id="IDD_GENERATE_GIF">
        <source>Generate GIF</source>
        <translation>Crear GIF</translation>
    </message>
    <message id="IDD_LOW_FRAME_NUMBER">
        <source>The selected range has too few frames. Select at least three on the Cut tab.</source>
        <translation>El intervalo elegido tiene muy pocos fotogramas. Elija al menos tres en la pestaña Recortar.</translation>
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
        <source>Free software under the %1 licence.</source>
        <translation>Software libre con licencia %1.</translation>
    </message>
    <message id="IDD_ABOUT_TOOLS">
        <source>Tools in use:</source>
        <translation>Herramientas en uso:</translation>
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
        <source>From any window, with %1: %2</source>
        <translation>Desde cualquier ventana, con %1: %2</translation>
    </message>
    <message id="IDD_KEYS_TAKEN">
        <source>Taken by another program, with %1: %2</source>
        <translation>Ocupado por otro programa, con %1: %2</translation>
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
        <source>The screen cannot be recorded: this display server does not use 24-bit colour.</source>
        <translation>No se puede grabar la pantalla: este servidor gráfico no usa imágenes en color de 24 bits.</translation>
    </message>
    <message id="IDD_REASON_WAYLAND">
        <source>The screen cannot be recorded in a Wayland session; log in to an X11 session to record.</source>
        <translation>No se puede grabar la pantalla en una sesión de Wayland; inicie una sesión de X11 para grabar.</translation>
    </message>
    <!-- record -->
    <message id="IDD_SAVING_RECORDING">
        <source>Saving the recording…</source>
        <translation>Guardando la grabación…</translation>
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
        <source>Paused – press %1 to continue</source>
        <translation>En pausa: siga con «%1»</translation>
    </message>
    <message id="IDD_RECORDING_FIGURES">
        <source>%1 · Frames: %2 · Frames per second: %3</source>
        <translation>%1 · Fotogramas: %2 · Fotogramas por segundo: %3</translation>
    </message>
    <message id="IDD_PAUSED_FOR_MEMORY">
        <source>The recording was paused because memory is running out (%1 left). Press Record to continue, or Stop to save what has been recorded.</source>
        <translation>La grabación se ha puesto en pausa porque queda poca memoria (%1). Grabar la continúa, Detener guarda lo grabado.</translation>
    </message>
    <message id="IDD_RECORDING_MEMORY">
        <source>Memory: %1</source>
        <translation>Memoria: %1</translation>
    </message>
    <message id="IDD_RECORDING_MEMORY_LASTS">
        <source>Memory: %1, enough for %2 more</source>
        <translation>Memoria: %1, alcanza para %2 más</translation>
    </message>
    <message id="IDD_RECORDING_SAVED">
        <source>The recording is complete. Frames: %1 · Frames per second: %2</source>
        <translation>La grabación está completa. Fotogramas: %1 · Fotogramas por segundo: %2</translation>
    </message>
    <message id="IDD_RECORDING_BEHIND">
        <source>The recording is complete. Frames: %1 · Frames per second: %3 instead of %2</source>
        <translation>La grabación ha terminado. Fotogramas: %1 · Se pidieron %2 fotogramas por segundo y se obtuvieron %3</translation>
    </message>
    <message id="IDD_NOTHING_RECORDED">
        <source>Nothing was recorded.</source>
        <translation>No se ha grabado nada.</translation>
    </message>
    <message id="IDD_FRAMES_MISSING">
        <source>%1 of %2 frames could not be written to %3: %4</source>
        <translation>No se pudieron escribir %1 de %2 fotogramas en %3: %4</translation>
    </message>
    <message id="IDD_CLOSE_WAITS">
        <source>The recording is still being saved. Tovarel can be closed when that is done.</source>
        <translation>La grabación aún se está guardando. Después podrá cerrar Tovarel.</translation>
    </message>
    <message id="IDD_RECOVER_QUESTION">
        <source>An earlier recording is still there.</source>
        <translation>Aún existe una grabación anterior.</translation>
    </message>
    <message id="IDD_RECOVER_DETAIL">
        <source>Tovarel was not closed properly. The recording of %1 is complete: %2 frames, %3&#xa0;s. You can open it on the Cut tab or delete it.</source>
        <translation>Tovarel no se cerró correctamente. La grabación del %1 está completa: %2 fotogramas, %3&#xa0;s. Puede abrirla en la pestaña «Recortar» o eliminarla.</translation>
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
    <message id="IDD_SAVE_AGAIN">
        <source>Save Again</source>
        <translation>Guardar de nuevo</translation>
    </message>
    <message id="IDD_MODE_FULL_SCREEN">
        <source>Full screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message id="IDD_MODE_REGION">
        <source>Region %1 × %2 at %3,&#xa0;%4</source>
        <translation>Zona %1 × %2 en %3,&#xa0;%4</translation>
    </message>
    <message id="IDD_CAPTURE_RATE">
        <source>%1 fps</source>
        <translation>%1 fps</translation>
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
        <source>Select a region</source>
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
        <source>How to select a region</source>
        <translation>Cómo elegir una zona</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_TEXT">
        <source>A rectangle with five squares appears on the screen. Drag the green squares until it frames what you want to record, then click the red one. Drag inside the rectangle to move it, or outside to draw a new one.</source>
        <translation>En la pantalla aparece un rectángulo con cinco cuadrados. Arrastre los verdes hasta enmarcar lo que quiere grabar y haga clic en el rojo. Arrastre dentro del rectángulo para moverlo o fuera de él para dibujar uno nuevo.</translation>
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
        <source>By keyboard: the arrow keys move a corner (Shift: faster), Tab chooses another one, Return accepts, Escape cancels.</source>
        <translation>Con el teclado: las flechas mueven una esquina (más rápido con Mayús), Tab elige otra, Intro acepta y Esc cancela.</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_AGAIN">
        <source>Don't show this again</source>
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
    <message id="IDD_RANGE_HOLDS">
        <source>Frames %1 to %2: %3 frames, %4 s</source>
        <translation>Fotogramas %1 a %2: %3 fotogramas, %4 s</translation>
    </message>
    <message id="IDD_RANGE_ONE">
        <source>Frame %1 only, %2 s</source>
        <translation>Solo el fotograma %1, %2 s</translation>
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
    <!-- export -->
    <message id="IDD_PROGRESS_GIF">
        <source>Making the GIF…</source>
        <translation>Creando el GIF…</translation>
    </message>
    <message id="IDD_PROGRESS_WEBP">
        <source>Generating the WebP…</source>
        <translation>Creando el WebP…</translation>
    </message>
    <message id="IDD_PROGRESS_PALETTE">
        <source>Step 1 of 2: choosing the colours</source>
        <translation>Paso 1 de 2: elección de los colores</translation>
    </message>
    <message id="IDD_PROGRESS_SCALING">
        <source>Step 1 of 2, scaling: %p%</source>
        <translation>Paso 1 de 2, cambio de tamaño: %p&#xa0;%</translation>
    </message>
    <message id="IDD_PROGRESS_PICTURES">
        <source>Step 2 of 2: %p%</source>
        <translation>Paso 2 de 2: %p %</translation>
    </message>
    <message id="IDD_EXPORT_CANCELLED">
        <source>The export was cancelled.</source>
        <translation>La exportación se ha cancelado.</translation>
    </message>
    <message id="IDD_TOOL_MISSING">
        <source>The program “%1” is missing: it was not found when Tovarel was started.</source>
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
        <source>The size asked for was %1 × %2.</source>
        <translation>El tamaño pedido era %1 × %2.</translation>
    </message>
    <message id="IDD_GIF_TOO_LARGE">
        <source>A GIF of %1 × %2 pixels needs about %3 of memory. At most %4 may be used, half of what is free. Choose a smaller size.</source>
        <translation>Un GIF de %1 × %2 píxeles necesita unos %3 de memoria. Se pueden usar %4 como máximo, la mitad de la memoria libre. Elija un tamaño menor.</translation>
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
        <source>The file could not be saved as %1. %2

It remains at %3.</source>
        <translation>No se pudo guardar el archivo como %1. %2

Sigue en %3.</translation>
    </message>
    <message id="IDD_MOVE_IS_FOLDER">
        <source>There is a folder with that name.</source>
        <translation>Ahí hay una carpeta con ese nombre.</translation>
    </message>
    <message id="IDD_MOVE_NOT_A_FILE">
        <source>There is something with that name that is not an ordinary file.</source>
        <translation>Lo que hay ahí no es un archivo corriente.</translation>
    </message>
    <message id="IDD_MOVE_SAME_FILE">
        <source>That is the file itself.</source>
        <translation>Ese es el propio archivo.</translation>
    </message>
    <message id="IDD_MOVE_WORKING_FOLDER">
        <source>Tovarel empties that folder itself: choose another one.</source>
        <translation>Tovarel vacía esa carpeta por su cuenta: elija otra.</translation>
    </message>
    <message id="IDD_STATUS_SAVED">
        <source>Saved: %1 (%2).</source>
        <translation>Guardado: %1 (%2).</translation>
    </message>
    <message id="IDD_STATUS_UNSAVED">
        <source>The %1 has not been saved, but it is still there.</source>
        <translation>El %1 no se ha guardado, pero sigue disponible.</translation>
    </message>
    <message id="IDD_SAVE_RESULT">
        <source>Save…</source>
        <translation>Guardar…</translation>
    </message>
    <message id="IDD_UNSAVED_QUESTION">
        <source>The %1 has not been saved.</source>
        <translation>El %1 no se ha guardado.</translation>
    </message>
    <message id="IDD_UNSAVED_DETAIL">
        <source>Save it before you continue? If you discard it, it is gone for good.</source>
        <translation>¿Desea guardarlo antes de continuar? Si lo descarta, se perderá definitivamente.</translation>
    </message>
    <message id="IDD_DISCARD">
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message id="IDD_STATUS_GAP">
        <source>The GIF holds %1 of %2 frames: the others were missing.</source>
        <translation>El GIF contiene %1 de %2 fotogramas: los demás faltaban.</translation>
    </message>
    <message id="IDD_STATUS_WEBP_GAP">
        <source>The WebP holds %1 of %2 frames: the next one was missing.</source>
        <translation>El WebP contiene %1 de %2 fotogramas: faltaba el siguiente.</translation>
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
        <source>Quality of the GIF: Best keeps colours as exact as possible, Small gives the smallest file, Classic uses ffmpeg</source>
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
        <source>GIF: thinned to 50&#xa0;fps</source>
        <translation>GIF: se reduce a 50&#xa0;fps</translation>
    </message>
    <message id="IDD_FIT_UNDER">
        <source>Fit under</source>
        <translation>Tamaño máximo</translation>
    </message>
    <message id="IDD_FIT_UNDER_TIP">
        <source>Largest size of the GIF file. To stay below it, exact colors are given up first, then the frame rate, then the size</source>
        <translation>Tamaño máximo del archivo GIF. Para no superarlo se reducen primero la exactitud de los colores, luego la frecuencia de fotogramas y luego el tamaño</translation>
    </message>
    <message id="IDD_NO_LIMIT">
        <source>No limit</source>
        <translation>Sin límite</translation>
    </message>
    <message id="IDD_LIMIT_MB">
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message id="IDD_LIMIT_NOT_NUMBER">
        <source>Type a file size in MB, such as 8, or choose “No limit”.</source>
        <translation>Escriba un tamaño de archivo en MB, por ejemplo 8, o elija «Sin límite».</translation>
    </message>
    <message id="IDD_FIT_IMPOSSIBLE">
        <source>The GIF does not fit under %1: even at the lowest frame rate and half the size it takes %2. Choose a higher limit or a smaller size, or keep less of the recording.</source>
        <translation>El GIF no cabe en %1: incluso con la menor frecuencia de fotogramas y la mitad del tamaño ocupa %2. Elija un límite mayor o un tamaño menor, o conserve menos de la grabación.</translation>
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
        <source>To fit under %1, it has %2 × %3 pixels and %4 frames per second.</source>
        <translation>Para caber en %1 tiene %2 × %3 píxeles y %4 fotogramas por segundo.</translation>
    </message>
    <message id="IDD_STATUS_FITTED_COLORS">
        <source>To fit under %1, its colors are less exact.</source>
        <translation>Para caber en %1, sus colores son menos exactos.</translation>
    </message>
    <message id="IDD_ABOUT_SIZE">
        <source>About %1</source>
        <translation>Aproximadamente %1</translation>
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
        <source>Making the MP4…</source>
        <translation>Creando el MP4…</translation>
    </message>
    <message id="IDD_MP4_NO_ENCODER">
        <source>This ffmpeg has no H.264 encoder (libx264), which an MP4 needs. Install an ffmpeg that has one, or generate a GIF or a WebP.</source>
        <translation>Este ffmpeg no tiene el codificador H.264 (libx264) que necesita un MP4. Instale un ffmpeg que lo tenga, o cree un GIF o un WebP.</translation>
    </message>
    <message id="IDD_STATUS_MP4_GAP">
        <source>The MP4 holds %1 of %2 frames: the next one was missing.</source>
        <translation>El MP4 contiene %1 de %2 fotogramas: faltaba el siguiente.</translation>
    </message>
    <message id="IDD_SIZE_ABOVE">
        <source>%1 pixels at most</source>
        <translation>%1 píxeles como máximo</translation>
    </message>
    <message id="IDD_GENERATE_WEBP">
        <source>Generate WebP</source>
        <translation>Crear WebP</translation>
    </message>
    <message id="IDD_GENERATE_WEBP_TIP">
        <source>Generates a WebP with the size, frame rate and speed chosen here</source>
        <translation>Crea un WebP con el tamaño, la frecuencia de fotogramas y la velocidad elegidos aquí</translation>
    </message>
    <message id="IDD_WEBP_LOOPS">
        <source>WebP loops</source>
        <translation>Repeticiones del WebP</translation>
    </message>
    <message id="IDD_WEBP_LOOPS_HINT">
        <source>0 = loop forever</source>
        <translation>0 significa sin fin</translation>
    </message>
    <message id="IDD_LOOPS_NOT_NUMBER">
        <source>must be a whole number</source>
        <translation>debe ser un número entero</translation>
    </message>
    <message id="IDD_LOOPS_NEGATIVE">
        <source>must not be negative</source>
        <translation>no debe ser negativo</translation>
    </message>
    <message id="IDD_LOOPS_TOO_LARGE">
        <source>65,535 at most</source>
        <translation>65&#xa0;535 como máximo</translation>
    </message>
    <message id="IDD_SIZE_HINT">
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message id="IDD_SIZE_ZERO">
        <source>must begin with a number other than 0</source>
        <translation>debe empezar por un número distinto de 0</translation>
    </message>
    <message id="IDD_SIZE_NEGATIVE">
        <source>must not be negative</source>
        <translation>negativo, será rechazado</translation>
    </message>
    <message id="IDD_SIZE_NOT_PLAIN">
        <source>digits only, or it will be refused</source>
        <translation>solo cifras, o será rechazado</translation>
    </message>
    <message id="IDD_SIZE_TOO_LARGE">
        <source>65,535 pixels at most</source>
        <translation>65 535 píxeles como máximo</translation>
    </message>
    <message id="IDD_GIF_SUMMARY">
        <source>%1 frames, %2&#xa0;s at %3&#xa0;fps</source>
        <translation>%1 fotogramas, %2&#xa0;s a %3&#xa0;fps</translation>
    </message>
</context>
</TS>
