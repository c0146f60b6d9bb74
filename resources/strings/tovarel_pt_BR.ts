<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Tovarel authors
     SPDX-License-Identifier: MIT -->
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name></name>
    <message id="IDD_ABOUT">
        <source>About</source>
        <translation>Sobre o</translation>
    </message>
    <message id="IDD_HELP">
        <source>Help</source>
        <translation>– Ajuda</translation>
    </message>
    <message id="IDD_QUIT">
        <source>Quit</source>
        <translation>Sair do</translation>
    </message>
    <message id="IDD_APP_HOME_PAGE">
        <source>Home Page</source>
        <translation>Página inicial</translation>
    </message>
    <message id="IDD_COMPANY_PAGE">
        <source>About the Authors</source>
        <translation>Sobre os autores</translation>
    </message>
    <message id="IDD_PRIVACY_POLICY">
        <source>Privacy Policy</source>
        <translation>Política de privacidade</translation>
    </message>
    <message id="IDD_SUBMIT_TICKET">
        <source>Report a Problem</source>
        <translation>Relatar um problema</translation>
    </message>
    <message id="IDD_RECORD">
        <source>Record</source>
        <translation>Gravar</translation>
    </message>
    <message id="IDD_PAUSE">
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message id="IDD_STOP">
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message id="IDD_COUNTDOWN">
        <source>Countdown</source>
        <translation>Contagem regressiva</translation>
    </message>
    <message id="IDD_AT_ONCE">
        <source>At Once</source>
        <translation>Imediatamente</translation>
    </message>
    <message id="IDD_AFTER_SECONDS" numerus="yes">
        <source>After %Ln&#xa0;Seconds</source>
        <translation>
            <numerusform>Após %Ln&#xa0;segundo</numerusform>
            <numerusform>Após %Ln&#xa0;segundos</numerusform>
        </translation>
    </message>
    <message id="IDD_SECONDS">
        <source>%1&#xa0;s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message id="IDD_RECORD_AFTER" numerus="yes">
        <source>Record after %Ln&#xa0;seconds</source>
        <translation>
            <numerusform>Gravar após %Ln&#xa0;segundo</numerusform>
            <numerusform>Gravar após %Ln&#xa0;segundos</numerusform>
        </translation>
    </message>
    <message id="IDD_COUNTDOWN_RUNS">
        <source>The recording begins in a moment. Esc or “Stop” cancels it.</source>
        <translation>A gravação já vai começar. Pressione Esc ou “Parar” para cancelar.</translation>
    </message>
    <message id="IDD_COUNTDOWN_RUNS_KEY">
        <source>The recording begins in a moment. Esc, “Stop” or, in any window, %1 cancels it.</source>
        <translation>A gravação já vai começar. Pressione Esc, “Parar” ou, em qualquer janela, %1 para cancelar.</translation>
    </message>
    <message id="IDD_COUNTDOWN_CANCELLED">
        <source>The countdown was canceled.</source>
        <translation>A contagem regressiva foi cancelada.</translation>
    </message>
    <message id="IDD_MONITORS">
        <source>Monitors</source>
        <translation>Monitores</translation>
    </message>
    <message id="IDD_ALL_MONITORS">
        <source>All Monitors</source>
        <translation>Todos os monitores</translation>
    </message>
    <message id="IDD_MODE_MONITOR">
        <source>%1 · %2 × %3</source>
        <translation>%1 · %2 × %3</translation>
    </message>
    <message id="IDD_REGION_DOES_NOT_FIT">
        <source>The last region does not fit on this screen.</source>
        <translation>A última área não cabe nesta tela.</translation>
    </message>
    <message id="IDD_MOVE_REGION">
        <source>Move It Inside</source>
        <translation>Movê-la para dentro</translation>
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
        <translation>Tela inteira</translation>
    </message>
    <message id="IDD_REGION">
        <source>Region</source>
        <translation>Área da tela</translation>
    </message>
    <message id="IDD_REGION_SIZES">
        <source>Sizes</source>
        <translation>Tamanhos</translation>
    </message>
    <message id="IDD_REGION_SQUARE">
        <source>Square</source>
        <translation>Quadrado</translation>
    </message>
    <message id="IDD_REGION_LAST">
        <source>Last Used</source>
        <translation>Última usada</translation>
    </message>
    <message id="IDD_PICK_WINDOW">
        <source>Pick a Window</source>
        <translation>Escolher uma janela</translation>
    </message>
    <message id="IDD_PICK_WINDOW_TIP">
        <source>Then click a window, or hold W</source>
        <translation>Depois clique em uma janela, ou mantenha W pressionada</translation>
    </message>
    <message id="IDD_PICK_WINDOW_HINT">
        <source>Click the window to record. Esc goes back to the region.</source>
        <translation>Clique na janela que você quer gravar. Esc volta à área.</translation>
    </message>
    <message id="IDD_REGION_KEYS">
        <source>Enter uses the region, Esc cancels.</source>
        <translation>Pressione Enter para usar a área ou Esc para cancelar.</translation>
    </message>
    <message id="IDD_USE_REGION">
        <source>Use Region</source>
        <translation>Usar a área</translation>
    </message>
    <message id="IDD_FPS">
        <source>Frames per Second</source>
        <translation>Quadros por segundo</translation>
    </message>
    <message id="IDD_INSTRUCTIONS">
        <source>Choose the size, the frame rate and the speed, then generate the GIF.</source>
        <translation>Escolha o tamanho, a taxa de quadros e a velocidade e depois crie o GIF.</translation>
    </message>
    <message id="IDD_RECORD_FIRST">
        <source>There is no recording yet. Make one on the “Record” tab.</source>
        <translation>Ainda não há nenhuma gravação. Grave algo primeiro na aba “Gravar”.</translation>
    </message>
    <message id="IDD_RESOLUTION_EQUAL">
        <source>Same size as the recording</source>
        <translation>Tamanho da gravação</translation>
    </message>
    <message id="IDD_RESOLUTION_CUSTOM">
        <source>Custom size</source>
        <translation>Outro tamanho</translation>
    </message>
    <message id="IDD_WIDTH">
        <source>Width</source>
        <translation>Largura</translation>
    </message>
    <message id="IDD_HEIGHT">
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message id="IDD_KEEP_ASPECT_RATIO">
        <source>Keep aspect ratio</source>
        <translation>Manter proporção</translation>
    </message>
    <message id="IDD_FPS_EQUAL">
        <source>Same frame rate as the recording</source>
        <translation>Taxa da gravação</translation>
    </message>
    <message id="IDD_FORCE_FPS">
        <source>Custom frame rate</source>
        <translation>Outra taxa</translation>
    </message>
    <message id="IDD_NOTE">
        <source>When the computer is busy, a recording can have fewer frames per second than chosen.</source>
        <translation>Se o computador estiver ocupado, a gravação pode ter menos quadros por segundo do que o escolhido.</translation>
    </message>
    <message id="IDD_GENERATE_GIF">
        <source>Generate GIF</source>
        <translation>Criar GIF</translation>
    </message>
    <message id="IDD_LOW_FRAME_NUMBER">
        <source>The selected range has too few frames. Select at least three on the “Cut” tab.</source>
        <translation>O trecho escolhido não tem quadros suficientes. Escolha pelo menos três na aba “Cortar”.</translation>
    </message>
    <message id="IDD_INVALID_DIMENSION">
        <source>Width and height must be whole numbers greater than 0.</source>
        <translation>A largura e a altura devem ser números inteiros maiores que 0.</translation>
    </message>
    <message id="IDD_GIF_SAVED_OK">
        <source>The GIF has been saved.</source>
        <translation>O GIF foi salvo.</translation>
    </message>
    <message id="IDD_PLAY">
        <source>Play</source>
        <translation>Reproduzir</translation>
    </message>
    <!-- app -->
    <message id="IDD_MENU_TAB">
        <source>Tab</source>
        <translation>Aba</translation>
    </message>
    <message id="IDD_MENU_ACTION">
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message id="IDD_MENU_HELP">
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message id="IDD_GROUP_SIZE">
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message id="IDD_GROUP_RATE">
        <source>Frame rate</source>
        <translation>Taxa de quadros</translation>
    </message>
    <message id="IDD_ABOUT_TEXT">
        <source>Records your screen and turns it into an animated GIF.</source>
        <translation>Grava a tela e a transforma em um GIF animado.</translation>
    </message>
    <message id="IDD_ABOUT_VERSION">
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message id="IDD_ABOUT_LICENCE">
        <source>Free software under the %1 License.</source>
        <translation>Software livre sob a licença %1.</translation>
    </message>
    <message id="IDD_ABOUT_TOOLS">
        <source>Tools in use:</source>
        <translation>Ferramentas em uso:</translation>
    </message>
    <message id="IDD_ABOUT_TOOL">
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message id="IDD_ABOUT_TOOL_MISSING">
        <source>not found</source>
        <translation>não encontrada</translation>
    </message>
    <message id="IDD_HELP_NOT_OPENED">
        <source>No program was found to show the help pages. Open this file in a browser:</source>
        <translation>Nenhum programa foi encontrado para mostrar as páginas de ajuda. Abra este arquivo em um navegador:</translation>
    </message>
    <message id="IDD_RECORD_PREVIEW">
        <source>Live preview</source>
        <translation>Prévia ao vivo</translation>
    </message>
    <message id="IDD_KEYS_GRANTED">
        <source>Shortcuts in any window, with %1: %2</source>
        <translation>Atalhos em qualquer janela, com %1: %2</translation>
    </message>
    <message id="IDD_KEYS_BOUND">
        <source>Shortcuts in any window: %1</source>
        <translation>Atalhos em qualquer janela: %1</translation>
    </message>
    <message id="IDD_KEYS_TAKEN">
        <source>Already in use: %1</source>
        <translation>Já em uso: %1</translation>
    </message>
    <!-- platform -->
    <message id="IDD_REASON_NO_DISPLAY">
        <source>The screen cannot be recorded: there is no display server.</source>
        <translation>Não é possível gravar a tela: não há nenhum servidor gráfico.</translation>
    </message>
    <message id="IDD_REASON_NO_COMPOSITE">
        <source>The screen cannot be recorded: this display server lacks the Composite extension, so the program could not leave out its own windows.</source>
        <translation>Não é possível gravar a tela: este servidor gráfico não tem a extensão Composite, e o programa não conseguiria deixar de fora as próprias janelas.</translation>
    </message>
    <message id="IDD_REASON_MISSING_EXTENSION">
        <source>The screen cannot be recorded: this display server lacks one of the extensions Damage, XFixes, Render and Shape.</source>
        <translation>Não é possível gravar a tela: falta a este servidor gráfico uma das extensões Damage, XFixes, Render e Shape.</translation>
    </message>
    <message id="IDD_REASON_PICTURE_FORMAT">
        <source>The screen cannot be recorded: this display server does not use 24-bit color.</source>
        <translation>Não é possível gravar a tela: este servidor gráfico não usa imagens em cores de 24 bits.</translation>
    </message>
    <!-- record -->
    <message id="IDD_SAVING_RECORDING">
        <source>Saving the recording…</source>
        <translation>Salvando a gravação…</translation>
    </message>
    <message id="IDD_REASON_NO_PORTAL">
        <source>The screen cannot be recorded: this Wayland desktop has no portal for it. Install xdg-desktop-portal with your desktop’s back end, or log in to an X11 session.</source>
        <translation>Não é possível gravar a tela: este ambiente Wayland não tem um portal para isso. Instale o xdg-desktop-portal com o módulo do seu ambiente ou entre em uma sessão X11.</translation>
    </message>
    <message id="IDD_CHOOSE_SOURCE">
        <source>Choose What to Record…</source>
        <translation>Escolher o que gravar…</translation>
    </message>
    <message id="IDD_SOURCE_IDLE">
        <source>Your desktop asks what may be recorded: a monitor or a window.</source>
        <translation>Seu ambiente de trabalho pergunta o que pode ser gravado: um monitor ou uma janela.</translation>
    </message>
    <message id="IDD_SOURCE_ASKING">
        <source>Choose in the desktop’s dialog what to record.</source>
        <translation>Escolha na caixa de diálogo do ambiente o que deve ser gravado.</translation>
    </message>
    <message id="IDD_SOURCE_WAITING">
        <source>Waiting for the first picture…</source>
        <translation>Aguardando a primeira imagem…</translation>
    </message>
    <message id="IDD_SOURCE_ENDED">
        <source>The desktop has stopped sharing the screen.</source>
        <translation>O ambiente parou de compartilhar a tela.</translation>
    </message>
    <message id="IDD_SOURCE_FAILED">
        <source>The desktop provides no pictures of the screen: %1</source>
        <translation>O ambiente não fornece imagens da tela: %1</translation>
    </message>
    <message id="IDD_SOURCE_REFUSED">
        <source>Nothing was chosen.</source>
        <translation>Nada foi escolhido.</translation>
    </message>
    <message id="IDD_SOURCE_RESIZED">
        <source>Size changed: scaled to fit</source>
        <translation>Tamanho alterado: ajustado</translation>
    </message>
    <message id="IDD_CHOSEN_MONITOR">
        <source>Monitor %1 × %2</source>
        <translation>Monitor %1 × %2</translation>
    </message>
    <message id="IDD_CHOSEN_WINDOW">
        <source>Window %1 × %2</source>
        <translation>Janela %1 × %2</translation>
    </message>
    <message id="IDD_CHOSEN_OTHER">
        <source>Chosen: %1 × %2</source>
        <translation>Escolhido: %1 × %2</translation>
    </message>
    <message id="IDD_STEP_ASIDE">
        <source>Tovarel gets out of the way while it records.</source>
        <translation>O Tovarel sai da frente enquanto grava.</translation>
    </message>
    <message id="IDD_STEP_ASIDE_HOW_TO_STOP">
        <source>Everything that is visible is recorded, so this window is minimized first. To stop, bring it back with a click in the dock or by starting Tovarel again: the recording pauses, and “Stop” saves it.</source>
        <translation>Tudo o que está visível é gravado, por isso esta janela é minimizada antes. Para parar, traga-a de volta com um clique no dock ou iniciando o Tovarel de novo: a gravação entra em pausa, e “Parar” a salva.</translation>
    </message>
    <message id="IDD_REASON_WAYLAND">
        <source>In a Wayland session Tovarel can record from its window only: start it without arguments, or log in to an X11 session.</source>
        <translation>Em uma sessão Wayland, o Tovarel só pode gravar a partir de sua janela: inicie-o sem argumentos ou entre em uma sessão X11.</translation>
    </message>
    <message id="IDD_REGION_OF_WINDOW">
        <source>A window is recorded as a whole. Choose a monitor to record a region of it.</source>
        <translation>Uma janela é gravada por inteiro. Escolha um monitor para gravar uma área dele.</translation>
    </message>
    <message id="IDD_STATE_RECORDING">
        <source>Recording</source>
        <translation>Gravando</translation>
    </message>
    <message id="IDD_STATE_PAUSED">
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message id="IDD_PAUSED_HINT">
        <source>Paused – press “%1” to continue</source>
        <translation>Em pausa – continue com “%1”</translation>
    </message>
    <message id="IDD_RECORDING_FIGURES">
        <source>%1 · Frames: %2 · %3&#xa0;fps</source>
        <translation>%1 · Quadros: %2 · %3&#xa0;fps</translation>
    </message>
    <message id="IDD_POINTER">
        <source>Pointer</source>
        <translation>Ponteiro</translation>
    </message>
    <message id="IDD_POINTER_TIP">
        <source>Pointer: shows the mouse pointer in the recording</source>
        <translation>Ponteiro: mostra o ponteiro do mouse na gravação</translation>
    </message>
    <message id="IDD_HANDS_NOT_OFFERED">
        <source>Not possible with this display server: it does not report mouse buttons and keys</source>
        <translation>Não é possível com este servidor gráfico: ele não informa os botões do mouse nem as teclas</translation>
    </message>
    <message id="IDD_CLICKS">
        <source>Clicks</source>
        <translation>Cliques</translation>
    </message>
    <message id="IDD_CLICKS_TIP">
        <source>Clicks: shows in the recording where a mouse button is pressed</source>
        <translation>Cliques: mostra na gravação onde um botão do mouse é pressionado</translation>
    </message>
    <message id="IDD_KEYS">
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message id="IDD_KEYS_TIP">
        <source>Keys: shows keyboard shortcuts in the recording, never the text you type</source>
        <translation>Teclas: mostra os atalhos de teclado na gravação, nunca o texto digitado</translation>
    </message>
    <message id="IDD_KEYS_SHOWN">
        <source>Shortcuts that you press are shown</source>
        <translation>Os atalhos de teclado são mostrados</translation>
    </message>
    <message id="IDD_PAUSED_FOR_MEMORY">
        <source>Memory is low (%1 left). “Stop” saves the recording.</source>
        <translation>Pouca memória (restam %1). “Parar” salva a gravação.</translation>
    </message>
    <message id="IDD_RECORDING_MEMORY">
        <source>Memory: %1</source>
        <translation>Memória: %1</translation>
    </message>
    <message id="IDD_RECORDING_MEMORY_LASTS">
        <source>Memory: %1, enough for %2&#xa0;min more</source>
        <translation>Memória: %1, suficiente para mais %2&#xa0;min</translation>
    </message>
    <message id="IDD_RECORDING_SAVED">
        <source>The recording is complete. Frames: %1 · %2&#xa0;fps</source>
        <translation>A gravação terminou. Quadros: %1 · %2&#xa0;fps</translation>
    </message>
    <message id="IDD_RECORDING_BEHIND">
        <source>The recording is complete. Frames: %1 · %3&#xa0;fps instead of %2&#xa0;fps</source>
        <translation>A gravação terminou. Quadros: %1 · %3&#xa0;fps em vez de %2&#xa0;fps</translation>
    </message>
    <message id="IDD_NOTHING_RECORDED">
        <source>Nothing was recorded.</source>
        <translation>Nada foi gravado.</translation>
    </message>
    <message id="IDD_FRAMES_MISSING" numerus="yes">
        <source>%1 of %Ln frames could not be written to %2: %3</source>
        <translation>
            <numerusform>Quadro não salvo em %2: %1 de %Ln (%3)</numerusform>
            <numerusform>Quadros não salvos em %2: %1 de %Ln (%3)</numerusform>
        </translation>
    </message>
    <message id="IDD_CLOSE_WAITS">
        <source>Tovarel closes as soon as the recording is saved.</source>
        <translation>O Tovarel será fechado assim que a gravação for salva.</translation>
    </message>
    <message id="IDD_RECOVER_QUESTION">
        <source>An earlier recording is still there.</source>
        <translation>Uma gravação anterior ainda existe.</translation>
    </message>
    <message id="IDD_RECOVER_DETAIL" numerus="yes">
        <source>The recording of %1 is complete: %Ln frames, %2&#xa0;s. You can open it on the “Cut” tab or delete it.</source>
        <translation>
            <numerusform>A gravação de %1 está completa: %Ln quadro, %2&#xa0;s. Você pode abri-la na aba “Cortar” ou excluí-la.</numerusform>
            <numerusform>A gravação de %1 está completa: %Ln quadros, %2&#xa0;s. Você pode abri-la na aba “Cortar” ou excluí-la.</numerusform>
        </translation>
    </message>
    <message id="IDD_RECOVER_OPEN">
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message id="IDD_RECOVER_DELETE">
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message id="IDD_RECOVER_LOADING">
        <source>Opening the recording…</source>
        <translation>Abrindo a gravação…</translation>
    </message>
    <message id="IDD_RECOVER_FAILED">
        <source>The recording could not be opened: the file %1 is damaged.</source>
        <translation>Não foi possível abrir a gravação: o arquivo %1 está danificado.</translation>
    </message>
    <message id="IDD_RECORD_PREVIOUS">
        <source>Bring Back Previous Recording</source>
        <translation>Recuperar a gravação anterior</translation>
    </message>
    <message id="IDD_PREVIOUS_GONE">
        <source>The previous recording is no longer complete.</source>
        <translation>A gravação anterior não está mais completa.</translation>
    </message>
    <message id="IDD_SAVE_AGAIN">
        <source>Save Again</source>
        <translation>Salvar novamente</translation>
    </message>
    <message id="IDD_MODE_FULL_SCREEN">
        <source>Full screen, without this window</source>
        <translation>Tela inteira, sem esta janela</translation>
    </message>
    <message id="IDD_MODE_REGION">
        <source>Region %1 × %2 at %3,&#xa0;%4</source>
        <translation>Área %1 × %2 em %3,&#xa0;%4</translation>
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
        <translation>Cancelar</translation>
    </message>
    <!-- region -->
    <message id="IDD_REGION_OVERLAY">
        <source>Select a Region</source>
        <translation>Escolher uma área</translation>
    </message>
    <message id="IDD_REGION_TIP">
        <source>%1: %2 × %3 pixels at %4, %5</source>
        <translation>%1: %2 × %3 pixels em %4, %5</translation>
    </message>
    <message id="IDD_REGION_TOO_SMALL">
        <source>Too small: at least %1 × %1 pixels are needed</source>
        <translation>Pequena demais: são necessários pelo menos %1 × %1 pixels</translation>
    </message>
    <message id="IDD_REGION_LOWER_LEFT">
        <source>Lower left</source>
        <translation>Canto inferior esquerdo</translation>
    </message>
    <message id="IDD_REGION_LOWER_RIGHT">
        <source>Lower right</source>
        <translation>Canto inferior direito</translation>
    </message>
    <message id="IDD_REGION_UPPER_LEFT">
        <source>Upper left</source>
        <translation>Canto superior esquerdo</translation>
    </message>
    <message id="IDD_REGION_UPPER_RIGHT">
        <source>Upper right</source>
        <translation>Canto superior direito</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_TITLE">
        <source>How to Select a Region</source>
        <translation>Como escolher uma área</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_TEXT">
        <source>A rectangle with five squares appears on the screen. Drag the green squares until it frames what you want to record, then click the red one or press “Use Region”. Drag inside the rectangle to move it, or outside to draw a new one.</source>
        <translation>Um retângulo com cinco quadrados aparece na tela. Arraste os verdes até enquadrar o que você quer gravar e clique no vermelho ou em “Usar a área”. Arraste dentro do retângulo para movê-lo ou fora dele para desenhar um novo.</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_WINDOW">
        <source>To record a single window, press “Pick a Window” or hold W, then click the window.</source>
        <translation>Para gravar uma só janela, pressione “Escolher uma janela” ou mantenha a tecla W pressionada e clique na janela.</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_PICTURE">
        <source>A rectangle on a screen: a green square on each corner resizes it, the red square in its middle accepts it.</source>
        <translation>Um retângulo em uma tela: o quadrado verde em cada canto muda o tamanho, o vermelho no meio confirma.</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_DRAG">
        <source>Drag a corner</source>
        <translation>Arraste um canto</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_ACCEPT">
        <source>Click to accept</source>
        <translation>Clique para confirmar</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_KEYS">
        <source>With the keyboard: the arrow keys move a corner (faster with Shift), Tab selects the next one, Enter accepts, Esc cancels.</source>
        <translation>Pelo teclado: as setas movem um canto (mais rápido com Shift), Tab escolhe o seguinte, Enter confirma e Esc cancela.</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_AGAIN">
        <source>Don’t show this again</source>
        <translation>Não mostrar novamente</translation>
    </message>
    <!-- trim -->
    <message id="IDD_HANDLE_FIRST">
        <source>First frame</source>
        <translation>Primeiro quadro</translation>
    </message>
    <message id="IDD_HANDLE_LAST">
        <source>Last frame</source>
        <translation>Último quadro</translation>
    </message>
    <message id="IDD_CUT_KEPT" numerus="yes">
        <source>Kept: %1&#xa0;s of %2&#xa0;s · %3 of %Ln frames</source>
        <translation>
            <numerusform>Mantido: %1&#xa0;s de %2&#xa0;s · %3 de %Ln quadro</numerusform>
            <numerusform>Mantido: %1&#xa0;s de %2&#xa0;s · %3 de %Ln quadros</numerusform>
        </translation>
    </message>
    <message id="IDD_CUT_PREVIOUS">
        <source>Previous Frame</source>
        <translation>Quadro anterior</translation>
    </message>
    <message id="IDD_CUT_NEXT">
        <source>Next Frame</source>
        <translation>Próximo quadro</translation>
    </message>
    <message id="IDD_CUT_BACK_TEN">
        <source>Back 10&#xa0;Frames</source>
        <translation>Voltar 10&#xa0;quadros</translation>
    </message>
    <message id="IDD_CUT_FORWARD_TEN">
        <source>Forward 10&#xa0;Frames</source>
        <translation>Avançar 10&#xa0;quadros</translation>
    </message>
    <message id="IDD_CUT_TO_START">
        <source>Go to Start</source>
        <translation>Ir para o início</translation>
    </message>
    <message id="IDD_CUT_TO_END">
        <source>Go to End</source>
        <translation>Ir para o fim</translation>
    </message>
    <message id="IDD_CUT_START_HERE">
        <source>Start Here</source>
        <translation>Começar aqui</translation>
    </message>
    <message id="IDD_CUT_END_HERE">
        <source>End Here</source>
        <translation>Terminar aqui</translation>
    </message>
    <message id="IDD_PLAYHEAD">
        <source>Playhead</source>
        <translation>Indicador de reprodução</translation>
    </message>
    <message id="IDD_CUT_FRAME">
        <source>Frame %1 of %2, at %3&#xa0;s</source>
        <translation>Quadro %1 de %2, em %3&#xa0;s</translation>
    </message>
    <message id="IDD_TIP_SHORTCUT">
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="IDD_CUT_PREVIEW">
        <source>Frame preview</source>
        <translation>Prévia do quadro</translation>
    </message>
    <message id="IDD_CUT_RANGE">
        <source>Part of the recording to keep</source>
        <translation>Parte da gravação a manter</translation>
    </message>
    <message id="IDD_RANGE_EMPTY">
        <source>No frame in this range</source>
        <translation>Nenhum quadro neste trecho</translation>
    </message>
    <message id="IDD_CUT_DELETE">
        <source>Delete Selection</source>
        <translation>Excluir seleção</translation>
    </message>
    <message id="IDD_CUT_STILL">
        <source>Shorten Still Time</source>
        <translation>Encurtar as pausas</translation>
    </message>
    <message id="IDD_UNDO">
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message id="IDD_REDO">
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
    <message id="IDD_CUT_SELECTED">
        <source>Selected: %1 to %2, %3&#xa0;s</source>
        <translation>Seleção: de %1 a %2, %3&#xa0;s</translation>
    </message>
    <message id="IDD_STRIP_TIP">
        <source>Drag a handle to leave an end out, or drag between the handles to select a part to delete.</source>
        <translation>Arraste uma alça para deixar uma ponta de fora, ou arraste entre as alças para selecionar uma parte a excluir.</translation>
    </message>
    <message id="IDD_TAB_NEEDS_STOP_RECORDING">
        <source>Stop the recording to open another tab.</source>
        <translation>Pare a gravação para abrir outra guia.</translation>
    </message>
    <message id="IDD_TAB_NEEDS_STOP_PLAYBACK">
        <source>Stop the playback to open another tab.</source>
        <translation>Pare a reprodução para abrir outra guia.</translation>
    </message>
    <message id="IDD_KEY_ON_RECORD_TAB">
        <source>To record again, open the “Record” tab.</source>
        <translation>Para gravar de novo, abra a guia “Gravar”.</translation>
    </message>
    <message id="IDD_STILL_LENGTH">
        <source>To %1&#xa0;s at Most</source>
        <translation>Para no máximo %1&#xa0;s</translation>
    </message>
    <message id="IDD_STILL_NONE">
        <source>Nothing stands still for longer than %1&#xa0;s.</source>
        <translation>Nada fica parado por mais de %1&#xa0;s.</translation>
    </message>
    <message id="IDD_STILL_SHORTENED">
        <source>Still time was shortened by %1&#xa0;s.</source>
        <translation>As pausas foram encurtadas em %1&#xa0;s.</translation>
    </message>
    <!-- export -->
    <message id="IDD_PROGRESS_GIF">
        <source>Generating the GIF…</source>
        <translation>Criando o GIF…</translation>
    </message>
    <message id="IDD_PROGRESS_WEBP">
        <source>Generating the WebP…</source>
        <translation>Criando o WebP…</translation>
    </message>
    <message id="IDD_PROGRESS_PALETTE">
        <source>Step 1 of 2: choosing the colors</source>
        <translation>Etapa 1 de 2: escolha das cores</translation>
    </message>
    <message id="IDD_PROGRESS_SCALING">
        <source>Step 1 of 2, scaling: %p%</source>
        <translation>Etapa 1 de 2, redimensionamento: %p%</translation>
    </message>
    <message id="IDD_PROGRESS_PICTURES">
        <source>Step 2 of 2: %p%</source>
        <translation>Etapa 2 de 2: %p%</translation>
    </message>
    <message id="IDD_PROGRESS_AGAIN">
        <source>Attempt %1: making it fit under %2…</source>
        <translation>Tentativa %1: reduzindo a %2 no máximo…</translation>
    </message>
    <message id="IDD_EXPORT_CANCELLED">
        <source>The export was canceled.</source>
        <translation>A exportação foi cancelada.</translation>
    </message>
    <message id="IDD_TOOL_MISSING">
        <source>The program “%1” is missing: it was not found when Tovarel started.</source>
        <translation>O programa “%1” está faltando: ele não foi encontrado quando o Tovarel foi iniciado.</translation>
    </message>
    <message id="IDD_TOOL_NOT_STARTED">
        <source>The program “%1” could not be started: %2</source>
        <translation>Não foi possível iniciar o programa “%1”: %2</translation>
    </message>
    <message id="IDD_TOOL_CRASHED">
        <source>The program “%1” crashed (signal %2, %3).</source>
        <translation>O programa “%1” foi encerrado inesperadamente (sinal %2, %3).</translation>
    </message>
    <message id="IDD_TOOL_FAILED">
        <source>The program “%1” failed (exit status %2).</source>
        <translation>O programa “%1” falhou (código de saída %2).</translation>
    </message>
    <message id="IDD_TOOL_NO_RESULT">
        <source>The program “%1” ended without writing its result, %2.</source>
        <translation>O programa “%1” terminou sem salvar o resultado, %2.</translation>
    </message>
    <message id="IDD_REFUSED_SIZE">
        <source>The requested size was %1 × %2.</source>
        <translation>O tamanho solicitado era %1 × %2.</translation>
    </message>
    <message id="IDD_GIF_TOO_LARGE">
        <source>A GIF of %1 × %2 pixels needs about %3 of memory. At most %4 may be used, half of what is free. Choose a smaller size.</source>
        <translation>Um GIF de %1 × %2 pixels precisa de cerca de %3 de memória. Podem ser usados no máximo %4, metade da memória livre. Escolha um tamanho menor.</translation>
    </message>
    <message id="IDD_GIF_NO_MEMORY">
        <source>There is not enough memory for the GIF. Choose a smaller size or close other programs.</source>
        <translation>Não há memória suficiente para o GIF. Escolha um tamanho menor ou feche outros programas.</translation>
    </message>
    <message id="IDD_GIF_NOT_WRITTEN">
        <source>The GIF could not be written to %1.
