// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"
#include "mediafile.h"
#include "patience.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRect>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <memory>
#include <vector>

namespace {

const QRect Screen(0, 0, 1600 + 1, 1000 + 1); // scaled sizes are rounded

QByteArray outputOf(const char *program, const QString &arguments)
{
    QProcess process;
    process.start(QLatin1String(program), arguments.split(QLatin1Char(' ')));
    process.waitForFinished(PatienceMs);
    return process.readAllStandardOutput();
}

/** The windows that the window manager keeps, oldest first. */
QList<QByteArray> managedWindows()
{
    const QByteArray list = outputOf("xprop", QStringLiteral("-root _NET_CLIENT_LIST"));
    return list.contains("0x") ? list.mid(list.indexOf('#') + 1).split(',') : QList<QByteArray>();
}

/** In pixels. */
QRect placeOf(const QByteArray &window)
{
    const QByteArray facts =
        outputOf("xwininfo", QStringLiteral("-id ") + QString::fromLatin1(window.trimmed()));
    const auto number = [&facts](const QByteArray &name) {
        const int start = facts.indexOf(name) + name.size();
        return facts.mid(start, facts.indexOf('\n', start) - start).trimmed().toInt();
    };
    return {number("Absolute upper-left X:"), number("Absolute upper-left Y:"), number("Width:"),
            number("Height:")};
}

QByteArray textOf(const QRect &rect)
{
    return QStringLiteral("%1 x %2 at %3, %4")
        .arg(rect.width())
        .arg(rect.height())
        .arg(rect.x())
        .arg(rect.y())
        .toLatin1();
}

} // namespace

/** The program itself, started as a user or a desktop does, in a home that is new. */
class tst_Start : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void firstStart();
    void endsByRequest_data();
    void endsByRequest();
    void opensOnTheScreen_data();
    void opensOnTheScreen();
    void handsOverToTheOpenWindow();
    void opensAnotherWindow_data();
    void opensAnotherWindow();
    void manyStartsOpenOneWindow();
    void soundsAsBefore();

private:
    QProcessEnvironment environmentOfHome() const;
    void start(const QProcessEnvironment &additions = {});
    std::unique_ptr<QProcess> startOther(const QStringList &arguments) const;
    bool shows(const QByteArray &text)
    {
        return (mErrors += mPlayer->readAllStandardError()).contains(text);
    }
    int end(int request);
    QVariant stored(const char *key) const;
    void letTheStartBeLongAgo() const;

    QTemporaryDir mFolder;
    std::unique_ptr<QTemporaryDir> mHome;
    std::unique_ptr<QProcess> mPlayer;
    QByteArray mErrors;
};

void tst_Start::initTestCase()
{
    QVERIFY(makeMediaFile(mFolder.filePath(QStringLiteral("one.mp4")), 20));
    QVERIFY(QFile::copy(mFolder.filePath("one.mp4"), mFolder.filePath("two.mp4")));
}

void tst_Start::init()
{
    mHome = std::make_unique<QTemporaryDir>();
    mPlayer = std::make_unique<QProcess>();
    mErrors.clear();
}

void tst_Start::cleanup()
{
    mPlayer->kill();
    mPlayer->waitForFinished(PatienceMs);
    QTRY_VERIFY(managedWindows().isEmpty());
}

QProcessEnvironment tst_Start::environmentOfHome() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *variable :
         {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        environment.insert(QLatin1String(variable), mHome->path());
    environment.remove(QStringLiteral("LC_ALL"));
    environment.insert(QStringLiteral("LANG"), QStringLiteral("de_DE.UTF-8"));
    return environment;
}

/** With a recording, which plays. */
void tst_Start::start(const QProcessEnvironment &additions)
{
    QProcessEnvironment environment = environmentOfHome();
    environment.insert(additions);
    mErrors.clear();
    mPlayer->setProcessEnvironment(environment);
    mPlayer->start(QStringLiteral(TALVOR_PLAYER), {mFolder.filePath(QStringLiteral("one.mp4"))});
    QTRY_VERIFY((mErrors += mPlayer->readAllStandardError()).contains("onPositionChanged"));
}

