// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "controlpanel.h"
#include "mainwindows.h"
#include "mediafile.h"
#include "paceobserver.h"
#include "patience.h"
#include "picturenotice.h"
#include "playareamanager.h"
#include "playbacknotices.h"
#include "playbackproblem.h"
#include "playlistadvance.h"
#include "playlistmodel.h"
#include "recordingwriter.h"
#include "rowdata.h"

#include <QApplication>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QWindow>

#include <functional>
#include <memory>

#include <sys/stat.h>

Q_DECLARE_METATYPE(RecordingCondition::Kind)
Q_DECLARE_METATYPE(RecordingContainer::Verdict)
Q_DECLARE_METATYPE(PlaybackProblem::Reason)

namespace {

// Long enough for a test to do something meanwhile, on any machine.
constexpr int NeverMs = 1000000;

} // namespace

/** What the program says where a picture should be, with its window, player and decoders. */
class tst_PlaybackNotices : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void reasons_data();
    void reasons();
    void codings();
    void packages();
    void pace_data();
    void pace();

    void tellsWhatIsWrong_data();
    void tellsWhatIsWrong();
    void namesTheCoding();
    void listGoesOn();
    void userTakesOver();
    void rearTellsOfItself();
    void tellsThatTelemetryIsRead();
    void leavesTheMouseToThePicture();
    void longNamesFit();
    void tellsOfASlowComputerOnce();

private:
    QString path(const QString &name) const { return mFolder.filePath(name); }
    void write(const QString &name, const QByteArray &content) const;
    void open(const QStringList &names);
    void click(const char *button) const
    {
        QTest::mouseClick(mWindow->findChild<QWidget *>(QLatin1String(button)), Qt::LeftButton);
    }
    PlayAreaManager *area() const { return mWindow->findChild<PlayAreaManager *>(); }
    QMediaPlayer *player() const { return area()->mainPlayer()->player(); }
    PictureNotice *notice() const { return area()->mainPlayer()->notice(); }
    PlaylistAdvance *advance() const { return mWindow->findChild<PlaylistAdvance *>(); }
    PlaylistModel *playlist() const { return mWindow->findChild<PlaylistModel *>(); }

    QTemporaryDir mFolder;
    std::unique_ptr<MainWindows> mWindow;
};

void tst_PlaybackNotices::initTestCase()
{
    QApplication::setQuitOnLastWindowClosed(false);
    QCoreApplication::setOrganizationName(QStringLiteral("Quellfern"));
    QVERIFY(makeMediaFile(path("whole.mp4"), 2));
    QVERIFY(makeMediaFile(path("MOVA0001.MP4"), 20));
    const QString pictures = QStringLiteral("-v error -y -f lavfi -i testsrc2=size=320x180");
    const QString sound = QStringLiteral(" -f lavfi -i sine");
    for (const QString &rest :
         {sound + " -t 2 -c:v ffv1 sound.avi", QString(" -t 2 -c:v ffv1 mute.avi")}) {
        QProcess ffmpeg;
        ffmpeg.setWorkingDirectory(mFolder.path());
        ffmpeg.start(QStringLiteral("ffmpeg"), (pictures + rest).split(QLatin1Char(' ')));
        QVERIFY(ffmpeg.waitForFinished(-1) && ffmpeg.exitCode() == 0);
    }
}

void tst_PlaybackNotices::init()
{
    mWindow = std::make_unique<MainWindows>();
    advance()->setUnplayablePauseMs(NeverMs);
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(mWindow.get(), PatienceMs));
}

void tst_PlaybackNotices::cleanup()
{
    mWindow.reset();
}

