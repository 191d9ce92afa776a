<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>ControlPanel</name>
    <message>
        <source>Stopped</source>
        <translation>정지됨</translation>
    </message>
    <message>
        <source>Playing, %1 of %2</source>
        <translation>재생 중, %1 / %2</translation>
    </message>
    <message>
        <source>Paused, %1 of %2</source>
        <translation>일시 정지됨, %1 / %2</translation>
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
        <translation>파일 열기</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>화면 캡처</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>이전</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>볼륨</translation>
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
        <translation>날짜 및 시간</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>속도</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>좌표</translation>
    </message>
    <message>
        <source>Position in the recording</source>
        <translation>재생 위치</translation>
    </message>
    <message>
        <source>Elapsed and total time</source>
        <translation>경과 시간 및 전체 시간</translation>
    </message>
    <message>
        <source>Playback rate</source>
        <translation>재생 속도</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>음소거</translation>
    </message>
    <message>
        <source>%1 (no position fix)</source>
        <translation>%1(위치 정보 없음)</translation>
    </message>
</context>
<context>
    <name>FComboBox</name>
    <message>
        <source>Slow</source>
        <translation>느리게</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>빠르게</translation>
    </message>
</context>
<context>
    <name>GyroChartView</name>
    <message>
        <source>No telemetry in this recording</source>
        <translation>이 녹화에는 텔레메트리 데이터가 없습니다</translation>
    </message>
</context>
<context>
    <name>KeyList</name>
    <message>
        <source>Keys</source>
        <translation>키</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>MainWindows</name>
    <message>
        <source>MainWindows</source>
        <translation>메인 창</translation>
    </message>
    <message>
        <source>Velmora V1.1 - 20190712</source>
        <translation>Velmora V1.1 - 20190712</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>최대화</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>이전 크기로 복원</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>파일 열기</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.265 (HEVC).</source>
        <translation>이 컴퓨터에는 H.265 (HEVC) 재생에 필요한 동영상 재생 지원 기능이 없어 이 동영상을 재생할 수 없습니다.</translation>
    </message>
    <message>
        <source>This computer cannot play this video because it does not have the video playback support function required to play H.264 (AVC).</source>
        <translation>이 컴퓨터에는 H.264 (AVC) 재생에 필요한 동영상 재생 지원 기능이 없어 이 동영상을 재생할 수 없습니다.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>동영상</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>재생 목록</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>지도</translation>
    </message>
    <message>
        <source>Speed gauge</source>
        <translation>속도계</translation>
    </message>
    <message>
        <source>Compass</source>
        <translation>나침반</translation>
    </message>
    <message>
        <source>G-sensor chart</source>
        <translation>G센서 그래프</translation>
    </message>
    <message>
        <source>Playback controls</source>
        <translation>재생 컨트롤</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>폴더 열기</translation>
    </message>
</context>
<context>
    <name>PlaybackNotices</name>
    <message>
        <source>Reading telemetry…</source>
        <translation>주행 정보를 읽는 중…</translation>
    </message>
    <message>
        <source>This computer may be too slow for this recording.</source>
        <translation>이 컴퓨터는 이 녹화를 재생하기에 너무 느릴 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>PlaybackProblem</name>
    <message>
        <source>The file is gone or cannot be read.</source>
        <translation>파일이 없거나 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>파일이 비어 있습니다.</translation>
    </message>
    <message>
        <source>The file is not a video recording.</source>
        <translation>이 파일은 녹화 영상이 아닙니다.</translation>
    </message>
    <message>
        <source>The recording is damaged: its header is missing.</source>
        <translation>녹화가 손상되었습니다. 헤더가 없습니다.</translation>
    </message>
    <message>
        <source>The recording is damaged: it breaks off before its first picture.</source>
        <translation>녹화가 손상되었습니다. 첫 화면이 나오기 전에 끊깁니다.</translation>
    </message>
    <message>
        <source>The recording is damaged.</source>
        <translation>녹화가 손상되었습니다.</translation>
    </message>
    <message>
        <source>No decoder for its pictures is installed.</source>
        <translation>이 영상의 디코더가 설치되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>No decoder for %1 is installed.</source>
        <translation>%1 디코더가 설치되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>The package %1 brings it.</source>
        <extracomment>%1 is the name of a package, which brings the missing decoder.</extracomment>
        <translation>%1 패키지에 들어 있습니다.</translation>
    </message>
