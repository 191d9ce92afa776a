<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en_US">
<context>
    <name>ControlPanel</name>
    <message>
        <source>Stopped</source>
        <translation>Parado</translation>
    </message>
    <message>
        <source>Playing, %1 of %2</source>
        <translation>A reproduzir, %1 de %2</translation>
    </message>
    <message>
        <source>Paused, %1 of %2</source>
        <translation>Em pausa, %1 de %2</translation>
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
        <translation>Abrir ficheiros</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Captura de ecrã</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
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
        <translation>Data e hora</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidade</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Coordenadas</translation>
    </message>
    <message>
        <source>Position in the recording</source>
        <translation>Posição na gravação</translation>
    </message>
    <message>
        <source>Elapsed and total time</source>
        <translation>Tempo decorrido e total</translation>
    </message>
    <message>
        <source>Playback rate</source>
        <translation>Velocidade de reprodução</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>%1 (no position fix)</source>
        <translation>%1 (posição indisponível)</translation>
    </message>
</context>
<context>
    <name>FComboBox</name>
    <message>
        <source>Slow</source>
        <translation>Mais lento</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>Mais rápido</translation>
    </message>
</context>
<context>
    <name>GyroChartView</name>
    <message>
        <source>No telemetry in this recording</source>
        <translation>Esta gravação não contém dados de telemetria</translation>
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
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>MainWindows</name>
    <message>
        <source>MainWindows</source>
        <translation>Janela principal</translation>
    </message>
    <message>
        <source>Velmora V1.1 - 20190712</source>
        <translation>Velmora V1.1 - 20190712</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Definições</translation>
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
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Abrir ficheiros</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.265 (HEVC).</source>
        <translation>Este computador não consegue reproduzir este vídeo porque não dispõe da função de reprodução de vídeo necessária para o formato H.265 (HEVC).</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.264 (AVC).</source>
        <translation>Este computador não consegue reproduzir este vídeo porque não dispõe da função de reprodução de vídeo necessária para o formato H.264 (AVC).</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Lista de reprodução</translation>
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
        <translation>Bússola</translation>
    </message>
    <message>
        <source>G-sensor chart</source>
        <translation>Gráfico do sensor G</translation>
    </message>
    <message>
        <source>Playback controls</source>
        <translation>Controlos de reprodução</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir pasta</translation>
    </message>
</context>
<context>
    <name>PlaybackNotices</name>
    <message>
        <source>Reading telemetry…</source>
        <translation>A ler a telemetria…</translation>
    </message>
    <message>
        <source>This computer may be too slow for this recording.</source>
        <translation>Este computador poderá ser demasiado lento para esta gravação.</translation>
    </message>
</context>
<context>
    <name>PlaybackProblem</name>
    <message>
        <source>The file is gone or cannot be read.</source>
        <translation>O ficheiro já não existe ou não pode ser lido.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>O ficheiro está vazio.</translation>
    </message>
    <message>
        <source>The file is not a video recording.</source>
        <translation>O ficheiro não é uma gravação de vídeo.</translation>
    </message>
    <message>
        <source>The recording is damaged: its header is missing.</source>
        <translation>A gravação está danificada: falta o cabeçalho.</translation>
    </message>
    <message>
        <source>The recording is damaged: it breaks off before its first picture.</source>
        <translation>A gravação está danificada: interrompe-se antes da primeira imagem.</translation>
    </message>
    <message>
        <source>The recording is damaged.</source>
        <translation>A gravação está danificada.</translation>
    </message>
    <message>
        <source>No decoder for its pictures is installed.</source>
        <translation>Não está instalado nenhum descodificador para as suas imagens.</translation>
    </message>
    <message>
        <source>No decoder for %1 is installed.</source>
        <translation>Não está instalado nenhum descodificador para %1.</translation>
    </message>
    <message>
        <source>The package %1 brings it.</source>
        <extracomment>%1 is the name of a package, which brings the missing decoder.</extracomment>
        <translation>O pacote %1 contém-no.</translation>
    </message>
</context>
<context>
    <name>PlaylistModel</name>
    <message>
        <source>File Name</source>
        <translation>Nome do ficheiro</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Create Date</source>
        <translation>Data de criação</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolução</translation>
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
        <translation>Sem telemetria nesta gravação</translation>
    </message>
    <message>
        <source>Being examined</source>
        <translation>A examinar</translation>
    </message>
    <message>
        <source>Damaged: the header is missing, without which it cannot be played</source>
        <translation>Danificada: falta o cabeçalho, sem o qual não pode ser reproduzida</translation>
    </message>
    <message>
        <source>Empty: the file has no content</source>
        <translation>Vazio: o ficheiro não tem conteúdo</translation>
    </message>
    <message>
        <source>The file is gone or cannot be read</source>
        <translation>O ficheiro desapareceu ou não pode ser lido</translation>
    </message>
    <message>
        <source>Not an MP4, MOV or AVI video</source>
        <translation>Não é um vídeo MP4, MOV ou AVI</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off</source>
        <translation>Danificada: a gravação está cortada</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 missing</source>
        <translation>Danificada: a gravação está cortada, faltam pelo menos %1</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 of %2 missing</source>
        <translation>Danificada: a gravação está cortada, faltam pelo menos %1 de %2</translation>
    </message>