/** In the folder of the recordings. */
std::unique_ptr<QProcess> tst_Start::startOther(const QStringList &arguments) const
{
    auto other = std::make_unique<QProcess>();
    other->setProcessEnvironment(environmentOfHome());
    other->setWorkingDirectory(mFolder.path());
    other->start(QStringLiteral(TALVOR_PLAYER), arguments);
    return other;
}

/** Returns what the program ends with; -1 when it does not end by itself. */
int tst_Start::end(int request)
{
    ::kill(pid_t(mPlayer->processId()), request);
    const bool isOver = mPlayer->waitForFinished(PatienceMs);
    return isOver && mPlayer->exitStatus() == QProcess::NormalExit ? mPlayer->exitCode() : -1;
}

QVariant tst_Start::stored(const char *key) const
{
    const QSettings file(
        mHome->filePath(QStringLiteral("Quellfern/Talvor Player V1.6 20200828/configuration.ini")),
        QSettings::IniFormat);
    return file.value(QLatin1String(key));
}

void tst_Start::firstStart()
{
    start();
    QCOMPARE(placeOf(managedWindows().value(0)), QRect(483, 166, 921, 628));
    QCOMPARE(stored("language").toInt(), int(German));
    QCOMPARE(end(SIGTERM), 0);
}

void tst_Start::endsByRequest_data()
{
    QTest::addColumn<int>("request");
    QTest::addColumn<QString>("before"); // this input opens another window
    QTest::newRow("SIGTERM") << SIGTERM << "";
    QTest::newRow("SIGINT, settings open") << SIGINT << "mousemove 1301 186 click 1";
    QTest::newRow("SIGHUP, full screen")
        << SIGHUP << "mousemove 700 300 click --repeat 2 --delay 40 1";
}

void tst_Start::endsByRequest()
{
    QFETCH(const int, request);
    QFETCH(const QString, before);
    start();
    const int windows = managedWindows().size();
    if (!before.isEmpty()) {
        outputOf("xdotool", before);
        QTRY_COMPARE(managedWindows().size(), windows + 1);
    }
    QCOMPARE(end(request), 0);
    QCOMPARE(stored("mainwindowsRect").toRect(), QRect(483, 166, 921, 628));
}

void tst_Start::opensOnTheScreen_data()
{
    QTest::addColumn<QString>("factor");
    QTest::addColumn<int>("dotsPerInch"); // of 96 when all is as large as its pixels
    QTest::addColumn<double>("scale");
    QTest::newRow("factor 1.5") << "1.5" << 0 << 1.5;
    QTest::newRow("144 dots per inch") << "" << 144 << 1.5;
    QTest::newRow("192 dots per inch") << "" << 192 << 2.0;
}

void tst_Start::opensOnTheScreen()
{
    QFETCH(const QString, factor);
    QFETCH(const int, dotsPerInch);
    QFETCH(const double, scale);
    QProcessEnvironment environment;
    if (!factor.isEmpty())
        environment.insert(QStringLiteral("QT_SCALE_FACTOR"), factor);
    if (dotsPerInch > 0) {
        QProcess::execute(QStringLiteral("xprop"),
                          {"-root", "-f", "RESOURCE_MANAGER", "8s", "-set", "RESOURCE_MANAGER",
                           QStringLiteral("Xft.dpi:\t%1\n").arg(dotsPerInch)});
    }
    start(environment);
    outputOf("xprop", QStringLiteral("-root -remove RESOURCE_MANAGER"));
    const QRect place = placeOf(managedWindows().value(0));
    QVERIFY2(Screen.contains(place), textOf(place).constData());
    const QSize size = QSize(921, 628).boundedTo(QSize(1600, 1000) / scale) * scale;
    QVERIFY2(qAbs(place.width() - size.width()) <= 2 && qAbs(place.height() - size.height()) <= 2,
             textOf(place).constData());
    QCOMPARE(end(SIGTERM), 0);
}

