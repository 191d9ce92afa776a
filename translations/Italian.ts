<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>ControlPanel</name>
    <message>
        <source>Stopped</source>
        <translation>Interrotto</translation>
    </message>
    <message>
        <source>Playing, %1 of %2</source>
        <translation>In riproduzione, %1 di %2</translation>
    </message>
    <message>
        <source>Paused, %1 of %2</source>
        <translation>In pausa, %1 di %2</translation>
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
        <translation>Apri file</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Cattura schermata</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Precedente</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Successivo</translation>
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
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Coordinate</translation>
    </message>
    <message>
        <source>Position in the recording</source>
        <translation>Posizione nella registrazione</translation>
    </message>
    <message>
        <source>Elapsed and total time</source>
        <translation>Tempo trascorso e totale</translation>
    </message>
    <message>
        <source>Playback rate</source>
        <translation>Velocità di riproduzione</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Disattiva audio</translation>
    </message>
    <message>
        <source>%1 (no position fix)</source>
        <translation>%1 (posizione non disponibile)</translation>
    </message>
</context>
<context>
    <name>FComboBox</name>
    <message>
        <source>Slow</source>
        <translation>Più lento</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>Più veloce</translation>
    </message>
</context>
<context>
    <name>GyroChartView</name>
    <message>
        <source>No telemetry in this recording</source>
        <translation>Nessun dato di telemetria in questa registrazione</translation>
    </message>
</context>
<context>
    <name>KeyList</name>
    <message>
        <source>Keys</source>
        <translation>Tasti</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>MainWindows</name>
    <message>
        <source>MainWindows</source>
        <translation>Finestra principale</translation>
    </message>
    <message>
        <source>Velmora V1.1 - 20190712</source>
        <translation>Velmora V1.1 - 20190712</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.265 (HEVC).</source>
        <translation>Questo computer non può riprodurre questo video perché non dispone del supporto alla riproduzione video necessario per il formato H.265 (HEVC).</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.264 (AVC).</source>
        <translation>Questo computer non può riprodurre questo video perché non dispone del supporto alla riproduzione video necessario per il formato H.264 (AVC).</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Filmato</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Elenco di riproduzione</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mappa</translation>
    </message>
    <message>
        <source>Speed gauge</source>
        <translation>Tachimetro</translation>
    </message>
    <message>
        <source>Compass</source>
        <translation>Bussola</translation>
    </message>
    <message>
        <source>G-sensor chart</source>
        <translation>Grafico del sensore G</translation>
    </message>
    <message>
        <source>Playback controls</source>
        <translation>Comandi di riproduzione</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Apri cartella</translation>
    </message>
</context>
<context>
    <name>PlaybackNotices</name>
    <message>
        <source>Reading telemetry…</source>
        <translation>Lettura della telemetria…</translation>
    </message>
    <message>
        <source>This computer may be too slow for this recording.</source>
        <translation>Questo computer potrebbe essere troppo lento per questa registrazione.</translation>
    </message>
</context>
<context>
    <name>PlaybackProblem</name>
    <message>
        <source>The file is gone or cannot be read.</source>
        <translation>Il file non esiste più o non può essere letto.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Il file è vuoto.</translation>
    </message>
    <message>
        <source>The file is not a video recording.</source>
        <translation>Il file non è una registrazione video.</translation>
    </message>
    <message>
        <source>The recording is damaged: its header is missing.</source>
        <translation>La registrazione è danneggiata: manca l’intestazione.</translation>
    </message>
    <message>
        <source>The recording is damaged: it breaks off before its first picture.</source>
        <translation>La registrazione è danneggiata: si interrompe prima della prima immagine.</translation>
    </message>
    <message>
        <source>The recording is damaged.</source>
        <translation>La registrazione è danneggiata.</translation>
    </message>
    <message>
        <source>No decoder for its pictures is installed.</source>
        <translation>Non è installato alcun decodificatore per le sue immagini.</translation>
    </message>
    <message>
        <source>No decoder for %1 is installed.</source>
        <translation>Non è installato alcun decodificatore per %1.</translation>
    </message>
    <message>
        <source>The package %1 brings it.</source>
        <extracomment>%1 is the name of a package, which brings the missing decoder.</extracomment>
        <translation>È contenuto nel pacchetto %1.</translation>
    </message>
