// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "controlpanel.h"
#include "mainwindows.h"
#include "mediacontrols.h"
#include "mediafile.h"
#include "mediakeys.h"
#include "patience.h"
#include "playareamanager.h"
#include "playbackremote.h"

#include <QApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QKeyEvent>
#include <QLabel>
#include <QProcess>
#include <QSlider>
#include <QTableView>
#include <QTemporaryDir>
#include <QWindow>

#include <sys/stat.h>

#include <limits>
#include <memory>

namespace {

constexpr int RecordingSeconds = 30;
const QString Path = QStringLiteral("/org/mpris/MediaPlayer2");
const QString Player = QStringLiteral("org.mpris.MediaPlayer2.Player");
const QString Properties = QStringLiteral("org.freedesktop.DBus.Properties");
const QString Name = QStringLiteral("org.mpris.MediaPlayer2.talvor-player");

constexpr auto Playing = QMediaPlayer::PlayingState;
constexpr auto Paused = QMediaPlayer::PausedState;
constexpr auto Stopped = QMediaPlayer::StoppedState;

} // namespace

/** One window and one pair of recordings, told by other programs and by media keys what to do. The
 *  bus is the test's own. */
class tst_MediaControls : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();

    void describes();
    void commands_data();
    void commands();
    void seeks_data();
    void seeks();
    void sets_data();
    void sets();
    void opens();
    void refusesToOpen_data();
    void refusesToOpen();
    void tellsWhatChanges();
    void tellsOfJumpsOnly();
    void quickCommands();
    void keys_data();
    void keys();
    void raisesAndQuits();
    void secondWindow();
    void busThatDies(); // last: there is no other

public slots:
    void notePropertiesChanged(const QString &interface, const QVariantMap &changed,
                               const QStringList &invalidated);
    void noteSeeked(qlonglong position) { mSeeked.append(position); }

private:
    void bring(QMediaPlayer::State state, int row = 0);
    QString playerctl(const QStringList &arguments);
    QDBusMessage call(const QString &interface, const QString &method,
                      const QVariantList &arguments);
    QVariant property(const QString &name);
    QString shown() const;

    PlayAreaManager *area() const { return mWindow->findChild<PlayAreaManager *>(); }
    ControlPanel *panel() const { return mWindow->findChild<ControlPanel *>(); }
    QMediaPlayer *player() const { return area()->mainPlayer()->player(); }
    QTableView *list() const { return mWindow->findChild<QTableView *>(); }
    QSlider *volumeSlider() const
    {
        return mWindow->findChild<QSlider *>(QStringLiteral("hSlider_Volume"));
    }
    QString file(const QString &name) const { return mFolder.filePath(name); }

    QTemporaryDir mFolder;
    QProcess mDaemon;
    QString mAddress;
    std::unique_ptr<QDBusConnection> mClient;
    std::unique_ptr<MainWindows> mWindow;
    std::unique_ptr<PlaybackRemote> mRemote;
    std::unique_ptr<MediaKeys> mKeys;
    std::unique_ptr<MediaControls> mControls;
    QList<QVariantMap> mChanges;
    QList<qlonglong> mSeeked;
};

void tst_MediaControls::initTestCase()
{
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    mDaemon.start(QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--session"), QStringLiteral("--nofork"),
                   QStringLiteral("--print-address")});
    QTRY_VERIFY(mDaemon.canReadLine());
    mAddress = QString::fromUtf8(mDaemon.readLine()).trimmed();
    mClient = std::make_unique<QDBusConnection>(
        QDBusConnection::connectToBus(mAddress, QStringLiteral("client")));
    mClient->connect(QString(), Path, Properties, QStringLiteral("PropertiesChanged"), this,
                     SLOT(notePropertiesChanged(QString, QVariantMap, QStringList)));
    mClient->connect(QString(), Path, Player, QStringLiteral("Seeked"), this,
                     SLOT(noteSeeked(qlonglong)));

    QVERIFY(makeMediaFile(file(QStringLiteral("drive_F1.mp4")), RecordingSeconds));
    QVERIFY(
        QFile::copy(file(QStringLiteral("drive_F1.mp4")), file(QStringLiteral("drive_R1.mp4"))));
    mWindow = std::make_unique<MainWindows>();
    mRemote = std::make_unique<PlaybackRemote>(mWindow.get());
    mKeys = std::make_unique<MediaKeys>(mRemote.get());
    mControls = std::make_unique<MediaControls>(
        mRemote.get(), QDBusConnection::connectToBus(mAddress, QStringLiteral("player")));
    mWindow->show();
    volumeSlider()->setValue(100);

    // An empty list answers, too.
    QTRY_COMPARE(playerctl({QStringLiteral("status")}), QStringLiteral("Stopped"));
    call(Player, QStringLiteral("Play"), {});
    QCOMPARE(property(QStringLiteral("CanPlay")), QVariant(false));
    QCOMPARE(player()->state(), Stopped);
    mWindow->openRecordings({QUrl::fromLocalFile(file(QStringLiteral("drive_F1.mp4"))),
                             QUrl::fromLocalFile(file(QStringLiteral("drive_R1.mp4")))});
}