void tst_PlaybackNotices::write(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

void tst_PlaybackNotices::open(const QStringList &names)
{
    QList<QUrl> urls;
    for (const QString &name : names)
        urls.append(QUrl::fromLocalFile(path(name)));
    mWindow->openRecordings(urls);
}

void tst_PlaybackNotices::reasons_data()
{
    QTest::addColumn<RecordingContainer::Verdict>("verdict");
    QTest::addColumn<QMediaPlayer::Error>("error");
    QTest::addColumn<bool>("endedWithoutPicture");
    QTest::addColumn<RecordingCondition::Kind>("kind");
    QTest::addColumn<PlaybackProblem::Reason>("reason");
    using C = RecordingContainer;
    using M = QMediaPlayer;
    using R = RecordingCondition;
    using P = PlaybackProblem;
    QTest::newRow("removed since it was walked")
        << C::Unreadable << M::NoError << false << R::Whole << P::Gone;
    QTest::newRow("no right to read")
        << C::Complete << M::AccessDeniedError << false << R::Unknown << P::Gone;
    QTest::newRow("emptied") << C::Empty << M::NoError << false << R::CutOff << P::Empty;
    QTest::newRow("text") << C::Foreign << M::NoError << false << R::NoHeader << P::NotVideo;
    QTest::newRow("without pictures")
        << C::Complete << M::ResourceError << false << R::NotVideo << P::NotVideo;
    QTest::newRow("zeros") << C::Damaged << M::NoError << false << R::NotVideo << P::NoHeader;
    QTest::newRow("no index") << C::Complete << M::ResourceError << false << R::NoHeader
                              << P::NoHeader;
    QTest::newRow("not even an error")
        << C::Complete << M::NoError << false << R::CutOff << P::CutOff;
    QTest::newRow("no picture up to the end")
        << C::Complete << M::NoError << true << R::Whole << P::CutOff;
    QTest::newRow("no decoder") << C::Complete << M::FormatError << false << R::Whole
                                << P::NoDecoder;
    QTest::newRow("no decoder, and cut off")
        << C::Complete << M::FormatError << false << R::CutOff << P::NoDecoder;
    QTest::newRow("written since it was walked")
        << C::Complete << M::ResourceError << false << R::Empty << P::Damaged;
    QTest::newRow("not walked yet")
        << C::Complete << M::ResourceError << false << R::Unknown << P::Damaged;
}

void tst_PlaybackNotices::reasons()
{
    QFETCH(const RecordingContainer::Verdict, verdict);
    QFETCH(const QMediaPlayer::Error, error);
    QFETCH(const bool, endedWithoutPicture);
    QFETCH(const RecordingCondition::Kind, kind);
    RecordingCondition condition;
    condition.kind = kind;
    QTEST(PlaybackProblem::reason(condition, {verdict, error, endedWithoutPicture}), "reason");
}

void tst_PlaybackNotices::codings()
{
    QCOMPARE(PlaybackProblem::codingName("hev1"), QStringLiteral("H.265 (HEVC)"));
    QCOMPARE(PlaybackProblem::codingName("AVC1"), QStringLiteral("H.264 (AVC)"));
    QCOMPARE(PlaybackProblem::codingName("MJPG"), QStringLiteral("Motion JPEG"));
    QCOMPARE(PlaybackProblem::codingName("Abc "), QStringLiteral("Abc"));
    QCOMPARE(PlaybackProblem::codingName(QByteArray("\1\0\0\0", 4)), QString());
}

void tst_PlaybackNotices::packages()
{
    const QString package = PlaybackProblem::decoderPackage("NAME=\"X\"\nID=debian\n");
    QFile list(QStringLiteral(DEBIAN_PACKAGES));
    QVERIFY(list.open(QIODevice::ReadOnly));
    QVERIFY(list.readAll().split('\n').contains(package.toLatin1()));
    QCOMPARE(PlaybackProblem::decoderPackage("ID=mine\nID_LIKE=\"ubuntu debian\""), package);
    QCOMPARE(PlaybackProblem::decoderPackage("ID=mine\nVARIANT_ID=debian\n"), QString());
    QCOMPARE(PlaybackProblem::decoderPackage(QByteArray()), QString());
}

void tst_PlaybackNotices::pace_data()
{
    QTest::addColumn<double>("perSecond"); // of the recording
    QTest::addColumn<double>("rate");
    QTest::addColumn<int>("pictures"); // that come each second
    QTest::addColumn<int>("eventAt");  // the second in which the recording is sought back
    QTest::addColumn<int>("toldAt");   // second; 0 for never
    QTest::newRow("half of them come") << 30.0 << 1.0 << 15 << 0 << 0;
    QTest::newRow("fewer come") << 30.0 << 1.0 << 14 << 0 << 5;
    QTest::newRow("all that slow motion has") << 30.0 << 0.5 << 8 << 0 << 0;
    QTest::newRow("fewer than slow motion has") << 30.0 << 0.5 << 7 << 0 << 5;
    QTest::newRow("as many as the camera took") << 30.0 << 4.0 << 16 << 0 << 0;
    QTest::newRow("fewer, played quickly") << 30.0 << 4.0 << 14 << 0 << 5;
    QTest::newRow("a seek begins anew") << 30.0 << 1.0 << 0 << 3 << 8;
    QTest::newRow("rate not known") << 0.0 << 1.0 << 0 << 0 << 0;
}

void tst_PlaybackNotices::pace()
{
    QFETCH(const double, perSecond);
    QFETCH(const double, rate);
    QFETCH(const int, pictures);
    QFETCH(const int, eventAt);
    QFETCH(const int, toldAt);
    PaceObserver observer;
    observer.begin(perSecond);
    QVERIFY(!observer.isTooSlow(0, 0, rate));
    QVector<int> told;
    qint64 positionMs = 0;
    for (int second = 1; second <= 20; ++second) {
        for (int i = 0; i < pictures; ++i)
            observer.notePicture();
        positionMs = second == eventAt ? 0 : positionMs + qint64(1000 * rate);
        QVERIFY(!observer.isTooSlow(second * 1000 - 100, positionMs - 100, rate));
        if (observer.isTooSlow(second * 1000, positionMs, rate))
            told.append(second);
    }
    QCOMPARE(told, toldAt > 0 ? QVector<int>{toldAt} : QVector<int>());
    for (int second = 1; second < 20; ++second) // stuck, not slow
        QVERIFY(!observer.isTooSlow((20 + second) * 1000, positionMs, rate));
}

void tst_PlaybackNotices::tellsWhatIsWrong_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text"); // begins so

    QFile file(path("whole.mp4"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    const int media = whole.indexOf("mdat") - 4;
    const int movie = whole.lastIndexOf("moov") - 4;
    QVERIFY(media > 0 && movie > media);
    // The header first, and the pictures cut off: where it says they lie, there is nothing.
    const QByteArray cut = whole.left(media) + whole.mid(movie) + whole.mid(media, 8);

    const auto gone = QStringLiteral("The file is gone or cannot be read.");
    const auto notVideo = QStringLiteral("The file is not a video recording.");
    const auto noDecoder = QStringLiteral("No decoder for ");
    QTest::newRow("empty") << QByteArray() << "empty.mp4"
                           << "The file is empty.";
    QTest::newRow("gone") << QByteArray() << "gone.mp4" << gone;
    QTest::newRow("pipe") << QByteArray() << "pipe.mp4" << gone;
    QTest::newRow("no header") << whole.left(movie) << "cut.mp4"
                               << "The recording is damaged";
    QTest::newRow("never written") << QByteArray(10000, '\0') << "zeros.mp4"
                                   << "The recording is damaged: its header is missing.";
    QTest::newRow("no picture")
        << cut << "first.mp4"
        << "The recording is damaged: it breaks off before its first picture.";
    QTest::newRow("text") << QByteArray("Dear driver,") << "letter.mp4" << notVideo;
    QTest::newRow("reference") << Mp4::box("moov", Mp4::box("rmra")) << "link.mov" << notVideo;
    QTest::newRow("coding without decoder") << QByteArray() << "mute.avi" << noDecoder;
    QTest::newRow("the same with sound") << QByteArray() << "sound.avi" << noDecoder;
}

void tst_PlaybackNotices::tellsWhatIsWrong()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, name);
    QFETCH(const QString, text);
    const bool isPipe = name.startsWith(QLatin1String("pipe"));
    if (isPipe)
        QCOMPARE(mkfifo(QFile::encodeName(path(name)).constData(), 0600), 0);
    else if (!name.endsWith(QLatin1String("avi")))
        write(name, content);
    if (name.startsWith(QLatin1String("gone"))) {
        open({"whole.mp4", name});
        QVERIFY(QFile::remove(path(name)));
        click("btn_Next");
    } else {
        open({name});
    }
    QTRY_COMPARE(notice()->heading(), name);
    QVERIFY2(notice()->text().startsWith(text), qPrintable(notice()->text()));
    QVERIFY(!notice()->isProgress());
    QCOMPARE(area()->state(), QMediaPlayer::StoppedState);
    QTRY_VERIFY(area()->mainPlayer()->rect().contains(notice()->geometry()));
    QVERIFY(!notice()->geometry().isEmpty());
}