</context>
<context>
    <name>PlaylistModel</name>
    <message>
        <source>File Name</source>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>재생 시간</translation>
    </message>
    <message>
        <source>Create Date</source>
        <translation>만든 날짜</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>해상도</translation>
    </message>
</context>
<context>
    <name>QInstaller</name>
    <message>
        <source>bytes</source>
        <translation>바이트</translation>
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
        <translation>이 녹화에는 텔레메트리가 없습니다</translation>
    </message>
    <message>
        <source>Being examined</source>
        <translation>확인 중</translation>
    </message>
    <message>
        <source>Damaged: the header is missing, without which it cannot be played</source>
        <translation>손상됨: 재생에 필요한 헤더가 없습니다</translation>
    </message>
    <message>
        <source>Empty: the file has no content</source>
        <translation>비어 있음: 파일에 내용이 없습니다</translation>
    </message>
    <message>
        <source>The file is gone or cannot be read</source>
        <translation>파일이 없어졌거나 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>Not an MP4, MOV or AVI video</source>
        <translation>MP4, MOV 또는 AVI 동영상이 아닙니다</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off</source>
        <translation>손상됨: 녹화가 중간에 잘렸습니다</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 missing</source>
        <translation>손상됨: 녹화가 중간에 잘렸습니다. 최소 %1 누락</translation>
    </message>
    <message>
        <source>Damaged: the recording is cut off, at least %1 of %2 missing</source>
        <translation>손상됨: 녹화가 중간에 잘렸습니다. %2 중 최소 %1 누락</translation>
    </message>
</context>
<context>
    <name>ScreenshotNotice</name>
    <message>
        <source>No screenshot: the folder %1 cannot be created</source>
        <translation>화면 캡처 없음: 폴더 %1을(를) 만들 수 없습니다</translation>
    </message>
    <message>
        <source>No screenshot: the program %1 is missing</source>
        <translation>화면 캡처 없음: 프로그램 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>No screenshot: %1 could not be written</source>
        <translation>화면 캡처 없음: %1에 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>Screenshot saved: %1</source>
        <translation>화면 캡처 저장됨: %1</translation>
    </message>
    <message>
        <source>Screenshots saved in %1</source>
        <translation>화면 캡처가 저장된 폴더: %1</translation>
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
        <translation>대화 상자</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Personal settings</source>
        <translation>개인 설정</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
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
        <translation>지도</translation>
    </message>
    <message>
        <source>Baidu Maps</source>
        <translation>바이두 지도</translation>
    </message>
    <message>
        <source>Google Maps</source>
        <translation>Google 지도</translation>
    </message>
    <message>
        <source>OpenStreetMap</source>
        <translation>OpenStreetMap</translation>
    </message>
    <message>
        <source>SpeedUnit</source>
        <translation>속도 단위</translation>
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
        <translation>화면 캡처 저장 경로</translation>
    </message>
    <message>
        <source>choose</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>폴더 열기</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Play or pause</source>
        <translation>재생 또는 일시 정지</translation>
    </message>
    <message>
        <source>Beginning or end of the recording</source>
        <translation>녹화의 처음 또는 끝</translation>
    </message>
    <message>
        <source>Previous or next recording</source>
        <translation>이전 또는 다음 녹화</translation>
    </message>
    <message>
        <source>Choose a recording in the list</source>
        <translation>목록에서 녹화 선택</translation>
    </message>
    <message>
        <source>Play the chosen recording</source>
        <translation>선택한 녹화 재생</translation>
    </message>
    <message>
        <source>Slower or faster</source>
        <translation>느리게 또는 빠르게</translation>
    </message>
    <message>
        <source>Louder or quieter</source>
        <translation>소리 크게 또는 작게</translation>
    </message>
    <message>
        <source>Sound off or on</source>
        <translation>소리 끄기 또는 켜기</translation>
    </message>
    <message>
        <source>Full screen on or off</source>
        <translation>전체 화면 켜기 또는 끄기</translation>
    </message>
    <message>
        <source>Leave the full screen</source>
        <translation>전체 화면 종료</translation>
    </message>
    <message>
        <source>Take a screenshot</source>
        <translation>화면 캡처</translation>
    </message>
    <message>
        <source>Open recordings</source>
        <translation>녹화 열기</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>This list</source>
        <translation>이 목록</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>스페이스</translation>
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
        <translation>1초 뒤로 또는 앞으로</translation>
    </message>
    <message>
        <source>Back or forward by a picture, paused</source>
        <translation>일시 정지 중 한 프레임 뒤로 또는 앞으로</translation>
    </message>
    <message>
        <source>Open all recordings in a folder</source>
        <translation>폴더의 모든 녹화 열기</translation>
    </message>
    <message>
        <source>Continue the recording that is offered</source>
        <translation>제안된 녹화 계속 재생</translation>
    </message>
    <message>
        <source>Menu of the list</source>
        <translation>목록 메뉴</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>메뉴</translation>
    </message>
