<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>ControlPanel</name>
    <message>
        <source>Stopped</source>
        <translation>停止中</translation>
    </message>
    <message>
        <source>Playing, %1 of %2</source>
        <translation>再生中、%1 / %2</translation>
    </message>
    <message>
        <source>Paused, %1 of %2</source>
        <translation>一時停止中、%1 / %2</translation>
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
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>スクリーンショット</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
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
        <translation>日時</translation>
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
        <translation>再生位置</translation>
    </message>
    <message>
        <source>Elapsed and total time</source>
        <translation>経過時間と全体の長さ</translation>
    </message>
    <message>
        <source>Playback rate</source>
        <translation>再生速度</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>%1 (no position fix)</source>
        <translation>%1（測位できていません）</translation>
    </message>
</context>
<context>
    <name>FComboBox</name>
    <message>
        <source>Slow</source>
        <translation>再生速度を下げる</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>再生速度を上げる</translation>
    </message>
</context>
<context>
    <name>GyroChartView</name>
    <message>
        <source>No telemetry in this recording</source>
        <translation>この録画にテレメトリーはありません</translation>
    </message>
</context>
<context>
    <name>KeyList</name>
    <message>
        <source>Keys</source>
        <translation>キー操作</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>MainWindows</name>
    <message>
        <source>MainWindows</source>
        <translation>メインウィンドウ</translation>
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
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>元に戻す (縮小)</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.265 (HEVC).</source>
        <translation>H.265 (HEVC) の再生に必要な動画再生支援機能がないため、このコンピューターではこの動画を再生できません。</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.264 (AVC).</source>
        <translation>H.264 (AVC) の再生に必要な動画再生支援機能がないため、このコンピューターではこの動画を再生できません。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>映像</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>再生リスト</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地図</translation>
    </message>
    <message>
        <source>Speed gauge</source>
        <translation>速度計</translation>
    </message>
    <message>
        <source>Compass</source>
        <translation>コンパス</translation>
    </message>
    <message>
        <source>G-sensor chart</source>
        <translation>Gセンサーのグラフ</translation>
    </message>
    <message>
        <source>Playback controls</source>
        <translation>再生コントロール</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>フォルダーを開く</translation>
    </message>
</context>
<context>
    <name>PlaybackNotices</name>
    <message>
        <source>Reading telemetry…</source>
        <translation>テレメトリーを読み込んでいます…</translation>
    </message>
    <message>
        <source>This computer may be too slow for this recording.</source>
        <translation>この録画を再生するには、このコンピューターの性能が足りない可能性があります。</translation>
    </message>
</context>
<context>
    <name>PlaybackProblem</name>
    <message>
        <source>The file is gone or cannot be read.</source>
        <translation>ファイルが見つからないか、読み取れません。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>ファイルが空です。</translation>
    </message>
    <message>
        <source>The file is not a video recording.</source>
        <translation>このファイルは録画映像ではありません。</translation>
    </message>
    <message>
        <source>The recording is damaged: its header is missing.</source>
        <translation>録画が壊れています。ヘッダーがありません。</translation>
    </message>
    <message>
        <source>The recording is damaged: it breaks off before its first picture.</source>
        <translation>録画が壊れています。最初の映像の前で途切れています。</translation>
    </message>
    <message>
        <source>The recording is damaged.</source>
        <translation>録画が壊れています。</translation>
    </message>
    <message>
        <source>No decoder for its pictures is installed.</source>
        <translation>この映像のデコーダーがインストールされていません。</translation>
    </message>
    <message>
        <source>No decoder for %1 is installed.</source>
        <translation>%1 のデコーダーがインストールされていません。</translation>
    </message>
    <message>
        <source>The package %1 brings it.</source>
        <extracomment>%1 is the name of a package, which brings the missing decoder.</extracomment>
        <translation>パッケージ %1 に含まれています。</translation>
    </message>
</context>
<context>
    <name>PlaylistModel</name>
    <message>
        <source>File Name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>再生時間</translation>
    </message>
    <message>
        <source>Create Date</source>
        <translation>作成日時</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
</context>
<context>
    <name>QInstaller</name>
    <message>
        <source>bytes</source>
        <translation>バイト</translation>
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
        <translation>この記録にはテレメトリーがありません</translation>
    </message>
    <message>
        <source>Being examined</source>
        <translation>確認中</translation>
    </message>
    <message>
        <source>Damaged: the header is missing, without which it cannot be played</source>
        <translation>破損：再生に必要なヘッダーがありません</translation>
    </message>
    <message>
        <source>Empty: the file has no content</source>
        <translation>空：ファイルに内容がありません</translation>
    </message>
    <message>
        <source>The file is gone or cannot be read</source>
        <translation>ファイルが見つからないか、読み取れません</translation>
    </message>
    <message>
        <source>Not an MP4, MOV or AVI video</source>
        <translation>MP4、MOV、AVI の動画ではありません</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off</source>
        <translation>破損：記録が途中で切れています</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 missing</source>
        <translation>破損：記録が途中で切れています（少なくとも %1 不足）</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 of %2 missing</source>
        <translation>破損：記録が途中で切れています（%2 のうち少なくとも %1 不足）</translation>
    </message>
