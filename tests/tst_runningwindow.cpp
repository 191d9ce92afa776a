// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "displaycheck.h"
#include "patience.h"
#include "runningwindow.h"
#include "windowclaim.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QWidget>
#include <QWindow>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <memory>
#include <vector>

namespace {

constexpr HandoverPatience Patient{PatienceMs, PatienceMs};
constexpr HandoverPatience Impatient{100, 100};

QList<QUrl> recordings(const QStringList &paths)
{
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    return urls;
}

std::future<bool> handOver(WindowClaim *start, const QList<QUrl> &urls)
{
    return std::async(std::launch::async, [start, urls] { return start->handOver(urls); });
}

bool isReady(const std::future<bool> &future)
{
    return future.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

} // namespace

class tst_RunningWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void handsOver_data();
    void handsOver();
    void startsAtTheSameTime();
    void waitsForOneThatStarts();
    void opensItsOwn_data();
    void opensItsOwn();
    void leftBySomeThatCrashed();
    void closingOneTakesNothing();
    void strangeMessages_data();
    void strangeMessages();
    void floods();
    void keepsApart_data();
    void keepsApart();
    void folderOfOthers();
    void comesToTheFront();

private:
    void run();
    void handOverAll(const QList<QUrl> &urls);
    QString socket() const { return QFile::decodeName(mClaim->socketPath()); }

    std::unique_ptr<QTemporaryDir> mRuntime;
    std::unique_ptr<WindowClaim> mClaim;
    std::unique_ptr<QWidget> mWindow;
    std::unique_ptr<RunningWindow> mRunning;
    QList<QList<QUrl>> mReceived;
};

void tst_RunningWindow::init()
{
    mRuntime = std::make_unique<QTemporaryDir>();
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(mRuntime->path()));
    mClaim = std::make_unique<WindowClaim>(":1", Patient);
    mWindow = std::make_unique<QWidget>();
    mWindow->show();
    mReceived.clear();
}

void tst_RunningWindow::cleanup()
{
    mRunning.reset();
    mWindow.reset();
    mClaim.reset();
}

/** The program that has the claim listens. */
void tst_RunningWindow::run()
{
    mRunning = std::make_unique<RunningWindow>(mClaim.get(), mWindow.get());
    connect(mRunning.get(), &RunningWindow::recordingsReceived, this,
            [this](const QList<QUrl> &urls) { mReceived.append(urls); });
}

void tst_RunningWindow::handsOver_data()
{
    QTest::addColumn<QStringList>("paths");
    QTest::newRow("none") << QStringList();
    QTest::newRow("odd names") << QStringList{"/a b/#1 100%.mp4", "/%20/\"q\\\n.mov",
                                              "/süd/車.AVI"};
    QStringList card;
    for (int i = 0; i < 9000; ++i)
        card.append(QStringLiteral("/media/card/DCIM/100MEDIA/2026_0314_092610_%1F.MP4").arg(i));
    QTest::newRow("a whole card") << card;
}

void tst_RunningWindow::handsOver()
{
    QFETCH(const QStringList, paths);
    handOverAll(recordings(paths));
}

/** From another start to this one. */
void tst_RunningWindow::handOverAll(const QList<QUrl> &urls)
{
    QVERIFY(!mClaim->handOver({}) && mClaim->isTaken());
    run();
    WindowClaim start(":1", Patient);
    std::future<bool> isTaken = handOver(&start, urls);
    QTRY_VERIFY(isReady(isTaken));
    QVERIFY(isTaken.get());
    QTRY_COMPARE(mReceived.size(), 1);
    QCOMPARE(mReceived.first(), urls);
    QVERIFY(!start.isTaken());
}