</context>
<context>
    <name>PlaylistModel</name>
    <message>
        <source>File Name</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Create Date</source>
        <translation>Data di creazione</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
</context>
<context>
    <name>QInstaller</name>
    <message>
        <source>bytes</source>
        <translation>byte</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>TB</translation>
    </message>
    <message>
        <source>PB</source>
        <translation>PB</translation>
    </message>
    <message>
        <source>EB</source>
        <translation>EB</translation>
    </message>
    <message>
        <source>ZB</source>
        <translation>ZB</translation>
    </message>
    <message>
        <source>YB</source>
        <translation>YB</translation>
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
        <translation>Nessuna telemetria in questa registrazione</translation>
    </message>
    <message>
        <source>Being examined</source>
        <translation>Esame in corso</translation>
    </message>
    <message>
        <source>Damaged: the header is missing, without which it cannot be played</source>
        <translation>Danneggiata: manca l’intestazione, senza la quale non può essere riprodotta</translation>
    </message>
    <message>
        <source>Empty: the file has no content</source>
        <translation>Vuoto: il file non ha contenuto</translation>
    </message>
    <message>
        <source>The file is gone or cannot be read</source>
        <translation>Il file non c’è più o non può essere letto</translation>
    </message>
    <message>
        <source>Not an MP4, MOV or AVI video</source>
        <translation>Non è un video MP4, MOV o AVI</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off</source>
        <translation>Danneggiata: la registrazione è troncata</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 missing</source>
        <translation>Danneggiata: la registrazione è troncata, mancano almeno %1</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 of %2 missing</source>
        <translation>Danneggiata: la registrazione è troncata, mancano almeno %1 su %2</translation>
    </message>
