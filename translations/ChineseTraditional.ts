<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>ControlPanel</name>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Playing, %1 of %2</source>
        <translation>正在播放，%1 / %2</translation>
    </message>
    <message>
        <source>Paused, %1 of %2</source>
        <translation>已暫停，%1 / %2</translation>
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
        <translation>開啟檔案</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>擷圖</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>上一個</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一個</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
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
        <translation>日期與時間</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>座標</translation>
    </message>
    <message>
        <source>Position in the recording</source>
        <translation>播放位置</translation>
    </message>
    <message>
        <source>Elapsed and total time</source>
        <translation>已播放時間與總時間</translation>
    </message>
    <message>
        <source>Playback rate</source>
        <translation>播放速度</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>靜音</translation>
    </message>
    <message>
        <source>%1 (no position fix)</source>
        <translation>%1（無定位）</translation>
    </message>
</context>
<context>
    <name>FComboBox</name>
    <message>
        <source>Slow</source>
        <translation>減速</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>加速</translation>
    </message>
</context>
<context>
    <name>GyroChartView</name>
    <message>
        <source>No telemetry in this recording</source>
        <translation>此錄影不含遙測資料</translation>
    </message>
</context>
<context>
    <name>KeyList</name>
    <message>
        <source>Keys</source>
        <translation>按鍵</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>MainWindows</name>
    <message>
        <source>MainWindows</source>
        <translation>主視窗</translation>
    </message>
    <message>
        <source>Velmora V1.1 - 20190712</source>
        <translation>Velmora V1.1 - 20190712</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>往下還原</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>開啟檔案</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.265 (HEVC).</source>
        <translation>本電腦缺少播放 H.265 (HEVC) 影片所需的播放支援功能，無法播放此影片。</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.264 (AVC).</source>
        <translation>本電腦缺少播放 H.264 (AVC) 影片所需的播放支援功能，無法播放此影片。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>播放清單</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地圖</translation>
    </message>
    <message>
        <source>Speed gauge</source>
        <translation>速度表</translation>
    </message>
    <message>
        <source>Compass</source>
        <translation>指南針</translation>
    </message>
    <message>
        <source>G-sensor chart</source>
        <translation>重力感測曲線圖</translation>
    </message>
    <message>
        <source>Playback controls</source>
        <translation>播放控制</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>開啟資料夾</translation>
    </message>
</context>
<context>
    <name>PlaybackNotices</name>
    <message>
        <source>Reading telemetry…</source>
        <translation>正在讀取遙測資料…</translation>
    </message>
    <message>
        <source>This computer may be too slow for this recording.</source>
        <translation>這台電腦播放此錄影可能太慢。</translation>
    </message>
</context>
<context>
    <name>PlaybackProblem</name>
    <message>
        <source>The file is gone or cannot be read.</source>
        <translation>檔案已不存在或無法讀取。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>檔案是空的。</translation>
    </message>
    <message>
        <source>The file is not a video recording.</source>
        <translation>此檔案不是影片錄影。</translation>
    </message>
    <message>
        <source>The recording is damaged: its header is missing.</source>
        <translation>錄影已損壞：缺少檔頭。</translation>
    </message>
    <message>
        <source>The recording is damaged: it breaks off before its first picture.</source>
        <translation>錄影已損壞：在第一個畫面之前就中斷了。</translation>
    </message>
    <message>
        <source>The recording is damaged.</source>
        <translation>錄影已損壞。</translation>
    </message>
    <message>
        <source>No decoder for its pictures is installed.</source>
        <translation>未安裝可解碼其畫面的解碼器。</translation>
    </message>
    <message>
        <source>No decoder for %1 is installed.</source>
        <translation>未安裝 %1 的解碼器。</translation>
    </message>
    <message>
        <source>The package %1 brings it.</source>
        <extracomment>%1 is the name of a package, which brings the missing decoder.</extracomment>
        <translation>套件 %1 中包含該解碼器。</translation>
    </message>
</context>
<context>
    <name>PlaylistModel</name>
    <message>
        <source>File Name</source>
        <translation>檔案名稱</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>長度</translation>
    </message>
    <message>
        <source>Create Date</source>
        <translation>建立日期</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解析度</translation>
    </message>
</context>
<context>
    <name>QInstaller</name>
    <message>
        <source>bytes</source>
        <translation>位元組</translation>
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
        <translation>此錄影沒有遙測資料</translation>
    </message>
    <message>
        <source>Being examined</source>
        <translation>正在檢查</translation>
    </message>
    <message>
        <source>Damaged: the header is missing, without which it cannot be played</source>
        <translation>已損壞：缺少檔頭，無法播放</translation>
    </message>
    <message>
        <source>Empty: the file has no content</source>
        <translation>空：檔案沒有內容</translation>
    </message>
    <message>
        <source>The file is gone or cannot be read</source>
        <translation>檔案已不存在或無法讀取</translation>
    </message>
    <message>
        <source>Not an MP4, MOV or AVI video</source>
        <translation>不是 MP4、MOV 或 AVI 影片</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off</source>
        <translation>已損壞：錄影不完整</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 missing</source>
        <translation>已損壞：錄影不完整，至少缺少 %1</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 of %2 missing</source>
        <translation>已損壞：錄影不完整，共 %2，至少缺少 %1</translation>
    </message>