/** The worker may tell what the coding is, or what is wrong, when the player has given up. */
void tst_PlaybackNotices::namesTheCoding()
{
    open({"sound.avi"});
    QTRY_COMPARE(notice()->heading(), QStringLiteral("sound.avi"));
    RowData *row = playlist()->getRowData(0);
    QTRY_COMPARE(row->width, 320); // the worker has told all it knows
    row->condition.coding = "H264";
    emit playlist()->dataChanged(QModelIndex(), QModelIndex());
    QVERIFY2(notice()->text().startsWith(QLatin1String("No decoder for H.264 (AVC) is installed.")),
             qPrintable(notice()->text()));
    row->condition.coding = "Abcd";
    emit playlist()->dataChanged(QModelIndex(), QModelIndex());
    QCOMPARE(notice()->text(), QStringLiteral("No decoder for Abcd is installed."));
}

void tst_PlaybackNotices::listGoesOn()
{
    advance()->setUnplayablePauseMs(0);
    write("empty.mp4", QByteArray());
    write("letter.mp4", "Dear driver,");
    open({"empty.mp4", "letter.mp4", "whole.mp4", "sound.avi"}); // the first by the user
    QSignalSpy due(advance(), &PlaylistAdvance::due);
    QTRY_VERIFY(player()->position() > 0);
    QCOMPARE(area()->mainRow()->id, 2);
    QCOMPARE(due.size(), 2);
    // After the last one there is none left, and what is wrong with it stays.
    QTRY_COMPARE(due.size(), 4);
    QCOMPARE(notice()->heading(), QStringLiteral("sound.avi"));
    click("btn_Previous");
    QVERIFY(!notice()->isShown());
    QTRY_VERIFY(player()->position() > 0);
    QCOMPARE(area()->mainRow()->id, 2);
}