</context>
<context>
    <name>ScreenshotNotice</name>
    <message>
        <source>No screenshot: the folder %1 cannot be created</source>
        <translation>Nessuna schermata: impossibile creare la cartella %1</translation>
    </message>
    <message>
        <source>No screenshot: the program %1 is missing</source>
        <translation>Nessuna schermata: manca il programma %1</translation>
    </message>
    <message>
        <source>No screenshot: %1 could not be written</source>
        <translation>Nessuna schermata: impossibile scrivere %1</translation>
    </message>
    <message>
        <source>Screenshot saved: %1</source>
        <translation>Schermata salvata: %1</translation>
    </message>
    <message>
        <source>Screenshots saved in %1</source>
        <translation>Schermate salvate in %1</translation>
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
        <translation>Finestra di dialogo</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Personal settings</source>
        <translation>Impostazioni personali</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
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
        <translation>Mappa</translation>
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
        <translation>Unità di velocità</translation>
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
        <translation>Cartella delle schermate</translation>
    </message>
    <message>
        <source>choose</source>
        <translation>Scegli</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Apri cartella</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Play or pause</source>
        <translation>Riproduzione o pausa</translation>
    </message>
    <message>
        <source>Beginning or end of the recording</source>
        <translation>Inizio o fine della registrazione</translation>
    </message>
    <message>
        <source>Previous or next recording</source>
        <translation>Registrazione precedente o successiva</translation>
    </message>
    <message>
        <source>Choose a recording in the list</source>
        <translation>Scegli una registrazione nell’elenco</translation>
    </message>
    <message>
        <source>Play the chosen recording</source>
        <translation>Riproduci la registrazione scelta</translation>
    </message>
    <message>
        <source>Slower or faster</source>
        <translation>Più lento o più veloce</translation>
    </message>
    <message>
        <source>Louder or quieter</source>
        <translation>Volume più alto o più basso</translation>
    </message>
    <message>
        <source>Sound off or on</source>
        <translation>Audio disattivato o attivo</translation>
    </message>
    <message>
        <source>Full screen on or off</source>
        <translation>Schermo intero attivo o disattivato</translation>
    </message>
    <message>
        <source>Leave the full screen</source>
        <translation>Esci dallo schermo intero</translation>
    </message>
    <message>
        <source>Take a screenshot</source>
        <translation>Cattura una schermata</translation>
    </message>
    <message>
        <source>Open recordings</source>
        <translation>Apri registrazioni</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>This list</source>
        <translation>Questo elenco</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spazio</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Invio</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Pag ↑</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Pag ↓</translation>
    </message>
    <message>
        <source>Back or forward by a second</source>
        <translation>Indietro o avanti di un secondo</translation>
    </message>
    <message>
        <source>Back or forward by a picture, paused</source>
        <translation>Indietro o avanti di un fotogramma, in pausa</translation>
    </message>
    <message>
        <source>Open all recordings in a folder</source>
        <translation>Apri tutte le registrazioni di una cartella</translation>
    </message>
    <message>
        <source>Continue the recording that is offered</source>
        <translation>Riprendi la registrazione proposta</translation>
    </message>
    <message>
        <source>Menu of the list</source>
        <translation>Menu dell’elenco</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maiusc</translation>
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
        <translation>Nessuna registrazione in %1</translation>
    </message>
    <message>
        <source>Only the first %1 recordings were opened</source>
        <translation>Sono state aperte solo le prime %1 registrazioni</translation>
    </message>
    <message>
        <source>Searching for recordings: %1 (Esc cancels)</source>
        <translation>Ricerca di registrazioni: %1 (Esc per annullare)</translation>
    </message>
    <message>
        <source>In the list already, from another folder: %1</source>
        <translation>Già nell’elenco, da un’altra cartella: %1</translation>
    </message>
    <message>
        <source>In the list already, from other folders: %1 recordings</source>
        <translation>Già nell’elenco, da altre cartelle: %1 registrazioni</translation>
    </message>
</context>
<context>
    <name>PlaylistMenu</name>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>Copia nome</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Svuota elenco</translation>
    </message>
    <message>
        <source>Remember List</source>
        <translation>Ricorda elenco</translation>
    </message>
    <message>
        <source>The folder %1 is gone</source>
        <translation>La cartella %1 non esiste più</translation>
    </message>
    <message>
        <source>No program opens the folder %1</source>
        <translation>Nessun programma apre la cartella %1</translation>
    </message>
</context>
<context>
    <name>OpenMenu</name>
    <message>
        <source>Open Files…</source>
        <translation>Apri file…</translation>
    </message>
    <message>
        <source>Open All in a Folder…</source>
        <translation>Apri un’intera cartella…</translation>
    </message>
</context>
<context>
    <name>ResumeOffer</name>
    <message>
        <source>Continue %1 at %2?</source>
        <translation>Riprendere %1 da %2?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Continue (R)</source>
        <translation>Riprendi (R)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ignora</translation>
    </message>
</context>
<context>
    <name>TrackMenu</name>
    <message>
        <source>Save Track As…</source>
        <translation>Salva tracciato con nome…</translation>
    </message>
    <message>
        <source>Copy Position</source>
        <translation>Copia posizione</translation>
    </message>
    <message>
        <source>Track saved: %1</source>
        <translation>Tracciato salvato: %1</translation>
    </message>
    <message>
        <source>The recording cannot be read.</source>
        <translation>Impossibile leggere la registrazione.</translation>
    </message>
    <message>
        <source>The recording has no telemetry.</source>
        <translation>La registrazione non contiene telemetria.</translation>
    </message>
    <message>
        <source>The track cannot be written to %1: %2</source>
        <translation>Impossibile scrivere il tracciato in %1: %2</translation>
    </message>
</context>
</TS>
