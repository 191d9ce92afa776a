// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mediafile.h"
#include "playerwidget.h"
#include "recordingcontainer.h"
#include "recordingwriter.h"
#include "smallrecordings.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QTextCodec>

#include <memory>

#include <sys/stat.h>

namespace {

QByteArray referenceMovie(const QByteArray &address)
{
    const QByteArray reference =
        Mp4::big32(0) + "url " + Mp4::big32(quint32(address.size()) + 1) + address + '\0';
    return Mp4::box("moov", Mp4::box("rmra", Mp4::box("rmda", Mp4::box("rdrf", reference))));
}

QByteArray compressed(const QByteArray &movie)
{
    // What qCompress() writes is the size, which "cmvd" has too, and the compressed data.
    return Mp4::box(
        "moov", Mp4::box("cmov", Mp4::box("dcom", "zlib") + Mp4::box("cmvd", qCompress(movie))));
}

/** A recording of one track whose samples are of this kind. */
QByteArray movieOf(const QByteArray &coding)
{
    RecordingWriter writer;
    writer.tracks = {Mp4::videoTrack(320, 180, 30, coding)};
    return writer.encoded();
}

/** A movie whose only sample, at the beginning of the file, is an address. */
QByteArray serverTrack(const QByteArray &address)
{
    const QByteArray none(4, '\0');
    const QByteArray one = Mp4::big32(1);
    const QByteArray samples =
        Mp4::box("stsd", none + one + Mp4::box("rtsp", QByteArrayLiteral("\0\0\0\0\0\0\0\1"))) +
        Mp4::box("stts", none + one + one + Mp4::big32(1000)) +
        Mp4::box("stsc", none + one + one + one + one) +
        Mp4::box("stsz", none + Mp4::big32(quint32(address.size())) + one) +
        Mp4::box("stco", none + one + Mp4::big32(8));
    const QByteArray mediaHeader =
        Mp4::box("mdhd", none + none + none + Mp4::big32(1000) + Mp4::big32(1000) + none);
    const QByteArray media = mediaHeader + Mp4::handler("strm", "") +
                             Mp4::box("minf", Mp4::box("dinf") + Mp4::box("stbl", samples));
    return Mp4::box("mdat", address) +
           Mp4::box("moov", Mp4::movieHeader(1000, 1000) +
                                Mp4::box("trak", Mp4::trackHeader(0, 0) + Mp4::box("mdia", media)));
}

QByteArray utf16(const QByteArray &text)
{
    return QTextCodec::codecForName("UTF-16LE")->fromUnicode(QString::fromLatin1(text));
}

} // namespace

/** Which files the players get, and that none makes them call a server. */
class tst_LocalMedia : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void strangersAreNotCalled_data();
    void strangersAreNotCalled();
    void otherAddressesAreNotCalled_data();
    void otherAddressesAreNotCalled();
    void recordingsPlay_data();
    void recordingsPlay();
    void hugeMediaDataComesFirst();
    void judges_data();
    void judges();
    void recordingsOfCamerasAreComplete();
    void specialFilesAreNotOpened();
    void readsLittle_data();
    void readsLittle();

private:
    void load(const QUrl &url);
    QString write(const QString &name, const QByteArray &content);
    QByteArray withAddress(const QByteArray &text) const;
    bool wasCalled();

    QTemporaryDir mFolder;
    QTcpServer mServer;
    std::unique_ptr<PlayerWidget> mPlayer;
};

void tst_LocalMedia::initTestCase()
{
    QVERIFY(mServer.listen(QHostAddress::LocalHost));
    QVERIFY(makeMediaFile(mFolder.filePath(QStringLiteral("camera.mp4")), 1));
}

void tst_LocalMedia::init()
{
    mPlayer = std::make_unique<PlayerWidget>();
    mPlayer->show();
    QVERIFY(QTest::qWaitForWindowExposed(mPlayer.get()));
}

void tst_LocalMedia::load(const QUrl &url)
{
    mPlayer->loader()->load(QMediaContent(url));
    mPlayer->loader()->play();
}

QString tst_LocalMedia::write(const QString &name, const QByteArray &content)
{
    const QString path = mFolder.filePath(name);
    return saveRecording(path, content) ? path : QString();
}

/** With the server's host and port in place of each "SERVER". */
QByteArray tst_LocalMedia::withAddress(const QByteArray &text) const
{
    return QByteArray(text).replace("SERVER",
                                    "127.0.0.1:" + QByteArray::number(mServer.serverPort()));
}