/** As when a file manager opens each file by itself. */
void tst_RunningWindow::startsAtTheSameTime()
{
    std::vector<std::unique_ptr<WindowClaim>> starts;
    std::vector<std::future<bool>> results;
    for (int i = 0; i < 20; ++i)
        starts.push_back(std::make_unique<WindowClaim>(":1", Patient));
    for (int i = 0; i < 20; ++i)
        results.push_back(
            handOver(starts[size_t(i)].get(), recordings({QStringLiteral("/%1.mp4").arg(i)})));
    QTRY_VERIFY(std::any_of(results.begin(), results.end(), isReady));
    const auto first = std::find_if(results.begin(), results.end(), isReady);
    QVERIFY(!first->get());
    const auto number = first - results.begin();
    mClaim.swap(starts[size_t(number)]);
    run();
    QList<QUrl> opened = recordings({QStringLiteral("/%1.mp4").arg(number)});
    for (auto result = results.begin(); result != results.end(); ++result) {
        if (result == first)
            continue;
        QTRY_VERIFY(isReady(*result));
        QVERIFY(result->get());
    }
    QTRY_COMPARE(mReceived.size(), 19);
    for (const QList<QUrl> &received : qAsConst(mReceived))
        opened += received;
    std::sort(opened.begin(), opened.end());
    QCOMPARE(std::unique(opened.begin(), opened.end()) - opened.begin(), 20);
}

/** Its window takes longer than a running program's answer may. */
void tst_RunningWindow::waitsForOneThatStarts()
{
    QVERIFY(mClaim->take());
    WindowClaim start(":1", {10, PatienceMs});
    std::future<bool> isTaken = handOver(&start, {});
    QVERIFY(isTaken.wait_for(std::chrono::milliseconds(300)) == std::future_status::timeout);
    mClaim->release(); // as when it crashes before it has one
    QTRY_VERIFY(isReady(isTaken));
    QVERIFY(!isTaken.get());
    QVERIFY(start.isTaken());
}

void tst_RunningWindow::opensItsOwn_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("never listens") << QByteArray("-");
    QTest::newRow("hangs") << QByteArray();
    QTest::newRow("greets and hangs") << QByteArray(WindowClaim::Hello);
    QTest::newRow("another program") << QByteArray("220 ready\r\n");
    QTest::newRow("refuses") << QByteArray(WindowClaim::Hello) + "no, not now\n";
    QTest::newRow("cut short") << QByteArray(WindowClaim::Hello).left(3);
}

void tst_RunningWindow::opensItsOwn()
{
    QFETCH(const QByteArray, answer);
    QVERIFY(mClaim->take());
    QLocalServer server;
    if (answer != "-")
        QVERIFY(server.listen(socket()));
    connect(&server, &QLocalServer::newConnection, this,
            [&] { server.nextPendingConnection()->write(answer); });
    WindowClaim start(":1", Impatient);
    std::future<bool> isTaken = handOver(&start, recordings({"/a.mp4"}));
    QTRY_VERIFY(isReady(isTaken));
    QVERIFY(!isTaken.get());
    QVERIFY(!start.isTaken());
}

void tst_RunningWindow::leftBySomeThatCrashed()
{
    QFile leftSocket(socket());
    QVERIFY(leftSocket.open(QFile::WriteOnly));
    QFile leftLock(socket() + ".lock");
    QVERIFY(leftLock.open(QFile::WriteOnly));
    handOverAll(recordings({"/a.mp4", "/b.mov"}));
}

/** It leaves nothing behind either, and the next start takes its place. */
void tst_RunningWindow::closingOneTakesNothing()
{
    QVERIFY(mClaim->take());
    run();
    mWindow->close();
    QLocalSocket early;
    early.connectToServer(socket());
    early.write("file:///a.mp4\n\n");
    QTRY_COMPARE(early.state(), QLocalSocket::UnconnectedState);
    QVERIFY(!early.readAll().contains(WindowClaim::Taken));
    WindowClaim start(":1", Patient);
    std::future<bool> isTaken = handOver(&start, recordings({"/a.mp4"}));
    mRunning.reset();
    QTRY_VERIFY(isReady(isTaken));
    QVERIFY(!isTaken.get());
    QVERIFY(start.isTaken());
    QCOMPARE(mReceived.size(), 0);
    QVERIFY(!QFileInfo::exists(socket()));
}

void tst_RunningWindow::strangeMessages_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("nothing") << QByteArray("");
    QTest::newRow("noise") << QByteArray("\0\xff\x80\n\n", 5);
    QTest::newRow("a web address") << QByteArray("https://home/a.mp4\n\n");
    QTest::newRow("one of two is none") << QByteArray("file:///a.mp4\nb.mp4\n\n");
    QTest::newRow("without its end") << QByteArray("file:///a.mp4\n");
    QTest::newRow("too much") << QByteArray("file:///").leftJustified(3 << 20, 'a') + "\n\n";
}

