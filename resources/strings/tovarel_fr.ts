<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Tovarel authors
     SPDX-License-Identifier: MIT -->
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name></name>
    <message id="IDD_ABOUT">
        <source>About</source>
        <translation>À propos de</translation>
    </message>
    <message id="IDD_HELP">
        <source>Help</source>
        <translation>– Aide</translation>
    </message>
    <message id="IDD_QUIT">
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message id="IDD_APP_HOME_PAGE">
        <source>Home Page</source>
        <translation>Page d’accueil</translation>
    </message>
    <message id="IDD_COMPANY_PAGE">
        <source>About the Authors</source>
        <translation>À propos des auteurs</translation>
    </message>
    <message id="IDD_PRIVACY_POLICY">
        <source>Privacy Policy</source>
        <translation>Politique de confidentialité</translation>
    </message>
    <message id="IDD_SUBMIT_TICKET">
        <source>Report a Problem</source>
        <translation>Signaler un problème</translation>
    </message>
    <message id="IDD_RECORD">
        <source>Record</source>
        <translation>Enregistrer</translation>
    </message>
    <message id="IDD_PAUSE">
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message id="IDD_STOP">
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message id="IDD_COUNTDOWN">
        <source>Countdown</source>
        <translation>Compte à rebours</translation>
    </message>
    <message id="IDD_AT_ONCE">
        <source>At Once</source>
        <translation>Immédiatement</translation>
    </message>
    <message id="IDD_AFTER_SECONDS" numerus="yes">
        <source>After %Ln&#xa0;Seconds</source>
        <translation>
            <numerusform>Après %Ln&#xa0;seconde</numerusform>
            <numerusform>Après %Ln&#xa0;secondes</numerusform>
        </translation>
    </message>
    <message id="IDD_SECONDS">
        <source>%1&#xa0;s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message id="IDD_RECORD_AFTER" numerus="yes">
        <source>Record after %Ln&#xa0;seconds</source>
        <translation>
            <numerusform>Enregistrer après %Ln&#xa0;seconde</numerusform>
            <numerusform>Enregistrer après %Ln&#xa0;secondes</numerusform>
        </translation>
    </message>
    <message id="IDD_COUNTDOWN_RUNS">
        <source>The recording begins in a moment. Esc or “Stop” cancels it.</source>
        <translation>L’enregistrement va commencer. Échap ou «&#xa0;Arrêter&#xa0;» l’annule.</translation>
    </message>
    <message id="IDD_COUNTDOWN_RUNS_KEY">
        <source>The recording begins in a moment. Esc, “Stop” or, in any window, %1 cancels it.</source>
        <translation>L’enregistrement va commencer. Échap, «&#xa0;Arrêter&#xa0;» ou, depuis toute fenêtre, %1 l’annule.</translation>
    </message>
    <message id="IDD_COUNTDOWN_CANCELLED">
        <source>The countdown was canceled.</source>
        <translation>Le compte à rebours a été annulé.</translation>
    </message>
    <message id="IDD_MONITORS">
        <source>Monitors</source>
        <translation>Moniteurs</translation>
    </message>
    <message id="IDD_ALL_MONITORS">
        <source>All Monitors</source>
        <translation>Tous les moniteurs</translation>
    </message>
    <message id="IDD_MODE_MONITOR">
        <source>%1 · %2 × %3</source>
        <translation>%1 · %2 × %3</translation>
    </message>
    <message id="IDD_REGION_DOES_NOT_FIT">
        <source>The last region does not fit on this screen.</source>
        <translation>La dernière zone ne tient pas sur cet écran.</translation>
    </message>
    <message id="IDD_MOVE_REGION">
        <source>Move It Inside</source>
        <translation>La ramener dedans</translation>
    </message>
    <message id="IDD_CUT">
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message id="IDD_SAVE">
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message id="IDD_FULL_SCREEN">
        <source>Full Screen</source>
        <translation>Écran entier</translation>
    </message>
    <message id="IDD_REGION">
        <source>Region</source>
        <translation>Zone de l’écran</translation>
    </message>
    <message id="IDD_REGION_SIZES">
        <source>Sizes</source>
        <translation>Tailles</translation>
    </message>
    <message id="IDD_REGION_SQUARE">
        <source>Square</source>
        <translation>Carré</translation>
    </message>
    <message id="IDD_REGION_LAST">
        <source>Last Used</source>
        <translation>Dernière utilisée</translation>
    </message>
    <message id="IDD_PICK_WINDOW">
        <source>Pick a Window</source>
        <translation>Choisir une fenêtre</translation>
    </message>
    <message id="IDD_PICK_WINDOW_TIP">
        <source>Then click a window, or hold W</source>
        <translation>Cliquer ensuite sur une fenêtre, ou maintenir W</translation>
    </message>
    <message id="IDD_PICK_WINDOW_HINT">
        <source>Click the window to record. Esc goes back to the region.</source>
        <translation>Cliquez sur la fenêtre à enregistrer. Échap revient à la zone.</translation>
    </message>
    <message id="IDD_REGION_KEYS">
        <source>Enter uses the region, Esc cancels.</source>
        <translation>Entrée utilise la zone, Échap annule.</translation>
    </message>
    <message id="IDD_USE_REGION">
        <source>Use Region</source>
        <translation>Utiliser la zone</translation>
    </message>
    <message id="IDD_FPS">
        <source>Frames per Second</source>
        <translation>Images par seconde</translation>
    </message>
    <message id="IDD_INSTRUCTIONS">
        <source>Choose the size, the frame rate and the speed, then generate the GIF.</source>
        <translation>Choisissez la taille, la fréquence d’images et la vitesse, puis créez le GIF.</translation>
    </message>
    <message id="IDD_RECORD_FIRST">
        <source>There is no recording yet. Make one on the “Record” tab.</source>
        <translation>Il n’y a pas encore d’enregistrement. Enregistrez d’abord quelque chose dans l’onglet «&#xa0;Enregistrer&#xa0;».</translation>
    </message>
    <message id="IDD_RESOLUTION_EQUAL">
        <source>Same size as the recording</source>
        <translation>Taille de l’enregistrement</translation>
    </message>
    <message id="IDD_RESOLUTION_CUSTOM">
        <source>Custom size</source>
        <translation>Taille personnalisée</translation>
    </message>
    <message id="IDD_WIDTH">
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message id="IDD_HEIGHT">
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message id="IDD_KEEP_ASPECT_RATIO">
        <source>Keep aspect ratio</source>
        <translation>Conserver les proportions</translation>
    </message>
    <message id="IDD_FPS_EQUAL">
        <source>Same frame rate as the recording</source>
        <translation>Fréquence de l’enregistrement</translation>
    </message>
    <message id="IDD_FORCE_FPS">
        <source>Custom frame rate</source>
        <translation>Fréquence personnalisée</translation>
    </message>
    <message id="IDD_NOTE">
        <source>When the computer is busy, a recording can have fewer frames per second than chosen.</source>
        <translation>Si l’ordinateur est très sollicité, l’enregistrement peut compter moins d’images par seconde que prévu.</translation>
    </message>
    <message id="IDD_GENERATE_GIF">
        <source>Generate GIF</source>
        <translation>Créer le GIF</translation>
    </message>
    <message id="IDD_LOW_FRAME_NUMBER">
        <source>The selected range has too few frames. Select at least three on the “Cut” tab.</source>
        <translation>La plage choisie contient trop peu d’images. Choisissez-en au moins trois dans l’onglet «&#xa0;Couper&#xa0;».</translation>
    </message>
    <message id="IDD_INVALID_DIMENSION">
        <source>Width and height must be whole numbers greater than 0.</source>
        <translation>La largeur et la hauteur doivent être des nombres entiers supérieurs à 0.</translation>
    </message>
    <message id="IDD_GIF_SAVED_OK">
        <source>The GIF has been saved.</source>
        <translation>Le GIF a été sauvegardé.</translation>
    </message>
    <message id="IDD_PLAY">
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <!-- app -->
    <message id="IDD_MENU_TAB">
        <source>Tab</source>
        <translation>Onglet</translation>
    </message>
    <message id="IDD_MENU_ACTION">
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message id="IDD_MENU_HELP">
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message id="IDD_GROUP_SIZE">
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message id="IDD_GROUP_RATE">
        <source>Frame rate</source>
        <translation>Fréquence d’images</translation>
    </message>
    <message id="IDD_ABOUT_TEXT">
        <source>Records your screen and turns it into an animated GIF.</source>
        <translation>Enregistre votre écran et en fait un GIF animé.</translation>
    </message>
    <message id="IDD_ABOUT_VERSION">
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message id="IDD_ABOUT_LICENCE">
        <source>Free software under the %1 License.</source>
        <translation>Logiciel libre sous licence %1.</translation>
    </message>
    <message id="IDD_ABOUT_TOOLS">
        <source>Tools in use:</source>
        <translation>Outils utilisés&#xa0;:</translation>
    </message>
    <message id="IDD_ABOUT_TOOL">
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message id="IDD_ABOUT_TOOL_MISSING">
        <source>not found</source>
        <translation>introuvable</translation>
    </message>
    <message id="IDD_HELP_NOT_OPENED">
        <source>No program was found to show the help pages. Open this file in a browser:</source>
        <translation>Aucun programme n’a été trouvé pour afficher les pages d’aide. Ouvrez ce fichier dans un navigateur&#xa0;:</translation>
    </message>
    <message id="IDD_RECORD_PREVIEW">
        <source>Live preview</source>
        <translation>Aperçu en direct</translation>
    </message>
    <message id="IDD_KEYS_GRANTED">
        <source>Shortcuts in any window, with %1: %2</source>
        <translation>Raccourcis partout, avec %1&#xa0;: %2</translation>
    </message>
    <message id="IDD_KEYS_BOUND">
        <source>Shortcuts in any window: %1</source>
        <translation>Raccourcis partout&#xa0;: %1</translation>
    </message>
    <message id="IDD_KEYS_TAKEN">
        <source>Already in use: %1</source>
        <translation>Déjà pris&#xa0;: %1</translation>
    </message>
    <!-- platform -->
    <message id="IDD_REASON_NO_DISPLAY">
        <source>The screen cannot be recorded: there is no display server.</source>
        <translation>Impossible d’enregistrer l’écran&#xa0;: aucun serveur d’affichage n’est disponible.</translation>
    </message>
    <message id="IDD_REASON_NO_COMPOSITE">
        <source>The screen cannot be recorded: this display server lacks the Composite extension, so the program could not leave out its own windows.</source>
        <translation>Impossible d’enregistrer l’écran&#xa0;: ce serveur d’affichage n’a pas l’extension Composite, et le programme ne pourrait pas exclure ses propres fenêtres.</translation>
    </message>
    <message id="IDD_REASON_MISSING_EXTENSION">
        <source>The screen cannot be recorded: this display server lacks one of the extensions Damage, XFixes, Render and Shape.</source>
        <translation>Impossible d’enregistrer l’écran&#xa0;: il manque à ce serveur d’affichage l’une des extensions Damage, XFixes, Render et Shape.</translation>
    </message>
    <message id="IDD_REASON_PICTURE_FORMAT">
        <source>The screen cannot be recorded: this display server does not use 24-bit color.</source>
        <translation>Impossible d’enregistrer l’écran&#xa0;: ce serveur d’affichage n’utilise pas d’images en couleurs 24 bits.</translation>
    </message>
    <!-- record -->
    <message id="IDD_SAVING_RECORDING">
        <source>Saving the recording…</source>
        <translation>Sauvegarde de l’enregistrement…</translation>
    </message>
    <message id="IDD_REASON_NO_PORTAL">
        <source>The screen cannot be recorded: this Wayland desktop has no portal for it. Install xdg-desktop-portal with your desktop’s back end, or log in to an X11 session.</source>
        <translation>Impossible d’enregistrer l’écran&#xa0;: ce bureau Wayland n’a pas de portail pour cela. Installez xdg-desktop-portal avec le module de votre bureau ou ouvrez une session X11.</translation>
    </message>
    <message id="IDD_CHOOSE_SOURCE">
        <source>Choose What to Record…</source>
        <translation>Choisir ce qu’il faut enregistrer…</translation>
    </message>
    <message id="IDD_SOURCE_IDLE">
        <source>Your desktop asks what may be recorded: a monitor or a window.</source>
        <translation>Votre bureau demande ce qui peut être enregistré&#xa0;: un moniteur ou une fenêtre.</translation>
    </message>
    <message id="IDD_SOURCE_ASKING">
        <source>Choose in the desktop’s dialog what to record.</source>
        <translation>Choisissez dans la boîte de dialogue du bureau ce qu’il faut enregistrer.</translation>
    </message>
    <message id="IDD_SOURCE_WAITING">
        <source>Waiting for the first picture…</source>
        <translation>En attente de la première image…</translation>
    </message>
    <message id="IDD_SOURCE_ENDED">
        <source>The desktop has stopped sharing the screen.</source>
        <translation>Le bureau a arrêté le partage de l’écran.</translation>
    </message>
    <message id="IDD_SOURCE_FAILED">
        <source>The desktop provides no pictures of the screen: %1</source>
        <translation>Le bureau ne fournit aucune image de l’écran&#xa0;: %1</translation>
    </message>
    <message id="IDD_SOURCE_REFUSED">
        <source>Nothing was chosen.</source>
        <translation>Rien n’a été choisi.</translation>
    </message>
    <message id="IDD_SOURCE_RESIZED">
        <source>Size changed: scaled to fit</source>
        <translation>Taille modifiée&#xa0;: images ajustées</translation>
    </message>
    <message id="IDD_CHOSEN_MONITOR">
        <source>Monitor %1 × %2</source>
        <translation>Moniteur %1 × %2</translation>
    </message>
    <message id="IDD_CHOSEN_WINDOW">
        <source>Window %1 × %2</source>
        <translation>Fenêtre %1 × %2</translation>
    </message>
    <message id="IDD_CHOSEN_OTHER">
        <source>Chosen: %1 × %2</source>
        <translation>Choisi&#xa0;: %1 × %2</translation>
    </message>
    <message id="IDD_STEP_ASIDE">
        <source>Tovarel gets out of the way while it records.</source>
        <translation>Tovarel s’efface pendant l’enregistrement.</translation>
    </message>
    <message id="IDD_STEP_ASIDE_HOW_TO_STOP">
        <source>Everything that is visible is recorded, so this window is minimized first. To stop, bring it back with a click in the dock or by starting Tovarel again: the recording pauses, and “Stop” saves it.</source>
        <translation>Tout ce qui est visible est enregistré&#xa0;: cette fenêtre est donc d’abord réduite. Pour arrêter, rappelez-la d’un clic dans le dock ou en lançant de nouveau Tovarel&#xa0;: l’enregistrement se met en pause, et «&#xa0;Arrêter&#xa0;» le sauvegarde.</translation>
    </message>
    <message id="IDD_REASON_WAYLAND">
        <source>In a Wayland session Tovarel can record from its window only: start it without arguments, or log in to an X11 session.</source>
        <translation>Dans une session Wayland, Tovarel ne peut enregistrer que depuis sa fenêtre&#xa0;: lancez-le sans argument ou ouvrez une session X11.</translation>
    </message>
    <message id="IDD_REGION_OF_WINDOW">
        <source>A window is recorded as a whole. Choose a monitor to record a region of it.</source>
        <translation>Une fenêtre est enregistrée en entier. Choisissez un moniteur pour en enregistrer une zone.</translation>
    </message>
    <message id="IDD_STATE_RECORDING">
        <source>Recording</source>
        <translation>Enregistrement en cours</translation>
    </message>
    <message id="IDD_STATE_PAUSED">
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message id="IDD_PAUSED_HINT">
        <source>Paused – press “%1” to continue</source>
        <translation>En pause – «&#xa0;%1&#xa0;» pour continuer</translation>
    </message>
    <message id="IDD_RECORDING_FIGURES">
        <source>%1 · Frames: %2 · %3&#xa0;fps</source>
        <translation>%1 · Images&#xa0;: %2 · %3&#xa0;i/s</translation>
    </message>
    <message id="IDD_POINTER">
        <source>Pointer</source>
        <translation>Pointeur</translation>
    </message>
    <message id="IDD_POINTER_TIP">
        <source>Pointer: shows the mouse pointer in the recording</source>
        <translation>Pointeur&#xa0;: montre le pointeur de la souris dans l’enregistrement</translation>
    </message>
    <message id="IDD_HANDS_NOT_OFFERED">
        <source>Not possible with this display server: it does not report mouse buttons and keys</source>
        <translation>Impossible avec ce serveur d’affichage&#xa0;: il ne signale ni les boutons de la souris ni les touches</translation>
    </message>
    <message id="IDD_CLICKS">
        <source>Clicks</source>
        <translation>Clics</translation>
    </message>
    <message id="IDD_CLICKS_TIP">
        <source>Clicks: shows in the recording where a mouse button is pressed</source>
        <translation>Clics&#xa0;: montre dans l’enregistrement où un bouton de la souris est enfoncé</translation>
    </message>
    <message id="IDD_KEYS">
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message id="IDD_KEYS_TIP">
        <source>Keys: shows keyboard shortcuts in the recording, never the text you type</source>
        <translation>Touches&#xa0;: montre les raccourcis clavier dans l’enregistrement, jamais le texte saisi</translation>
    </message>
    <message id="IDD_KEYS_SHOWN">
        <source>Shortcuts that you press are shown</source>
        <translation>Les raccourcis clavier sont montrés</translation>
    </message>
    <message id="IDD_PAUSED_FOR_MEMORY">
        <source>Memory is low (%1 left). “Stop” saves the recording.</source>
        <translation>Plus que %1 de mémoire&#xa0;: «&#xa0;Arrêter&#xa0;» sauvegarde</translation>
    </message>
    <message id="IDD_RECORDING_MEMORY">
        <source>Memory: %1</source>
        <translation>Mémoire&#xa0;: %1</translation>
    </message>
    <message id="IDD_RECORDING_MEMORY_LASTS">
        <source>Memory: %1, enough for %2&#xa0;min more</source>
        <translation>Mémoire&#xa0;: %1, suffit pour %2&#xa0;min</translation>
    </message>
    <message id="IDD_RECORDING_SAVED">
        <source>The recording is complete. Frames: %1 · %2&#xa0;fps</source>
        <translation>L’enregistrement est terminé. Images&#xa0;: %1 · %2&#xa0;i/s</translation>
    </message>
    <message id="IDD_RECORDING_BEHIND">
        <source>The recording is complete. Frames: %1 · %3&#xa0;fps instead of %2&#xa0;fps</source>
        <translation>L’enregistrement est terminé. Images&#xa0;: %1 · %3&#xa0;i/s au lieu de %2&#xa0;i/s</translation>
    </message>
    <message id="IDD_NOTHING_RECORDED">
        <source>Nothing was recorded.</source>
        <translation>Rien n’a été enregistré.</translation>
    </message>
    <message id="IDD_FRAMES_MISSING" numerus="yes">
        <source>%1 of %Ln frames could not be written to %2: %3</source>
        <translation>
            <numerusform>Image non écrite dans %2&#xa0;: %1 sur %Ln (%3)</numerusform>
            <numerusform>Images non écrites dans %2&#xa0;: %1 sur %Ln (%3)</numerusform>
        </translation>
    </message>
    <message id="IDD_CLOSE_WAITS">
        <source>Tovarel closes as soon as the recording is saved.</source>
        <translation>Tovarel se fermera dès que l’enregistrement sera sauvegardé.</translation>
    </message>
    <message id="IDD_RECOVER_QUESTION">
        <source>An earlier recording is still there.</source>
        <translation>Un enregistrement précédent existe toujours.</translation>
    </message>
    <message id="IDD_RECOVER_DETAIL" numerus="yes">
        <source>The recording of %1 is complete: %Ln frames, %2&#xa0;s. You can open it on the “Cut” tab or delete it.</source>
        <translation>
            <numerusform>L’enregistrement du %1 est complet&#xa0;: %Ln image, %2&#xa0;s. Vous pouvez l’ouvrir dans l’onglet «&#xa0;Couper&#xa0;» ou le supprimer.</numerusform>
            <numerusform>L’enregistrement du %1 est complet&#xa0;: %Ln images, %2&#xa0;s. Vous pouvez l’ouvrir dans l’onglet «&#xa0;Couper&#xa0;» ou le supprimer.</numerusform>
        </translation>
    </message>
    <message id="IDD_RECOVER_OPEN">
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message id="IDD_RECOVER_DELETE">
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message id="IDD_RECOVER_LOADING">
        <source>Opening the recording…</source>
        <translation>Ouverture de l’enregistrement…</translation>
    </message>
    <message id="IDD_RECOVER_FAILED">
        <source>The recording could not be opened: the file %1 is damaged.</source>
        <translation>L’enregistrement n’a pas pu être ouvert&#xa0;: le fichier %1 est endommagé.</translation>
    </message>
    <message id="IDD_RECORD_PREVIOUS">
        <source>Bring Back Previous Recording</source>
        <translation>Récupérer l’enregistrement précédent</translation>
    </message>
    <message id="IDD_PREVIOUS_GONE">
        <source>The previous recording is no longer complete.</source>
        <translation>L’enregistrement précédent n’est plus complet.</translation>
    </message>
    <message id="IDD_SAVE_AGAIN">
        <source>Save Again</source>
        <translation>Sauvegarder à nouveau</translation>
    </message>
    <message id="IDD_MODE_FULL_SCREEN">
        <source>Full screen, without this window</source>
        <translation>Écran entier, sans cette fenêtre</translation>
    </message>
    <message id="IDD_MODE_REGION">
        <source>Region %1 × %2 at %3,&#xa0;%4</source>
        <translation>Zone %1 × %2 à %3,&#xa0;%4</translation>
    </message>
    <message id="IDD_CAPTURE_RATE">
        <source>%1&#xa0;fps</source>
        <translation>%1&#xa0;i/s</translation>
    </message>
    <message id="IDD_OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="IDD_CANCEL">
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <!-- region -->
    <message id="IDD_REGION_OVERLAY">
        <source>Select a Region</source>
        <translation>Choisir une zone</translation>
    </message>
    <message id="IDD_REGION_TIP">
        <source>%1: %2 × %3 pixels at %4, %5</source>
        <translation>%1&#xa0;: %2 × %3 pixels à %4, %5</translation>
    </message>
    <message id="IDD_REGION_TOO_SMALL">
        <source>Too small: at least %1 × %1 pixels are needed</source>
        <translation>Trop petite&#xa0;: il faut au moins %1 × %1 pixels</translation>
    </message>
    <message id="IDD_REGION_LOWER_LEFT">
        <source>Lower left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message id="IDD_REGION_LOWER_RIGHT">
        <source>Lower right</source>
        <translation>En bas à droite</translation>
    </message>
    <message id="IDD_REGION_UPPER_LEFT">
        <source>Upper left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message id="IDD_REGION_UPPER_RIGHT">
        <source>Upper right</source>
        <translation>En haut à droite</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_TITLE">
        <source>How to Select a Region</source>
        <translation>Comment choisir une zone</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_TEXT">
        <source>A rectangle with five squares appears on the screen. Drag the green squares until it frames what you want to record, then click the red one or press “Use Region”. Drag inside the rectangle to move it, or outside to draw a new one.</source>
        <translation>Un rectangle muni de cinq carrés apparaît à l’écran. Faites glisser les carrés verts jusqu’à encadrer ce que vous voulez enregistrer, puis cliquez sur le carré rouge ou sur «&#xa0;Utiliser la zone&#xa0;». Faites glisser l’intérieur du rectangle pour le déplacer, ou l’extérieur pour en tracer un nouveau.</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_WINDOW">
        <source>To record a single window, press “Pick a Window” or hold W, then click the window.</source>
        <translation>Pour une seule fenêtre, cliquez sur «&#xa0;Choisir une fenêtre&#xa0;» ou maintenez la touche W, puis cliquez sur la fenêtre.</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_PICTURE">
        <source>A rectangle on a screen: a green square on each corner resizes it, the red square in its middle accepts it.</source>
        <translation>Un rectangle sur un écran&#xa0;: un carré vert à chaque coin pour l’ajuster, un carré rouge au milieu pour valider.</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_DRAG">
        <source>Drag a corner</source>
        <translation>Faites glisser un coin</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_ACCEPT">
        <source>Click to accept</source>
        <translation>Cliquez pour valider</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_KEYS">
        <source>With the keyboard: the arrow keys move a corner (faster with Shift), Tab selects the next one, Enter accepts, Esc cancels.</source>
        <translation>Au clavier&#xa0;: les flèches déplacent un coin (plus vite avec Maj), Tab passe au suivant, Entrée valide, Échap annule.</translation>
    </message>
    <message id="IDD_REGION_HOW_TO_AGAIN">
        <source>Don’t show this again</source>
        <translation>Ne plus afficher ce message</translation>
    </message>
    <!-- trim -->
    <message id="IDD_HANDLE_FIRST">
        <source>First frame</source>
        <translation>Première image</translation>
    </message>
    <message id="IDD_HANDLE_LAST">
        <source>Last frame</source>
        <translation>Dernière image</translation>
    </message>
    <message id="IDD_CUT_KEPT" numerus="yes">
        <source>Kept: %1&#xa0;s of %2&#xa0;s · %3 of %Ln frames</source>
        <translation>
            <numerusform>Conservé&#xa0;: %1&#xa0;s sur %2&#xa0;s · %3 sur %Ln image</numerusform>
            <numerusform>Conservé&#xa0;: %1&#xa0;s sur %2&#xa0;s · %3 sur %Ln images</numerusform>
        </translation>
    </message>
    <message id="IDD_CUT_PREVIOUS">
        <source>Previous Frame</source>
        <translation>Image précédente</translation>
    </message>
    <message id="IDD_CUT_NEXT">
        <source>Next Frame</source>
        <translation>Image suivante</translation>
    </message>
    <message id="IDD_CUT_BACK_TEN">
        <source>Back 10&#xa0;Frames</source>
        <translation>Reculer de 10&#xa0;images</translation>
    </message>
    <message id="IDD_CUT_FORWARD_TEN">
        <source>Forward 10&#xa0;Frames</source>
        <translation>Avancer de 10&#xa0;images</translation>
    </message>
    <message id="IDD_CUT_TO_START">
        <source>Go to Start</source>
        <translation>Aller au début</translation>
    </message>
    <message id="IDD_CUT_TO_END">
        <source>Go to End</source>
        <translation>Aller à la fin</translation>
    </message>
    <message id="IDD_CUT_START_HERE">
        <source>Start Here</source>
        <translation>Commencer ici</translation>
    </message>
    <message id="IDD_CUT_END_HERE">
        <source>End Here</source>
        <translation>Terminer ici</translation>
    </message>
    <message id="IDD_PLAYHEAD">
        <source>Playhead</source>
        <translation>Tête de lecture</translation>
    </message>
    <message id="IDD_CUT_FRAME">
        <source>Frame %1 of %2, at %3&#xa0;s</source>
        <translation>Image %1 sur %2, à %3&#xa0;s</translation>
    </message>
    <message id="IDD_TIP_SHORTCUT">
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message id="IDD_CUT_PREVIEW">
        <source>Frame preview</source>
        <translation>Aperçu de l’image</translation>
    </message>
    <message id="IDD_CUT_RANGE">
        <source>Part of the recording to keep</source>
        <translation>Partie de l’enregistrement à garder</translation>
    </message>
    <message id="IDD_RANGE_EMPTY">
        <source>No frame in this range</source>
        <translation>Aucune image dans cette plage</translation>
    </message>
    <message id="IDD_CUT_DELETE">
        <source>Delete Selection</source>
        <translation>Supprimer la sélection</translation>
    </message>
    <message id="IDD_CUT_STILL">
        <source>Shorten Still Time</source>
        <translation>Raccourcir les temps morts</translation>
    </message>
    <message id="IDD_UNDO">
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message id="IDD_REDO">
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message id="IDD_CUT_SELECTED">
        <source>Selected: %1 to %2, %3&#xa0;s</source>
        <translation>Sélection&#xa0;: de %1 à %2, %3&#xa0;s</translation>
    </message>
    <message id="IDD_STRIP_TIP">
        <source>Drag a handle to leave an end out, or drag between the handles to select a part to delete.</source>
        <translation>Faites glisser une poignée pour écarter une extrémité, ou faites glisser entre les poignées pour sélectionner une partie à supprimer.</translation>
    </message>
    <message id="IDD_TAB_NEEDS_STOP_RECORDING">
        <source>Stop the recording to open another tab.</source>
        <translation>Arrêtez l’enregistrement pour ouvrir un autre onglet.</translation>
    </message>
    <message id="IDD_TAB_NEEDS_STOP_PLAYBACK">
        <source>Stop the playback to open another tab.</source>
        <translation>Arrêtez la lecture pour ouvrir un autre onglet.</translation>
    </message>
    <message id="IDD_KEY_ON_RECORD_TAB">
        <source>To record again, open the “Record” tab.</source>
        <translation>Pour enregistrer à nouveau, ouvrez l’onglet «&#xa0;Enregistrer&#xa0;».</translation>
    </message>
    <message id="IDD_STILL_LENGTH">
        <source>To %1&#xa0;s at Most</source>
        <translation>À %1&#xa0;s au plus</translation>
    </message>
    <message id="IDD_STILL_NONE">
        <source>Nothing stands still for longer than %1&#xa0;s.</source>
        <translation>Rien ne reste immobile plus de %1&#xa0;s.</translation>
    </message>
    <message id="IDD_STILL_SHORTENED">
        <source>Still time was shortened by %1&#xa0;s.</source>
        <translation>Les temps morts ont été raccourcis de %1&#xa0;s.</translation>
    </message>
    <!-- export -->
    <message id="IDD_PROGRESS_GIF">
        <source>Generating the GIF…</source>
        <translation>Création du GIF…</translation>
    </message>
    <message id="IDD_PROGRESS_WEBP">
        <source>Generating the WebP…</source>
        <translation>Création du WebP…</translation>
    </message>
    <message id="IDD_PROGRESS_PALETTE">
        <source>Step 1 of 2: choosing the colors</source>
        <translation>Étape 1 sur 2&#xa0;: choix des couleurs</translation>
    </message>
    <message id="IDD_PROGRESS_SCALING">
        <source>Step 1 of 2, scaling: %p%</source>
        <translation>Étape 1 sur 2, redimensionnement&#xa0;: %p&#x202f;%</translation>
    </message>
    <message id="IDD_PROGRESS_PICTURES">
        <source>Step 2 of 2: %p%</source>
        <translation>Étape 2 sur 2&#xa0;: %p&#x202f;%</translation>
    </message>
    <message id="IDD_PROGRESS_AGAIN">
        <source>Attempt %1: making it fit under %2…</source>
        <translation>Essai %1&#xa0;: réduction à %2 au maximum…</translation>
    </message>
    <message id="IDD_EXPORT_CANCELLED">
        <source>The export was canceled.</source>
        <translation>L’exportation a été annulée.</translation>
    </message>
    <message id="IDD_TOOL_MISSING">
        <source>The program “%1” is missing: it was not found when Tovarel started.</source>
        <translation>Il manque le programme «&#xa0;%1&#xa0;»&#xa0;: il n’a pas été trouvé au démarrage de Tovarel.</translation>
    </message>
    <message id="IDD_TOOL_NOT_STARTED">
        <source>The program “%1” could not be started: %2</source>
        <translation>Le programme «&#xa0;%1&#xa0;» n’a pas pu être lancé&#xa0;: %2</translation>
    </message>
    <message id="IDD_TOOL_CRASHED">
        <source>The program “%1” crashed (signal %2, %3).</source>
        <translation>Le programme «&#xa0;%1&#xa0;» s’est arrêté brutalement (signal %2, %3).</translation>
    </message>
    <message id="IDD_TOOL_FAILED">
        <source>The program “%1” failed (exit status %2).</source>
        <translation>Le programme «&#xa0;%1&#xa0;» a échoué (code de sortie %2).</translation>
    </message>
    <message id="IDD_TOOL_NO_RESULT">
        <source>The program “%1” ended without writing its result, %2.</source>
        <translation>Le programme «&#xa0;%1&#xa0;» s’est terminé sans écrire son résultat, %2.</translation>
    </message>
    <message id="IDD_REFUSED_SIZE">
        <source>The requested size was %1 × %2.</source>
        <translation>La taille demandée était %1 × %2.</translation>
    </message>
    <message id="IDD_GIF_TOO_LARGE">
        <source>A GIF of %1 × %2 pixels needs about %3 of memory. At most %4 may be used, half of what is free. Choose a smaller size.</source>
        <translation>Un GIF de %1 × %2 pixels demande environ %3 de mémoire. On peut en utiliser au plus %4, la moitié de la mémoire libre. Choisissez une taille plus petite.</translation>
    </message>
    <message id="IDD_GIF_NO_MEMORY">
        <source>There is not enough memory for the GIF. Choose a smaller size or close other programs.</source>
        <translation>La mémoire est insuffisante pour le GIF. Choisissez une taille plus petite ou fermez d’autres programmes.</translation>
    </message>
    <message id="IDD_GIF_NOT_WRITTEN">
        <source>The GIF could not be written to %1.
