// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "capturethread.h"
#include "configuration.h"
#include "fvideosurface.h"
#include "playareamanager.h"
#include "rowdata.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSemaphore>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <cstdlib>
#include <memory>

namespace {

const char *const MediaOfChild = "TALVOR_TEST_MEDIA";

// Recordings whose pictures are one grey level a second, in steps of this luma, and whose tint
// tells the camera.
constexpr int LumaStep = 20;
constexpr int MediaSeconds = 10;
constexpr int NoTint = 128;
constexpr int BlueTint = 200;

// A running program as the tool, to be waited for, that is told where to write.
const QByteArray SlowTool = "#!/bin/sh\nfor last; do :; done\nsleep 1\n: > \"$last\"\n";
// Waits for the end of its input, and tells more than fits into a pipe.
const QByteArray DemandingTool = "#!/bin/sh\nfor last; do :; done\ncat\nhead -c 300000 /dev/zero\n"
                                 "head -c 300000 /dev/zero >&2\n: > \"$last\"\n";

QMutex logMutex;
QStringList logLines;
QSemaphore endsOfRun; // released when a worker has told its end
std::atomic<QThread *> endedWorker{nullptr};
QtMessageHandler handlerBefore = nullptr;

void keepLine(QtMsgType type, const QMessageLogContext &context, const QString &line)
{
    {
        const QMutexLocker locker(&logMutex);
        logLines.append(line);
    }
    if (line == QLatin1String("end run")) {
        endedWorker = QThread::currentThread();
        endsOfRun.release();
    }
    handlerBefore(type, context, line);
}

QStringList linesWith(const QRegularExpression &pattern)
{
    const QMutexLocker locker(&logMutex);
    return logLines.filter(pattern);
}

QStringList linesWith(const QString &text)
{
    const QMutexLocker locker(&logMutex);
    return logLines.filter(text);
}

QString toolPath()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/ffmpeg");
}

void removeTool()
{
    QFile::remove(toolPath());
}

bool linkTool()
{
    removeTool();
    return QFile::link(QStandardPaths::findExecutable(QStringLiteral("ffmpeg")), toolPath());
}

bool writeTool(const QByteArray &script)
{
    removeTool();
    QFile file(toolPath());
    return file.open(QIODevice::WriteOnly) && file.write(script) == script.size() &&
           file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

bool makeGreyMedia(const QString &fileName, int tint)
{
    const QString arguments =
        QStringLiteral("-v error -y -f lavfi -i "
                       "nullsrc=size=320x180:rate=30,geq=lum=16+%1*floor(T):cb=%2:cr=128 -t %3 "
                       "-c:v libx264 -preset ultrafast -g 30 -pix_fmt yuv420p -f mp4")
            .arg(LumaStep)
            .arg(tint)
            .arg(MediaSeconds);
    return QProcess::execute(QStringLiteral("ffmpeg"), arguments.split(QLatin1Char(' '))
                                                           << fileName) == 0;
}

/** What an image shows. The red channel has the luma alone, stretched from 16..235 to 0..255. */
struct Shown
{
    qint64 second = -1; ///< -1 for an image that cannot be read
    bool isTinted = false;
};

Shown shown(const QString &image)
{
    const QImage picture(image);
    if (picture.isNull())
        return {};
    const QColor colour = picture.pixelColor(picture.rect().center());
    return {qRound(colour.red() * 219.0 / 255 / LumaStep), colour.blue() > colour.red() + 30};
}

bool captureAll(CaptureThread &worker)
{
    worker.start();
    return worker.wait(20000);
}

bool playTo(PlayerWidget &widget, const QString &fileName, qint64 positionMs)
{
    QMediaPlayer *player = widget.player();
    player->setMedia(QUrl::fromLocalFile(fileName));
    player->play();
    if (!QTest::qWaitFor([&] { return player->position() > 0; }))
        return false;
    player->setPosition(positionMs);
    return QTest::qWaitFor([&] { return player->position() >= positionMs; });
}

/** Seeks more than once: the player loses a seek that comes while it changes its state. */
bool seekPaused(QMediaPlayer *player, qint64 positionMs)
{
    for (int attempt = 0; attempt < 10; ++attempt) {
        player->setPosition(positionMs);
        if (QTest::qWaitFor([&] { return player->position() == positionMs; }, 500))
            return true;
    }
    return false;
}

/** Asks for an image and ends the program, all before the tool is done. */
int captureAndEnd()
{
    PlayerWidget widget;
    widget.show();
    if (!playTo(widget, qEnvironmentVariable(MediaOfChild), 1500))
        return EXIT_FAILURE;
    widget.screenshot(1500, QSize(), true);
    return EXIT_SUCCESS;
}

} // namespace