void tst_MediaControls::cleanup()
{
    volumeSlider()->setValue(100);
    if (panel()->isMuted())
        panel()->toggleMute();
    if (panel()->playbackRate() == 1.0)
        return;
    panel()->stepRate(-2);
    panel()->stepRate(1);
}

void tst_MediaControls::cleanupTestCase()
{
    mControls.reset();
    mKeys.reset();
    mRemote.reset();
    mWindow.reset();
    mDaemon.kill();
    mDaemon.waitForFinished();
}

void tst_MediaControls::notePropertiesChanged(const QString &interface, const QVariantMap &changed,
                                              const QStringList &invalidated)
{
    QCOMPARE(interface, Player);
    QVERIFY(invalidated.isEmpty());
    mChanges.append(changed);
}

/** The row in this state, paused at ten seconds. */
void tst_MediaControls::bring(QMediaPlayer::State state, int row)
{
    const bool isThere = list()->currentIndex().row() == row && player()->state() != Stopped;
    if (state == Stopped) {
        list()->selectRow(row);
        mWindow->onStop();
    } else {
        if (!isThere) {
            mWindow->onTableDoubleClicked(list()->model()->index(row, 0));
            QTRY_VERIFY(player()->state() == Playing && player()->position() > 0);
        }
        if (state == Paused) {
            area()->pause();
            area()->seekToMs(10000);
        } else if (player()->state() == Paused) {
            mWindow->playClicked();
        }
    }
    QTRY_COMPARE(player()->state(), state);
    if (state == Paused)
        QTRY_COMPARE(player()->position(), 10000);
}

QString tst_MediaControls::playerctl(const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), mAddress);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral("playerctl"), arguments);
    // The player answers meanwhile.
    if (!QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, PatienceMs))
        return process.errorString();
    return QString::fromUtf8(process.readAll()).trimmed();
}

QDBusMessage tst_MediaControls::call(const QString &interface, const QString &method,
                                     const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(Name, Path, interface, method);
    message.setArguments(arguments);
    QDBusPendingCallWatcher watcher(mClient->asyncCall(message, PatienceMs));
    QSignalSpy finished(&watcher, &QDBusPendingCallWatcher::finished);
    finished.wait(PatienceMs);
    return watcher.reply();
}

QVariant tst_MediaControls::property(const QString &name)
{
    const QDBusMessage reply = call(Properties, QStringLiteral("Get"), {Player, name});
    return reply.arguments().value(0).value<QDBusVariant>().variant();
}

/** State, row, rate, volume and mute, as the user sees them. */
QString tst_MediaControls::shown() const
{
    static const char *const Names[] = {"stopped", "playing", "paused"};
    return QStringLiteral("%1 %2 %3 %4 %5")
        .arg(QLatin1String(Names[panel()->state()]))
        .arg(list()->currentIndex().row())
        .arg(mWindow->findChild<QLabel *>(QStringLiteral("lbl_Text"))->text())
        .arg(player()->volume())
        .arg(player()->isMuted());
}