/** Whether anybody has called the server. A call of our own comes behind all others. */
bool tst_LocalMedia::wasCalled()
{
    QTcpSocket own;
    own.connectToHost(QHostAddress::LocalHost, mServer.serverPort());
    bool isOwn = false;
    int strangers = 0;
    while (!isOwn && (mServer.hasPendingConnections() || mServer.waitForNewConnection(10000))) {
        const std::unique_ptr<QTcpSocket> caller(mServer.nextPendingConnection());
        own.waitForConnected();
        isOwn = caller->peerPort() == own.localPort();
        strangers += isOwn ? 0 : 1;
    }
    return strangers > 0 || !isOwn;
}

void tst_LocalMedia::strangersAreNotCalled_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content"); // "SERVER" for the server
    const QString mp4 = QStringLiteral("hostile.mp4");
    const QByteArray hls = "#EXTM3U\n#EXT-X-TARGETDURATION:5\n#EXTINF:5,\nhttp://SERVER/a.ts\n"
                           "#EXTINF:5,\nhttp://SERVER/b.ts\n#EXT-X-ENDLIST\n";
    const QByteArray dash =
        "<MPD xmlns=\"urn:mpeg:dash:schema:mpd:2011\" type=\"static\""
        " mediaPresentationDuration=\"PT10S\" minBufferTime=\"PT1S\""
        " profiles=\"urn:mpeg:dash:profile:isoff-on-demand:2011\"><Period>"
        "<AdaptationSet mimeType=\"video/mp4\"><Representation id=\"1\" bandwidth=\"1000\""
        " codecs=\"avc1.42c01e\" width=\"320\" "
        "height=\"180\"><BaseURL>http://SERVER/a.mp4</BaseURL>"
        "<SegmentList duration=\"5\"><SegmentURL media=\"http://SERVER/a.mp4\"/></SegmentList>"
        "</Representation></AdaptationSet></Period></MPD>";
    const QByteArray smooth =
        "<?xml version=\"1.0\"?><SmoothStreamingMedia MajorVersion=\"2\" MinorVersion=\"0\""
        " Duration=\"100000000\"><StreamIndex Type=\"video\" Chunks=\"1\" QualityLevels=\"1\""
        " Url=\"http://SERVER/{bitrate}/{start time}\"><QualityLevel Index=\"0\" Bitrate=\"1000\""
        " FourCC=\"H264\" MaxWidth=\"320\" MaxHeight=\"180\" CodecPrivateData=\"00\"/>"
        "<c t=\"0\" d=\"50000000\"/></StreamIndex></SmoothStreamingMedia>";
    const QByteArray sdp = "o=- 0 0 IN IP4 127.0.0.1\ns=a\na=control:rtsp://SERVER/a\nt=0 0\n"
                           "m=video 0 RTP/AVP 96\nc=IN IP4 127.0.0.1\na=rtpmap:96 H264/90000\n";

    QTest::newRow("HLS") << mp4 << hls;
    QTest::newRow("HLS named AVI") << QStringLiteral("hostile.AVI") << hls;
    QTest::newRow("HLS without an ending") << QStringLiteral("hostile") << hls;
    QTest::newRow("HLS behind a byte order mark") << mp4 << QByteArray("\xEF\xBB\xBF" + hls);
    QTest::newRow("HLS behind blanks") << mp4 << QByteArray(" \n\t" + hls);
    QTest::newRow("HLS behind tags")
        << mp4 << QByteArray(QByteArrayLiteral("ID3\3\0\0\0\0\0\0") + hls);
    QTest::newRow("HLS in an answer of a server")
        << mp4
        << QByteArray("--a\r\nContent-Type: application/x-hls\r\nContent-Length: " +
                      QByteArray::number(withAddress(hls).size()) + "\r\n\r\n" + hls +
                      "\r\n--a\r\n");
    QTest::newRow("DASH") << mp4 << QByteArray("<?xml version=\"1.0\"?>" + dash);
    QTest::newRow("DASH in UTF-16")
        << mp4 << QByteArray("\xFF\xFE" + utf16(withAddress("<?xml version=\"1.0\"?>" + dash)));
    QTest::newRow("DASH behind a box in a comment") << mp4 << QByteArray("<!--mdat-->" + dash);
    QTest::newRow("DASH in a box") << mp4 << QByteArray(Mp4::box("free", dash));
    QTest::newRow("Smooth Streaming") << mp4 << smooth;
    QTest::newRow("Smooth Streaming in UTF-16")
        << mp4 << QByteArray("\xFF\xFE" + utf16(withAddress(smooth)));
    QTest::newRow("SMIL") << mp4
                          << QByteArray("<smil xmlns=\"http://www.w3.org/ns/SMIL\"><body>"
                                        "<video src=\"http://SERVER/a.mp4\"/></body></smil>");
    QTest::newRow("SDP") << mp4 << QByteArray("v=0\n" + sdp);
    QTest::newRow("SDP with a box") << mp4 << QByteArray("v=0\nmdat=\n" + sdp);
    QTest::newRow("RTSP") << mp4 << QByteArray("RTSPtextRTSP://SERVER/a.mp4\r\n");
    QTest::newRow("list of addresses")
        << mp4 << QByteArray("http://SERVER/a.mp4\nhttp://SERVER/b.mp4\n");
    QTest::newRow("M3U") << QStringLiteral("hostile.m3u")
                         << QByteArray("#EXTM3U\n#EXTINF:5,a\nhttp://SERVER/a.mp4\n");
    QTest::newRow("PLS") << QStringLiteral("hostile.pls")
                         << QByteArray(
                                "[playlist]\nNumberOfEntries=1\nFile1=http://SERVER/a.mp4\n");
    QTest::newRow("XSPF") << mp4
                          << QByteArray(
                                 "<?xml version=\"1.0\"?><playlist version=\"1\""
                                 " xmlns=\"http://xspf.org/ns/0/\"><trackList><track>"
                                 "<location>http://SERVER/a.mp4</location></track></trackList>"
                                 "</playlist>");
    QTest::newRow("ASX") << mp4
                         << QByteArray("<asx version=\"3.0\"><entry>"
                                       "<ref href=\"http://SERVER/a.wmv\"/></entry></asx>");
    QTest::newRow("track at a server") << mp4 << serverTrack(withAddress("http://SERVER/a.mp4"));
    const QByteArray type = Mp4::box("ftyp", QByteArrayLiteral("qt  \0\0\0\0qt  "));
    const QByteArray reference = referenceMovie(withAddress("http://SERVER/a.mp4"));
    QTest::newRow("reference movie") << mp4 << QByteArray(type + reference);
    QTest::newRow("reference movie behind pictures")
        << mp4
        << QByteArray(type + Mp4::box("mdat", QByteArray(3000, 'x')) +
                      Mp4::largeBox("free", "abc") + reference);
    // The beginning of an MPEG program stream is that of a box of 442 bytes, too.
    QTest::newRow("reference movie in MPEG")
        << mp4
        << QByteArray(Mp4::boxClaiming(0x1BA, "wide", QByteArray(0x1BA - 8, 'x')) + reference);
    QTest::newRow("reference movie without a type") << QStringLiteral("hostile.mov") << reference;
    QTest::newRow("reference movie, compressed") << mp4 << QByteArray(type + compressed(reference));
}

