<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>ControlPanel</name>
    <message>
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>Playing, %1 of %2</source>
        <translation>Lecture, %1 sur %2</translation>
    </message>
    <message>
        <source>Paused, %1 of %2</source>
        <translation>En pause, %1 sur %2</translation>
    </message>
    <message>
        <source>0000/00/00 00:00:00</source>
        <translation>0000/00/00 00:00:00</translation>
    </message>
    <message>
        <source>000 km/h</source>
        <translation>000 km/h</translation>
    </message>
    <message>
        <source>N00.000000,E000.000000</source>
        <translation>N00.000000,E000.000000</translation>
    </message>
    <message>
        <source>00:00:00/00:00:00</source>
        <translation>00:00:00/00:00:00</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Ouvrir des fichiers</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Capture d’écran</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>%1 km/h</source>
        <translation>%1 km/h</translation>
    </message>
    <message>
        <source>%1 MPH</source>
        <translation>%1 mph</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Coordonnées</translation>
    </message>
    <message>
        <source>Position in the recording</source>
        <translation>Position dans l’enregistrement</translation>
    </message>
    <message>
        <source>Elapsed and total time</source>
        <translation>Temps écoulé et durée totale</translation>
    </message>
    <message>
        <source>Playback rate</source>
        <translation>Vitesse de lecture</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Couper le son</translation>
    </message>
    <message>
        <source>%1 (no position fix)</source>
        <translation>%1 (position indisponible)</translation>
    </message>
</context>
<context>
    <name>FComboBox</name>
    <message>
        <source>Slow</source>
        <translation>Ralentir</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>Accélérer</translation>
    </message>
</context>
<context>
    <name>GyroChartView</name>
    <message>
        <source>No telemetry in this recording</source>
        <translation>Aucune donnée de télémétrie dans cet enregistrement</translation>
    </message>
</context>
<context>
    <name>KeyList</name>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>MainWindows</name>
    <message>
        <source>MainWindows</source>
        <translation>Fenêtre principale</translation>
    </message>
    <message>
        <source>Velmora V1.1 - 20190712</source>
        <translation>Velmora V1.1 - 20190712</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Ouvrir des fichiers</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.265 (HEVC).</source>
        <translation>Cet ordinateur ne peut pas lire cette vidéo, car il ne dispose pas de la fonction de prise en charge nécessaire à la lecture du format H.265 (HEVC).</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.264 (AVC).</source>
        <translation>Cet ordinateur ne peut pas lire cette vidéo, car il ne dispose pas de la fonction de prise en charge nécessaire à la lecture du format H.264 (AVC).</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Liste de lecture</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Speed gauge</source>
        <translation>Compteur de vitesse</translation>
    </message>
    <message>
        <source>Compass</source>
        <translation>Boussole</translation>
    </message>
    <message>
        <source>G-sensor chart</source>
        <translation>Graphique du capteur G</translation>
    </message>
    <message>
        <source>Playback controls</source>
        <translation>Commandes de lecture</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir un dossier</translation>
    </message>
</context>
<context>
    <name>PlaybackNotices</name>
    <message>
        <source>Reading telemetry…</source>
        <translation>Lecture de la télémétrie…</translation>
    </message>
    <message>
        <source>This computer may be too slow for this recording.</source>
        <translation>Cet ordinateur est peut-être trop lent pour cet enregistrement.</translation>
    </message>
</context>
<context>
    <name>PlaybackProblem</name>
    <message>
        <source>The file is gone or cannot be read.</source>
        <translation>Le fichier n’existe plus ou est illisible.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>The file is not a video recording.</source>
        <translation>Le fichier n’est pas un enregistrement vidéo.</translation>
    </message>
    <message>
        <source>The recording is damaged: its header is missing.</source>
        <translation>L’enregistrement est endommagé : son en-tête manque.</translation>
    </message>
    <message>
        <source>The recording is damaged: it breaks off before its first picture.</source>
        <translation>L’enregistrement est endommagé : il s’interrompt avant la première image.</translation>
    </message>
    <message>
        <source>The recording is damaged.</source>
        <translation>L’enregistrement est endommagé.</translation>
    </message>
    <message>
        <source>No decoder for its pictures is installed.</source>
        <translation>Aucun décodeur n’est installé pour ses images.</translation>
    </message>
    <message>
        <source>No decoder for %1 is installed.</source>
        <translation>Aucun décodeur n’est installé pour %1.</translation>
    </message>
    <message>
        <source>The package %1 brings it.</source>
        <extracomment>%1 is the name of a package, which brings the missing decoder.</extracomment>
        <translation>Le paquet %1 le fournit.</translation>
    </message>
</context>
<context>
    <name>PlaylistModel</name>
    <message>
        <source>File Name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Create Date</source>
        <translation>Date de création</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
