<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>ControlPanel</name>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Playing, %1 of %2</source>
        <translation>Wiedergabe, %1 von %2</translation>
    </message>
    <message>
        <source>Paused, %1 of %2</source>
        <translation>Pause, %1 von %2</translation>
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
        <translation>Dateien öffnen</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Screenshot</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Vorherige Datei</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nächste Datei</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
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
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Koordinaten</translation>
    </message>
    <message>
        <source>Position in the recording</source>
        <translation>Position in der Aufnahme</translation>
    </message>
    <message>
        <source>Elapsed and total time</source>
        <translation>Vergangene und gesamte Zeit</translation>
    </message>
    <message>
        <source>Playback rate</source>
        <translation>Wiedergabegeschwindigkeit</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stummschalten</translation>
    </message>
    <message>
        <source>%1 (no position fix)</source>
        <translation>%1 (keine Ortung)</translation>
    </message>
</context>
<context>
    <name>FComboBox</name>
    <message>
        <source>Slow</source>
        <translation>Langsamer</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>Schneller</translation>
    </message>
</context>
<context>
    <name>GyroChartView</name>
    <message>
        <source>No telemetry in this recording</source>
        <translation>Keine Telemetriedaten in dieser Aufnahme</translation>
    </message>
</context>
<context>
    <name>KeyList</name>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>MainWindows</name>
    <message>
        <source>MainWindows</source>
        <translation>Hauptfenster</translation>
    </message>
    <message>
        <source>Velmora V1.1 - 20190712</source>
        <translation>Velmora V1.1 - 20190712</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Dateien öffnen</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.265 (HEVC).</source>
        <translation>Dieser Computer kann dieses Video nicht wiedergeben, da ihm die zur Wiedergabe von H.265 (HEVC) erforderliche Unterstützung fehlt.</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.264 (AVC).</source>
        <translation>Dieser Computer kann dieses Video nicht wiedergeben, da ihm die zur Wiedergabe von H.264 (AVC) erforderliche Unterstützung fehlt.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Videobild</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Wiedergabeliste</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Speed gauge</source>
        <translation>Tachometer</translation>
    </message>
    <message>
        <source>Compass</source>
        <translation>Kompass</translation>
    </message>
    <message>
        <source>G-sensor chart</source>
        <translation>G-Sensor-Diagramm</translation>
    </message>
    <message>
        <source>Playback controls</source>
        <translation>Wiedergabesteuerung</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
</context>
<context>
    <name>PlaybackNotices</name>
    <message>
        <source>Reading telemetry…</source>
        <translation>Telemetrie wird gelesen …</translation>
    </message>
    <message>
        <source>This computer may be too slow for this recording.</source>
        <translation>Dieser Computer ist für diese Aufnahme möglicherweise zu langsam.</translation>
    </message>
</context>
<context>
    <name>PlaybackProblem</name>
    <message>
        <source>The file is gone or cannot be read.</source>
        <translation>Die Datei ist nicht mehr da oder kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The file is not a video recording.</source>
        <translation>Die Datei ist keine Videoaufnahme.</translation>
    </message>
    <message>
        <source>The recording is damaged: its header is missing.</source>
        <translation>Die Aufnahme ist beschädigt: Ihr Header fehlt.</translation>
    </message>
    <message>
        <source>The recording is damaged: it breaks off before its first picture.</source>
        <translation>Die Aufnahme ist beschädigt: Sie bricht vor dem ersten Bild ab.</translation>
    </message>
    <message>
        <source>The recording is damaged.</source>
        <translation>Die Aufnahme ist beschädigt.</translation>
    </message>
    <message>
        <source>No decoder for its pictures is installed.</source>
        <translation>Für die Bilder ist kein Decoder installiert.</translation>
    </message>
    <message>
        <source>No decoder for %1 is installed.</source>
        <translation>Für %1 ist kein Decoder installiert.</translation>
    </message>
    <message>
        <source>The package %1 brings it.</source>
        <extracomment>%1 is the name of a package, which brings the missing decoder.</extracomment>
        <translation>Er ist im Paket %1 enthalten.</translation>
    </message>
</context>
<context>
    <name>PlaylistModel</name>
    <message>
        <source>File Name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Create Date</source>
        <translation>Erstellt am</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
</context>
<context>
    <name>QInstaller</name>
    <message>
        <source>bytes</source>
        <translation>Byte</translation>
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
        <translation>Keine Telemetrie in dieser Aufnahme</translation>
    </message>
    <message>
        <source>Being examined</source>
        <translation>Wird untersucht</translation>
    </message>
    <message>
        <source>Damaged: the header is missing, without which it cannot be played</source>
        <translation>Beschädigt: Der Header fehlt, ohne den sie nicht wiedergegeben werden kann</translation>
    </message>
    <message>
        <source>Empty: the file has no content</source>
        <translation>Leer: Die Datei hat keinen Inhalt</translation>
    </message>
    <message>
        <source>The file is gone or cannot be read</source>
        <translation>Die Datei ist verschwunden oder nicht lesbar</translation>
    </message>
    <message>
        <source>Not an MP4, MOV or AVI video</source>
        <translation>Kein MP4-, MOV- oder AVI-Video</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off</source>
        <translation>Beschädigt: Die Aufnahme ist abgeschnitten</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 missing</source>
        <translation>Beschädigt: Die Aufnahme ist abgeschnitten, es fehlen mindestens %1</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 of %2 missing</source>
        <translation>Beschädigt: Die Aufnahme ist abgeschnitten, es fehlen mindestens %1 von %2</translation>
    </message>