void tst_MediaControls::describes()
{
    bring(Paused);
    QCOMPARE(playerctl({QStringLiteral("--list-all")}), QStringLiteral("talvor-player"));
    const QString told = playerctl(
        {QStringLiteral("metadata"), QStringLiteral("--format"),
         QStringLiteral("{{status}} {{title}} {{xesam:url}} {{mpris:length}} {{position}}")});
    QCOMPARE(told, QStringLiteral("Paused drive_F1.mp4 %1 %2 10000000")
                       .arg(QUrl::fromLocalFile(file(QStringLiteral("drive_F1.mp4"))).toString())
                       .arg(player()->duration() * 1000));
    QCOMPARE(property(QStringLiteral("MinimumRate")), QVariant(0.5));
    QCOMPARE(property(QStringLiteral("MaximumRate")), QVariant(2.0));
    QCOMPARE(property(QStringLiteral("CanGoNext")), QVariant(true));
    QCOMPARE(property(QStringLiteral("CanGoPrevious")), QVariant(false));
    QCOMPARE(property(QStringLiteral("CanSeek")), QVariant(true));
    const QDBusMessage entry =
        call(Properties, QStringLiteral("Get"),
             {QStringLiteral("org.mpris.MediaPlayer2"), QStringLiteral("DesktopEntry")});
    QCOMPARE(entry.arguments().value(0).value<QDBusVariant>().variant().toString(),
             QStringLiteral("talvor-player"));
}

void tst_MediaControls::commands_data()
{
    QTest::addColumn<QMediaPlayer::State>("before");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("expected");
    QTest::newRow("pause") << Playing << 0 << "Pause"
                           << "paused 0";
    QTest::newRow("pause what is paused") << Paused << 0 << "Pause"
                                          << "paused 0";
    QTest::newRow("resume") << Paused << 0 << "Play"
                            << "playing 0";
    QTest::newRow("play what plays") << Playing << 0 << "Play"
                                     << "playing 0";
    QTest::newRow("toggle") << Playing << 0 << "PlayPause"
                            << "paused 0";
    QTest::newRow("toggle back") << Paused << 0 << "PlayPause"
                                 << "playing 0";
    QTest::newRow("no previous") << Playing << 0 << "Previous"
                                 << "playing 0";
    QTest::newRow("next, after a pause") << Paused << 0 << "Next"
                                         << "playing 1";
    QTest::newRow("previous") << Playing << 1 << "Previous"
                              << "playing 0";
    QTest::newRow("stop") << Paused << 0 << "Stop"
                          << "stopped 0";
    QTest::newRow("pause what is stopped") << Stopped << 0 << "Pause"
                                           << "stopped 0";
    QTest::newRow("play the selected") << Stopped << 1 << "Play"
                                       << "playing 1";
    QTest::newRow("no next") << Playing << 1 << "Next"
                             << "stopped 1";
    QTest::newRow("toggle what is stopped") << Stopped << 0 << "PlayPause"
                                            << "playing 0";
}

void tst_MediaControls::commands()
{
    QFETCH(const QMediaPlayer::State, before);
    QFETCH(const int, row);
    QFETCH(const QString, command);
    QFETCH(const QString, expected);
    bring(before, row);
    // What a desktop would not offer is called all the same.
    QCOMPARE(call(Player, command, {}).type(), QDBusMessage::ReplyMessage);
    QTRY_COMPARE(shown(), expected + QStringLiteral(" 1.0x 100 0"));
    QCOMPARE(playerctl({QStringLiteral("status")}).toLower(),
             expected.section(QLatin1Char(' '), 0, 0));
}

void tst_MediaControls::seeks_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<qlonglong>("us");
    QTest::addColumn<int>("expectedMs"); // the next recording if negative
    using Limits = std::numeric_limits<qlonglong>;
    QTest::newRow("to a fraction") << "SetPosition" << 4320000LL << 4320;
    QTest::newRow("to the beginning") << "SetPosition" << 0LL << 0;
    QTest::newRow("before the beginning") << "SetPosition" << -1LL << 10000;
    QTest::newRow("behind the end") << "SetPosition" << 40000000LL << 10000;
    QTest::newRow("far behind the end") << "SetPosition" << Limits::max() << 10000;
    QTest::newRow("in another recording") << "stale" << 5000000LL << 10000;
    QTest::newRow("on") << "Seek" << 2500000LL << 12500;
    QTest::newRow("back") << "Seek" << -2500000LL << 7500;
    QTest::newRow("far back") << "Seek" << Limits::min() << 0;
    QTest::newRow("beyond the end") << "Seek" << 25000000LL << -1;
    QTest::newRow("far beyond the end") << "Seek" << Limits::max() << -1;
}