</context>
<context>
    <name>ScreenshotNotice</name>
    <message>
        <source>No screenshot: the folder %1 cannot be created</source>
        <translation>スクリーンショットを保存できません: フォルダー %1 を作成できません</translation>
    </message>
    <message>
        <source>No screenshot: the program %1 is missing</source>
        <translation>スクリーンショットを保存できません: プログラム %1 がありません</translation>
    </message>
    <message>
        <source>No screenshot: %1 could not be written</source>
        <translation>スクリーンショットを保存できません: %1 に書き込めません</translation>
    </message>
    <message>
        <source>Screenshot saved: %1</source>
        <translation>スクリーンショットを保存しました: %1</translation>
    </message>
    <message>
        <source>Screenshots saved in %1</source>
        <translation>スクリーンショットの保存先: %1</translation>
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
        <translation>ダイアログ</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Personal settings</source>
        <translation>個人設定</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
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
        <translation>地図</translation>
    </message>
    <message>
        <source>Baidu Maps</source>
        <translation>百度地図</translation>
    </message>
    <message>
        <source>Google Maps</source>
        <translation>Google マップ</translation>
    </message>
    <message>
        <source>OpenStreetMap</source>
        <translation>OpenStreetMap</translation>
    </message>
    <message>
        <source>SpeedUnit</source>
        <translation>速度の単位</translation>
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
        <translation>スクリーンショットの保存先</translation>
    </message>
    <message>
        <source>choose</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>フォルダーを開く</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Play or pause</source>
        <translation>再生または一時停止</translation>
    </message>
    <message>
        <source>Beginning or end of the recording</source>
        <translation>録画の先頭、末尾</translation>
    </message>
    <message>
        <source>Previous or next recording</source>
        <translation>前の録画、次の録画</translation>
    </message>
    <message>
        <source>Choose a recording in the list</source>
        <translation>リストの録画を選ぶ</translation>
    </message>
    <message>
        <source>Play the chosen recording</source>
        <translation>選んだ録画を再生</translation>
    </message>
    <message>
        <source>Slower or faster</source>
        <translation>再生速度を下げる、上げる</translation>
    </message>
    <message>
        <source>Louder or quieter</source>
        <translation>音量を上げる、下げる</translation>
    </message>
    <message>
        <source>Sound off or on</source>
        <translation>ミュートの切り替え</translation>
    </message>
    <message>
        <source>Full screen on or off</source>
        <translation>全画面表示の切り替え</translation>
    </message>
    <message>
        <source>Leave the full screen</source>
        <translation>全画面表示を終了</translation>
    </message>
    <message>
        <source>Take a screenshot</source>
        <translation>スクリーンショットを撮る</translation>
    </message>
    <message>
        <source>Open recordings</source>
        <translation>録画を開く</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>This list</source>
        <translation>この一覧</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Space</translation>
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
        <translation>PageUp</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>PageDown</translation>
    </message>
    <message>
        <source>Back or forward by a second</source>
        <translation>1 秒戻る、進む</translation>
    </message>
    <message>
        <source>Back or forward by a picture, paused</source>
        <translation>一時停止中に 1 コマ戻る、進む</translation>
    </message>
    <message>
        <source>Open all recordings in a folder</source>
        <translation>フォルダー内のすべての録画を開く</translation>
    </message>
    <message>
        <source>Continue the recording that is offered</source>
        <translation>提示された録画の続きを再生</translation>
    </message>
    <message>
        <source>Menu of the list</source>
        <translation>リストのメニュー</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
</context>
<context>
    <name>RecordingOpener</name>
    <message>
        <source>No recordings in %1</source>
        <translation>%1 に録画はありません</translation>
    </message>
    <message>
        <source>Only the first %1 recordings were opened</source>
        <translation>最初の %1 件の録画だけを開きました</translation>
    </message>
    <message>
        <source>Searching for recordings: %1 (Esc cancels)</source>
        <translation>録画を検索中: %1 件（Esc で中止）</translation>
    </message>
    <message>
        <source>In the list already, from another folder: %1</source>
        <translation>別のフォルダーから登録済み: %1</translation>
    </message>
    <message>
        <source>In the list already, from other folders: %1 recordings</source>
        <translation>別のフォルダーから登録済み: %1 件の録画</translation>
    </message>
</context>
<context>
    <name>PlaylistMenu</name>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>名前をコピー</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>リストを空にする</translation>
    </message>
    <message>
        <source>Remember List</source>
        <translation>リストを記憶する</translation>
    </message>
    <message>
        <source>The folder %1 is gone</source>
        <translation>フォルダー %1 はもうありません</translation>
    </message>
    <message>
        <source>No program opens the folder %1</source>
        <translation>フォルダー %1 を開くプログラムがありません</translation>
    </message>
</context>
<context>
    <name>OpenMenu</name>
    <message>
        <source>Open Files…</source>
        <translation>ファイルを開く…</translation>
    </message>
    <message>
        <source>Open All in a Folder…</source>
        <translation>フォルダー内のすべてを開く…</translation>
    </message>
</context>
<context>
    <name>ResumeOffer</name>
    <message>
        <source>Continue %1 at %2?</source>
        <translation>%1 を %2 から続けますか？</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>Continue (R)</source>
        <translation>続ける (R)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>TrackMenu</name>
    <message>
        <source>Save Track As…</source>
        <translation>走行軌跡に名前を付けて保存…</translation>
    </message>
    <message>
        <source>Copy Position</source>
        <translation>位置をコピー</translation>
    </message>
    <message>
        <source>Track saved: %1</source>
        <translation>走行軌跡を保存しました: %1</translation>
    </message>
    <message>
        <source>The recording cannot be read.</source>
        <translation>録画を読み取れません。</translation>
    </message>
    <message>
        <source>The recording has no telemetry.</source>
        <translation>この録画にはテレメトリーがありません。</translation>
    </message>
    <message>
        <source>The track cannot be written to %1: %2</source>
        <translation>走行軌跡を %1 に書き込めません: %2</translation>
    </message>
</context>
</TS>