/** Screenshots: the tool, which the test puts beside itself, on real recordings; and the sink. */
class tst_Capture : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void commandOfAPosition_data();
    void commandOfAPosition();
    void nameOfTheImage_data();
    void nameOfTheImage();
    void imagesInOrder();
    void otherFileDropsWaitingTasks();
    void endsWithTasksLeft_data();
    void endsWithTasksLeft();
    void toolCannotBlock();
    void timeStampsDiffer();

    void imageOfThePlayer_data();
    void imageOfThePlayer();
    void requestsShareAWorker();
    void startedAgainBeforeItsEndIsTold();
    void widgetGoesWhileCapturing();
    void programEndsWhileCapturing();
    void bothCameras();

    void framesOfASurface_data();
    void framesOfASurface();

private:
    QString path(const QString &name) const { return mFolder.filePath(name); }
    QStringList images() const;
    void useFolder(const QString &folder);
    void startOver();

    QTemporaryDir mFolder;
    QString mShots;
    QString mFront;
    QString mRear;
};

void tst_Capture::initTestCase()
{
    mFront = path(QStringLiteral("clip.front.mp4"));
    mRear = path(QStringLiteral("clip.rear.mp4"));
    QVERIFY(makeGreyMedia(mFront, NoTint));
    QVERIFY(makeGreyMedia(mRear, BlueTint));
    mShots = path(QStringLiteral("shots"));
}

void tst_Capture::init()
{
    QVERIFY(linkTool());
    QDir(mShots).removeRecursively();
    useFolder(mShots);
    handlerBefore = qInstallMessageHandler(keepLine);
    startOver();
}

void tst_Capture::cleanup()
{
    qInstallMessageHandler(handlerBefore);
}

/** The images in the order of their time stamps, when the names are alike. */
QStringList tst_Capture::images() const
{
    const QDir folder(mShots);
    QStringList files;
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    for (const QString &name : names)
        files.append(folder.filePath(name));
    return files;
}

void tst_Capture::useFolder(const QString &folder)
{
    Configuration::GetInstance()->setScreenshotSavePath(folder);
}

void tst_Capture::startOver()
{
    const QMutexLocker locker(&logMutex);
    logLines.clear();
    endsOfRun.acquire(endsOfRun.available());
}

void tst_Capture::commandOfAPosition_data()
{
    QTest::addColumn<qint64>("positionMs");
    QTest::addColumn<QString>("time");

    QTest::newRow("start") << qint64(0) << "00:00:00.000";
    QTest::newRow("hours to milliseconds") << qint64(3723456) << "01:02:03.456";
    QTest::newRow("end of the day") << qint64(86399999) << "23:59:59.999";
    QTest::newRow("next day") << qint64(86400000 + 1500) << "00:00:01.500";
    QTest::newRow("more than 32 bits") << (qint64(1) << 32) + 1500 << "00:00:01.500";
}

void tst_Capture::commandOfAPosition()
{
    QFETCH(qint64, positionMs);
    QFETCH(QString, time);
    removeTool(); // which the worker does not notice
    CaptureThread worker;
    worker.addTask(mFront, positionMs);
    QVERIFY(captureAll(worker));

    const QString before = QStringLiteral("captureCmd: ") + toolPath() + QStringLiteral(" -ss ") +
                           time + QStringLiteral(" -i \"") + mFront +
                           QStringLiteral("\" -t 1 -r 1 -q:v 2 -f image2 \"") + mShots +
                           QStringLiteral("/ScreenShot_clip__");
    const QRegularExpression whole(QRegularExpression::anchoredPattern(
        QRegularExpression::escape(before) + QStringLiteral("\\d{6}-\\d{6}_\\d{3}\\.jpeg\"")));
    const QStringList commands = linesWith(QStringLiteral("captureCmd:"));
    QCOMPARE(commands.size(), 1);
    QVERIFY2(whole.match(commands.first()).hasMatch(), qPrintable(commands.first()));
}