</context>
<context>
    <name>RecordingOpener</name>
    <message>
        <source>No recordings in %1</source>
        <translation>%1에 녹화가 없습니다</translation>
    </message>
    <message>
        <source>Only the first %1 recordings were opened</source>
        <translation>처음 %1개의 녹화만 열었습니다</translation>
    </message>
    <message>
        <source>Searching for recordings: %1 (Esc cancels)</source>
        <translation>녹화 검색 중: %1개(Esc로 취소)</translation>
    </message>
    <message>
        <source>In the list already, from another folder: %1</source>
        <translation>다른 폴더의 파일이 이미 목록에 있음: %1</translation>
    </message>
    <message>
        <source>In the list already, from other folders: %1 recordings</source>
        <translation>다른 폴더의 녹화가 이미 목록에 있음: %1개</translation>
    </message>
</context>
<context>
    <name>PlaylistMenu</name>
    <message>
        <source>Play</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>폴더 열기</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>이름 복사</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>목록 비우기</translation>
    </message>
    <message>
        <source>Remember List</source>
        <translation>목록 기억</translation>
    </message>
    <message>
        <source>The folder %1 is gone</source>
        <translation>%1 폴더가 더 이상 없습니다</translation>
    </message>
    <message>
        <source>No program opens the folder %1</source>
        <translation>%1 폴더를 열 프로그램이 없습니다</translation>
    </message>
</context>
<context>
    <name>OpenMenu</name>
    <message>
        <source>Open Files…</source>
        <translation>파일 열기…</translation>
    </message>
    <message>
        <source>Open All in a Folder…</source>
        <translation>폴더 전체 열기…</translation>
    </message>
</context>
<context>
    <name>ResumeOffer</name>
    <message>
        <source>Continue %1 at %2?</source>
        <translation>%1을(를) %2부터 계속할까요?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Continue (R)</source>
        <translation>계속(R)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>TrackMenu</name>
    <message>
        <source>Save Track As…</source>
        <translation>경로를 다른 이름으로 저장…</translation>
    </message>
    <message>
        <source>Copy Position</source>
        <translation>위치 복사</translation>
    </message>
    <message>
        <source>Track saved: %1</source>
        <translation>경로를 저장했습니다: %1</translation>
    </message>
    <message>
        <source>The recording cannot be read.</source>
        <translation>녹화 파일을 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The recording has no telemetry.</source>
        <translation>녹화 파일에 텔레메트리가 없습니다.</translation>
    </message>
    <message>
        <source>The track cannot be written to %1: %2</source>
        <translation>경로를 %1에 쓸 수 없습니다: %2</translation>
    </message>
</context>
</TS>
