// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mediafile.h"
#include "patience.h"
#include "playareamanager.h"
#include "recordingwriter.h"
#include "rowdata.h"

#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QProcess>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include <algorithm>
#include <memory>

Q_DECLARE_METATYPE(QKeyEvent *)

namespace {

constexpr qint64 InStepMs = 100;
// A main player that is further on than this has started alone. Catching up comes later still.
constexpr qint64 AloneMs = 300;

QMediaPlayer *mainOf(const PlayAreaManager &area)
{
    return area.mainPlayer()->player();
}

QMediaPlayer *secondOf(const PlayAreaManager &area)
{
    return area.secondPlayer()->player();
}

/** Without what the looking itself may have taken. */
qint64 apartMs(const PlayAreaManager &area)
{
    const qint64 before = mainOf(area)->position();
    const qint64 second = secondOf(area)->position();
    const qint64 after = mainOf(area)->position();
    return std::max({qint64(0), before - second, second - after});
}

/** Waits until the main player has reported its position this many times. */
bool waitForReports(const PlayAreaManager &area, int count)
{
    QSignalSpy reports(mainOf(area), &QMediaPlayer::positionChanged);
    while (reports.size() < count) {
        if (!reports.wait(PatienceMs))
            return false;
    }
    return true;
}

/** Whether the screen shows something else in the area after a while. */
bool pictureMoves(const PlayAreaManager &area)
{
    const QRect place(area.mapToGlobal(QPoint(0, 0)), area.size());
    const auto grab = [&place] {
        return QGuiApplication::primaryScreen()
            ->grabWindow(0, place.x(), place.y(), place.width(), place.height())
            .toImage();
    };
    const QImage before = grab();
    QTest::qWait(700);
    return grab() != before;
}

/** The last picture goes a little later than the playing ends, but long before the recordings do.
 */
bool comesToRest(const PlayAreaManager &area)
{
    for (int i = 0; i < 20; ++i) {
        if (!pictureMoves(area))
            return true;
    }
    return false;
}

} // namespace

/** The play area with real recordings on a real display. */
class tst_Playback : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void nudgesUntilThePictureMoves();
    void acceptsDroppedRecordings();
    void keysOutsideFullScreen_data();
    void keysOutsideFullScreen();
    void keysInFullScreen();
    void secondPlayerFollows();
    void onlyTheMainOneIsHeard();
    void releasingTheSlider();
    void staysInStep();
    void correctsAPlayerThatIsOff();
    void shorterSecondEndsByItself();
    void cutSecondEndsOnce();
    void unplayableMainPlaysNothing_data();
    void unplayableMainPlaysNothing();
    void repeatsALostSeek();
    void leavesPressesAndPaintsAfterErrors();
    void givesUpLoading();
    void stopHolds_data();
    void stopHolds();

private:
    void playPair(const RowData &main, const RowData &related);

    QTemporaryDir mFolder;
    RowData mFront;
    RowData mRear;
    RowData mShort;
    std::unique_ptr<PlayAreaManager> mArea;
};

void tst_Playback::initTestCase()
{
    qRegisterMetaType<QKeyEvent *>();
    RowData *const rows[] = {&mFront, &mRear, &mShort};
    const int lengths[] = {60, 60, 4};
    for (int i = 0; i < 3; ++i) {
        const QString fileName = mFolder.filePath(QStringLiteral("camera%1.mp4").arg(i));
        QVERIFY(makeMediaFile(fileName, lengths[i]));
        rows[i]->id = 7 + i;
        rows[i]->url = QUrl::fromLocalFile(fileName);
    }
}

void tst_Playback::init()
{
    mArea = std::make_unique<PlayAreaManager>();
    mArea->resize(640, 200);
    mArea->show();
    QVERIFY(QTest::qWaitForWindowExposed(mArea.get(), PatienceMs));
}

void tst_Playback::cleanup()
{
    mArea.reset();
}

void tst_Playback::playPair(const RowData &main, const RowData &related)
{
    mArea->setPlayerNum(2);
    mArea->setResourceData(&main, &related);
    const QObject start;
    int aloneReports = 0;
    bool isLate = false;
    connect(mainOf(*mArea), &QMediaPlayer::positionChanged, &start, [&](qint64 positionMs) {
        const bool isAlone = secondOf(*mArea)->state() != QMediaPlayer::PlayingState;
        aloneReports += positionMs > 0 && isAlone ? 1 : 0;
        isLate = isLate || (positionMs > AloneMs && aloneReports > 2);
    });
    mArea->play();
    QTRY_COMPARE(secondOf(*mArea)->state(), QMediaPlayer::PlayingState);
    QTRY_VERIFY(mainOf(*mArea)->position() > 0 && secondOf(*mArea)->position() > 0);
    QVERIFY(!isLate);
}