void tst_Capture::nameOfTheImage_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("baseName");

    QTest::newRow("two dots") << "clip.front.mp4"
                              << "clip";
    QTest::newRow("blanks") << " two  words .mp4"
                            << " two  words ";
    QTest::newRow("quotes") << "\"say \"\"hi\"\" \" \"\"\".mp4"
                            << "\"say \"\"hi\"\" \" \"\"\"";
    QTest::newRow("non-ASCII") << QStringLiteral("Straße 車.mp4") << QStringLiteral("Straße 車");
    QTest::newRow("percent") << "100% %1 %2%4.mp4"
                             << "100% %1 %2%4";
    QTest::newRow("shell") << "-i $HOME;`x`\\'.mp4"
                           << "-i $HOME;`x`\\'";
}

void tst_Capture::nameOfTheImage()
{
    QFETCH(QString, fileName);
    QFETCH(QString, baseName);
    // The folders' names are as odd, and the one for the images is yet to be made.
    const QDir sources(path(QStringLiteral("from/") + baseName));
    const QDir shots(path(QStringLiteral("to/") + baseName + QStringLiteral("/") + baseName));
    QVERIFY(sources.mkpath(QStringLiteral(".")));
    QVERIFY(QFile::copy(mFront, sources.filePath(fileName)));
    useFolder(shots.path());
    CaptureThread worker;
    worker.addTask(sources.filePath(fileName), 2500);
    QVERIFY(captureAll(worker));

    const QStringList names = shots.entryList(QDir::Files);
    QCOMPARE(names.size(), 1);
    const QString start = QStringLiteral("ScreenShot_%1__").arg(baseName);
    QVERIFY2(names.first().startsWith(start), qPrintable(names.first()));
    QCOMPARE(shown(shots.filePath(names.first())).second, 2);
}

void tst_Capture::imagesInOrder()
{
    CaptureThread worker;
    const QSignalSpy finished(&worker, &QThread::finished);
    const QDateTime before = QDateTime::currentDateTime();
    for (const int second : {1, 7, 4})
        worker.addTask(mFront, second * 1000 + 500);
    QVERIFY(captureAll(worker));
    const QDateTime after = QDateTime::currentDateTime();

    QCOMPARE(finished.size(), 1);
    QCOMPARE(images().size(), 3);
    QCOMPARE(shown(images().at(0)).second, 1);
    QCOMPARE(shown(images().at(1)).second, 7);
    QCOMPARE(shown(images().at(2)).second, 4);
    const QString stamp = QFileInfo(images().at(0)).baseName().section(QStringLiteral("__"), 1);
    const QDateTime time =
        QDateTime::fromString(QStringLiteral("20") + stamp, QStringLiteral("yyyyMMdd-hhmmss_zzz"));
    QVERIFY2(before <= time && time <= after, qPrintable(stamp));
}

void tst_Capture::otherFileDropsWaitingTasks()
{
    CaptureThread worker;
    worker.addTask(mFront, 1500);
    worker.addTask(mFront, 4500);
    worker.addTask(mRear, 2500);
    QVERIFY(captureAll(worker));

    QCOMPARE(images().size(), 1);
    QCOMPARE(shown(images().constFirst()).second, 2);
    QVERIFY(shown(images().constFirst()).isTinted);
}

void tst_Capture::endsWithTasksLeft_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QList<qint64>>("positionsMs");
    QTest::addColumn<int>("pathErrors");

    const QList<qint64> one{2500};
    QTest::newRow("folder below a file") << mFront + QStringLiteral("/shots") << one << 1;
    QTest::newRow("file for a folder") << mFront << one << 1;
    QTest::newRow("no folder") << QString() << one << 1;
    QTest::newRow("negative position") << mShots << QList<qint64>{-1, 2500} << 0;
}

void tst_Capture::endsWithTasksLeft()
{
    QFETCH(QString, folder);
    QFETCH(QList<qint64>, positionsMs);
    QFETCH(int, pathErrors);
    useFolder(folder);
    CaptureThread worker;
    for (const qint64 positionMs : qAsConst(positionsMs))
        worker.addTask(mFront, positionMs);
    QVERIFY(captureAll(worker));
    QCOMPARE(linesWith(QStringLiteral("mkpath error, capture failed")).size(), pathErrors);
    QCOMPARE(linesWith(QStringLiteral("start capture")).size(), 0);
    QCOMPARE(images().size(), 0);

    useFolder(mShots);
    QVERIFY(captureAll(worker));
    QCOMPARE(images().size(), 1);
    QCOMPARE(shown(images().constFirst()).second, 2);
}

void tst_Capture::toolCannotBlock()
{
    QVERIFY(writeTool(DemandingTool));
    CaptureThread worker;
    worker.addTask(mFront, 1500);
    QVERIFY(captureAll(worker));
    QCOMPARE(images().size(), 1);
}