%2

The recording is still there.</source>
        <translation>Impossible d’écrire le GIF dans %1.
%2

L’enregistrement est toujours disponible.</translation>
    </message>
    <message id="IDD_GIF_NO_FRAMES">
        <source>The frames of the recording could not be read from %1.</source>
        <translation>Impossible de lire les images de l’enregistrement dans %1.</translation>
    </message>
    <message id="IDD_MOVE_FAILED">
        <source>The file could not be saved as %1.
%2

It is still at %3.</source>
        <translation>Le fichier n’a pas pu être sauvegardé sous %1.
%2

Il reste à l’emplacement %3.</translation>
    </message>
    <message id="IDD_CLI_ABOUT">
        <source>Records the screen and makes an animated GIF, WebP or MP4 of it. Without arguments it shows its window.</source>
        <translation>Enregistre l’écran et en fait un GIF animé, un WebP ou un MP4. Sans argument, la fenêtre s’affiche.</translation>
    </message>
    <message id="IDD_CLI_RECORD_ABOUT">
        <source>Records without showing a window and writes the file. Say what to record with one of --region, --screen and --window.</source>
        <translation>Enregistre sans afficher de fenêtre et écrit le fichier. Indiquez quoi enregistrer avec --region, --screen ou --window.</translation>
    </message>
    <message id="IDD_CLI_RECORD">
        <source>Record without a window</source>
        <translation>Enregistrer sans fenêtre</translation>
    </message>
    <message id="IDD_CLI_TOGGLE">
        <source>Start a recording in the running Tovarel, or stop the one in progress</source>
        <translation>Commencer un enregistrement dans le Tovarel en cours d’exécution, ou arrêter celui en cours</translation>
    </message>
    <message id="IDD_CLI_PAUSE">
        <source>Pause the recording in progress, or continue it</source>
        <translation>Mettre en pause l’enregistrement en cours, ou le reprendre</translation>
    </message>
    <message id="IDD_CLI_STOP">
        <source>Stop the recording in progress</source>
        <translation>Arrêter l’enregistrement en cours</translation>
    </message>
    <message id="IDD_CLI_HELP">
        <source>Show this help</source>
        <translation>Afficher cette aide</translation>
    </message>
    <message id="IDD_CLI_VERSION">
        <source>Show the version</source>
        <translation>Afficher la version</translation>
    </message>
    <message id="IDD_CLI_REGION">
        <source>Record W × H pixels of the desktop, X to the right and Y down from its upper left corner</source>
        <translation>Enregistrer W × H pixels du bureau, à X vers la droite et Y vers le bas de son coin supérieur gauche</translation>
    </message>
    <message id="IDD_CLI_SCREEN">
        <source>Record monitor number N, counted from 1; without N all monitors, or on Wayland the one that you choose</source>
        <translation>Enregistrer le moniteur numéro N, à partir de 1&#x202f;; sans N, tous les moniteurs, ou sous Wayland celui que vous choisissez</translation>
    </message>
    <message id="IDD_CLI_WINDOW">
        <source>Record the part of the screen where the window with TITLE in its title is</source>
        <translation>Enregistrer la partie de l’écran occupée par la fenêtre dont le titre contient TITLE</translation>
    </message>
    <message id="IDD_CLI_SECONDS">
        <source>Record for S seconds; Ctrl+C stops earlier</source>
        <translation>Enregistrer pendant S secondes&#x202f;; Ctrl+C arrête avant</translation>
    </message>
    <message id="IDD_CLI_RATE">
        <source>Frames per second, 1 to 60; 15 if not given</source>
        <translation>Images par seconde, de 1 à 60&#x202f;; 15 par défaut</translation>
    </message>
    <message id="IDD_CLI_DELAY">
        <source>Wait S seconds before recording</source>
        <translation>Attendre S secondes avant d’enregistrer</translation>
    </message>
    <message id="IDD_CLI_QUALITY">
        <source>best, balanced, small or classic; balanced if not given</source>
        <translation>best, balanced, small ou classic&#x202f;; balanced par défaut</translation>
    </message>
    <message id="IDD_CLI_OUTPUT">
        <source>Write to FILE, which ends in .gif, .webp or .mp4; if not given, to a GIF here, named after the time</source>
        <translation>Écrire dans FILE, qui se termine par .gif, .webp ou .mp4&#x202f;; par défaut dans un GIF ici, nommé d’après l’heure</translation>
    </message>
    <message id="IDD_CLI_FORCE">
        <source>Replace the file if it exists</source>
        <translation>Remplacer le fichier s’il existe</translation>
    </message>
    <message id="IDD_CLI_SEE_HELP">
        <source>“tovarel --help” and “tovarel record --help” say more.</source>
        <translation>Voir «&#xa0;tovarel --help&#xa0;» et «&#xa0;tovarel record --help&#xa0;».</translation>
    </message>
    <message id="IDD_CLI_EXAMPLES">
        <source>Examples:</source>
        <translation>Exemples&#xa0;:</translation>
    </message>
    <message id="IDD_CLI_ONE_TARGET">
        <source>Give exactly one of --region, --screen and --window.</source>
        <translation>Indiquez exactement une des options --region, --screen et --window.</translation>
    </message>
    <message id="IDD_CLI_ONE_WISH">
        <source>Give only one of --toggle, --pause and --stop.</source>
        <translation>Indiquez une seule des options --toggle, --pause et --stop.</translation>
    </message>
    <message id="IDD_CLI_UNKNOWN">
        <source>“%1” is not a command of Tovarel.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une commande de Tovarel.</translation>
    </message>
    <message id="IDD_CLI_NEEDS_SECONDS">
        <source>Say how long to record with --seconds.</source>
        <translation>Indiquez la durée de l’enregistrement avec --seconds.</translation>
    </message>
    <message id="IDD_CLI_NOT_NUMBER">
        <source>%1 takes a number from %2 to %3.</source>
        <translation>%1 attend un nombre de %2 à %3.</translation>
    </message>
    <message id="IDD_CLI_NOT_REGION">
        <source>“%1” is not a region. --region takes width, height and place in pixels, as in 640x480+100+80.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une zone. --region attend la largeur, la hauteur et la position en pixels, comme 640x480+100+80.</translation>
    </message>
    <message id="IDD_CLI_NOT_QUALITY">
        <source>“%1” is not a quality. --quality takes best, balanced, small or classic.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une qualité. --quality attend best, balanced, small ou classic.</translation>
    </message>
    <message id="IDD_CLI_NOT_FORMAT">
        <source>The name of the file must end in .gif, .webp or .mp4: “%1”</source>
        <translation>Le nom du fichier doit se terminer par .gif, .webp ou .mp4&#xa0;: «&#xa0;%1&#xa0;»</translation>
    </message>
    <message id="IDD_CLI_NO_PLACE">
        <source>No file can be written there: %1</source>
        <translation>Aucun fichier ne peut y être écrit&#xa0;: %1</translation>
    </message>
    <message id="IDD_CLI_EXISTS">
        <source>There is already a file %1. --force replaces it.</source>
        <translation>Le fichier %1 existe déjà. --force le remplace.</translation>
    </message>
    <message id="IDD_CLI_TOO_SHORT">
        <source>The recording is too short: an animation needs at least three frames.</source>
        <translation>L’enregistrement est trop court&#xa0;: une animation demande au moins trois images.</translation>
    </message>
    <message id="IDD_CLI_NOBODY">
        <source>Tovarel is not running.</source>
        <translation>Tovarel n’est pas en cours d’exécution.</translation>
    </message>
    <message id="IDD_CLI_NOT_NOW">
        <source>Tovarel cannot do that now.</source>
        <translation>Tovarel ne peut pas le faire maintenant.</translation>
    </message>
    <message id="IDD_CLI_NOT_RECORDING">
        <source>Tovarel is not recording.</source>
        <translation>Tovarel n’enregistre pas en ce moment.</translation>
    </message>
    <message id="IDD_CLI_SAVING">
        <source>Tovarel is still saving the last recording.</source>
        <translation>Tovarel sauvegarde encore le dernier enregistrement.</translation>
    </message>
    <message id="IDD_CLI_ASKING">
        <source>Tovarel is waiting for an answer in its window.</source>
        <translation>Tovarel attend une réponse dans sa fenêtre.</translation>
    </message>
    <message id="IDD_CLI_NO_PICTURE">
        <source>The display server provides no picture of the screen.</source>
        <translation>Le serveur d’affichage ne fournit aucune image de l’écran.</translation>
    </message>
    <message id="IDD_CLI_REGION_OUTSIDE">
        <source>That is not wholly on the desktop, which has %1 × %2 pixels.</source>
        <translation>Cela dépasse le bureau, qui mesure %1 × %2 pixels.</translation>
    </message>
    <message id="IDD_CLI_NO_SCREEN">
        <source>There is no monitor number %1. Monitors: %2</source>
        <translation>Il n’y a pas de moniteur numéro %1. Moniteurs&#xa0;: %2</translation>
    </message>
    <message id="IDD_CLI_DESKTOP_CHOOSES">
        <source>Here the desktop’s own dialog decides which monitor is recorded: use --screen without a number, or --region.</source>
        <translation>Ici, c’est la boîte de dialogue du bureau qui détermine le moniteur à enregistrer&#xa0;: utilisez --screen sans numéro, ou --region.</translation>
    </message>
    <message id="IDD_CLI_NO_WINDOW">
        <source>No window on the screen has “%1” in its title.</source>
        <translation>Aucune fenêtre à l’écran n’a «&#xa0;%1&#xa0;» dans son titre.</translation>
    </message>
    <message id="IDD_CLI_STARTS">
        <source>Recording starts in %1&#xa0;s</source>
        <translation>L’enregistrement commence dans %1&#xa0;s</translation>
    </message>
    <message id="IDD_CLI_RECORDING">
        <source>Recording: %1 of %2&#xa0;s · Frames: %3</source>
        <translation>Enregistrement&#xa0;: %1 sur %2&#xa0;s · Images&#xa0;: %3</translation>
    </message>
    <message id="IDD_CLI_ENCODING">
        <source>Generating the file: %1%</source>
        <translation>Création du fichier&#xa0;: %1&#x202f;%</translation>
    </message>
    <message id="IDD_MOVE_IS_FOLDER">
        <source>There is already a folder with that name.</source>
        <translation>Un dossier portant ce nom existe déjà.</translation>
    </message>
    <message id="IDD_MOVE_NOT_A_FILE">
        <source>There is already something with that name, and it is not a regular file.</source>
        <translation>Un élément portant ce nom existe déjà et n’est pas un fichier ordinaire.</translation>
    </message>
    <message id="IDD_MOVE_SAME_FILE">
        <source>Source and destination are the same file.</source>
        <translation>La source et la destination sont le même fichier.</translation>
    </message>
    <message id="IDD_MOVE_WORKING_FOLDER">
        <source>Tovarel empties that folder automatically. Choose another one.</source>
        <translation>Tovarel vide ce dossier automatiquement. Choisissez-en un autre.</translation>
    </message>
    <message id="IDD_STATUS_SAVED">
        <source>Saved: %1 (%2).</source>
        <translation>Sauvegardé&#xa0;: %1 (%2).</translation>
    </message>
    <message id="IDD_STATUS_SAVED_NOTE">
        <source>Saved: %1 (%2). %3</source>
        <translation>Sauvegardé&#xa0;: %1 (%2). %3</translation>
    </message>
    <message id="IDD_STATUS_UNSAVED">
        <source>The %1 has not been saved, but it is still there.</source>
        <translation>Le fichier %1 n’est pas sauvegardé, mais il existe toujours.</translation>
    </message>
    <message id="IDD_SAVE_RESULT">
        <source>Save…</source>
        <translation>Sauvegarder…</translation>
    </message>
    <message id="IDD_SAVE_WITHOUT_ASKING">
        <source>Save Without Asking</source>
        <translation>Sauvegarder sans demander</translation>
    </message>
    <message id="IDD_GENERATE_AND_COPY">
        <source>Generate GIF and Copy</source>
        <translation>Créer le GIF et le copier</translation>
    </message>
    <message id="IDD_SAVING_OPTIONS">
        <source>Saving Options</source>
        <translation>Options de sauvegarde</translation>
    </message>
    <message id="IDD_LAST_FILE">
        <source>Last File</source>
        <translation>Dernier fichier</translation>
    </message>
    <message id="IDD_FILE_PICTURE">
        <source>Picture of the file</source>
        <translation>Image du fichier</translation>
    </message>
    <message id="IDD_FILE_FIGURES">
        <source>%1 · %2 × %3 · %4&#xa0;s</source>
        <translation>%1 · %2 × %3 · %4&#xa0;s</translation>
    </message>
    <message id="IDD_FILE_DRAG">
        <source>Drag it into another program</source>
        <translation>Faites-le glisser vers un autre programme</translation>
    </message>
    <message id="IDD_FILE_COPY">
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message id="IDD_FILE_OPEN">
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message id="IDD_FILE_SHOW">
        <source>Show in Folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message id="IDD_FILE_COPIED">
        <source>Copied: %1. Paste it into another program.</source>
        <translation>Copié&#xa0;: %1. Collez-le dans un autre programme.</translation>
    </message>
    <message id="IDD_FILE_GONE">
        <source>The file has been deleted or moved. Generate it again if you need it.</source>
        <translation>Le fichier a été supprimé ou déplacé. Créez-le de nouveau si nécessaire.</translation>
    </message>
    <message id="IDD_FILE_UNSAVED">
        <source>Not saved yet</source>
        <translation>Pas encore sauvegardé</translation>
    </message>
    <message id="IDD_FILE_REPLACED">
        <source>Another program has changed this file. Generate it again.</source>
        <translation>Un autre programme a modifié ce fichier. Créez-le de nouveau.</translation>
    </message>
    <message id="IDD_FILE_NOT_OPENED">
        <source>No program was found to open %1.</source>
        <translation>Aucun programme trouvé pour ouvrir %1.</translation>
    </message>
    <message id="IDD_FILE_READY">
        <source>The file is ready</source>
        <translation>Le fichier est prêt</translation>
    </message>
    <message id="IDD_UNSAVED_QUESTION">
        <source>The %1 has not been saved.</source>
        <translation>Le fichier %1 n’est pas sauvegardé.</translation>
    </message>
    <message id="IDD_UNSAVED_DETAIL">
        <source>Save it before you continue? If you discard it, the file is deleted; the recording stays.</source>
        <translation>Le sauvegarder avant de continuer&#x202f;? Si vous l’abandonnez, le fichier sera supprimé&#x202f;; l’enregistrement sera conservé.</translation>
    </message>
    <message id="IDD_DISCARD">
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message id="IDD_STATUS_GAP" numerus="yes">
        <source>The GIF contains only %1 of %Ln frames; the rest are missing.</source>
        <translation>
            <numerusform>Image dans le GIF&#xa0;: %1 sur %Ln. Le reste manquait.</numerusform>
            <numerusform>Images dans le GIF&#xa0;: %1 sur %Ln. Le reste manquait.</numerusform>
        </translation>
    </message>
    <message id="IDD_STATUS_WEBP_GAP" numerus="yes">
        <source>The WebP contains only the first %1 of %Ln frames; the next one is missing.</source>
        <translation>
            <numerusform>Image dans le WebP&#xa0;: %1 sur %Ln. La suivante manquait.</numerusform>
            <numerusform>Images dans le WebP&#xa0;: %1 sur %Ln. La suivante manquait.</numerusform>
        </translation>
    </message>
    <message id="IDD_STATUS_STILL">
        <source>The GIF does not move: all its frames are the same.</source>
        <translation>Le GIF n’est pas animé&#xa0;: toutes ses images sont identiques.</translation>
    </message>
    <message id="IDD_QUALITY">
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message id="IDD_QUALITY_TIP">
        <source>Quality of the GIF: “Best” keeps colors as exact as possible, “Small” gives the smallest file, “Classic” uses ffmpeg</source>
        <translation>Qualité du GIF&#xa0;: «&#xa0;Optimale&#xa0;» garde les couleurs aussi exactes que possible, «&#xa0;Compacte&#xa0;» donne le plus petit fichier, «&#xa0;Classique&#xa0;» utilise ffmpeg</translation>
    </message>
    <message id="IDD_QUALITY_BEST">
        <source>Best</source>
        <translation>Optimale</translation>
    </message>
    <message id="IDD_QUALITY_BALANCED">
        <source>Balanced</source>
        <translation>Équilibrée</translation>
    </message>
    <message id="IDD_QUALITY_SMALL">
        <source>Small</source>
        <translation>Compacte</translation>
    </message>
    <message id="IDD_QUALITY_CLASSIC">
        <source>Classic</source>
        <translation>Classique</translation>
    </message>
    <message id="IDD_SPEED">
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message id="IDD_GIF_THINNED">
        <source>GIF: reduced to 50&#xa0;fps</source>
        <translation>GIF&#xa0;: réduit à 50&#xa0;i/s</translation>
    </message>
    <message id="IDD_FIT_UNDER">
        <source>Max. file size</source>
        <translation>Taille max. du fichier</translation>
    </message>
    <message id="IDD_FIT_UNDER_TIP">
        <source>Maximum size of the GIF or WebP file. To stay below it, color accuracy is reduced first, then the frame rate, then the width and height</source>
        <translation>Taille maximale du fichier GIF ou WebP. Pour ne pas la dépasser, on réduit d’abord l’exactitude des couleurs, puis la fréquence d’images, puis la largeur et la hauteur</translation>
    </message>
    <message id="IDD_FIT_NOTE">
        <source>Colors, then frame rate, then size are lowered as far as needed.</source>
        <translation>Au besoin, on réduit les couleurs, puis la fréquence, puis la taille.</translation>
    </message>
    <message id="IDD_NO_LIMIT">
        <source>No limit</source>
        <translation>Sans limite</translation>
    </message>
    <message id="IDD_LIMIT_MB">
        <source>%1&#xa0;MB</source>
        <translation>%1&#xa0;Mo</translation>
    </message>
    <message id="IDD_LIMIT_KB">
        <source>%1&#xa0;kB</source>
        <translation>%1&#xa0;ko</translation>
    </message>
    <message id="IDD_LIMIT_NOT_NUMBER">
        <source>Type a file size, such as 8&#xa0;MB or 500&#xa0;kB, or choose “No limit”.</source>
        <translation>Saisissez une taille de fichier, par exemple 8&#xa0;Mo ou 500&#xa0;ko, ou choisissez «&#xa0;Sans limite&#xa0;».</translation>
    </message>
    <message id="IDD_FIT_IMPOSSIBLE">
        <source>The file does not fit under %1: even at the lowest frame rate and half the size it takes %2. Choose a higher limit or a smaller size, or keep less of the recording.</source>
        <translation>Le fichier ne tient pas dans %1&#xa0;: même avec la fréquence d’images la plus basse et la moitié de la taille, il fait %2. Choisissez une limite plus élevée ou une taille plus petite, ou conservez une partie plus courte de l’enregistrement.</translation>
    </message>
    <message id="IDD_FIT_ASK">
        <source>To fit under %1, the frame rate or the size that you chose must be lowered.</source>
        <translation>Pour tenir dans %1, il faut réduire la fréquence d’images ou la taille que vous avez choisie.</translation>
    </message>
    <message id="IDD_FIT_ASK_DETAIL">
        <source>What you chose stays in the fields.</source>
        <translation>Votre choix reste dans les champs.</translation>
    </message>
    <message id="IDD_FIT_KEEP">
        <source>Don’t Generate</source>
        <translation>Ne pas créer</translation>
    </message>
    <message id="IDD_FIT_LOWER">
        <source>Lower</source>
        <translation>Réduire</translation>
    </message>
    <message id="IDD_STATUS_FITTED">
        <source>To fit under %1, the size was reduced to %2 × %3 pixels and the frame rate to %4&#xa0;fps.</source>
        <translation>Pour tenir dans %1, la taille a été réduite à %2 × %3 pixels et la fréquence à %4&#xa0;i/s.</translation>
    </message>
    <message id="IDD_STATUS_FITTED_RATE">
        <source>To fit under %1, the frame rate was lowered from %2 to %3&#xa0;fps.</source>
        <translation>Pour tenir dans %1, la fréquence d’images a été réduite de %2 à %3&#xa0;i/s.</translation>
    </message>
    <message id="IDD_STATUS_FITTED_SIZE">
        <source>To fit under %1, the size was reduced to %2 × %3 pixels.</source>
        <translation>Pour tenir dans %1, la taille a été réduite à %2 × %3 pixels.</translation>
    </message>
    <message id="IDD_STATUS_FITTED_COLORS">
        <source>To fit under %1, the file has less exact colors.</source>
        <translation>Pour tenir dans %1, le fichier a des couleurs moins exactes.</translation>
    </message>
    <message id="IDD_ABOUT_SIZE">
        <source>GIF: about %1</source>
        <translation>GIF&#xa0;: environ %1</translation>
    </message>
    <message id="IDD_AT_MOST_SIZE">
        <source>GIF: at most %1</source>
        <translation>GIF&#xa0;: au maximum %1</translation>
    </message>
    <message id="IDD_GIF_SIZE">
        <source>GIF: %1</source>
        <translation>GIF&#xa0;: %1</translation>
    </message>
    <message id="IDD_PERCENT">
        <source>%1%</source>
        <translation>%1&#x202f;%</translation>
    </message>
    <message id="IDD_PERCENT_TIP">
        <source>%1% of the recording’s width and height</source>
        <translation>%1&#x202f;% de la largeur et de la hauteur de l’enregistrement</translation>
    </message>
    <message id="IDD_GENERATE_MP4">
        <source>Generate MP4</source>
        <translation>Créer le MP4</translation>
    </message>
    <message id="IDD_GENERATE_MP4_TIP">
        <source>Generates an MP4 video with the size, frame rate and speed chosen here</source>
        <translation>Crée une vidéo MP4 avec la taille, la fréquence d’images et la vitesse choisies ici</translation>
    </message>
    <message id="IDD_PROGRESS_MP4">
        <source>Generating the MP4…</source>
        <translation>Création du MP4…</translation>
    </message>
    <message id="IDD_MP4_PANEL">
        <source>Select a folder to save the MP4 video</source>
        <translation>Choisir un dossier où sauvegarder la vidéo MP4</translation>
    </message>
    <message id="IDD_MP4_SAVED_OK">
        <source>The MP4 has been saved.</source>
        <translation>Le MP4 a été sauvegardé.</translation>
    </message>
    <message id="IDD_MP4_NO_ENCODER">
        <source>This ffmpeg has no H.264 encoder (libx264), which an MP4 needs. Install an ffmpeg that has one, or generate a GIF or a WebP.</source>
        <translation>Ce ffmpeg n’a pas d’encodeur H.264 (libx264), nécessaire au MP4. Installez un ffmpeg qui en a un, ou créez un GIF ou un WebP.</translation>
    </message>
    <message id="IDD_STATUS_MP4_GAP" numerus="yes">
        <source>The MP4 contains only the first %1 of %Ln frames; the next one is missing.</source>
        <translation>
            <numerusform>Image dans le MP4&#xa0;: %1 sur %Ln. La suivante manquait.</numerusform>
            <numerusform>Images dans le MP4&#xa0;: %1 sur %Ln. La suivante manquait.</numerusform>
        </translation>
    </message>
    <message id="IDD_GENERATE_WEBP">
        <source>Generate WebP</source>
        <translation>Créer le WebP</translation>
    </message>
    <message id="IDD_WEBP_ABOUT">
        <source>WebP: about %1</source>
        <translation>WebP&#xa0;: environ %1</translation>
    </message>
    <message id="IDD_GENERATE_WEBP_TIP">
        <source>Generates a WebP with the size, frame rate and speed chosen here</source>
        <translation>Crée un WebP avec la taille, la fréquence d’images et la vitesse choisies ici</translation>
    </message>
    <message id="IDD_WEBP_LOOPS">
        <source>Repeat</source>
        <translation>Répétition</translation>
    </message>
    <message id="IDD_LOOP_FOREVER">
        <source>Forever</source>
        <translation>Sans fin</translation>
    </message>
    <message id="IDD_LOOP_ONCE">
        <source>Once</source>
        <translation>Une fois</translation>
    </message>
    <message id="IDD_LOOPS_REFUSED">
        <source>Enter a number from 0 to %1 for “Repeat”.</source>
        <translation>Saisissez pour «&#xa0;Répétition&#xa0;» un nombre de 0 à %1.</translation>
    </message>
    <message id="IDD_HOLD">
        <source>Hold last frame</source>
        <translation>Image fixe à la fin</translation>
    </message>
    <message id="IDD_HOLD_SECONDS">
        <source>%1&#xa0;s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message id="IDD_LOOPS_RANGE">
        <source>0 to %1</source>
        <translation>0 à %1</translation>
    </message>
    <message id="IDD_WIDTH_ZERO">
        <source>The width must be a number greater than 0.</source>
        <translation>La largeur doit être un nombre supérieur à 0.</translation>
    </message>
    <message id="IDD_WIDTH_NEGATIVE">
        <source>The width must not be negative.</source>
        <translation>La largeur ne doit pas être négative.</translation>
    </message>
    <message id="IDD_WIDTH_NOT_PLAIN">
        <source>The width may contain digits only.</source>
        <translation>La largeur ne doit contenir que des chiffres.</translation>
    </message>
    <message id="IDD_WIDTH_TOO_LARGE">
        <source>The width can be %1 pixels at most.</source>
        <translation>La largeur peut être de %1 pixels au plus.</translation>
    </message>
    <message id="IDD_HEIGHT_ZERO">
        <source>The height must be a number greater than 0.</source>
        <translation>La hauteur doit être un nombre supérieur à 0.</translation>
    </message>
    <message id="IDD_HEIGHT_NEGATIVE">
        <source>The height must not be negative.</source>
        <translation>La hauteur ne doit pas être négative.</translation>
    </message>
    <message id="IDD_HEIGHT_NOT_PLAIN">
        <source>The height may contain digits only.</source>
        <translation>La hauteur ne doit contenir que des chiffres.</translation>
    </message>
    <message id="IDD_HEIGHT_TOO_LARGE">
        <source>The height can be %1 pixels at most.</source>
        <translation>La hauteur peut être de %1 pixels au plus.</translation>
    </message>
    <message id="IDD_GIF_SUMMARY" numerus="yes">
        <source>%Ln frames, %1&#xa0;s at&#xa0;%2&#xa0;fps</source>
        <translation>
            <numerusform>%Ln image, %1&#xa0;s à&#xa0;%2&#xa0;i/s</numerusform>
            <numerusform>%Ln images, %1&#xa0;s à&#xa0;%2&#xa0;i/s</numerusform>
        </translation>
    </message>
    <message id="IDD_GIF_WEBP_SUMMARY">
        <source>GIF: %1 · WebP: %2</source>
        <translation>GIF&#xa0;: %1 · WebP&#xa0;: %2</translation>
    </message>
</context>
</TS>