/** A server would learn what is being watched, and where. */
void tst_LocalMedia::strangersAreNotCalled()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, content);
    const QString path = write(name, withAddress(content));
    QVERIFY(!path.isEmpty());
    QSignalSpy failed(mPlayer->loader(), &MediaLoader::failed);
    load(QUrl::fromLocalFile(path));
    QVERIFY(failed.isEmpty()); // the owner has yet to hear that it was loaded
    QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, 20000);
    QVERIFY(mPlayer->loader()->hasFailed());
    QVERIFY(!wasCalled());
    // And so no image can be asked for, for which another tool would read the file.
    QCOMPARE(mPlayer->player()->state(), QMediaPlayer::StoppedState);
}

void tst_LocalMedia::otherAddressesAreNotCalled_data()
{
    QTest::addColumn<QByteArray>("address");
    QTest::newRow("server") << QByteArray("http://SERVER/a.mp4");
    QTest::newRow("camera") << QByteArray("rtsp://SERVER/a.mp4");
    QTest::newRow("file of a host") << QByteArray("file://SERVER/a.mp4");
}

void tst_LocalMedia::otherAddressesAreNotCalled()
{
    QFETCH(const QByteArray, address);
    QSignalSpy failed(mPlayer->loader(), &MediaLoader::failed);
    load(QUrl(QString::fromLatin1(withAddress(address))));
    QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, 20000);
    QVERIFY(!wasCalled());
}

