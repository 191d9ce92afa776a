<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>ControlPanel</name>
    <message>
        <source>Stopped</source>
        <translation>Остановлено</translation>
    </message>
    <message>
        <source>Playing, %1 of %2</source>
        <translation>Воспроизведение, %1 из %2</translation>
    </message>
    <message>
        <source>Paused, %1 of %2</source>
        <translation>Пауза, %1 из %2</translation>
    </message>
    <message>
        <source>0000/00/00 00:00:00</source>
        <translation>0000/00/00 00:00:00</translation>
    </message>
    <message>
        <source>000 km/h</source>
        <translation>000 км/ч</translation>
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
        <translation>Открыть файлы</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Снимок кадра</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Предыдущий</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Следующий</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Громкость</translation>
    </message>
    <message>
        <source>%1 km/h</source>
        <translation>%1 км/ч</translation>
    </message>
    <message>
        <source>%1 MPH</source>
        <translation>%1 миль/ч</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Дата и время</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Координаты</translation>
    </message>
    <message>
        <source>Position in the recording</source>
        <translation>Позиция в записи</translation>
    </message>
    <message>
        <source>Elapsed and total time</source>
        <translation>Прошедшее и общее время</translation>
    </message>
    <message>
        <source>Playback rate</source>
        <translation>Скорость воспроизведения</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Выключить звук</translation>
    </message>
    <message>
        <source>%1 (no position fix)</source>
        <translation>%1 (местоположение не определено)</translation>
    </message>
</context>
<context>
    <name>FComboBox</name>
    <message>
        <source>Slow</source>
        <translation>Медленнее</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>Быстрее</translation>
    </message>
</context>
<context>
    <name>GyroChartView</name>
    <message>
        <source>No telemetry in this recording</source>
        <translation>В этой записи нет телеметрии</translation>
    </message>
</context>
<context>
    <name>KeyList</name>
    <message>
        <source>Keys</source>
        <translation>Клавиши</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>MainWindows</name>
    <message>
        <source>MainWindows</source>
        <translation>Главное окно</translation>
    </message>
    <message>
        <source>Velmora V1.1 - 20190712</source>
        <translation>Velmora V1.1 - 20190712</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Развернуть</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>Свернуть в окно</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Открыть файлы</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.265 (HEVC).</source>
        <translation>Этот компьютер не может воспроизвести это видео: в нём нет функции поддержки воспроизведения, необходимой для формата H.265 (HEVC).</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.264 (AVC).</source>
        <translation>Этот компьютер не может воспроизвести это видео: в нём нет функции поддержки воспроизведения, необходимой для формата H.264 (AVC).</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Список воспроизведения</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Карта</translation>
    </message>
    <message>
        <source>Speed gauge</source>
        <translation>Спидометр</translation>
    </message>
    <message>
        <source>Compass</source>
        <translation>Компас</translation>
    </message>
    <message>
        <source>G-sensor chart</source>
        <translation>График G-сенсора</translation>
    </message>
    <message>
        <source>Playback controls</source>
        <translation>Управление воспроизведением</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Открыть папку</translation>
    </message>
</context>
<context>
    <name>PlaybackNotices</name>
    <message>
        <source>Reading telemetry…</source>
        <translation>Чтение телеметрии…</translation>
    </message>
    <message>
        <source>This computer may be too slow for this recording.</source>
        <translation>Возможно, этот компьютер слишком медленный для этой записи.</translation>
    </message>
</context>
<context>
    <name>PlaybackProblem</name>
    <message>
        <source>The file is gone or cannot be read.</source>
        <translation>Файл исчез или не читается.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Файл пуст.</translation>
    </message>
    <message>
        <source>The file is not a video recording.</source>
        <translation>Файл не является видеозаписью.</translation>
    </message>
    <message>
        <source>The recording is damaged: its header is missing.</source>
        <translation>Запись повреждена: отсутствует заголовок.</translation>
    </message>
    <message>
        <source>The recording is damaged: it breaks off before its first picture.</source>
        <translation>Запись повреждена: она обрывается до первого кадра.</translation>
    </message>
    <message>
        <source>The recording is damaged.</source>
        <translation>Запись повреждена.</translation>
    </message>
    <message>
        <source>No decoder for its pictures is installed.</source>
        <translation>Для этого изображения не установлен декодер.</translation>
    </message>
    <message>
        <source>No decoder for %1 is installed.</source>
        <translation>Для %1 не установлен декодер.</translation>
    </message>
    <message>
        <source>The package %1 brings it.</source>
        <extracomment>%1 is the name of a package, which brings the missing decoder.</extracomment>
        <translation>Он входит в пакет %1.</translation>
    </message>