</context>
<context>
    <name>ScreenshotNotice</name>
    <message>
        <source>No screenshot: the folder %1 cannot be created</source>
        <translation>沒有擷圖：無法建立資料夾 %1</translation>
    </message>
    <message>
        <source>No screenshot: the program %1 is missing</source>
        <translation>沒有擷圖：缺少程式 %1</translation>
    </message>
    <message>
        <source>No screenshot: %1 could not be written</source>
        <translation>沒有擷圖：無法寫入 %1</translation>
    </message>
    <message>
        <source>Screenshot saved: %1</source>
        <translation>擷圖已儲存：%1</translation>
    </message>
    <message>
        <source>Screenshots saved in %1</source>
        <translation>擷圖已儲存於 %1</translation>
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
        <translation>對話方塊</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Personal settings</source>
        <translation>個人設定</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
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
        <translation>地圖</translation>
    </message>
    <message>
        <source>Baidu Maps</source>
        <translation>百度地圖</translation>
    </message>
    <message>
        <source>Google Maps</source>
        <translation>Google 地圖</translation>
    </message>
    <message>
        <source>OpenStreetMap</source>
        <translation>OpenStreetMap</translation>
    </message>
    <message>
        <source>SpeedUnit</source>
        <translation>速度單位</translation>
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
        <translation>擷圖儲存路徑</translation>
    </message>
    <message>
        <source>choose</source>
        <translation>選擇</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>開啟資料夾</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Play or pause</source>
        <translation>播放或暫停</translation>
    </message>
    <message>
        <source>Beginning or end of the recording</source>
        <translation>錄影的開頭或結尾</translation>
    </message>
    <message>
        <source>Previous or next recording</source>
        <translation>上一個或下一個錄影</translation>
    </message>
    <message>
        <source>Choose a recording in the list</source>
        <translation>在清單中選擇錄影</translation>
    </message>
    <message>
        <source>Play the chosen recording</source>
        <translation>播放選取的錄影</translation>
    </message>
    <message>
        <source>Slower or faster</source>
        <translation>減速或加速</translation>
    </message>
    <message>
        <source>Louder or quieter</source>
        <translation>增大或減小音量</translation>
    </message>
    <message>
        <source>Sound off or on</source>
        <translation>靜音或恢復聲音</translation>
    </message>
    <message>
        <source>Full screen on or off</source>
        <translation>進入或離開全螢幕</translation>
    </message>
    <message>
        <source>Leave the full screen</source>
        <translation>離開全螢幕</translation>
    </message>
    <message>
        <source>Take a screenshot</source>
        <translation>擷圖</translation>
    </message>
    <message>
        <source>Open recordings</source>
        <translation>開啟錄影</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>This list</source>
        <translation>此清單</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空白鍵</translation>
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
        <translation>後退或前進一秒</translation>
    </message>
    <message>
        <source>Back or forward by a picture, paused</source>
        <translation>暫停時後退或前進一格</translation>
    </message>
    <message>
        <source>Open all recordings in a folder</source>
        <translation>開啟資料夾中的全部錄影</translation>
    </message>
    <message>
        <source>Continue the recording that is offered</source>
        <translation>繼續播放所提示的錄影</translation>
    </message>
    <message>
        <source>Menu of the list</source>
        <translation>清單選單</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>選單鍵</translation>
    </message>
</context>
<context>
    <name>RecordingOpener</name>
    <message>
        <source>No recordings in %1</source>
        <translation>%1 中沒有錄影</translation>
    </message>
    <message>
        <source>Only the first %1 recordings were opened</source>
        <translation>僅開啟了前 %1 個錄影</translation>
    </message>
    <message>
        <source>Searching for recordings: %1 (Esc cancels)</source>
        <translation>正在尋找錄影：%1 個（按 Esc 取消）</translation>
    </message>
    <message>
        <source>In the list already, from another folder: %1</source>
        <translation>清單中已有來自其他資料夾的同名錄影：%1</translation>
    </message>
    <message>
        <source>In the list already, from other folders: %1 recordings</source>
        <translation>清單中已有來自其他資料夾的同名錄影：%1 個</translation>
    </message>
</context>
<context>
    <name>PlaylistMenu</name>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>開啟所在資料夾</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>複製名稱</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>清空清單</translation>
    </message>
    <message>
        <source>Remember List</source>
        <translation>記住清單</translation>
    </message>
    <message>
        <source>The folder %1 is gone</source>
        <translation>資料夾 %1 已不存在</translation>
    </message>
    <message>
        <source>No program opens the folder %1</source>
        <translation>沒有可開啟資料夾 %1 的程式</translation>
    </message>
</context>
<context>
    <name>OpenMenu</name>
    <message>
        <source>Open Files…</source>
        <translation>開啟檔案…</translation>
    </message>
    <message>
        <source>Open All in a Folder…</source>
        <translation>開啟資料夾中的全部錄影…</translation>
    </message>
</context>
<context>
    <name>ResumeOffer</name>
    <message>
        <source>Continue %1 at %2?</source>
        <translation>從 %2 繼續播放 %1？</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Continue (R)</source>
        <translation>繼續 (R)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>TrackMenu</name>
    <message>
        <source>Save Track As…</source>
        <translation>軌跡另存新檔…</translation>
    </message>
    <message>
        <source>Copy Position</source>
        <translation>複製位置</translation>
    </message>
    <message>
        <source>Track saved: %1</source>
        <translation>已儲存軌跡：%1</translation>
    </message>
    <message>
        <source>The recording cannot be read.</source>
        <translation>無法讀取該錄影。</translation>
    </message>
    <message>
        <source>The recording has no telemetry.</source>
        <translation>該錄影沒有遙測資料。</translation>
    </message>
    <message>
        <source>The track cannot be written to %1: %2</source>
        <translation>無法將軌跡寫入 %1：%2</translation>
    </message>
</context>
</TS>