void tst_Playback::nudgesUntilThePictureMoves()
{
    mArea->setResourceData(&mFront, nullptr);
    QSignalSpy seconds(mArea.get(), &PlayAreaManager::positionChanged);
    const int height = mArea->height();
    mArea->play();
    mArea->mainPlayer()->player()->disconnect(mArea.get()); // its reports are given by hand
    seconds.clear();

    const struct
    {
        qint64 positionMs;
        int height;
        qint64 second;
    } steps[] = {{0, height + 1, 0}, {0, height, 0}, {1999, height + 1, 1}, {2000, height + 1, 2}};
    for (const auto &step : steps) {
        mArea->onPositionChanged(step.positionMs);
        QCOMPARE(mArea->height(), step.height);
        QCOMPARE(seconds.takeFirst(), QVariantList({step.second, mFront.id}));
    }
}

void tst_Playback::acceptsDroppedRecordings()
{
    QSignalSpy dropped(mArea.get(), &PlayAreaManager::dropFile);
    const QString video = QStringLiteral("file:///drive/a %23 clip.MP4");
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(QStringLiteral("/drive/notes.txt")),
                  QUrl::fromLocalFile(mFolder.path()), QUrl(video)});

    // A source that proposes to move deletes its file afterwards.
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton,
                          Qt::ShiftModifier);
    enter.setDropAction(Qt::MoveAction);
    enter.ignore();
    QCoreApplication::sendEvent(mArea.get(), &enter);
    QVERIFY(enter.isAccepted());
    QCOMPARE(enter.dropAction(), Qt::CopyAction);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton,
                    Qt::ShiftModifier);
    drop.setDropAction(Qt::MoveAction);
    QCoreApplication::sendEvent(mArea.get(), &drop);
    QCOMPARE(drop.dropAction(), Qt::CopyAction);
    QCOMPARE(dropped.size(), 1);
    QCOMPARE(dropped.takeFirst().first().toString(), video);

    mime.setUrls({QUrl(QStringLiteral("file://localhost/drive/a.mov"))});
    QCoreApplication::sendEvent(mArea.get(), &enter);
    QCoreApplication::sendEvent(mArea.get(), &drop);
    QCOMPARE(dropped.size(), 1);
    QCOMPARE(dropped.takeFirst().first().toString(), QStringLiteral("file:///drive/a.mov"));

    mime.setUrls({QUrl::fromLocalFile(QStringLiteral("/drive/notes.txt")),
                  QUrl(QStringLiteral("http://127.0.0.1/a.mp4")),
                  QUrl(QStringLiteral("mtp:/camera/a.mp4")),
                  QUrl(QStringLiteral("file://elsewhere/a.mp4"))});
    QDragEnterEvent refused(QPoint(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    refused.ignore();
    QCoreApplication::sendEvent(mArea.get(), &refused);
    QVERIFY(!refused.isAccepted());
}

void tst_Playback::keysOutsideFullScreen_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("keypad Enter") << Qt::Key_Enter << int(Qt::KeypadModifier);
    QTest::newRow("Alt and keypad Enter") << Qt::Key_Enter << int(Qt::AltModifier);
    QTest::newRow("Space") << Qt::Key_Space << int(Qt::NoModifier);
    QTest::newRow("Escape") << Qt::Key_Escape << int(Qt::NoModifier);
}

void tst_Playback::keysOutsideFullScreen()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const int, modifiers);
    QSignalSpy forwarded(mArea.get(), &PlayAreaManager::keyPressSignals);
    QSignalSpy fullScreen(mArea.get(), &PlayAreaManager::fullScreenChanged);
    QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
    QCoreApplication::sendEvent(mArea->mainPlayer(), &event);
    QVERIFY(!event.isAccepted()); // left to the window
    QVERIFY(forwarded.isEmpty() && fullScreen.isEmpty());
}