void tst_LocalMedia::recordingsPlay_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("codings"); // empty: as it is
    QTest::addColumn<QByteArray>("before");
    const QString copied = QStringLiteral("-c copy ");
    QTest::newRow("MP4") << QStringLiteral("a.mp4") << copied << QByteArray();
    QTest::newRow("MP4, header first")
        << QStringLiteral("b.mp4") << copied + QStringLiteral("-movflags faststart")
        << QByteArray();
    QTest::newRow("MP4, fragments")
        << QStringLiteral("c.mp4")
        << copied + QStringLiteral("-movflags frag_keyframe+empty_moov+default_base_moof")
        << QByteArray();
    QTest::newRow("MOV") << QStringLiteral("d.mov") << copied << QByteArray();
    QTest::newRow("AVI") << QStringLiteral("e.avi") << QStringLiteral("-c:v mjpeg -c:a pcm_s16le")
                         << QByteArray();
    QTest::newRow("Matroska") << QStringLiteral("f.mkv") << copied << QByteArray();
    QTest::newRow("MPEG-TS") << QStringLiteral("g.ts") << copied << QByteArray();
    QTest::newRow("MPEG-TS with time stamps")
        << QStringLiteral("h.m2ts") << copied + QStringLiteral("-mpegts_m2ts_mode 1")
        << QByteArray();
    QTest::newRow("MPEG-PS") << QStringLiteral("i.mpg")
                             << QStringLiteral("-c:v mpeg2video -c:a mp2") << QByteArray();
    QTest::newRow("FLV") << QStringLiteral("j.flv")
                         << QStringLiteral("-c:v flv1 -c:a adpcm_swf -ar 44100") << QByteArray();
    // The chunks of fragments are found from their own box.
    const QString fragments =
        copied + QStringLiteral("-movflags frag_keyframe+empty_moov+default_base_moof");
    QTest::newRow("behind a free box")
        << QStringLiteral("k.mp4") << fragments << Mp4::box("free", QByteArray(500, '\0'));
    QTest::newRow("behind a skipped box")
        << QStringLiteral("l.mp4") << fragments << Mp4::box("skip", "freeGPS ");
    QTest::newRow("behind a wide box") << QStringLiteral("m.mp4") << fragments << Mp4::box("wide");
}

void tst_LocalMedia::recordingsPlay()
{
    QFETCH(const QString, name);
    QFETCH(const QString, codings);
    QFETCH(const QByteArray, before);
    const QString path = mFolder.filePath(name);
    const QString command = QStringLiteral("-v error -y -i %1 %2")
                                .arg(mFolder.filePath(QStringLiteral("camera.mp4")), codings);
    QStringList arguments = command.split(QLatin1Char(' '));
    arguments.removeAll(QString());
    QCOMPARE(QProcess::execute(QStringLiteral("ffmpeg"), arguments << path), 0);
    if (!before.isEmpty()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        write(name, before + file.readAll());
    }
    QSignalSpy loaded(mPlayer->loader(), &MediaLoader::loaded);
    load(QUrl::fromLocalFile(path));
    QTRY_VERIFY_WITH_TIMEOUT(!loaded.isEmpty(), 20000);
    QTRY_VERIFY_WITH_TIMEOUT(mPlayer->player()->position() > 0, 20000);
}