</context>
<context>
    <name>ScreenshotNotice</name>
    <message>
        <source>No screenshot: the folder %1 cannot be created</source>
        <translation>Kein Screenshot: Der Ordner %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>No screenshot: the program %1 is missing</source>
        <translation>Kein Screenshot: Das Programm %1 fehlt</translation>
    </message>
    <message>
        <source>No screenshot: %1 could not be written</source>
        <translation>Kein Screenshot: %1 konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Screenshot saved: %1</source>
        <translation>Screenshot gespeichert: %1</translation>
    </message>
    <message>
        <source>Screenshots saved in %1</source>
        <translation>Screenshots gespeichert in %1</translation>
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
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Personal settings</source>
        <translation>Persönliche Einstellungen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
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
        <translation>Karte</translation>
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
        <translation>Geschwindigkeitseinheit</translation>
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
        <translation>Ordner für Screenshots</translation>
    </message>
    <message>
        <source>choose</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Ordner öffnen</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Play or pause</source>
        <translation>Wiedergabe oder Pause</translation>
    </message>
    <message>
        <source>Beginning or end of the recording</source>
        <translation>Anfang oder Ende der Aufnahme</translation>
    </message>
    <message>
        <source>Previous or next recording</source>
        <translation>Vorherige oder nächste Aufnahme</translation>
    </message>
    <message>
        <source>Choose a recording in the list</source>
        <translation>Eine Aufnahme in der Liste wählen</translation>
    </message>
    <message>
        <source>Play the chosen recording</source>
        <translation>Die gewählte Aufnahme abspielen</translation>
    </message>
    <message>
        <source>Slower or faster</source>
        <translation>Langsamer oder schneller</translation>
    </message>
    <message>
        <source>Louder or quieter</source>
        <translation>Lauter oder leiser</translation>
    </message>
    <message>
        <source>Sound off or on</source>
        <translation>Ton aus oder ein</translation>
    </message>
    <message>
        <source>Full screen on or off</source>
        <translation>Vollbild ein oder aus</translation>
    </message>
    <message>
        <source>Leave the full screen</source>
        <translation>Vollbild verlassen</translation>
    </message>
    <message>
        <source>Take a screenshot</source>
        <translation>Screenshot aufnehmen</translation>
    </message>
    <message>
        <source>Open recordings</source>
        <translation>Aufnahmen öffnen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>This list</source>
        <translation>Diese Liste</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Bild ↑</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Bild ↓</translation>
    </message>
    <message>
        <source>Back or forward by a second</source>
        <translation>Eine Sekunde zurück oder vor</translation>
    </message>
    <message>
        <source>Back or forward by a picture, paused</source>
        <translation>Ein Bild zurück oder vor, bei Pause</translation>
    </message>
    <message>
        <source>Open all recordings in a folder</source>
        <translation>Alle Aufnahmen in einem Ordner öffnen</translation>
    </message>
    <message>
        <source>Continue the recording that is offered</source>
        <translation>Die angebotene Aufnahme fortsetzen</translation>
    </message>
    <message>
        <source>Menu of the list</source>
        <translation>Menü der Liste</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
</context>
<context>
    <name>RecordingOpener</name>
    <message>
        <source>No recordings in %1</source>
        <translation>Keine Aufnahmen in %1</translation>
    </message>
    <message>
        <source>Only the first %1 recordings were opened</source>
        <translation>Nur die ersten %1 Aufnahmen wurden geöffnet</translation>
    </message>
    <message>
        <source>Searching for recordings: %1 (Esc cancels)</source>
        <translation>Suche nach Aufnahmen: %1 (Esc bricht ab)</translation>
    </message>
    <message>
        <source>In the list already, from another folder: %1</source>
        <translation>Bereits in der Liste, aus einem anderen Ordner: %1</translation>
    </message>
    <message>
        <source>In the list already, from other folders: %1 recordings</source>
        <translation>Bereits in der Liste, aus anderen Ordnern: %1 Aufnahmen</translation>
    </message>
</context>
<context>
    <name>PlaylistMenu</name>
    <message>
        <source>Play</source>
        <translation>Wiedergeben</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>Namen kopieren</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>Remember List</source>
        <translation>Liste merken</translation>
    </message>
    <message>
        <source>The folder %1 is gone</source>
        <translation>Der Ordner %1 ist nicht mehr da</translation>
    </message>
    <message>
        <source>No program opens the folder %1</source>
        <translation>Kein Programm öffnet den Ordner %1</translation>
    </message>
</context>
<context>
    <name>OpenMenu</name>
    <message>
        <source>Open Files…</source>
        <translation>Dateien öffnen …</translation>
    </message>
    <message>
        <source>Open All in a Folder…</source>
        <translation>Alle in einem Ordner öffnen …</translation>
    </message>
</context>
<context>
    <name>ResumeOffer</name>
    <message>
        <source>Continue %1 at %2?</source>
        <translation>%1 bei %2 fortsetzen?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Continue (R)</source>
        <translation>Fortsetzen (R)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Verwerfen</translation>
    </message>
</context>
<context>
    <name>TrackMenu</name>
    <message>
        <source>Save Track As…</source>
        <translation>Strecke speichern unter …</translation>
    </message>
    <message>
        <source>Copy Position</source>
        <translation>Position kopieren</translation>
    </message>
    <message>
        <source>Track saved: %1</source>
        <translation>Strecke gespeichert: %1</translation>
    </message>
    <message>
        <source>The recording cannot be read.</source>
        <translation>Die Aufnahme lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>The recording has no telemetry.</source>
        <translation>Die Aufnahme hat keine Telemetrie.</translation>
    </message>
    <message>
        <source>The track cannot be written to %1: %2</source>
        <translation>Die Strecke lässt sich nicht nach %1 schreiben: %2</translation>
    </message>
</context>
</TS>
