<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>ControlPanel</name>
    <message>
        <source>Stopped</source>
        <translation>Zatrzymano</translation>
    </message>
    <message>
        <source>Playing, %1 of %2</source>
        <translation>Odtwarzanie, %1 z %2</translation>
    </message>
    <message>
        <source>Paused, %1 of %2</source>
        <translation>Wstrzymano, %1 z %2</translation>
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
        <translation>Otwórz pliki</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Zrzut ekranu</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Poprzedni</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Odtwórz</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Następny</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Głośność</translation>
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
        <translation>Data i godzina</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Prędkość</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Współrzędne</translation>
    </message>
    <message>
        <source>Position in the recording</source>
        <translation>Pozycja w nagraniu</translation>
    </message>
    <message>
        <source>Elapsed and total time</source>
        <translation>Czas odtworzony i całkowity</translation>
    </message>
    <message>
        <source>Playback rate</source>
        <translation>Szybkość odtwarzania</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Wycisz</translation>
    </message>
    <message>
        <source>%1 (no position fix)</source>
        <translation>%1 (brak ustalonej pozycji)</translation>
    </message>
</context>
<context>
    <name>FComboBox</name>
    <message>
        <source>Slow</source>
        <translation>Wolniej</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>Szybciej</translation>
    </message>
</context>
<context>
    <name>GyroChartView</name>
    <message>
        <source>No telemetry in this recording</source>
        <translation>To nagranie nie zawiera danych telemetrycznych</translation>
    </message>
</context>
<context>
    <name>KeyList</name>
    <message>
        <source>Keys</source>
        <translation>Klawisze</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>MainWindows</name>
    <message>
        <source>MainWindows</source>
        <translation>Okno główne</translation>
    </message>
    <message>
        <source>Velmora V1.1 - 20190712</source>
        <translation>Velmora V1.1 - 20190712</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimalizuj</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maksymalizuj</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Otwórz pliki</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.265 (HEVC).</source>
        <translation>Ten komputer nie może odtworzyć tego filmu, ponieważ nie ma funkcji obsługi odtwarzania wideo wymaganej dla formatu H.265 (HEVC).</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.264 (AVC).</source>
        <translation>Ten komputer nie może odtworzyć tego filmu, ponieważ nie ma funkcji obsługi odtwarzania wideo wymaganej dla formatu H.264 (AVC).</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Obraz</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Lista odtwarzania</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Speed gauge</source>
        <translation>Prędkościomierz</translation>
    </message>
    <message>
        <source>Compass</source>
        <translation>Kompas</translation>
    </message>
    <message>
        <source>G-sensor chart</source>
        <translation>Wykres czujnika przeciążeń</translation>
    </message>
    <message>
        <source>Playback controls</source>
        <translation>Sterowanie odtwarzaniem</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Otwórz folder</translation>
    </message>
</context>
<context>
    <name>PlaybackNotices</name>
    <message>
        <source>Reading telemetry…</source>
        <translation>Odczytywanie telemetrii…</translation>
    </message>
    <message>
        <source>This computer may be too slow for this recording.</source>
        <translation>Ten komputer może być zbyt wolny dla tego nagrania.</translation>
    </message>
</context>
<context>
    <name>PlaybackProblem</name>
    <message>
        <source>The file is gone or cannot be read.</source>
        <translation>Plik już nie istnieje lub nie można go odczytać.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Plik jest pusty.</translation>
    </message>
    <message>
        <source>The file is not a video recording.</source>
        <translation>Plik nie jest nagraniem wideo.</translation>
    </message>
    <message>
        <source>The recording is damaged: its header is missing.</source>
        <translation>Nagranie jest uszkodzone: brakuje nagłówka.</translation>
    </message>
    <message>
        <source>The recording is damaged: it breaks off before its first picture.</source>
        <translation>Nagranie jest uszkodzone: urywa się przed pierwszym obrazem.</translation>
    </message>
    <message>
        <source>The recording is damaged.</source>
        <translation>Nagranie jest uszkodzone.</translation>
    </message>
    <message>
        <source>No decoder for its pictures is installed.</source>
        <translation>Nie zainstalowano dekodera dla jego obrazów.</translation>
    </message>
    <message>
        <source>No decoder for %1 is installed.</source>
        <translation>Nie zainstalowano dekodera %1.</translation>
    </message>
    <message>
        <source>The package %1 brings it.</source>
        <extracomment>%1 is the name of a package, which brings the missing decoder.</extracomment>
        <translation>Zawiera go pakiet %1.</translation>
    </message>