void tst_Playback::keysInFullScreen()
{
    PlayerWidget *player = mArea->mainPlayer();
    QSignalSpy forwarded(mArea.get(), &PlayAreaManager::keyPressSignals);
    QSignalSpy fullScreen(mArea.get(), &PlayAreaManager::fullScreenChanged);
    QTest::mouseDClick(player, Qt::LeftButton);
    QCOMPARE(fullScreen.takeFirst().first().toBool(), true);
    QTRY_VERIFY(player->isFullScreen());

    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_A})
        QTest::keyClick(player, key);
    QCOMPARE(forwarded.size(), 3);
    QTest::keyClick(player, Qt::Key_Escape);
    QCOMPARE(fullScreen.takeFirst().first().toBool(), false);
    QTRY_VERIFY(!player->isFullScreen());
    QCOMPARE(player->parentWidget(), mArea->findChild<QWidget *>(QStringLiteral("wgtbackWidget")));
}

void tst_Playback::secondPlayerFollows()
{
    playPair(mFront, mRear);
    QVERIFY(secondOf(*mArea)->isMuted());
    mArea->setMuted(false);
    mArea->setVolume(40);
    mArea->setPlaybackRate(2.0);
    QVERIFY(secondOf(*mArea)->isMuted());
    QCOMPARE(secondOf(*mArea)->volume(), 40);
    QCOMPARE(secondOf(*mArea)->playbackRate(), 2.0);
    mArea->pause();
    QTRY_COMPARE(secondOf(*mArea)->state(), QMediaPlayer::PausedState);
    mArea->seek(20);
    QTRY_COMPARE(mainOf(*mArea)->position(), 20000);
    QTRY_COMPARE(secondOf(*mArea)->position(), 20000);
    mArea->stop();
    QTRY_COMPARE(secondOf(*mArea)->state(), QMediaPlayer::StoppedState);

    const QPointer<PlayerWidget> second = mArea->secondPlayer();
    mArea->setPlayerNum(3);
    QVERIFY(mArea->secondPlayer());
    QSignalSpy fullScreen(mArea.get(), &PlayAreaManager::fullScreenChanged);
    QTest::mouseDClick(second, Qt::LeftButton);
    QTRY_VERIFY(second->isFullScreen());
    mArea->setPlayerNum(1);
    QVERIFY(!mArea->secondPlayer());
    QCOMPARE(fullScreen, QList<QVariantList>({{true}, {false}})); // which ends with it
    QCOMPARE(mArea->findChildren<PlayerWidget *>().size(), 1);
    QTRY_VERIFY(!second);
    mArea->play();
    QTRY_COMPARE(mArea->state(), QMediaPlayer::PlayingState);
}

/** Beside another stream of sound, the second player would often stand still after a seek. */
void tst_Playback::onlyTheMainOneIsHeard()
{
    playPair(mFront, mRear);
    QVERIFY(!qEnvironmentVariableIsSet("QT_GSTREAMER_PLAYBIN_AUDIOSINK")); // for later players
    if (!qEnvironmentVariableIsSet("PULSE_SERVER"))
        return;
    const QByteArray owner = "application.process.id = \"" +
                             QByteArray::number(QCoreApplication::applicationPid()) + '"';
    QProcess list;
    list.start(QStringLiteral("pactl"), {QStringLiteral("list"), QStringLiteral("sink-inputs")});
    QVERIFY(list.waitForFinished(PatienceMs));
    QCOMPARE(list.readAllStandardOutput().count(owner), 1);
}

void tst_Playback::releasingTheSlider()
{
    playPair(mFront, mRear);
    mArea->onSliderStatusChanged(true, 0);
    QTRY_COMPARE(mArea->state(), QMediaPlayer::PausedState);
    mArea->seek(30);
    QTRY_COMPARE(mainOf(*mArea)->position(), 30000);
    mainOf(*mArea)->setPosition(30400);
    QTRY_COMPARE(mainOf(*mArea)->position(), 30400);
    QSignalSpy reports(mainOf(*mArea), &QMediaPlayer::positionChanged);
    mArea->onSliderStatusChanged(false, 30);
    QTRY_COMPARE(mArea->state(), QMediaPlayer::PlayingState);
    QTRY_COMPARE(secondOf(*mArea)->state(), QMediaPlayer::PlayingState);
    QVERIFY(reports.isEmpty() || reports.first().first().toLongLong() >= 30400); // no seek
}

void tst_Playback::staysInStep()
{
    playPair(mFront, mRear);
    const double rates[] = {2.0, 0.5, 1.0};
    for (int i = 0; i < 10; ++i) {
        mArea->seek(5 + i * 17 % 40);
        QVERIFY(waitForReports(*mArea, 3));
        if (i < 6)
            mArea->setPlaybackRate(rates[i % 3]);
    }
    QTRY_VERIFY(apartMs(*mArea) <= InStepMs);
    constexpr int looks = 20; // and it lasts, but for what a busy machine disturbs and is corrected
    int inStep = 0;
    for (int i = 0; i < looks; ++i) {
        QVERIFY(waitForReports(*mArea, 1));
        inStep += apartMs(*mArea) <= InStepMs ? 1 : 0;
    }
    QVERIFY2(inStep > looks / 2, QByteArray::number(inStep).constData());
}