void tst_Capture::timeStampsDiffer()
{
    removeTool(); // so that many tasks fit into a millisecond
    constexpr int TasksEach = 20;
    CaptureThread workers[2];
    for (int i = 0; i < TasksEach; ++i) {
        workers[0].addTask(mFront, 1500);
        workers[1].addTask(mRear, 1500); // the same base name
    }
    workers[1].start();
    QVERIFY(captureAll(workers[0]) && workers[1].wait());

    QStringList outputs;
    const QStringList commands = linesWith(QStringLiteral("captureCmd:"));
    for (const QString &command : commands)
        outputs.append(command.section(QLatin1Char('/'), -1));
    QCOMPARE(outputs.size(), 2 * TasksEach);
    QCOMPARE(outputs.removeDuplicates(), 0);
}

void tst_Capture::imageOfThePlayer_data()
{
    QTest::addColumn<qint64>("positionMs");
    QTest::addColumn<bool>("isPaused");

    QTest::newRow("paused") << qint64(2500) << true;
    QTest::newRow("paused on another second") << qint64(7200) << true;
    QTest::newRow("playing") << qint64(4300) << false;
}

void tst_Capture::imageOfThePlayer()
{
    QFETCH(qint64, positionMs);
    QFETCH(bool, isPaused);
    PlayerWidget widget;
    widget.show();
    const QString fileName = path(QStringLiteral("drive ä %20 #1.mp4"));
    QVERIFY(QFile::exists(fileName) || QFile::copy(mFront, fileName));
    QVERIFY(playTo(widget, fileName, positionMs));
    if (isPaused)
        widget.player()->pause();
    const qint64 askedMs = widget.player()->position();
    widget.screenshot(askedMs, QSize(320, 180), true);
    widget.player()->stop();
    widget.screenshot(askedMs, QSize(320, 180), true); // too late
    QTRY_COMPARE(linesWith(QStringLiteral("delete mCaptureThread")).size(), 1);

    QCOMPARE(images().size(), 1);
    // The first picture that begins at the position or later: that may be the next second's.
    const qint64 second = shown(images().constFirst()).second;
    QVERIFY2(second == askedMs / 1000 || second == (askedMs + 34) / 1000,
             qPrintable(QString::number(second)));
}

void tst_Capture::requestsShareAWorker()
{
    PlayerWidget widget;
    widget.show();
    QVERIFY(playTo(widget, mFront, 500));
    for (const int second : {1, 2, 3})
        widget.screenshot(second * 1000 + 500, QSize(), true);
    QTRY_COMPARE(linesWith(QStringLiteral("delete mCaptureThread")).size(), 1);
    QCOMPARE(images().size(), 3);
    QCOMPARE(linesWith(QStringLiteral("end run")).size(), 1);

    widget.screenshot(4500, QSize(), true);
    QTRY_COMPARE(linesWith(QStringLiteral("delete mCaptureThread")).size(), 2);
    QCOMPARE(images().size(), 4);
}

void tst_Capture::startedAgainBeforeItsEndIsTold()
{
    PlayerWidget widget;
    widget.show();
    QVERIFY(playTo(widget, mFront, 500));
    widget.screenshot(1500, QSize(), true);
    // Without events, so that the widget does not know that the worker has finished.
    QVERIFY(endsOfRun.tryAcquire(1, 10000) && endedWorker.load()->wait(10000));
    widget.screenshot(2500, QSize(), true);
    QTRY_COMPARE(linesWith(QStringLiteral("delete mCaptureThread")).size(), 1);

    const QRegularExpression ends(QStringLiteral("end run|delete mCaptureThread"));
    const QStringList inOrder = linesWith(ends);
    QCOMPARE(inOrder.size(), 3);
    QVERIFY(inOrder.last().endsWith(QLatin1String("delete mCaptureThread")));
    QCOMPARE(images().size(), 2);
}

void tst_Capture::widgetGoesWhileCapturing()
{
    auto widget = std::make_unique<PlayerWidget>();
    widget->show();
    QVERIFY(playTo(*widget, mFront, 500));
    widget->screenshot(1500, QSize(), true);
    widget->screenshot(2500, QSize(), true);
    widget.reset();
    QVERIFY(linesWith(QStringLiteral("end run")).isEmpty());
    QTRY_COMPARE(linesWith(QStringLiteral("end run")).size(), 1);
    QCOMPARE(images().size(), 2);
    QCOMPARE(shown(images().constLast()).second, 2);
}