/** Its size reads as four line feeds. */
void tst_LocalMedia::hugeMediaDataComesFirst()
{
    constexpr quint32 Size = 0x0A0A0A0A;
    QFile whole(mFolder.filePath(QStringLiteral("camera.mp4")));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    const QByteArray recording = whole.readAll();
    const int movie = recording.indexOf("moov") - 4; // behind the pictures, which stay in place
    QVERIFY(movie > 0);
    QFile file(mFolder.filePath(QStringLiteral("huge.mp4")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(Mp4::boxClaiming(Size, "mdat") + recording.mid(8, movie - 8)) == movie);
    QVERIFY(file.seek(Size) && file.write(recording.mid(movie)) > 0);
    file.close();

    QSignalSpy loaded(mPlayer->loader(), &MediaLoader::loaded);
    load(QUrl::fromLocalFile(file.fileName()));
    QTRY_VERIFY_WITH_TIMEOUT(!loaded.isEmpty(), 20000);
}

void tst_LocalMedia::judges_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<qint64>("size"); // with a hole behind the content; 0 for none
    QTest::addColumn<bool>("mayPlay");
    const QByteArray reference = referenceMovie("http://127.0.0.1/a.mp4");
    const QByteArray movie = movieOf("avc1");
    const auto add = [](const char *name, const QByteArray &content, bool mayPlay,
                        qint64 size = 0) { QTest::newRow(name) << content << size << mayPlay; };

    add("empty", QByteArray(), false);
    add("zeros", QByteArray(5000, '\0'), false);
    add("four bytes", "ftyp", false);
    add("text", "Dear driver,", false);
    add("another box", Mp4::box("text") + movie, false);
    add("RIFF of pictures", "RIFF\x10" + QByteArrayLiteral("\0\0\0ACON") + movie, false);
    add("too few packets", QByteArray(3, 'G').replace("G", "G" + QByteArray(187, '\0')), false);
    for (const char *type : {"ftyp", "moov", "mdat", "free", "skip", "wide", "pnot", "uuid", "styp",
                             "sidx", "moof", "udta", "meta"}) {
        QTest::addRow("first box %s", type)
            << QByteArray(Mp4::box(type) + movie) << qint64(0) << true;
    }
    add("64-bit size", Mp4::largeBox("mdat", QByteArray(100, 'x')) + movie, true);
    add("pictures up to the end", Mp4::boxClaiming(0, "mdat", QByteArray(100, 'x')), true);
    add("cut off in the pictures", Mp4::boxClaiming(0x01010101, "mdat", "x"), true);

    // What is looked at before the boxes.
    constexpr qint64 Hole = 0x80000000;
    const QByteArray box = "mdat" + QByteArray(20, 'x');
    add("text, though a box", "\n\n\n\n" + box, false);
    add("large enough for a box of that size", "\n\n\n\n" + box, true, Hole);
    add("tags as large as a box", "ID3\x03" + box, false, Hole);
    add("session as large as a box", "v=0\n" + box, false, Hole);
    add("comment as large as a box", "<!--" + box + "--><MPD a=\"\">", false, Hole);
    add("answer as large as a box", "--ab" + box + "\r\ncontent-type: a/b\r\n", false, Hole);
    add("pieces as large as a box", "--ab" + box, true, Hole);
    add("text of another box", "    free" + box, false, Hole);
    for (const char *mark : {"<MPD a=\"\">", "<smil>", "<?xml?><SmoothStreamingMedia>",
                             "{\"OTIO_SCHEMA\":", "<ges a=\"\">"}) {
        QTest::addRow("%s in a box", mark)
            << QByteArray(Mp4::box("ftyp", "qt  ") + Mp4::box("free", mark) + movie) << qint64(0)
            << false;
        QTest::addRow("%s in Matroska", mark)
            << QByteArray("\x1A\x45\xDF\xA3" + QByteArray(100, 'x') + mark) << qint64(0) << false;
    }
    add("manifest in UTF-16 in a box",
        Mp4::box("free", utf16("<SmoothStreamingMedia a=\"\">")) + movie, false);
    add("manifest further behind", Mp4::box("free", QByteArray(4096, '\0') + "<MPD>") + movie,
        true);

    // What is in the movie.
    add("reference", reference, false);
    add("reference behind other boxes", Mp4::box("ftyp") + Mp4::largeBox("free") + reference,
        false);
    add("reference beside a movie",
        Mp4::box("moov", Mp4::movieHeader(1000, 1000) + Mp4::box("udta") + Mp4::box("rmra")),
        false);
    add("reference in a box of a 64-bit size", Mp4::largeBox("moov", Mp4::box("rmra")), false);
    add("reference in a box up to the end", Mp4::boxClaiming(0, "moov", Mp4::box("rmra")), false);
    add("reference in a box cut off", Mp4::boxClaiming(900000, "moov", Mp4::box("rmra")), false);
    add("reference in MPEG",
        Mp4::boxClaiming(0x1BA, "wide", QByteArray(0x1BA - 8, 'x')) + reference, false);
    add("movie in MPEG", Mp4::boxClaiming(0x1BA, "wide", QByteArray(0x1BA - 8, 'x')) + movie, true);
    add("reference where none is read", Mp4::box("free", reference) + movie, true);
    add("reference behind the movie", movie + reference, true);
    add("compressed", compressed(movie), false);
    add("track at a server", movieOf("rtsp"), false);
    RecordingWriter two;
    two.tracks = {Mp4::videoTrack(320, 180, 30), Mp4::videoTrack(320, 180, 30)};
    two.tracks[1].codings = {"avc1", "rtsp"};
    add("second kind of samples of a second track at a server", two.encoded(), false);
    QByteArray broken = Mp4::box("moov", Mp4::boxClaiming(4000, "trak", Mp4::box("mdia")));
    add("track larger than the movie", broken, true);
    // A track that ends before its box says so must not hide the next one.
    const QByteArray second = Mp4::Track{"strm", "", 0, 0, 0, {"rtsp"}, 1, {}}.encoded();
    add("track behind a broken one",
        Mp4::box("moov", Mp4::box("trak", Mp4::boxClaiming(4000, "mdia")) + second), false);

    add("box smaller than its header", Mp4::boxClaiming(7, "free") + movie, false);
    add("large box smaller than its header", Mp4::largeBoxClaiming(15, "free") + movie, false);
    add("box larger than anything", Mp4::largeBoxClaiming(~quint64(0), "free") + movie, true);
    add("a hundred boxes", Mp4::box("free").repeated(100) + movie, true);
}