</context>
<context>
    <name>PlaylistModel</name>
    <message>
        <source>File Name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Длительность</translation>
    </message>
    <message>
        <source>Create Date</source>
        <translation>Дата создания</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Разрешение</translation>
    </message>
</context>
<context>
    <name>QInstaller</name>
    <message>
        <source>bytes</source>
        <translation>байт</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>КБ</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>МБ</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>ГБ</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>ТБ</translation>
    </message>
    <message>
        <source>PB</source>
        <translation>ПБ</translation>
    </message>
    <message>
        <source>EB</source>
        <translation>ЭБ</translation>
    </message>
    <message>
        <source>ZB</source>
        <translation>ЗБ</translation>
    </message>
    <message>
        <source>YB</source>
        <translation>ЙБ</translation>
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
        <translation>В этой записи нет телеметрии</translation>
    </message>
    <message>
        <source>Being examined</source>
        <translation>Проверяется</translation>
    </message>
    <message>
        <source>Damaged: the header is missing, without which it cannot be played</source>
        <translation>Повреждена: отсутствует заголовок, без которого её нельзя воспроизвести</translation>
    </message>
    <message>
        <source>Empty: the file has no content</source>
        <translation>Пусто: в файле нет содержимого</translation>
    </message>
    <message>
        <source>The file is gone or cannot be read</source>
        <translation>Файл исчез или его нельзя прочитать</translation>
    </message>
    <message>
        <source>Not an MP4, MOV or AVI video</source>
        <translation>Это не видео MP4, MOV или AVI</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off</source>
        <translation>Повреждена: запись обрезана</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 missing</source>
        <translation>Повреждена: запись обрезана, не хватает не менее %1</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 of %2 missing</source>
        <translation>Повреждена: запись обрезана, не хватает не менее %1 из %2</translation>
    </message>
</context>
<context>
    <name>ScreenshotNotice</name>
    <message>
        <source>No screenshot: the folder %1 cannot be created</source>
        <translation>Нет снимка кадра: не удалось создать папку %1</translation>
    </message>
    <message>
        <source>No screenshot: the program %1 is missing</source>
        <translation>Нет снимка кадра: отсутствует программа %1</translation>
    </message>
    <message>
        <source>No screenshot: %1 could not be written</source>
        <translation>Нет снимка кадра: не удалось записать %1</translation>
    </message>
    <message>
        <source>Screenshot saved: %1</source>
        <translation>Снимок кадра сохранён: %1</translation>
    </message>
    <message>
        <source>Screenshots saved in %1</source>
        <translation>Снимки кадров сохранены в %1</translation>
    </message>