void tst_MediaControls::seeks()
{
    QFETCH(const QString, method);
    QFETCH(const qlonglong, us);
    QFETCH(const int, expectedMs);
    bring(Paused);
    if (method == QLatin1String("Seek")) {
        call(Player, method, {us});
    } else {
        QVariantMap metadata;
        property(QStringLiteral("Metadata")).value<QDBusArgument>() >> metadata;
        auto track = metadata.value(QStringLiteral("mpris:trackid")).value<QDBusObjectPath>();
        QVERIFY(!track.path().isEmpty());
        if (method == QLatin1String("stale"))
            track.setPath(track.path() + QLatin1Char('0'));
        call(Player, QStringLiteral("SetPosition"), {QVariant::fromValue(track), us});
    }
    if (expectedMs < 0)
        QTRY_COMPARE(shown(), QStringLiteral("playing 1 1.0x 100 0"));
    else
        QTRY_COMPARE(player()->position(), expectedMs);
}

void tst_MediaControls::sets_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("expected");
    const double infinite = std::numeric_limits<double>::infinity();
    // -ln(1 - 0.50) / ln(100) = 0.1505
    QTest::newRow("half the volume") << "Volume" << 0.5 << "playing 0 1.0x 15 1";
    QTest::newRow("as loud as can be") << "Volume" << infinite << "playing 0 1.0x 100 1";
    QTest::newRow("less than silent") << "Volume" << -3.0 << "playing 0 1.0x 0 1";
    QTest::newRow("no volume") << "Volume" << qQNaN() << "playing 0 1.0x 100 1";
    QTest::newRow("twice as fast") << "Rate" << 2.0 << "playing 0 2.0x 100 1";
    QTest::newRow("closer to twice") << "Rate" << 1.45 << "playing 0 2.0x 100 1";
    QTest::newRow("closer to half") << "Rate" << 0.7 << "playing 0 0.5x 100 1";
    QTest::newRow("too fast") << "Rate" << 2.5 << "playing 0 1.0x 100 1";
    QTest::newRow("backward") << "Rate" << -1.0 << "playing 0 1.0x 100 1";
    QTest::newRow("no rate") << "Rate" << qQNaN() << "playing 0 1.0x 100 1";
    QTest::newRow("standing still") << "Rate" << 0.0 << "paused 0 1.0x 100 1";
}

/** With the sound off, which stays so. */
void tst_MediaControls::sets()
{
    QFETCH(const QString, name);
    QFETCH(const double, value);
    QFETCH(const QString, expected);
    bring(Playing);
    panel()->toggleMute();
    const QVariant variant = QVariant::fromValue(QDBusVariant(value));
    call(Properties, QStringLiteral("Set"), {Player, name, variant});
    QTRY_COMPARE(shown(), expected);
    if (name == QLatin1String("Volume") && !qIsNaN(value))
        QCOMPARE(property(QStringLiteral("Volume")), QVariant(qBound(0.0, value, 1.0)));
    const QString rate = expected.section(QLatin1Char(' '), 2, 2);
    QCOMPARE(property(QStringLiteral("Rate")), QVariant(rate.chopped(1).toDouble()));

    // Its buttons know where it stands.
    QCOMPARE(mWindow->findChild<QWidget *>(QStringLiteral("pBtn_Down"))->isEnabled(),
             rate != QLatin1String("2.0x"));
}

void tst_MediaControls::opens()
{
    bring(Playing);
    playerctl({QStringLiteral("open"), file(QStringLiteral("drive_R1.mp4"))});
    QTRY_COMPARE(shown(), QStringLiteral("playing 1 1.0x 100 0"));
    QCOMPARE(list()->model()->rowCount(), 2);
}

void tst_MediaControls::refusesToOpen_data()
{
    QTest::addColumn<QString>("uri");
    const QString folder = QUrl::fromLocalFile(mFolder.path()).toString();
    QTest::newRow("nothing") << "";
    QTest::newRow("a server's") << "http://127.0.0.1/a.mp4";
    QTest::newRow("a path") << file(QStringLiteral("drive_F1.mp4"));
    // Its name is the first folder of the path here.
    QTest::newRow("another computer's")
        << QStringLiteral("file:/") + file(QStringLiteral("drive_F1.mp4"));
    QTest::newRow("missing") << folder + QStringLiteral("/missing.mp4");
    QTest::newRow("a playlist") << folder + QStringLiteral("/list.m3u8");
    QTest::newRow("a pipe") << folder + QStringLiteral("/pipe.mp4");
    QTest::newRow("long") << QStringLiteral("file:///") + QString(5000000, QLatin1Char('%'));
}