void tst_LocalMedia::judges()
{
    QFETCH(const QByteArray, content);
    QFETCH(const qint64, size);
    QFETCH(const bool, mayPlay);
    const QString path = write(QStringLiteral("judged.mp4"), content);
    QVERIFY(size == 0 || QFile::resize(path, size));
    const QString obstacle = RecordingContainer(path).obstacle();
    QVERIFY2(obstacle.isEmpty() == mayPlay, qPrintable(obstacle));
    QVERIFY(QFile::remove(path));
}

void tst_LocalMedia::recordingsOfCamerasAreComplete()
{
    for (const int scheme : TelemetrySchemes) {
        const QString path =
            write(QLatin1String(recordingName(scheme)), smallRecording(scheme, ride(3)));
        QCOMPARE(RecordingContainer(path).obstacle(), QString());
    }
    for (const QString &name : {QStringLiteral("ride.mp4"), QStringLiteral("ride.avi")}) {
        QVERIFY(makeMediaFile(mFolder.filePath(name), 1, ride(3)));
        QCOMPARE(RecordingContainer(mFolder.filePath(name)).obstacle(), QString());
    }
}

/** Opening a pipe waits for its writer. */
void tst_LocalMedia::specialFilesAreNotOpened()
{
    const QString pipe = mFolder.filePath(QStringLiteral("pipe.mp4"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QString link = mFolder.filePath(QStringLiteral("link.mp4"));
    QVERIFY(QFile::link(pipe, link));
    for (const QString &path : {pipe, link, mFolder.path(), QStringLiteral("/dev/zero"),
                                mFolder.filePath(QStringLiteral("missing.mp4"))}) {
        QSignalSpy failed(mPlayer->loader(), &MediaLoader::failed);
        load(QUrl::fromLocalFile(path));
        QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, 20000);
    }
}

void tst_LocalMedia::readsLittle_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("repeated");
    QTest::addColumn<QByteArray>("after");
    const QByteArray reference = referenceMovie("http://127.0.0.1/a.mp4");
    QTest::newRow("a million boxes") << QByteArray() << Mp4::box("free") << reference;
    QTest::newRow("a million boxes in the movie")
        << Mp4::boxClaiming(9000000, "moov") << Mp4::box("free") << Mp4::box("rmra");
    QTest::newRow("a million kinds of samples")
        << QByteArray(Mp4::boxClaiming(0, "moov") + Mp4::boxClaiming(0, "trak") +
                      Mp4::boxClaiming(0, "mdia") + Mp4::boxClaiming(0, "minf") +
                      Mp4::boxClaiming(0, "stbl") + Mp4::boxClaiming(0, "stsd") + Mp4::big64(1))
        << Mp4::box("avc1") << Mp4::box("rtsp");
}

/** What was not looked at is not trusted. */
void tst_LocalMedia::readsLittle()
{
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, repeated);
    QFETCH(const QByteArray, after);
    const QString path =
        write(QStringLiteral("many.mp4"), before + repeated.repeated(1000000) + after);
    const auto bytesRead = [] {
        QFile counters(QStringLiteral("/proc/self/io"));
        return counters.open(QIODevice::ReadOnly) ? counters.readLine().mid(7).toLongLong() : -1;
    };
    const qint64 readBefore = bytesRead();
    QVERIFY(readBefore >= 0);
    QVERIFY(!RecordingContainer(path).obstacle().isEmpty());
    QVERIFY(bytesRead() - readBefore < 256 * 1024);
}

QTEST_MAIN(tst_LocalMedia)
#include "tst_localmedia.moc"