void tst_PlaybackNotices::userTakesOver()
{
    write("letter.mp4", "Dear driver,");
    const QList<std::function<void()>> acts = {
        [this] { click("btn_Previous"); }, // none there
        [this] { mWindow->onStop(); },     // its button is for what plays
        [this] { emit mWindow->findChild<ControlPanel *>()->pause(); }};
    for (const auto &act : acts) {
        init();
        open({"letter.mp4", "whole.mp4"});
        QTRY_COMPARE(notice()->heading(), QStringLiteral("letter.mp4"));
        QTimer *pause = advance()->findChild<QTimer *>();
        QVERIFY(pause && pause->isActive());
        act();
        QVERIFY(!pause->isActive());
    }
    QVERIFY(notice()->isShown());
    mWindow->onStop();
    QVERIFY(!notice()->isShown());
}

void tst_PlaybackNotices::rearTellsOfItself()
{
    write("MOVB0001.MP4", "Dear driver,");
    open({"MOVA0001.MP4", "MOVB0001.MP4"});
    QTRY_VERIFY(player()->position() > 0);
    QVERIFY(area()->secondPlayer());
    const PictureNotice *rear = area()->secondPlayer()->notice();
    QTRY_COMPARE(rear->heading(), QStringLiteral("MOVB0001.MP4"));
    QCOMPARE(rear->text(), QStringLiteral("The file is not a video recording."));
    QTRY_VERIFY(!rear->geometry().isEmpty());
    QVERIFY(!notice()->isShown());
    area()->pause();
    area()->seek(10); // which would start a second recording that has ended
    QTRY_VERIFY(player()->position() >= 10000);
    QCOMPARE(area()->state(), QMediaPlayer::PausedState);
    QVERIFY(rear->isShown());
    mWindow->onStop();
    QVERIFY(!rear->isShown());
}