</context>
<context>
    <name>QInstaller</name>
    <message>
        <source>bytes</source>
        <translation>octets</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>Ko</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>To</translation>
    </message>
    <message>
        <source>PB</source>
        <translation>Po</translation>
    </message>
    <message>
        <source>EB</source>
        <translation>Eo</translation>
    </message>
    <message>
        <source>ZB</source>
        <translation>Zo</translation>
    </message>
    <message>
        <source>YB</source>
        <translation>Yo</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Quellfern</source>
        <translation>Quellfern</translation>
    </message>
</context>
<context>
    <name>RecordingSign</name>
    <message>
        <source>No telemetry in this recording</source>
        <translation>Aucune télémétrie dans cet enregistrement</translation>
    </message>
    <message>
        <source>Being examined</source>
        <translation>Examen en cours</translation>
    </message>
    <message>
        <source>Damaged: the header is missing, without which it cannot be played</source>
        <translation>Endommagé : il manque l’en-tête, sans lequel la lecture est impossible</translation>
    </message>
    <message>
        <source>Empty: the file has no content</source>
        <translation>Vide : le fichier n’a aucun contenu</translation>
    </message>
    <message>
        <source>The file is gone or cannot be read</source>
        <translation>Le fichier a disparu ou ne peut être lu</translation>
    </message>
    <message>
        <source>Not an MP4, MOV or AVI video</source>
        <translation>Ce n’est pas une vidéo MP4, MOV ou AVI</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off</source>
        <translation>Endommagé : l’enregistrement est tronqué</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 missing</source>
        <translation>Endommagé : l’enregistrement est tronqué, il manque au moins %1</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 of %2 missing</source>
        <translation>Endommagé : l’enregistrement est tronqué, il manque au moins %1 sur %2</translation>
    </message>
</context>
<context>
    <name>ScreenshotNotice</name>
    <message>
        <source>No screenshot: the folder %1 cannot be created</source>
        <translation>Pas de capture : impossible de créer le dossier %1</translation>
    </message>
    <message>
        <source>No screenshot: the program %1 is missing</source>
        <translation>Pas de capture : le programme %1 est introuvable</translation>
    </message>
    <message>
        <source>No screenshot: %1 could not be written</source>
        <translation>Pas de capture : impossible d’écrire %1</translation>
    </message>
    <message>
        <source>Screenshot saved: %1</source>
        <translation>Capture enregistrée : %1</translation>
    </message>
    <message>
        <source>Screenshots saved in %1</source>
        <translation>Captures enregistrées dans %1</translation>
    </message>
</context>
<context>
    <name>SeekByClick</name>
    <message>
        <source>%1 km/h</source>
        <translation>%1 km/h</translation>
    </message>
    <message>
        <source>%1 MPH</source>
        <translation>%1 mph</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Dialog</source>
        <translation>Boîte de dialogue</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Personal settings</source>
        <translation>Paramètres personnels</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>(zh-CN)简体中文</source>
        <translation>(zh-CN)简体中文</translation>
    </message>
    <message>
        <source>(zh-TW)繁體中文</source>
        <translation>(zh-TW)繁體中文</translation>
    </message>
    <message>
        <source>(en-US)English</source>
        <translation>(en-US)English</translation>
    </message>
    <message>
        <source>(en-GB)English</source>
        <translation>(en-GB)English</translation>
    </message>
    <message>
        <source>(fr)Français </source>
        <translation>(fr)Français </translation>
    </message>
    <message>
        <source>(it)Italiano</source>
        <translation>(it)Italiano</translation>
    </message>
    <message>
        <source>(jp)日本語 </source>
        <translation>(jp)日本語 </translation>
    </message>
    <message>
        <source>(pl)Polski</source>
        <translation>(pl)Polski</translation>
    </message>
    <message>
        <source>(ru)Pусский</source>
        <translation>(ru)Pусский</translation>
    </message>
    <message>
        <source>(de)Deutsch </source>
        <translation>(de)Deutsch </translation>
    </message>
    <message>
        <source>(es)Español </source>
        <translation>(es)Español </translation>
    </message>
    <message>
        <source>(pt)Portuguese</source>
        <translation>(pt)Portuguese</translation>
    </message>
    <message>
        <source>(ko)한국어</source>
        <translation>(ko)한국어</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Baidu Maps</source>
        <translation>Baidu Maps</translation>
    </message>
    <message>
        <source>Google Maps</source>
        <translation>Google Maps</translation>
    </message>
    <message>
        <source>OpenStreetMap</source>
        <translation>OpenStreetMap</translation>
    </message>
    <message>
        <source>SpeedUnit</source>
        <translation>Unité de vitesse</translation>
    </message>
    <message>
        <source>Km/h</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>MP/h</source>
        <translation>mph</translation>
    </message>
    <message>
        <source>Screenshot save path</source>
        <translation>Dossier des captures</translation>
    </message>
    <message>
        <source>choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Ouvrir un dossier</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Play or pause</source>
        <translation>Lecture ou pause</translation>
    </message>
    <message>
        <source>Beginning or end of the recording</source>
        <translation>Début ou fin de l’enregistrement</translation>
    </message>
    <message>
        <source>Previous or next recording</source>
        <translation>Enregistrement précédent ou suivant</translation>
    </message>
    <message>
        <source>Choose a recording in the list</source>
        <translation>Choisir un enregistrement dans la liste</translation>
    </message>
    <message>
        <source>Play the chosen recording</source>
        <translation>Lire l’enregistrement choisi</translation>
    </message>
    <message>
        <source>Slower or faster</source>
        <translation>Plus lent ou plus rapide</translation>
    </message>
    <message>
        <source>Louder or quieter</source>
        <translation>Plus fort ou moins fort</translation>
    </message>
    <message>
        <source>Sound off or on</source>
        <translation>Couper ou rétablir le son</translation>
    </message>
    <message>
        <source>Full screen on or off</source>
        <translation>Plein écran ou fenêtre</translation>
    </message>
    <message>
        <source>Leave the full screen</source>
        <translation>Quitter le plein écran</translation>
    </message>
    <message>
        <source>Take a screenshot</source>
        <translation>Faire une capture d’écran</translation>
    </message>
    <message>
        <source>Open recordings</source>
        <translation>Ouvrir des enregistrements</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>This list</source>
        <translation>Cette liste</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Page ↑</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Page ↓</translation>
    </message>
    <message>
        <source>Back or forward by a second</source>
        <translation>Une seconde en arrière ou en avant</translation>
    </message>
    <message>
        <source>Back or forward by a picture, paused</source>
        <translation>Une image en arrière ou en avant, en pause</translation>
    </message>
    <message>
        <source>Open all recordings in a folder</source>
        <translation>Ouvrir tous les enregistrements d’un dossier</translation>
    </message>
    <message>
        <source>Continue the recording that is offered</source>
        <translation>Reprendre l’enregistrement proposé</translation>
    </message>
    <message>
        <source>Menu of the list</source>
        <translation>Menu de la liste</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