void tst_Start::handsOverToTheOpenWindow()
{
    start();
    const int windows = managedWindows().size();
    const auto other = startOther({"two.mp4", "gone.mp4"});
    QVERIFY(other->waitForFinished(PatienceMs));
    QCOMPARE(other->exitStatus(), QProcess::NormalExit);
    QCOMPARE(other->exitCode(), 0);
    QVERIFY(other->readAllStandardError().contains("\"gone.mp4\""));
    QTRY_VERIFY(shows("\"two.mp4\""));
    QCOMPARE(managedWindows().size(), windows);
    QCOMPARE(end(SIGTERM), 0);
}

void tst_Start::opensAnotherWindow_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("hangs"); // the program that is open
    QTest::newRow("as asked for") << QStringList{"--new-window"} << false;
    QTest::newRow("the open one hangs") << QStringList{"two.mp4"} << true;
}

void tst_Start::opensAnotherWindow()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const bool, hangs);
    start();
    const int windows = managedWindows().size();
    if (hangs) {
        letTheStartBeLongAgo();
        ::kill(pid_t(mPlayer->processId()), SIGSTOP);
    }
    const auto other = startOther(arguments);
    QTRY_COMPARE(managedWindows().size(), 2 * windows);
    QCOMPARE(other->state(), QProcess::Running);
    ::kill(pid_t(mPlayer->processId()), SIGCONT);
    other->terminate();
    QVERIFY(other->waitForFinished(PatienceMs));
    QCOMPARE(end(SIGTERM), 0);
    QVERIFY(!mErrors.contains("\"two.mp4\""));
}

/** Otherwise it would be given the time that a start takes. */
void tst_Start::letTheStartBeLongAgo() const
{
    const QDir folder(mHome->path());
    QFile lock(folder.filePath(folder.entryList({"talvor-player-*.lock"}).value(0)));
    QVERIFY(lock.open(QFile::ReadWrite));
    QVERIFY(lock.setFileTime(QDateTime::currentDateTime().addDays(-1),
                             QFileDevice::FileModificationTime));
}

/** As when a file manager opens each of some files by itself. */
void tst_Start::manyStartsOpenOneWindow()
{
    std::vector<std::unique_ptr<QProcess>> starts;
    for (int i = 0; i < 5; ++i)
        starts.push_back(startOther({i % 2 == 0 ? "one.mp4" : "two.mp4"}));
    const auto isRunning = [](const std::unique_ptr<QProcess> &process) {
        return process->state() != QProcess::NotRunning;
    };
    QTRY_COMPARE(int(std::count_if(starts.begin(), starts.end(), isRunning)), 1);
    mPlayer = std::move(*std::find_if(starts.begin(), starts.end(), isRunning));
    for (const auto &other : starts)
        QVERIFY(!other || (other->exitStatus() == QProcess::NormalExit && other->exitCode() == 0));
    QTRY_VERIFY(shows("onPositionChanged"));
    QTRY_VERIFY(shows("\"one.mp4\"") && shows("\"two.mp4\""));
    QCOMPARE(end(SIGTERM), 0);
}

void tst_Start::soundsAsBefore()
{
    start();
    QVERIFY(!stored("volume").isValid());
    outputOf("xdotool", QStringLiteral("mousemove 1026 608 click 1")); // in the volume's slider
    QTRY_VERIFY(stored("volume").isValid());
    QCOMPARE(end(SIGTERM), 0);
    const int volume = stored("volume").toInt();
    QVERIFY2(volume > 5 && volume < 50, qPrintable(QString::number(volume)));

    start();
    outputOf("xdotool", QStringLiteral("mousemove 958 608 click 1")); // mutes
    QTRY_VERIFY(stored("muted").toBool());
    QCOMPARE(stored("volume").toInt(), volume);
    QCOMPARE(end(SIGTERM), 0);
}

QTEST_GUILESS_MAIN(tst_Start)
#include "tst_start.moc"