void tst_MediaControls::refusesToOpen()
{
    QFETCH(const QString, uri);
    QFile playlist(file(QStringLiteral("list.m3u8")));
    QVERIFY(playlist.open(QIODevice::WriteOnly));
    mkfifo(QFile::encodeName(file(QStringLiteral("pipe.mp4"))).constData(), 0600);
    bring(Playing);
    const QString before = shown();
    QCOMPARE(call(Player, QStringLiteral("OpenUri"), {uri}).type(), QDBusMessage::ErrorMessage);
    QCOMPARE(shown(), before);
    QCOMPARE(list()->model()->rowCount(), 2);
}

void tst_MediaControls::tellsWhatChanges()
{
    using Change = QVariantMap;
    bring(Playing);
    property(QStringLiteral("Rate")); // all from before has come
    mChanges.clear();
    area()->pause();
    QTRY_COMPARE(mChanges.size(), 1);
    QCOMPARE(mChanges.takeFirst(),
             (Change{{QStringLiteral("PlaybackStatus"), QStringLiteral("Paused")}}));
    panel()->stepRate(1);
    QTRY_COMPARE(mChanges.size(), 1);
    QCOMPARE(mChanges.takeFirst(), (Change{{QStringLiteral("Rate"), 2.0}}));
    volumeSlider()->setValue(50);
    QTRY_COMPARE(mChanges.size(), 1);
    QCOMPARE(mChanges.takeFirst(), (Change{{QStringLiteral("Volume"), 0.5}}));
    volumeSlider()->setValue(100);

    mWindow->nextClicked();
    Change all;
    const auto hasAll = [&] {
        for (const Change &change : qAsConst(mChanges)) {
            for (auto item = change.begin(); item != change.end(); ++item)
                all.insert(item.key(), item.value());
        }
        return all.value(QStringLiteral("PlaybackStatus")) == QLatin1String("Playing") &&
               all.value(QStringLiteral("CanSeek")) == true;
    };
    QTRY_VERIFY(hasAll());
    QVariantMap metadata;
    all.value(QStringLiteral("Metadata")).value<QDBusArgument>() >> metadata;
    QCOMPARE(metadata.value(QStringLiteral("xesam:title")), QVariant("drive_R1.mp4"));
    QCOMPARE(all.value(QStringLiteral("CanGoNext")), QVariant(false));
    QCOMPARE(all.value(QStringLiteral("CanGoPrevious")), QVariant(true));
    QVERIFY(!all.contains(QStringLiteral("Position")));
}

void tst_MediaControls::tellsOfJumpsOnly()
{
    bring(Paused);
    property(QStringLiteral("Rate"));
    mSeeked.clear();
    // Playing, resuming and another rate are none.
    mWindow->playClicked();
    QTRY_VERIFY(player()->position() > 10800);
    panel()->stepRate(1);
    QTRY_VERIFY(player()->position() > 12400);
    area()->pause();
    QTRY_COMPARE(player()->state(), Paused);
    property(QStringLiteral("Rate"));
    QCOMPARE(mSeeked, QList<qlonglong>());

    area()->seekToMs(20000);
    QTRY_COMPARE(mSeeked, QList<qlonglong>({20000000}));
    mWindow->playClicked();
    QTRY_VERIFY(player()->position() > 20500);
    panel()->setSliderMove(-5);
    QTRY_COMPARE(mSeeked.size(), 2);
    QVERIFY(mSeeked.last() >= 15000000);
    // Pictures looked at one by one.
    bring(Paused);
    QTRY_COMPARE(mSeeked.size(), 3);
    for (int step = 0; step < 20; ++step)
        area()->stepFrames(1);
    QTRY_VERIFY(mSeeked.size() > 3);
}