</context>
<context>
    <name>RecordingOpener</name>
    <message>
        <source>No recordings in %1</source>
        <translation>Aucun enregistrement dans %1</translation>
    </message>
    <message>
        <source>Only the first %1 recordings were opened</source>
        <translation>Seuls les %1 premiers enregistrements ont été ouverts</translation>
    </message>
    <message>
        <source>Searching for recordings: %1 (Esc cancels)</source>
        <translation>Recherche d’enregistrements : %1 (Échap pour annuler)</translation>
    </message>
    <message>
        <source>In the list already, from another folder: %1</source>
        <translation>Déjà dans la liste, depuis un autre dossier : %1</translation>
    </message>
    <message>
        <source>In the list already, from other folders: %1 recordings</source>
        <translation>Déjà dans la liste, depuis d’autres dossiers : %1 enregistrements</translation>
    </message>
</context>
<context>
    <name>PlaylistMenu</name>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>Copier le nom</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Vider la liste</translation>
    </message>
    <message>
        <source>Remember List</source>
        <translation>Mémoriser la liste</translation>
    </message>
    <message>
        <source>The folder %1 is gone</source>
        <translation>Le dossier %1 n’existe plus</translation>
    </message>
    <message>
        <source>No program opens the folder %1</source>
        <translation>Aucun programme n’ouvre le dossier %1</translation>
    </message>
</context>
<context>
    <name>OpenMenu</name>
    <message>
        <source>Open Files…</source>
        <translation>Ouvrir des fichiers…</translation>
    </message>
    <message>
        <source>Open All in a Folder…</source>
        <translation>Ouvrir tout un dossier…</translation>
    </message>
</context>
<context>
    <name>ResumeOffer</name>
    <message>
        <source>Continue %1 at %2?</source>
        <translation>Reprendre %1 à %2 ?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Continue (R)</source>
        <translation>Reprendre (R)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ignorer</translation>
    </message>
</context>
<context>
    <name>TrackMenu</name>
    <message>
        <source>Save Track As…</source>
        <translation>Enregistrer le trajet sous…</translation>
    </message>
    <message>
        <source>Copy Position</source>
        <translation>Copier la position</translation>
    </message>
    <message>
        <source>Track saved: %1</source>
        <translation>Trajet enregistré : %1</translation>
    </message>
    <message>
        <source>The recording cannot be read.</source>
        <translation>L’enregistrement est illisible.</translation>
    </message>
    <message>
        <source>The recording has no telemetry.</source>
        <translation>L’enregistrement ne contient pas de télémétrie.</translation>
    </message>
    <message>
        <source>The track cannot be written to %1: %2</source>
        <translation>Impossible d’écrire le trajet dans %1 : %2</translation>
    </message>
</context>
</TS>