void tst_RunningWindow::strangeMessages()
{
    QFETCH(const QByteArray, message);
    QVERIFY(mClaim->take());
    run();
    QLocalSocket stranger;
    stranger.connectToServer(socket());
    stranger.write(message);
    if (!message.endsWith("\n\n"))
        stranger.disconnectFromServer();
    QTRY_COMPARE(stranger.state(), QLocalSocket::UnconnectedState);
    QVERIFY(!stranger.readAll().contains(WindowClaim::Taken));
    QCOMPARE(mReceived.size(), 0);
}

/** Those beyond the bound are let go at once, and who comes later is heard. */
void tst_RunningWindow::floods()
{
    QVERIFY(mClaim->take());
    run();
    std::vector<std::unique_ptr<QLocalSocket>> strangers;
    const auto isDropped = [](const std::unique_ptr<QLocalSocket> &stranger) {
        return stranger->state() == QLocalSocket::UnconnectedState;
    };
    for (int i = 0; i < 400; ++i) {
        strangers.push_back(std::make_unique<QLocalSocket>());
        strangers.back()->connectToServer(socket());
        QCoreApplication::processEvents();
    }
    QTRY_VERIFY(std::count_if(strangers.begin(), strangers.end(), isDropped) >= 200);
    strangers.clear();
    WindowClaim start(":1", Patient);
    std::future<bool> isTaken = handOver(&start, {});
    QTRY_VERIFY(isReady(isTaken));
    QVERIFY(isTaken.get());
}

void tst_RunningWindow::keepsApart_data()
{
    QTest::addColumn<QByteArray>("environment");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("isApart");
    QTest::newRow("the same") << QByteArray("DISPLAY") << QByteArray(":7") << false;
    QTest::newRow("its screen") << QByteArray("DISPLAY") << QByteArray(":7.0") << false;
    QTest::newRow("another display") << QByteArray("DISPLAY") << QByteArray(":8") << true;
    QTest::newRow("other settings") << QByteArray("XDG_DATA_HOME") << QByteArray("/tmp/x") << true;
    QTest::newRow("in memory") << QByteArray("QT_QPA_PLATFORM") << QByteArray("offscreen") << true;
}

void tst_RunningWindow::keepsApart()
{
    QFETCH(const QByteArray, environment);
    QFETCH(const QByteArray, value);
    QFETCH(const bool, isApart);
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", ":7");
    const WindowClaim one(displayIdentity(0, nullptr));
    const QByteArray before = qgetenv(environment);
    qputenv(environment, value);
    const WindowClaim other(displayIdentity(0, nullptr));
    qputenv(environment, before);
    qputenv("DISPLAY", display);
    QCOMPARE(one.socketPath() != other.socketPath(), isApart);
}

/** Where others can put something, nothing is put. */
void tst_RunningWindow::folderOfOthers()
{
    const QByteArray folder = QFile::encodeName(mRuntime->path());
    QVERIFY(mClaim->socketPath().startsWith(folder + '/'));
    QVERIFY(chmod(folder.constData(), 0770) == 0);
    QVERIFY(!WindowClaim(":1").socketPath().startsWith(folder + '/'));
    QVERIFY(chmod(folder.constData(), 0700) == 0);
    if (chown(folder.constData(), 1, 1) == 0) // root only can give a folder away
        QVERIFY(!WindowClaim(":1").socketPath().startsWith(folder + '/'));
}

/** Though the user is busy with another program. */
void tst_RunningWindow::comesToTheFront()
{
    QVERIFY(mClaim->take());
    run();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get(), PatienceMs));
    for (const bool isMinimized : {false, true}) {
        QProcess busy;
        busy.start("xmessage", {"-center", "busy"});
        QTRY_VERIFY(!mWindow->isActiveWindow());
        if (isMinimized)
            mWindow->showMinimized();
        WindowClaim start(":1", Patient);
        std::future<bool> isTaken = handOver(&start, {});
        QTRY_VERIFY(isReady(isTaken));
        QTRY_VERIFY(mWindow->isActiveWindow() && !mWindow->isMinimized() &&
                    mWindow->windowHandle()->isExposed());
        busy.kill();
        busy.waitForFinished(PatienceMs);
    }
}

QTEST_MAIN(tst_RunningWindow)
#include "tst_runningwindow.moc"