/** Faster than recordings are loaded. */
void tst_MediaControls::quickCommands()
{
    bring(Playing);
    const QStringList methods{QStringLiteral("Next"), QStringLiteral("Play"),
                              QStringLiteral("Previous"), QStringLiteral("PlayPause"),
                              QStringLiteral("Stop")};
    for (int i = 0; i < 40; ++i) {
        mClient->send(QDBusMessage::createMethodCall(Name, Path, Player, methods.at(i % 5)));
        if (i % 8 == 0)
            property(QStringLiteral("Metadata"));
    }
    call(Player, QStringLiteral("Play"), {});
    QTRY_VERIFY(player()->state() == Playing && player()->position() > 0);
    QCOMPARE(property(QStringLiteral("PlaybackStatus")), QVariant("Playing"));
}

void tst_MediaControls::keys_data()
{
    QTest::addColumn<QMediaPlayer::State>("before");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("expected");
    QTest::newRow("pause") << Playing << 0 << int(Qt::Key_MediaPause) << "paused 0";
    QTest::newRow("play") << Paused << 0 << int(Qt::Key_MediaPlay) << "playing 0";
    QTest::newRow("play and pause") << Playing << 0 << int(Qt::Key_MediaPlay) << "paused 0";
    QTest::newRow("toggle") << Playing << 0 << int(Qt::Key_MediaTogglePlayPause) << "paused 0";
    QTest::newRow("next") << Playing << 0 << int(Qt::Key_MediaNext) << "playing 1";
    QTest::newRow("previous") << Playing << 1 << int(Qt::Key_MediaPrevious) << "playing 0";
    QTest::newRow("stop") << Playing << 0 << int(Qt::Key_MediaStop) << "stopped 0";
}

/** In the window, and in the picture that fills the screen. */
void tst_MediaControls::keys()
{
    QFETCH(const QMediaPlayer::State, before);
    QFETCH(const int, row);
    QFETCH(const int, key);
    QFETCH(const QString, expected);
    for (const bool isFull : {false, true}) {
        bring(before, row);
        if (isFull)
            area()->toggleFullScreen();
        QTRY_VERIFY(qApp->focusWindow() &&
                    (qApp->focusWindow() != mWindow->windowHandle()) == isFull);
        // QTest's own keys know no media keys.
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(qApp->focusWindow(), &press);
        QTRY_COMPARE(shown(), expected + QStringLiteral(" 1.0x 100 0"));
        area()->leaveFullScreen();
    }
}

void tst_MediaControls::raisesAndQuits()
{
    mWindow->showMinimized();
    QTRY_VERIFY(mWindow->windowState() & Qt::WindowMinimized);
    QSignalSpy quit(mControls.get(), &MediaControls::quitRequested);
    call(QStringLiteral("org.mpris.MediaPlayer2"), QStringLiteral("Raise"), {});
    QTRY_VERIFY(!(mWindow->windowState() & Qt::WindowMinimized));
    QVERIFY(quit.isEmpty());
    call(QStringLiteral("org.mpris.MediaPlayer2"), QStringLiteral("Quit"), {});
    QTRY_COMPARE(quit.size(), 1);
}

/** It has a name of its own, and takes nothing with it when it goes. */
void tst_MediaControls::secondWindow()
{
    const QString second =
        QStringLiteral("talvor-player.instance%1").arg(QCoreApplication::applicationPid());
    const auto names = [this] { return playerctl({QStringLiteral("--list-all")}).split('\n'); };
    {
        const MediaControls controls(
            mRemote.get(), QDBusConnection::connectToBus(mAddress, QStringLiteral("second")));
        QTRY_VERIFY(names().contains(second));
    }
    QTRY_COMPARE(names(), QStringList(QStringLiteral("talvor-player")));
}

void tst_MediaControls::busThatDies()
{
    bring(Playing);
    mDaemon.kill();
    QTRY_COMPARE(mDaemon.state(), QProcess::NotRunning);
    QTRY_VERIFY(!QDBusConnection(QStringLiteral("player")).isConnected());
    area()->pause();
    QTRY_COMPARE(player()->state(), Paused);
    mControls.reset();
    const MediaControls without(mRemote.get(), QDBusConnection(QStringLiteral("nowhere")));
    bring(Playing);
}

QTEST_MAIN(tst_MediaControls)
#include "tst_mediacontrols.moc"