</context>
<context>
    <name>ScreenshotNotice</name>
    <message>
        <source>No screenshot: the folder %1 cannot be created</source>
        <translation>Sem captura: não é possível criar a pasta %1</translation>
    </message>
    <message>
        <source>No screenshot: the program %1 is missing</source>
        <translation>Sem captura: falta o programa %1</translation>
    </message>
    <message>
        <source>No screenshot: %1 could not be written</source>
        <translation>Sem captura: não foi possível escrever %1</translation>
    </message>
    <message>
        <source>Screenshot saved: %1</source>
        <translation>Captura guardada: %1</translation>
    </message>
    <message>
        <source>Screenshots saved in %1</source>
        <translation>Capturas guardadas em %1</translation>
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
        <translation>Caixa de diálogo</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Personal settings</source>
        <translation>Definições pessoais</translation>
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
        <translation>Unidade de velocidade</translation>
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
        <translation>Pasta das capturas de ecrã</translation>
    </message>
    <message>
        <source>choose</source>
        <translation>Escolher</translation>
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
        <translation>Abrir pasta</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Play or pause</source>
        <translation>Reproduzir ou pausar</translation>
    </message>
    <message>
        <source>Beginning or end of the recording</source>
        <translation>Início ou fim da gravação</translation>
    </message>
    <message>
        <source>Previous or next recording</source>
        <translation>Gravação anterior ou seguinte</translation>
    </message>
    <message>
        <source>Choose a recording in the list</source>
        <translation>Escolher uma gravação na lista</translation>
    </message>
    <message>
        <source>Play the chosen recording</source>
        <translation>Reproduzir a gravação escolhida</translation>
    </message>
    <message>
        <source>Slower or faster</source>
        <translation>Mais lento ou mais rápido</translation>
    </message>
    <message>
        <source>Louder or quieter</source>
        <translation>Mais alto ou mais baixo</translation>
    </message>
    <message>
        <source>Sound off or on</source>
        <translation>Desligar ou ligar o som</translation>
    </message>
    <message>
        <source>Full screen on or off</source>
        <translation>Ecrã inteiro ligado ou desligado</translation>
    </message>
    <message>
        <source>Leave the full screen</source>
        <translation>Sair do ecrã inteiro</translation>
    </message>
    <message>
        <source>Take a screenshot</source>
        <translation>Fazer uma captura de ecrã</translation>
    </message>
    <message>
        <source>Open recordings</source>
        <translation>Abrir gravações</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
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
        <translation>Espaço</translation>
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
        <translation>Um segundo para trás ou para a frente</translation>
    </message>
    <message>
        <source>Back or forward by a picture, paused</source>
        <translation>Um fotograma para trás ou para a frente, em pausa</translation>
    </message>
    <message>
        <source>Open all recordings in a folder</source>
        <translation>Abrir todas as gravações de uma pasta</translation>
    </message>
    <message>
        <source>Continue the recording that is offered</source>
        <translation>Continuar a gravação proposta</translation>
    </message>
    <message>
        <source>Menu of the list</source>
        <translation>Menu da lista</translation>
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
        <translation>Não há gravações em %1</translation>
    </message>
    <message>
        <source>Only the first %1 recordings were opened</source>
        <translation>Só foram abertas as primeiras %1 gravações</translation>
    </message>
    <message>
        <source>Searching for recordings: %1 (Esc cancels)</source>
        <translation>A procurar gravações: %1 (Esc cancela)</translation>
    </message>
    <message>
        <source>In the list already, from another folder: %1</source>
        <translation>Já na lista, de outra pasta: %1</translation>
    </message>
    <message>
        <source>In the list already, from other folders: %1 recordings</source>
        <translation>Já na lista, de outras pastas: %1 gravações</translation>
    </message>
</context>
<context>
    <name>PlaylistMenu</name>
    <message>
        <source>Play</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>Copiar nome</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Limpar lista</translation>
    </message>
    <message>
        <source>Remember List</source>
        <translation>Memorizar lista</translation>
    </message>
    <message>
        <source>The folder %1 is gone</source>
        <translation>A pasta %1 já não existe</translation>
    </message>
    <message>
        <source>No program opens the folder %1</source>
        <translation>Nenhum programa abre a pasta %1</translation>
    </message>
</context>
<context>
    <name>OpenMenu</name>
    <message>
        <source>Open Files…</source>
        <translation>Abrir ficheiros…</translation>
    </message>
    <message>
        <source>Open All in a Folder…</source>
        <translation>Abrir tudo de uma pasta…</translation>
    </message>
</context>
<context>
    <name>ResumeOffer</name>
    <message>
        <source>Continue %1 at %2?</source>
        <translation>Continuar %1 em %2?</translation>
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
        <translation>Ignorar</translation>
    </message>
</context>
<context>
    <name>TrackMenu</name>
    <message>
        <source>Save Track As…</source>
        <translation>Guardar trajeto como…</translation>
    </message>
    <message>
        <source>Copy Position</source>
        <translation>Copiar posição</translation>
    </message>
    <message>
        <source>Track saved: %1</source>
        <translation>Trajeto guardado: %1</translation>
    </message>
    <message>
        <source>The recording cannot be read.</source>
        <translation>Não é possível ler a gravação.</translation>
    </message>
    <message>
        <source>The recording has no telemetry.</source>
        <translation>A gravação não tem telemetria.</translation>
    </message>
    <message>
        <source>The track cannot be written to %1: %2</source>
        <translation>Não é possível escrever o trajeto em %1: %2</translation>
    </message>
</context>
</TS>