void tst_Playback::correctsAPlayerThatIsOff()
{
    playPair(mFront, mRear);
    QVERIFY(waitForReports(*mArea, 10));
    for (const qint64 offMs : {700, -700}) {
        secondOf(*mArea)->setPosition(mainOf(*mArea)->position() + 1000 + offMs);
        mainOf(*mArea)->setPosition(mainOf(*mArea)->position() + 1000);
        QTRY_VERIFY(apartMs(*mArea) > 400);
        QTRY_VERIFY(apartMs(*mArea) <= InStepMs);
    }
}

void tst_Playback::shorterSecondEndsByItself()
{
    playPair(mFront, mShort);
    mArea->seek(3);
    QTRY_COMPARE(secondOf(*mArea)->state(), QMediaPlayer::StoppedState);
    QCOMPARE(mArea->state(), QMediaPlayer::PlayingState);
    QTRY_VERIFY(mainOf(*mArea)->position() > 5000);
    mArea->pause();
    mArea->play();
    QVERIFY(waitForReports(*mArea, 10));
    QCOMPARE(secondOf(*mArea)->state(), QMediaPlayer::StoppedState); // not from its start again

    mArea->seek(1);
    QTRY_COMPARE(secondOf(*mArea)->state(), QMediaPlayer::PlayingState);
    QTRY_VERIFY(apartMs(*mArea) <= InStepMs);

    mArea->pause();
    mArea->seek(20);
    QTRY_COMPARE(secondOf(*mArea)->state(), QMediaPlayer::StoppedState);
    mArea->seek(2);
    QTRY_COMPARE(secondOf(*mArea)->state(), QMediaPlayer::PausedState); // with its picture
    QTRY_COMPARE(secondOf(*mArea)->position(), 2000);
}

/** A recording of 20 s by its header, cut off in the middle, as by a loss of power. */
void tst_Playback::cutSecondEndsOnce()
{
    const QString whole = mFolder.filePath(QStringLiteral("whole.mp4"));
    const QString front = mFolder.filePath(QStringLiteral("headfirst.mp4"));
    QVERIFY(makeMediaFile(whole, 20));
    const QStringList arguments = {QStringLiteral("-v"),
                                   QStringLiteral("error"),
                                   QStringLiteral("-y"),
                                   QStringLiteral("-i"),
                                   whole,
                                   QStringLiteral("-c"),
                                   QStringLiteral("copy"),
                                   QStringLiteral("-movflags"),
                                   QStringLiteral("faststart"),
                                   front};
    QCOMPARE(QProcess::execute(QStringLiteral("ffmpeg"), arguments), 0);
    QVERIFY(QFile::resize(front, QFileInfo(front).size() / 4));
    RowData cut;
    cut.url = QUrl::fromLocalFile(front);

    playPair(mFront, cut);
    QTRY_COMPARE(secondOf(*mArea)->state(), QMediaPlayer::StoppedState);
    QVERIFY(mainOf(*mArea)->position() < 18000); // not where the header says
    QSignalSpy changes(secondOf(*mArea), &QMediaPlayer::stateChanged);
    QVERIFY(waitForReports(*mArea, 20));
    mArea->pause();
    mArea->play();
    QVERIFY(waitForReports(*mArea, 10));
    QCOMPARE(changes.size(), 0);

    mArea->stop();
    playPair(mFront, mRear); // whose end is another one
    mArea->seek(30);
    QTRY_VERIFY(secondOf(*mArea)->position() > 30000);
    QCOMPARE(secondOf(*mArea)->state(), QMediaPlayer::PlayingState);
}

void tst_Playback::repeatsALostSeek()
{
    playPair(mFront, mRear);
    mArea->seek(40);
    mainOf(*mArea)->setPosition(5000);
    secondOf(*mArea)->setPosition(5000);
    QTRY_VERIFY(mainOf(*mArea)->position() >= 40000 && secondOf(*mArea)->position() >= 40000);

    mArea->seek(50);
    mArea->stop();
    mArea->setResourceData(&mRear, &mFront); // which nobody has sought in
    mArea->play();
    QVERIFY(waitForReports(*mArea, 10));
    QVERIFY(mainOf(*mArea)->position() < 10000);
}