void tst_Capture::programEndsWhileCapturing()
{
    QVERIFY(writeTool(SlowTool));
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(MediaOfChild), mFront);
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(), QStringList());
    QVERIFY(child.waitForFinished());
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QCOMPARE(child.exitCode(), EXIT_SUCCESS);
    QCOMPARE(images().size(), 1);
}

void tst_Capture::bothCameras()
{
    RowData rows[2];
    rows[0].fileName = QStringLiteral("front.mp4");
    rows[0].url = QUrl::fromLocalFile(mFront);
    rows[1].fileName = QStringLiteral("rear.mp4");
    rows[1].url = QUrl::fromLocalFile(mRear);
    PlayAreaManager area;
    area.show();
    area.screenshot(); // of no recording
    area.setPlayerNum(2);
    area.setResourceData(&rows[0], &rows[1]);
    area.play();
    QMediaPlayer *players[] = {area.mainPlayer()->player(), area.secondPlayer()->player()};
    QTRY_VERIFY(players[0]->position() > 0 && players[1]->position() > 0);
    area.pause();
    QVERIFY(seekPaused(players[0], 3500) && seekPaused(players[1], 5500));
    area.screenshot();

    QTRY_COMPARE(linesWith(QStringLiteral("delete mCaptureThread")).size(), 2);
    QCOMPARE(linesWith(QStringLiteral("addTask")).size(), 2);
    QCOMPARE(images().size(), 2);
    const Shown first = shown(images().constFirst());
    const Shown last = shown(images().constLast());
    QVERIFY(first.isTinted != last.isTinted);
    QCOMPARE((first.isTinted ? last : first).second, 3);
    QCOMPARE((first.isTinted ? first : last).second, 5);
}

void tst_Capture::framesOfASurface_data()
{
    QTest::addColumn<QByteArray>("frames"); // a letter each
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<int>("failures");

    QTest::newRow("first only") << QByteArray("ab") << QByteArray("a") << 0;
    QTest::newRow("blank") << QByteArray("0") << QByteArray() << 1;
    QTest::newRow("good in the third attempt") << QByteArray("00a") << QByteArray("a") << 2;
    QTest::newRow("given up") << QByteArray("000a") << QByteArray() << 3;
    QTest::newRow("unmappable ones do not count") << QByteArray("????a") << QByteArray("a") << 0;
    QTest::newRow("cut short") << QByteArray("-b") << QByteArray("b") << 1;
}

void tst_Capture::framesOfASurface()
{
    QFETCH(QByteArray, frames);
    QFETCH(QByteArray, written);
    QFETCH(int, failures);
    QRandomGenerator random(1);
    QMap<char, QImage> pictures;
    for (const char letter : {'a', 'b', '0'}) {
        pictures[letter] = QImage(600, 400, QImage::Format_RGB32);
        pictures[letter].fill(Qt::black);
    }
    for (int i = 0; i < 600 * 400; ++i) {
        const QPoint point(i % 600, i / 600);
        pictures['a'].setPixel(point, random.generate());
        pictures['b'].setPixel(point, random.generate());
    }
    const QVideoFrame cut(600 * 4, QSize(600, 400), 600 * 4, QVideoFrame::Format_RGB32);

    const QString fileName = path(QStringLiteral("frame.png"));
    QFile::remove(fileName);
    FVideoSurface surface;
    surface.setFilePath(fileName);
    const QList<QVideoFrame::PixelFormat> rgbOnly{QVideoFrame::Format_RGB32};
    QCOMPARE(surface.supportedPixelFormats(QAbstractVideoBuffer::NoHandle), rgbOnly);
    for (const char letter : qAsConst(frames)) {
        const QVideoFrame frame = letter == '-' ? cut : QVideoFrame(pictures.value(letter));
        QVERIFY(surface.present(frame));
    }
    QCOMPARE(linesWith(QStringLiteral("ready try again")).size(), failures);
    QCOMPARE(linesWith(QStringLiteral("Capture file error")).size(), failures / 3);
    QCOMPARE(QFile::exists(fileName), !written.isEmpty());
    if (!written.isEmpty())
        QCOMPARE(QImage(fileName).convertToFormat(QImage::Format_RGB32), pictures[written[0]]);
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    if (qEnvironmentVariableIsSet(MediaOfChild))
        return captureAndEnd();
    tst_Capture test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_capture.moc"