</context>
<context>
    <name>PlaylistModel</name>
    <message>
        <source>File Name</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Czas trwania</translation>
    </message>
    <message>
        <source>Create Date</source>
        <translation>Data utworzenia</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Rozdzielczość</translation>
    </message>
</context>
<context>
    <name>QInstaller</name>
    <message>
        <source>bytes</source>
        <translation>B</translation>
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
        <translation>Brak telemetrii w tym nagraniu</translation>
    </message>
    <message>
        <source>Being examined</source>
        <translation>Trwa sprawdzanie</translation>
    </message>
    <message>
        <source>Damaged: the header is missing, without which it cannot be played</source>
        <translation>Uszkodzone: brak nagłówka, bez którego nie można go odtworzyć</translation>
    </message>
    <message>
        <source>Empty: the file has no content</source>
        <translation>Pusty: plik nie ma zawartości</translation>
    </message>
    <message>
        <source>The file is gone or cannot be read</source>
        <translation>Plik zniknął lub nie można go odczytać</translation>
    </message>
    <message>
        <source>Not an MP4, MOV or AVI video</source>
        <translation>To nie jest wideo MP4, MOV ani AVI</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off</source>
        <translation>Uszkodzone: nagranie jest ucięte</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 missing</source>
        <translation>Uszkodzone: nagranie jest ucięte, brakuje co najmniej %1</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 of %2 missing</source>
        <translation>Uszkodzone: nagranie jest ucięte, brakuje co najmniej %1 z %2</translation>
    </message>
</context>
<context>
    <name>ScreenshotNotice</name>
    <message>
        <source>No screenshot: the folder %1 cannot be created</source>
        <translation>Brak zrzutu ekranu: nie można utworzyć folderu %1</translation>
    </message>
    <message>
        <source>No screenshot: the program %1 is missing</source>
        <translation>Brak zrzutu ekranu: brakuje programu %1</translation>
    </message>
    <message>
        <source>No screenshot: %1 could not be written</source>
        <translation>Brak zrzutu ekranu: nie można zapisać %1</translation>
    </message>
    <message>
        <source>Screenshot saved: %1</source>
        <translation>Zapisano zrzut ekranu: %1</translation>
    </message>
    <message>
        <source>Screenshots saved in %1</source>
        <translation>Zapisano zrzuty ekranu w %1</translation>
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
        <translation>Okno dialogowe</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Personal settings</source>
        <translation>Ustawienia osobiste</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
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
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Baidu Maps</source>
        <translation>Mapy Baidu</translation>
    </message>
    <message>
        <source>Google Maps</source>
        <translation>Mapy Google</translation>
    </message>
    <message>
        <source>OpenStreetMap</source>
        <translation>OpenStreetMap</translation>
    </message>
    <message>
        <source>SpeedUnit</source>
        <translation>Jednostka prędkości</translation>
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
        <translation>Folder zrzutów ekranu</translation>
    </message>
    <message>
        <source>choose</source>
        <translation>Wybierz</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Otwórz folder</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Play or pause</source>
        <translation>Odtwarzanie lub pauza</translation>
    </message>
    <message>
        <source>Beginning or end of the recording</source>
        <translation>Początek lub koniec nagrania</translation>
    </message>
    <message>
        <source>Previous or next recording</source>
        <translation>Poprzednie lub następne nagranie</translation>
    </message>
    <message>
        <source>Choose a recording in the list</source>
        <translation>Wybór nagrania na liście</translation>
    </message>
    <message>
        <source>Play the chosen recording</source>
        <translation>Odtworzenie wybranego nagrania</translation>
    </message>
    <message>
        <source>Slower or faster</source>
        <translation>Wolniej lub szybciej</translation>
    </message>
    <message>
        <source>Louder or quieter</source>
        <translation>Głośniej lub ciszej</translation>
    </message>
    <message>
        <source>Sound off or on</source>
        <translation>Wyłączenie lub włączenie dźwięku</translation>
    </message>
    <message>
        <source>Full screen on or off</source>
        <translation>Włączenie lub wyłączenie pełnego ekranu</translation>
    </message>
    <message>
        <source>Leave the full screen</source>
        <translation>Wyjście z pełnego ekranu</translation>
    </message>
    <message>
        <source>Take a screenshot</source>
        <translation>Wykonanie zrzutu ekranu</translation>
    </message>
    <message>
        <source>Open recordings</source>
        <translation>Otwarcie nagrań</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>This list</source>
        <translation>Ta lista</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spacja</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
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
        <translation>End</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Page Up</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Page Down</translation>
    </message>
    <message>
        <source>Back or forward by a second</source>
        <translation>Sekunda wstecz lub naprzód</translation>
    </message>
    <message>
        <source>Back or forward by a picture, paused</source>
        <translation>Klatka wstecz lub naprzód, w pauzie</translation>
    </message>
    <message>
        <source>Open all recordings in a folder</source>
        <translation>Otwarcie wszystkich nagrań z folderu</translation>
    </message>
    <message>
        <source>Continue the recording that is offered</source>
        <translation>Kontynuacja proponowanego nagrania</translation>
    </message>
    <message>
        <source>Menu of the list</source>
        <translation>Menu listy</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
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
        <translation>Brak nagrań w folderze %1</translation>
    </message>
    <message>
        <source>Only the first %1 recordings were opened</source>
        <translation>Otwarto tylko pierwsze nagrania, łącznie %1</translation>
    </message>
    <message>
        <source>Searching for recordings: %1 (Esc cancels)</source>
        <translation>Wyszukiwanie nagrań: %1 (Esc przerywa)</translation>
    </message>
    <message>
        <source>In the list already, from another folder: %1</source>
        <translation>Już na liście, z innego folderu: %1</translation>
    </message>
    <message>
        <source>In the list already, from other folders: %1 recordings</source>
        <translation>Już na liście, z innych folderów, liczba nagrań: %1</translation>
    </message>