void tst_Playback::leavesPressesAndPaintsAfterErrors()
{
    PlayerWidget *player = mArea->mainPlayer();
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(9, 9), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(player, &press);
    QVERIFY(!press.isAccepted()); // the window is dragged by it

    player->onStateChanged(QMediaPlayer::PlayingState);
    QVERIFY(!player->updatesEnabled());
    player->onError(QMediaPlayer::NoError);
    QVERIFY(!player->updatesEnabled());
    player->onError(QMediaPlayer::FormatError);
    QVERIFY(player->updatesEnabled());
}

void tst_Playback::unplayableMainPlaysNothing_data()
{
    QTest::addColumn<int>("size"); // of the beginning of a recording; 0 for a text, -1 for a pipe
    QTest::newRow("pipe") << -1;
    QTest::newRow("text") << 0;
    QTest::newRow("cut off before its index") << 100000;
}

/** Nor does the related recording play on alone, then or when it is told to play again. */
void tst_Playback::unplayableMainPlaysNothing()
{
    QFETCH(int, size);
    QFile whole(mRear.url.toLocalFile());
    QVERIFY(whole.open(QIODevice::ReadOnly));
    QFile file(mFolder.filePath(QStringLiteral("unplayable.mp4")));
    QVERIFY(!file.exists() || file.remove());
    if (size < 0) {
        QCOMPARE(mkfifo(QFile::encodeName(file.fileName()).constData(), 0600), 0);
    } else {
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write(size > 0 ? whole.read(size) : QByteArray("Dear driver,")) > 0);
        file.close();
    }
    RowData unplayable;
    unplayable.url = QUrl::fromLocalFile(file.fileName());
    QSignalSpy failed(mArea.get(), &PlayAreaManager::failed);
    mArea->setPlayerNum(2);
    mArea->setResourceData(&unplayable, &mRear);
    mArea->play();
    QVERIFY(comesToRest(*mArea));
    QTRY_COMPARE(failed.size(), 1);
    QSignalSpy states(mArea.get(), &PlayAreaManager::stateChanged);
    for (int i = 0; i < 2; ++i) {
        QVERIFY(comesToRest(*mArea));
        QCOMPARE(mArea->state(), QMediaPlayer::StoppedState);
        QCOMPARE(secondOf(*mArea)->state(), QMediaPlayer::StoppedState);
        mArea->play();
    }
    QVERIFY(states.isEmpty());
    QCOMPARE(failed.size(), 1);

    mArea->setResourceData(&mFront, &mRear); // and the next one is not held up
    mArea->play();
    QTRY_VERIFY(mainOf(*mArea)->position() > 0 && secondOf(*mArea)->position() > 0);
    QTRY_VERIFY(pictureMoves(*mArea));
    emit mArea->mainPlayer()->loader()->failed(); // in the middle of it
    QCOMPARE(secondOf(*mArea)->state(), QMediaPlayer::StoppedState);
    QVERIFY(comesToRest(*mArea));
}

/** Fragments without a header, but with an index, are searched for the header for ever. */
void tst_Playback::givesUpLoading()
{
    constexpr int IndexSize = 24;
    const QByteArray index =
        Mp4::box("mfra", Mp4::box("mfro", Mp4::big32(0) + Mp4::big32(IndexSize)));
    QCOMPARE(index.size(), IndexSize);
    const QString fileName = mFolder.filePath(QStringLiteral("endless.mp4"));
    QVERIFY(saveRecording(fileName, Mp4::box("moof") + Mp4::box("mdat", "x") + index));
    RowData endless;
    endless.url = QUrl::fromLocalFile(fileName);
    QSignalSpy failed(mArea.get(), &PlayAreaManager::failed);
    mArea->setResourceData(&endless, nullptr);
    mArea->play();
    QVERIFY(!mArea->isSettled());
    QTRY_COMPARE(failed.size(), 1);
    QVERIFY(mArea->isSettled());
}

void tst_Playback::stopHolds_data()
{
    QTest::addColumn<int>("afterMs");
    for (const int afterMs : {0, 3, 5, 8, 12})
        QTest::addRow("%d ms after play", afterMs) << afterMs;
}

void tst_Playback::stopHolds()
{
    QFETCH(int, afterMs);
    mArea->setPlayerNum(2);
    mArea->setResourceData(&mFront, &mRear);
    QTRY_VERIFY(mArea->isSettled());
    mArea->play();
    QTest::qWait(afterMs);
    mArea->stop();
    QVERIFY(comesToRest(*mArea));
}

QTEST_MAIN(tst_Playback)
#include "tst_playback.moc"
