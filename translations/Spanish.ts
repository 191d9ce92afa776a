<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>ControlPanel</name>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>Playing, %1 of %2</source>
        <translation>Reproduciendo, %1 de %2</translation>
    </message>
    <message>
        <source>Paused, %1 of %2</source>
        <translation>En pausa, %1 de %2</translation>
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
        <translation>Abrir archivos</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Captura de pantalla</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
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
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Coordenadas</translation>
    </message>
    <message>
        <source>Position in the recording</source>
        <translation>Posición en la grabación</translation>
    </message>
    <message>
        <source>Elapsed and total time</source>
        <translation>Tiempo transcurrido y total</translation>
    </message>
    <message>
        <source>Playback rate</source>
        <translation>Velocidad de reproducción</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>%1 (no position fix)</source>
        <translation>%1 (posición no disponible)</translation>
    </message>
</context>
<context>
    <name>FComboBox</name>
    <message>
        <source>Slow</source>
        <translation>Más lento</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>Más rápido</translation>
    </message>
</context>
<context>
    <name>GyroChartView</name>
    <message>
        <source>No telemetry in this recording</source>
        <translation>Esta grabación no contiene datos de telemetría</translation>
    </message>
</context>
<context>
    <name>KeyList</name>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>MainWindows</name>
    <message>
        <source>MainWindows</source>
        <translation>Ventana principal</translation>
    </message>
    <message>
        <source>Velmora V1.1 - 20190712</source>
        <translation>Velmora V1.1 - 20190712</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Abrir archivos</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.265 (HEVC).</source>
        <translation>Este equipo no puede reproducir este vídeo porque no dispone de la función de reproducción de vídeo necesaria para el formato H.265 (HEVC).</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.264 (AVC).</source>
        <translation>Este equipo no puede reproducir este vídeo porque no dispone de la función de reproducción de vídeo necesaria para el formato H.264 (AVC).</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Lista de reproducción</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Speed gauge</source>
        <translation>Velocímetro</translation>
    </message>
    <message>
        <source>Compass</source>
        <translation>Brújula</translation>
    </message>
    <message>
        <source>G-sensor chart</source>
        <translation>Gráfico del sensor G</translation>
    </message>
    <message>
        <source>Playback controls</source>
        <translation>Controles de reproducción</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
</context>
<context>
    <name>PlaybackNotices</name>
    <message>
        <source>Reading telemetry…</source>
        <translation>Leyendo la telemetría…</translation>
    </message>
    <message>
        <source>This computer may be too slow for this recording.</source>
        <translation>Es posible que este equipo sea demasiado lento para esta grabación.</translation>
    </message>
</context>
<context>
    <name>PlaybackProblem</name>
    <message>
        <source>The file is gone or cannot be read.</source>
        <translation>El archivo ya no existe o no se puede leer.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>The file is not a video recording.</source>
        <translation>El archivo no es una grabación de vídeo.</translation>
    </message>
    <message>
        <source>The recording is damaged: its header is missing.</source>
        <translation>La grabación está dañada: falta su cabecera.</translation>
    </message>
    <message>
        <source>The recording is damaged: it breaks off before its first picture.</source>
        <translation>La grabación está dañada: se interrumpe antes de la primera imagen.</translation>
    </message>
    <message>
        <source>The recording is damaged.</source>
        <translation>La grabación está dañada.</translation>
    </message>
    <message>
        <source>No decoder for its pictures is installed.</source>
        <translation>No hay ningún decodificador instalado para sus imágenes.</translation>
    </message>
    <message>
        <source>No decoder for %1 is installed.</source>
        <translation>No hay ningún decodificador instalado para %1.</translation>
    </message>
    <message>
        <source>The package %1 brings it.</source>
        <extracomment>%1 is the name of a package, which brings the missing decoder.</extracomment>
        <translation>Lo contiene el paquete %1.</translation>
    </message>
</context>
<context>
    <name>PlaylistModel</name>
    <message>
        <source>File Name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Create Date</source>
        <translation>Fecha de creación</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
</context>
<context>
    <name>QInstaller</name>
    <message>
        <source>bytes</source>
        <translation>bytes</translation>
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
        <translation>Esta grabación no tiene telemetría</translation>
    </message>
    <message>
        <source>Being examined</source>
        <translation>Examinando</translation>
    </message>
    <message>
        <source>Damaged: the header is missing, without which it cannot be played</source>
        <translation>Dañada: falta la cabecera, sin la cual no se puede reproducir</translation>
    </message>
    <message>
        <source>Empty: the file has no content</source>
        <translation>Vacío: el archivo no tiene contenido</translation>
    </message>
    <message>
        <source>The file is gone or cannot be read</source>
        <translation>El archivo ya no está o no se puede leer</translation>
    </message>
    <message>
        <source>Not an MP4, MOV or AVI video</source>
        <translation>No es un vídeo MP4, MOV o AVI</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off</source>
        <translation>Dañada: la grabación está cortada</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 missing</source>
        <translation>Dañada: la grabación está cortada, faltan al menos %1</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 of %2 missing</source>
        <translation>Dañada: la grabación está cortada, faltan al menos %1 de %2</translation>
    </message>