</context>
<context>
    <name>PlaylistMenu</name>
    <message>
        <source>Play</source>
        <translation>Odtwórz</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>Kopiuj nazwę</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Wyczyść listę</translation>
    </message>
    <message>
        <source>Remember List</source>
        <translation>Zapamiętaj listę</translation>
    </message>
    <message>
        <source>The folder %1 is gone</source>
        <translation>Folder %1 już nie istnieje</translation>
    </message>
    <message>
        <source>No program opens the folder %1</source>
        <translation>Żaden program nie otwiera folderu %1</translation>
    </message>
</context>
<context>
    <name>OpenMenu</name>
    <message>
        <source>Open Files…</source>
        <translation>Otwórz pliki…</translation>
    </message>
    <message>
        <source>Open All in a Folder…</source>
        <translation>Otwórz wszystkie z folderu…</translation>
    </message>
</context>
<context>
    <name>ResumeOffer</name>
    <message>
        <source>Continue %1 at %2?</source>
        <translation>Kontynuować %1 od %2?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>Continue (R)</source>
        <translation>Kontynuuj (R)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Odrzuć</translation>
    </message>
</context>
<context>
    <name>TrackMenu</name>
    <message>
        <source>Save Track As…</source>
        <translation>Zapisz trasę jako…</translation>
    </message>
    <message>
        <source>Copy Position</source>
        <translation>Kopiuj pozycję</translation>
    </message>
    <message>
        <source>Track saved: %1</source>
        <translation>Zapisano trasę: %1</translation>
    </message>
    <message>
        <source>The recording cannot be read.</source>
        <translation>Nie można odczytać nagrania.</translation>
    </message>
    <message>
        <source>The recording has no telemetry.</source>
        <translation>Nagranie nie zawiera telemetrii.</translation>
    </message>
    <message>
        <source>The track cannot be written to %1: %2</source>
        <translation>Nie można zapisać trasy w %1: %2</translation>
    </message>
</context>
</TS>