void tst_PlaybackNotices::tellsThatTelemetryIsRead()
{
    QObject::disconnect(playlist(), &PlaylistModel::allGpsDataParserFinished, mWindow.get(),
                        nullptr); // it is on its way for ever
    open({"whole.mp4"});
    QTRY_VERIFY(notice()->isProgress());
    QVERIFY(!notice()->text().isEmpty() && notice()->heading().isEmpty());
    mWindow->onStop();
    QVERIFY(!notice()->isShown());
    open({"whole.mp4"});
    QTRY_VERIFY(notice()->isProgress());
    mWindow->onAllGpsDataParserFinished(0, {});
    QTRY_COMPARE(area()->state(), QMediaPlayer::PlayingState);
    QVERIFY(!notice()->isShown());
}

/** In the window and in full screen, where it goes with the picture. */
void tst_PlaybackNotices::leavesTheMouseToThePicture()
{
    write("letter.mp4", "Dear driver,");
    open({"letter.mp4"});
    QTRY_VERIFY(!notice()->geometry().isEmpty());
    QWidget *picture = area()->mainPlayer();
    for (const bool isFull : {true, false}) {
        const QPoint middle = picture->mapToGlobal(notice()->geometry().center());
        const QStringList clicks{"mousemove",
                                 QString::number(middle.x()),
                                 QString::number(middle.y()),
                                 "click",
                                 "--repeat",
                                 "2",
                                 "--delay",
                                 "50",
                                 "1"};
        QCOMPARE(QProcess::execute(QStringLiteral("xdotool"), clicks), 0);
        QTRY_COMPARE(picture->isFullScreen(), isFull);
        QTRY_VERIFY(picture->rect().contains(notice()->geometry()) &&
                    !notice()->geometry().isEmpty());
        QTRY_VERIFY(qAbs(notice()->geometry().center().x() - picture->rect().center().x()) <= 1);
        QTest::qWait(QApplication::doubleClickInterval());
    }
}

void tst_PlaybackNotices::longNamesFit()
{
    QWidget narrow;
    narrow.resize(150, 110);
    PictureNotice notice(&narrow);
    narrow.show();
    const QString sentence = QStringLiteral("Für H.265 (HEVC) ist kein Decoder installiert. ");
    notice.tell(QString(200, QLatin1Char('W')), sentence);
    const QRect small = notice.geometry();
    QVERIFY(narrow.rect().contains(small) && !small.isEmpty());
    narrow.resize(600, 300);
    QTRY_VERIFY(notice.geometry().width() > small.width());
    notice.tell(QString(), sentence);
    QVERIFY(notice.geometry().width() < 600);
    notice.tell(QString(), sentence.repeated(3));
    QVERIFY(notice.geometry().height() > small.height() / 3);
    notice.tellFor(1, sentence);
    QTRY_VERIFY(!notice.isShown());
    QVERIFY(notice.geometry().isEmpty());
}

/** By a recording that claims more pictures than it has. */
void tst_PlaybackNotices::tellsOfASlowComputerOnce()
{
    open({"MOVA0001.MP4"});
    QTRY_VERIFY(playlist()->getRowData(0)->frameRate > 29);
    playlist()->getRowData(0)->frameRate = 1000;
    QTRY_VERIFY(notice()->isShown());
    QCOMPARE(notice()->text(), QStringLiteral("This computer may be too slow for this recording."));
    QCOMPARE(area()->state(), QMediaPlayer::PlayingState);
    QTRY_VERIFY(!notice()->geometry().isEmpty());
    QTRY_VERIFY(!notice()->isShown());
}

int main(int argc, char **argv)
{
    // As where the decoders of this coding are not installed.
    qputenv("GST_PLUGIN_FEATURE_RANK", "avdec_ffv1:NONE");
    QApplication app(argc, argv);
    tst_PlaybackNotices test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_playbacknotices.moc"