</context>
<context>
    <name>ScreenshotNotice</name>
    <message>
        <source>No screenshot: the folder %1 cannot be created</source>
        <translation>Sin captura: no se puede crear la carpeta %1</translation>
    </message>
    <message>
        <source>No screenshot: the program %1 is missing</source>
        <translation>Sin captura: falta el programa %1</translation>
    </message>
    <message>
        <source>No screenshot: %1 could not be written</source>
        <translation>Sin captura: no se pudo escribir %1</translation>
    </message>
    <message>
        <source>Screenshot saved: %1</source>
        <translation>Captura guardada: %1</translation>
    </message>
    <message>
        <source>Screenshots saved in %1</source>
        <translation>Capturas guardadas en %1</translation>
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
        <translation>Cuadro de diálogo</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Personal settings</source>
        <translation>Configuración personal</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
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
        <translation>Unidad de velocidad</translation>
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
        <translation>Carpeta de capturas</translation>
    </message>
    <message>
        <source>choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Abrir carpeta</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Play or pause</source>
        <translation>Reproducir o pausar</translation>
    </message>
    <message>
        <source>Beginning or end of the recording</source>
        <translation>Principio o final de la grabación</translation>
    </message>
    <message>
        <source>Previous or next recording</source>
        <translation>Grabación anterior o siguiente</translation>
    </message>
    <message>
        <source>Choose a recording in the list</source>
        <translation>Elegir una grabación de la lista</translation>
    </message>
    <message>
        <source>Play the chosen recording</source>
        <translation>Reproducir la grabación elegida</translation>
    </message>
    <message>
        <source>Slower or faster</source>
        <translation>Más lento o más rápido</translation>
    </message>
    <message>
        <source>Louder or quieter</source>
        <translation>Más alto o más bajo</translation>
    </message>
    <message>
        <source>Sound off or on</source>
        <translation>Quitar o activar el sonido</translation>
    </message>
    <message>
        <source>Full screen on or off</source>
        <translation>Activar o dejar la pantalla completa</translation>
    </message>
    <message>
        <source>Leave the full screen</source>
        <translation>Salir de la pantalla completa</translation>
    </message>
    <message>
        <source>Take a screenshot</source>
        <translation>Hacer una captura de pantalla</translation>
    </message>
    <message>
        <source>Open recordings</source>
        <translation>Abrir grabaciones</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>This list</source>
        <translation>Esta lista</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>RePág</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>AvPág</translation>
    </message>
    <message>
        <source>Back or forward by a second</source>
        <translation>Un segundo atrás o adelante</translation>
    </message>
    <message>
        <source>Back or forward by a picture, paused</source>
        <translation>Un fotograma atrás o adelante, en pausa</translation>
    </message>
    <message>
        <source>Open all recordings in a folder</source>
        <translation>Abrir todas las grabaciones de una carpeta</translation>
    </message>
    <message>
        <source>Continue the recording that is offered</source>
        <translation>Continuar la grabación propuesta</translation>
    </message>
    <message>
        <source>Menu of the list</source>
        <translation>Menú de la lista</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
</context>
<context>
    <name>RecordingOpener</name>
    <message>
        <source>No recordings in %1</source>
        <translation>No hay grabaciones en %1</translation>
    </message>
    <message>
        <source>Only the first %1 recordings were opened</source>
        <translation>Solo se han abierto las primeras %1 grabaciones</translation>
    </message>
    <message>
        <source>Searching for recordings: %1 (Esc cancels)</source>
        <translation>Buscando grabaciones: %1 (Esc cancela)</translation>
    </message>
    <message>
        <source>In the list already, from another folder: %1</source>
        <translation>Ya está en la lista, de otra carpeta: %1</translation>
    </message>
    <message>
        <source>In the list already, from other folders: %1 recordings</source>
        <translation>Ya están en la lista, de otras carpetas: %1 grabaciones</translation>
    </message>
</context>
<context>
    <name>PlaylistMenu</name>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>Copiar nombre</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Vaciar lista</translation>
    </message>
    <message>
        <source>Remember List</source>
        <translation>Recordar lista</translation>
    </message>
    <message>
        <source>The folder %1 is gone</source>
        <translation>La carpeta %1 ya no existe</translation>
    </message>
    <message>
        <source>No program opens the folder %1</source>
        <translation>Ningún programa abre la carpeta %1</translation>
    </message>
</context>
<context>
    <name>OpenMenu</name>
    <message>
        <source>Open Files…</source>
        <translation>Abrir archivos…</translation>
    </message>
    <message>
        <source>Open All in a Folder…</source>
        <translation>Abrir todo de una carpeta…</translation>
    </message>
</context>
<context>
    <name>ResumeOffer</name>
    <message>
        <source>Continue %1 at %2?</source>
        <translation>¿Continuar %1 en %2?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Continue (R)</source>
        <translation>Continuar (R)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Descartar</translation>
    </message>
</context>
<context>
    <name>TrackMenu</name>
    <message>
        <source>Save Track As…</source>
        <translation>Guardar recorrido como…</translation>
    </message>
    <message>
        <source>Copy Position</source>
        <translation>Copiar posición</translation>
    </message>
    <message>
        <source>Track saved: %1</source>
        <translation>Recorrido guardado: %1</translation>
    </message>
    <message>
        <source>The recording cannot be read.</source>
        <translation>No se puede leer la grabación.</translation>
    </message>
    <message>
        <source>The recording has no telemetry.</source>
        <translation>La grabación no tiene telemetría.</translation>
    </message>
    <message>
        <source>The track cannot be written to %1: %2</source>
        <translation>No se puede escribir el recorrido en %1: %2</translation>
    </message>
</context>
</TS>