%2

The recording is still there.</source>
        <translation>Não foi possível salvar o GIF em %1.
%2

A gravação continua disponível.</translation>
    </message>
    <message id="IDD_GIF_NO_FRAMES">
        <source>The frames of the recording could not be read from %1.</source>
        <translation>Não foi possível ler os quadros da gravação em %1.</translation>
    </message>
    <message id="IDD_MOVE_FAILED">
        <source>The file could not be saved as %1.
%2

It is still at %3.</source>
        <translation>Não foi possível salvar o arquivo como %1.
%2

Ele continua em %3.</translation>
    </message>
    <message id="IDD_CLI_ABOUT">
        <source>Records the screen and makes an animated GIF, WebP or MP4 of it. Without arguments it shows its window.</source>
        <translation>Grava a tela e cria um GIF animado, um WebP ou um MP4. Sem argumentos, mostra sua janela.</translation>
    </message>
    <message id="IDD_CLI_RECORD_ABOUT">
        <source>Records without showing a window and writes the file. Say what to record with one of --region, --screen and --window.</source>
        <translation>Grava sem mostrar nenhuma janela e escreve o arquivo. Indique o que gravar com --region, --screen ou --window.</translation>
    </message>
    <message id="IDD_CLI_RECORD">
        <source>Record without a window</source>
        <translation>Gravar sem janela</translation>
    </message>
    <message id="IDD_CLI_TOGGLE">
        <source>Start a recording in the running Tovarel, or stop the one in progress</source>
        <translation>Iniciar uma gravação no Tovarel em execução ou parar a que está em andamento</translation>
    </message>
    <message id="IDD_CLI_PAUSE">
        <source>Pause the recording in progress, or continue it</source>
        <translation>Pausar a gravação em andamento ou continuá-la</translation>
    </message>
    <message id="IDD_CLI_STOP">
        <source>Stop the recording in progress</source>
        <translation>Parar a gravação em andamento</translation>
    </message>
    <message id="IDD_CLI_HELP">
        <source>Show this help</source>
        <translation>Mostrar esta ajuda</translation>
    </message>
    <message id="IDD_CLI_VERSION">
        <source>Show the version</source>
        <translation>Mostrar a versão</translation>
    </message>
    <message id="IDD_CLI_REGION">
        <source>Record W × H pixels of the desktop, X to the right and Y down from its upper left corner</source>
        <translation>Gravar W × H pixels da área de trabalho, a X para a direita e Y para baixo do canto superior esquerdo</translation>
    </message>
    <message id="IDD_CLI_SCREEN">
        <source>Record monitor number N, counted from 1; without N all monitors, or on Wayland the one that you choose</source>
        <translation>Gravar o monitor número N, contando a partir de 1; sem N, todos os monitores, ou no Wayland o que você escolher</translation>
    </message>
    <message id="IDD_CLI_WINDOW">
        <source>Record the part of the screen where the window with TITLE in its title is</source>
        <translation>Gravar a parte da tela ocupada pela janela cujo título contém TITLE</translation>
    </message>
    <message id="IDD_CLI_SECONDS">
        <source>Record for S seconds; Ctrl+C stops earlier</source>
        <translation>Gravar por S segundos; Ctrl+C encerra antes</translation>
    </message>
    <message id="IDD_CLI_RATE">
        <source>Frames per second, 1 to 60; 15 if not given</source>
        <translation>Quadros por segundo, de 1 a 60; 15 por padrão</translation>
    </message>
    <message id="IDD_CLI_DELAY">
        <source>Wait S seconds before recording</source>
        <translation>Esperar S segundos antes de gravar</translation>
    </message>
    <message id="IDD_CLI_QUALITY">
        <source>best, balanced, small or classic; balanced if not given</source>
        <translation>best, balanced, small ou classic; balanced por padrão</translation>
    </message>
    <message id="IDD_CLI_OUTPUT">
        <source>Write to FILE, which ends in .gif, .webp or .mp4; if not given, to a GIF here, named after the time</source>
        <translation>Escrever em FILE, que termina em .gif, .webp ou .mp4; por padrão, em um GIF aqui, com o horário no nome</translation>
    </message>
    <message id="IDD_CLI_FORCE">
        <source>Replace the file if it exists</source>
        <translation>Substituir o arquivo se ele existir</translation>
    </message>
    <message id="IDD_CLI_SEE_HELP">
        <source>“tovarel --help” and “tovarel record --help” say more.</source>
        <translation>Veja “tovarel --help” e “tovarel record --help”.</translation>
    </message>
    <message id="IDD_CLI_EXAMPLES">
        <source>Examples:</source>
        <translation>Exemplos:</translation>
    </message>
    <message id="IDD_CLI_ONE_TARGET">
        <source>Give exactly one of --region, --screen and --window.</source>
        <translation>Indique exatamente uma das opções --region, --screen e --window.</translation>
    </message>
    <message id="IDD_CLI_ONE_WISH">
        <source>Give only one of --toggle, --pause and --stop.</source>
        <translation>Indique apenas uma das opções --toggle, --pause e --stop.</translation>
    </message>
    <message id="IDD_CLI_UNKNOWN">
        <source>“%1” is not a command of Tovarel.</source>
        <translation>“%1” não é um comando do Tovarel.</translation>
    </message>
    <message id="IDD_CLI_NEEDS_SECONDS">
        <source>Say how long to record with --seconds.</source>
        <translation>Indique com --seconds por quanto tempo gravar.</translation>
    </message>
    <message id="IDD_CLI_NOT_NUMBER">
        <source>%1 takes a number from %2 to %3.</source>
        <translation>%1 requer um número de %2 a %3.</translation>
    </message>
    <message id="IDD_CLI_NOT_REGION">
        <source>“%1” is not a region. --region takes width, height and place in pixels, as in 640x480+100+80.</source>
        <translation>“%1” não é uma área. --region requer largura, altura e posição em pixels, como 640x480+100+80.</translation>
    </message>
    <message id="IDD_CLI_NOT_QUALITY">
        <source>“%1” is not a quality. --quality takes best, balanced, small or classic.</source>
        <translation>“%1” não é uma qualidade. --quality requer best, balanced, small ou classic.</translation>
    </message>
    <message id="IDD_CLI_NOT_FORMAT">
        <source>The name of the file must end in .gif, .webp or .mp4: “%1”</source>
        <translation>O nome do arquivo deve terminar em .gif, .webp ou .mp4: “%1”</translation>
    </message>
    <message id="IDD_CLI_NO_PLACE">
        <source>No file can be written there: %1</source>
        <translation>Nenhum arquivo pode ser escrito ali: %1</translation>
    </message>
    <message id="IDD_CLI_EXISTS">
        <source>There is already a file %1. --force replaces it.</source>
        <translation>O arquivo %1 já existe. --force o substitui.</translation>
    </message>
    <message id="IDD_CLI_TOO_SHORT">
        <source>The recording is too short: an animation needs at least three frames.</source>
        <translation>A gravação é curta demais: uma animação precisa de pelo menos três quadros.</translation>
    </message>
    <message id="IDD_CLI_NOBODY">
        <source>Tovarel is not running.</source>
        <translation>O Tovarel não está em execução.</translation>
    </message>
    <message id="IDD_CLI_NOT_NOW">
        <source>Tovarel cannot do that now.</source>
        <translation>O Tovarel não pode fazer isso agora.</translation>
    </message>
    <message id="IDD_CLI_NOT_RECORDING">
        <source>Tovarel is not recording.</source>
        <translation>O Tovarel não está gravando.</translation>
    </message>
    <message id="IDD_CLI_SAVING">
        <source>Tovarel is still saving the last recording.</source>
        <translation>O Tovarel ainda está salvando a última gravação.</translation>
    </message>
    <message id="IDD_CLI_ASKING">
        <source>Tovarel is waiting for an answer in its window.</source>
        <translation>O Tovarel está aguardando uma resposta na janela dele.</translation>
    </message>
    <message id="IDD_CLI_NO_PICTURE">
        <source>The display server provides no picture of the screen.</source>
        <translation>O servidor gráfico não fornece nenhuma imagem da tela.</translation>
    </message>
    <message id="IDD_CLI_REGION_OUTSIDE">
        <source>That is not wholly on the desktop, which has %1 × %2 pixels.</source>
        <translation>Isso não está totalmente na área de trabalho, que tem %1 × %2 pixels.</translation>
    </message>
    <message id="IDD_CLI_NO_SCREEN">
        <source>There is no monitor number %1. Monitors: %2</source>
        <translation>Não há monitor número %1. Monitores: %2</translation>
    </message>
    <message id="IDD_CLI_DESKTOP_CHOOSES">
        <source>Here the desktop’s own dialog decides which monitor is recorded: use --screen without a number, or --region.</source>
        <translation>Aqui, a caixa de diálogo do ambiente decide qual monitor é gravado: use --screen sem número, ou --region.</translation>
    </message>
    <message id="IDD_CLI_NO_WINDOW">
        <source>No window on the screen has “%1” in its title.</source>
        <translation>Nenhuma janela na tela tem “%1” no título.</translation>
    </message>
    <message id="IDD_CLI_STARTS">
        <source>Recording starts in %1&#xa0;s</source>
        <translation>A gravação começa em %1&#xa0;s</translation>
    </message>
    <message id="IDD_CLI_RECORDING">
        <source>Recording: %1 of %2&#xa0;s · Frames: %3</source>
        <translation>Gravação: %1 de %2&#xa0;s · Quadros: %3</translation>
    </message>
    <message id="IDD_CLI_ENCODING">
        <source>Generating the file: %1%</source>
        <translation>Criando o arquivo: %1%</translation>
    </message>
    <message id="IDD_MOVE_IS_FOLDER">
        <source>There is already a folder with that name.</source>
        <translation>Já existe uma pasta com esse nome.</translation>
    </message>
    <message id="IDD_MOVE_NOT_A_FILE">
        <source>There is already something with that name, and it is not a regular file.</source>
        <translation>Já existe um item com esse nome que não é um arquivo comum.</translation>
    </message>
    <message id="IDD_MOVE_SAME_FILE">
        <source>Source and destination are the same file.</source>
        <translation>A origem e o destino são o mesmo arquivo.</translation>
    </message>
    <message id="IDD_MOVE_WORKING_FOLDER">
        <source>Tovarel empties that folder automatically. Choose another one.</source>
        <translation>O Tovarel esvazia essa pasta automaticamente. Escolha outra.</translation>
    </message>
    <message id="IDD_STATUS_SAVED">
        <source>Saved: %1 (%2).</source>
        <translation>Salvo: %1 (%2).</translation>
    </message>
    <message id="IDD_STATUS_SAVED_NOTE">
        <source>Saved: %1 (%2). %3</source>
        <translation>Salvo: %1 (%2). %3</translation>
    </message>
    <message id="IDD_STATUS_UNSAVED">
        <source>The %1 has not been saved, but it is still there.</source>
        <translation>O %1 não foi salvo, mas ainda está disponível.</translation>
    </message>
    <message id="IDD_SAVE_RESULT">
        <source>Save…</source>
        <translation>Salvar…</translation>
    </message>
    <message id="IDD_SAVE_WITHOUT_ASKING">
        <source>Save Without Asking</source>
        <translation>Salvar sem perguntar</translation>
    </message>
    <message id="IDD_GENERATE_AND_COPY">
        <source>Generate GIF and Copy</source>
        <translation>Criar GIF e copiar</translation>
    </message>
    <message id="IDD_SAVING_OPTIONS">
        <source>Saving Options</source>
        <translation>Opções de salvamento</translation>
    </message>
    <message id="IDD_LAST_FILE">
        <source>Last File</source>
        <translation>Último arquivo</translation>
    </message>
    <message id="IDD_FILE_PICTURE">
        <source>Picture of the file</source>
        <translation>Imagem do arquivo</translation>
    </message>
    <message id="IDD_FILE_FIGURES">
        <source>%1 · %2 × %3 · %4&#xa0;s</source>
        <translation>%1 · %2 × %3 · %4&#xa0;s</translation>
    </message>
    <message id="IDD_FILE_DRAG">
        <source>Drag it into another program</source>
        <translation>Arraste para outro programa</translation>
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
        <translation>Mostrar na pasta</translation>
    </message>
    <message id="IDD_FILE_COPIED">
        <source>Copied: %1. Paste it into another program.</source>
        <translation>Copiado: %1. Cole-o em outro programa.</translation>
    </message>
    <message id="IDD_FILE_GONE">
        <source>The file has been deleted or moved. Generate it again if you need it.</source>
        <translation>O arquivo foi excluído ou movido. Crie-o novamente se precisar dele.</translation>
    </message>
    <message id="IDD_FILE_UNSAVED">
        <source>Not saved yet</source>
        <translation>Ainda não salvo</translation>
    </message>
    <message id="IDD_FILE_REPLACED">
        <source>Another program has changed this file. Generate it again.</source>
        <translation>Outro programa alterou este arquivo. Crie-o novamente.</translation>
    </message>
    <message id="IDD_FILE_NOT_OPENED">
        <source>No program was found to open %1.</source>
        <translation>Nenhum programa encontrado para abrir %1.</translation>
    </message>
    <message id="IDD_FILE_READY">
        <source>The file is ready</source>
        <translation>O arquivo está pronto</translation>
    </message>
    <message id="IDD_UNSAVED_QUESTION">
        <source>The %1 has not been saved.</source>
        <translation>O %1 não foi salvo.</translation>
    </message>
    <message id="IDD_UNSAVED_DETAIL">
        <source>Save it before you continue? If you discard it, the file is deleted; the recording stays.</source>
        <translation>Salvar antes de continuar? Se você o descartar, o arquivo será excluído; a gravação permanecerá.</translation>
    </message>
    <message id="IDD_DISCARD">
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message id="IDD_STATUS_GAP" numerus="yes">
        <source>The GIF contains only %1 of %Ln frames; the rest are missing.</source>
        <translation>
            <numerusform>O GIF contém apenas %1 de %Ln quadro; o resto estava faltando.</numerusform>
            <numerusform>O GIF contém apenas %1 de %Ln quadros; o resto estava faltando.</numerusform>
        </translation>
    </message>
    <message id="IDD_STATUS_WEBP_GAP" numerus="yes">
        <source>The WebP contains only the first %1 of %Ln frames; the next one is missing.</source>
        <translation>
            <numerusform>O WebP contém apenas %1 de %Ln quadro; o seguinte estava faltando.</numerusform>
            <numerusform>O WebP contém apenas %1 de %Ln quadros; o seguinte estava faltando.</numerusform>
        </translation>
    </message>
    <message id="IDD_STATUS_STILL">
        <source>The GIF does not move: all its frames are the same.</source>
        <translation>O GIF não se move: todos os quadros são iguais.</translation>
    </message>
    <message id="IDD_QUALITY">
        <source>Quality</source>
        <translation>Qualidade</translation>
    </message>
    <message id="IDD_QUALITY_TIP">
        <source>Quality of the GIF: “Best” keeps colors as exact as possible, “Small” gives the smallest file, “Classic” uses ffmpeg</source>
        <translation>Qualidade do GIF: “Melhor” mantém as cores o mais exatas possível, “Compacta” dá o menor arquivo, “Clássica” usa o ffmpeg</translation>
    </message>
    <message id="IDD_QUALITY_BEST">
        <source>Best</source>
        <translation>Melhor</translation>
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
        <translation>Clássica</translation>
    </message>
    <message id="IDD_SPEED">
        <source>Speed</source>
        <translation>Velocidade</translation>
    </message>
    <message id="IDD_GIF_THINNED">
        <source>GIF: reduced to 50&#xa0;fps</source>
        <translation>GIF: reduzido a 50&#xa0;fps</translation>
    </message>
    <message id="IDD_FIT_UNDER">
        <source>Max. file size</source>
        <translation>Tamanho máx. do arquivo</translation>
    </message>
    <message id="IDD_FIT_UNDER_TIP">
        <source>Maximum size of the GIF or WebP file. To stay below it, color accuracy is reduced first, then the frame rate, then the width and height</source>
        <translation>Tamanho máximo do arquivo GIF ou WebP. Para não ultrapassá-lo, reduzem-se primeiro a exatidão das cores, depois a taxa de quadros e por fim a largura e a altura</translation>
    </message>
    <message id="IDD_FIT_NOTE">
        <source>Colors, then frame rate, then size are lowered as far as needed.</source>
        <translation>Se preciso, reduzem-se as cores, depois a taxa e depois o tamanho.</translation>
    </message>
    <message id="IDD_NO_LIMIT">
        <source>No limit</source>
        <translation>Sem limite</translation>
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
        <translation>Digite um tamanho de arquivo, por exemplo 8&#xa0;MB ou 500&#xa0;kB, ou escolha “Sem limite”.</translation>
    </message>
    <message id="IDD_FIT_IMPOSSIBLE">
        <source>The file does not fit under %1: even at the lowest frame rate and half the size it takes %2. Choose a higher limit or a smaller size, or keep less of the recording.</source>
        <translation>O arquivo não cabe em %1: mesmo com a menor taxa de quadros e metade do tamanho, ele ocupa %2. Escolha um limite maior ou um tamanho menor, ou mantenha menos da gravação.</translation>
    </message>
    <message id="IDD_FIT_ASK">
        <source>To fit under %1, the frame rate or the size that you chose must be lowered.</source>
        <translation>Para caber em %1, é preciso reduzir a taxa de quadros ou o tamanho que você escolheu.</translation>
    </message>
    <message id="IDD_FIT_ASK_DETAIL">
        <source>What you chose stays in the fields.</source>
        <translation>O que você escolheu permanece nos campos.</translation>
    </message>
    <message id="IDD_FIT_KEEP">
        <source>Don’t Generate</source>
        <translation>Não criar</translation>
    </message>
    <message id="IDD_FIT_LOWER">
        <source>Lower</source>
        <translation>Reduzir</translation>
    </message>
    <message id="IDD_STATUS_FITTED">
        <source>To fit under %1, the size was reduced to %2 × %3 pixels and the frame rate to %4&#xa0;fps.</source>
        <translation>Para caber em %1, o tamanho foi reduzido para %2 × %3 pixels e a taxa para %4&#xa0;fps.</translation>
    </message>
    <message id="IDD_STATUS_FITTED_RATE">
        <source>To fit under %1, the frame rate was lowered from %2 to %3&#xa0;fps.</source>
        <translation>Para caber em %1, a taxa de quadros foi reduzida de %2 para %3&#xa0;fps.</translation>
    </message>
    <message id="IDD_STATUS_FITTED_SIZE">
        <source>To fit under %1, the size was reduced to %2 × %3 pixels.</source>
        <translation>Para caber em %1, o tamanho foi reduzido para %2 × %3 pixels.</translation>
    </message>
    <message id="IDD_STATUS_FITTED_COLORS">
        <source>To fit under %1, the file has less exact colors.</source>
        <translation>Para caber em %1, o arquivo tem cores menos exatas.</translation>
    </message>
    <message id="IDD_ABOUT_SIZE">
        <source>GIF: about %1</source>
        <translation>GIF: cerca de %1</translation>
    </message>
    <message id="IDD_AT_MOST_SIZE">
        <source>GIF: at most %1</source>
        <translation>GIF: no máximo %1</translation>
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
        <translation>%1% da largura e da altura da gravação</translation>
    </message>
    <message id="IDD_GENERATE_MP4">
        <source>Generate MP4</source>
        <translation>Criar MP4</translation>
    </message>
    <message id="IDD_GENERATE_MP4_TIP">
        <source>Generates an MP4 video with the size, frame rate and speed chosen here</source>
        <translation>Cria um vídeo MP4 com o tamanho, a taxa de quadros e a velocidade escolhidos aqui</translation>
    </message>
    <message id="IDD_PROGRESS_MP4">
        <source>Generating the MP4…</source>
        <translation>Criando o MP4…</translation>
    </message>
    <message id="IDD_MP4_PANEL">
        <source>Select a folder to save the MP4 video</source>
        <translation>Escolher uma pasta para salvar o vídeo MP4</translation>
    </message>
    <message id="IDD_MP4_SAVED_OK">
        <source>The MP4 has been saved.</source>
        <translation>O MP4 foi salvo.</translation>
    </message>
    <message id="IDD_MP4_NO_ENCODER">
        <source>This ffmpeg has no H.264 encoder (libx264), which an MP4 needs. Install an ffmpeg that has one, or generate a GIF or a WebP.</source>
        <translation>Este ffmpeg não tem o codificador H.264 (libx264) de que um MP4 precisa. Instale um ffmpeg que o tenha ou crie um GIF ou um WebP.</translation>
    </message>
    <message id="IDD_STATUS_MP4_GAP" numerus="yes">
        <source>The MP4 contains only the first %1 of %Ln frames; the next one is missing.</source>
        <translation>
            <numerusform>O MP4 contém apenas %1 de %Ln quadro; o seguinte estava faltando.</numerusform>
            <numerusform>O MP4 contém apenas %1 de %Ln quadros; o seguinte estava faltando.</numerusform>
        </translation>
    </message>
    <message id="IDD_GENERATE_WEBP">
        <source>Generate WebP</source>
        <translation>Criar WebP</translation>
    </message>
    <message id="IDD_WEBP_ABOUT">
        <source>WebP: about %1</source>
        <translation>WebP: cerca de %1</translation>
    </message>
    <message id="IDD_GENERATE_WEBP_TIP">
        <source>Generates a WebP with the size, frame rate and speed chosen here</source>
        <translation>Cria um WebP com o tamanho, a taxa de quadros e a velocidade escolhidos aqui</translation>
    </message>
    <message id="IDD_WEBP_LOOPS">
        <source>Repeat</source>
        <translation>Repetição</translation>
    </message>
    <message id="IDD_LOOP_FOREVER">
        <source>Forever</source>
        <translation>Sem fim</translation>
    </message>
    <message id="IDD_LOOP_ONCE">
        <source>Once</source>
        <translation>Uma vez</translation>
    </message>
    <message id="IDD_LOOPS_REFUSED">
        <source>Enter a number from 0 to %1 for “Repeat”.</source>
        <translation>Digite em “Repetição” um número de 0 a %1.</translation>
    </message>
    <message id="IDD_HOLD">
        <source>Hold last frame</source>
        <translation>Manter o último quadro</translation>
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
        <translation>A largura deve ser um número maior que 0.</translation>
    </message>
    <message id="IDD_WIDTH_NEGATIVE">
        <source>The width must not be negative.</source>
        <translation>A largura não pode ser negativa.</translation>
    </message>
    <message id="IDD_WIDTH_NOT_PLAIN">
        <source>The width may contain digits only.</source>
        <translation>A largura só pode conter algarismos.</translation>
    </message>
    <message id="IDD_WIDTH_TOO_LARGE">
        <source>The width can be %1 pixels at most.</source>
        <translation>A largura pode ser de no máximo %1 pixels.</translation>
    </message>
    <message id="IDD_HEIGHT_ZERO">
        <source>The height must be a number greater than 0.</source>
        <translation>A altura deve ser um número maior que 0.</translation>
    </message>
    <message id="IDD_HEIGHT_NEGATIVE">
        <source>The height must not be negative.</source>
        <translation>A altura não pode ser negativa.</translation>
    </message>
    <message id="IDD_HEIGHT_NOT_PLAIN">
        <source>The height may contain digits only.</source>
        <translation>A altura só pode conter algarismos.</translation>
    </message>
    <message id="IDD_HEIGHT_TOO_LARGE">
        <source>The height can be %1 pixels at most.</source>
        <translation>A altura pode ser de no máximo %1 pixels.</translation>
    </message>
    <message id="IDD_GIF_SUMMARY" numerus="yes">
        <source>%Ln frames, %1&#xa0;s at&#xa0;%2&#xa0;fps</source>
        <translation>
            <numerusform>%Ln quadro, %1&#xa0;s a&#xa0;%2&#xa0;fps</numerusform>
            <numerusform>%Ln quadros, %1&#xa0;s a&#xa0;%2&#xa0;fps</numerusform>
        </translation>
    </message>
    <message id="IDD_GIF_WEBP_SUMMARY">
        <source>GIF: %1 · WebP: %2</source>
        <translation>GIF: %1 · WebP: %2</translation>
    </message>
</context>
</TS>