</context>
<context>
    <name>SeekByClick</name>
    <message>
        <source>%1 km/h</source>
        <translation>%1 км/ч</translation>
    </message>
    <message>
        <source>%1 MPH</source>
        <translation>%1 миль/ч</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Dialog</source>
        <translation>Диалог</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Personal settings</source>
        <translation>Личные настройки</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
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
        <translation>Карта</translation>
    </message>
    <message>
        <source>Baidu Maps</source>
        <translation>Карты Baidu</translation>
    </message>
    <message>
        <source>Google Maps</source>
        <translation>Google Карты</translation>
    </message>
    <message>
        <source>OpenStreetMap</source>
        <translation>OpenStreetMap</translation>
    </message>
    <message>
        <source>SpeedUnit</source>
        <translation>Единицы скорости</translation>
    </message>
    <message>
        <source>Km/h</source>
        <translation>км/ч</translation>
    </message>
    <message>
        <source>MP/h</source>
        <translation>миль/ч</translation>
    </message>
    <message>
        <source>Screenshot save path</source>
        <translation>Папка для снимков</translation>
    </message>
    <message>
        <source>choose</source>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Открыть папку</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Play or pause</source>
        <translation>Воспроизведение или пауза</translation>
    </message>
    <message>
        <source>Beginning or end of the recording</source>
        <translation>Начало или конец записи</translation>
    </message>
    <message>
        <source>Previous or next recording</source>
        <translation>Предыдущая или следующая запись</translation>
    </message>
    <message>
        <source>Choose a recording in the list</source>
        <translation>Выбрать запись в списке</translation>
    </message>
    <message>
        <source>Play the chosen recording</source>
        <translation>Воспроизвести выбранную запись</translation>
    </message>
    <message>
        <source>Slower or faster</source>
        <translation>Медленнее или быстрее</translation>
    </message>
    <message>
        <source>Louder or quieter</source>
        <translation>Громче или тише</translation>
    </message>
    <message>
        <source>Sound off or on</source>
        <translation>Выключить или включить звук</translation>
    </message>
    <message>
        <source>Full screen on or off</source>
        <translation>Полный экран: включить или выключить</translation>
    </message>
    <message>
        <source>Leave the full screen</source>
        <translation>Выйти из полного экрана</translation>
    </message>
    <message>
        <source>Take a screenshot</source>
        <translation>Сделать снимок кадра</translation>
    </message>
    <message>
        <source>Open recordings</source>
        <translation>Открыть записи</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>This list</source>
        <translation>Этот список</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Пробел</translation>
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
        <translation>На секунду назад или вперёд</translation>
    </message>
    <message>
        <source>Back or forward by a picture, paused</source>
        <translation>На кадр назад или вперёд, на паузе</translation>
    </message>
    <message>
        <source>Open all recordings in a folder</source>
        <translation>Открыть все записи из папки</translation>
    </message>
    <message>
        <source>Continue the recording that is offered</source>
        <translation>Продолжить предложенную запись</translation>
    </message>
    <message>
        <source>Menu of the list</source>
        <translation>Меню списка</translation>
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
        <translation>В папке %1 нет записей</translation>
    </message>
    <message>
        <source>Only the first %1 recordings were opened</source>
        <translation>Открыты только первые записи: %1</translation>
    </message>
    <message>
        <source>Searching for recordings: %1 (Esc cancels)</source>
        <translation>Поиск записей: %1 (Esc — отмена)</translation>
    </message>
    <message>
        <source>In the list already, from another folder: %1</source>
        <translation>Уже в списке, из другой папки: %1</translation>
    </message>
    <message>
        <source>In the list already, from other folders: %1 recordings</source>
        <translation>Уже в списке, из других папок, записей: %1</translation>
    </message>
</context>
<context>
    <name>PlaylistMenu</name>
    <message>
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>Копировать имя</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Очистить список</translation>
    </message>
    <message>
        <source>Remember List</source>
        <translation>Запоминать список</translation>
    </message>
    <message>
        <source>The folder %1 is gone</source>
        <translation>Папки %1 больше нет</translation>
    </message>
    <message>
        <source>No program opens the folder %1</source>
        <translation>Нет программы, которая открывает папку %1</translation>
    </message>
</context>
<context>
    <name>OpenMenu</name>
    <message>
        <source>Open Files…</source>
        <translation>Открыть файлы…</translation>
    </message>
    <message>
        <source>Open All in a Folder…</source>
        <translation>Открыть всё из папки…</translation>
    </message>
</context>
<context>
    <name>ResumeOffer</name>
    <message>
        <source>Continue %1 at %2?</source>
        <translation>Продолжить %1 с %2?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Continue (R)</source>
        <translation>Продолжить (R)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Отклонить</translation>
    </message>
</context>
<context>
    <name>TrackMenu</name>
    <message>
        <source>Save Track As…</source>
        <translation>Сохранить трек как…</translation>
    </message>
    <message>
        <source>Copy Position</source>
        <translation>Копировать координаты</translation>
    </message>
    <message>
        <source>Track saved: %1</source>
        <translation>Трек сохранён: %1</translation>
    </message>
    <message>
        <source>The recording cannot be read.</source>
        <translation>Не удаётся прочитать запись.</translation>
    </message>
    <message>
        <source>The recording has no telemetry.</source>
        <translation>В записи нет телеметрии.</translation>
    </message>
    <message>
        <source>The track cannot be written to %1: %2</source>
        <translation>Не удаётся сохранить трек в %1: %2</translation>
    </message>
</context>
</TS>
