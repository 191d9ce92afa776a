// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "capturethread.h"
#include "configuration.h"
#include "fvideosurface.h"
#include "patience.h"
#include "playareamanager.h"
#include "rowdata.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

// Recordings whose pictures are one grey level a second, in steps of this luma, and whose tint
// tells the camera.
constexpr int LumaStep = 20;
constexpr int NoTint = 128;
constexpr int BlueTint = 200;

// Waits for the end of its input, and tells more than fits into a pipe.
const QByteArray DemandingTool = "#!/bin/sh\nfor last; do :; done\ncat\nhead -c 300000 /dev/zero\n"
                                 "head -c 300000 /dev/zero >&2\n: > \"$last\"\n";

// Notes its process and goes on for ever, whatever it is asked.
const QByteArray HangingTool = "#!/bin/sh\nfor last; do :; done\necho $$ > \"$last\"\n"
                               "trap '' TERM\nwhile :; do sleep 1; done\n";

// Done soon, but not at once.
const QByteArray SlowTool = "#!/bin/sh\nfor last; do :; done\nsleep 0.5\necho 0 > \"$last\"\n";

/** With this argument the test is a program that ends while it makes two images. */
const char EndWhileCapturing[] = "--end-while-capturing";

QMutex logMutex;
QStringList logLines;
QtMessageHandler handlerBefore = nullptr;

void keepLine(QtMsgType type, const QMessageLogContext &context, const QString &line)
{
    const QMutexLocker locker(&logMutex);
    logLines.append(line);
    handlerBefore(type, context, line);
}

QStringList linesWith(const char *text)
{
    const QMutexLocker locker(&logMutex);
    return logLines.filter(QLatin1String(text));
}

QString toolPath()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/ffmpeg");
}

bool writeTool(const QByteArray &script)
{
    QFile file(toolPath());
    return file.remove() && file.open(QIODevice::WriteOnly) && file.write(script) > 0 &&
           file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

bool makeGreyMedia(const QString &fileName, int tint)
{
    const QString arguments =
        QStringLiteral("-v error -y -f lavfi -i "
                       "nullsrc=size=320x180:rate=30,geq=lum=16+%1*floor(T):cb=%2:cr=128 -t 10 "
                       "-c:v libx264 -preset ultrafast -g 30 -pix_fmt yuv420p -f mp4")
            .arg(LumaStep)
            .arg(tint);
    return QProcess::execute(QStringLiteral("ffmpeg"), arguments.split(QLatin1Char(' '))
                                                           << fileName) == 0;
}

/** "front 2" for the third second of the front camera. The red channel has the luma alone,
 *  stretched from 16..235 to 0..255. */
QString shown(const QString &image)
{
    const QImage picture(image);
    const QColor colour = picture.pixelColor(picture.rect().center());
    const bool isTinted = colour.blue() > colour.red() + 30;
    return QString(isTinted ? "rear %1" : "front %1")
        .arg(qRound(colour.red() * 219.0 / 255 / LumaStep));
}

/** What the images in a folder show, in the order of their time stamps when the names are alike. */
QStringList imagesIn(const QString &folder)
{
    QStringList images;
    for (const QFileInfo &file : QDir(folder).entryInfoList(QDir::Files, QDir::Name))
        images.append(shown(file.filePath()));
    return images;
}

bool runToItsEnd(CaptureThread &worker)
{
    worker.start();
    return worker.wait(PatienceMs);
}

/** Waits for the images of the file at these positions. */
bool capture(const QString &fileName, const QList<qint64> &positionsMs)
{
    CaptureThread worker;
    for (const qint64 positionMs : positionsMs)
        worker.addTask(fileName, positionMs);
    return runToItsEnd(worker);
}

bool play(PlayerWidget &widget, const QString &fileName)
{
    QMediaPlayer *player = widget.player();
    widget.show();
    player->setMedia(QUrl::fromLocalFile(fileName));
    player->play();
    return QTest::qWaitFor([player] { return player->position() > 0; }, PatienceMs);
}

/** Seeks more than once: the player loses a seek that comes while it changes its state. */
bool seekPaused(QMediaPlayer *player, qint64 positionMs)
{
    constexpr int seekMs = 500;
    for (int attempt = 0; attempt < PatienceMs / seekMs; ++attempt) {
        player->setPosition(positionMs);
        if (QTest::qWaitFor([&] { return player->position() == positionMs; }, seekMs))
            return true;
    }
    return false;
}

/** A picture that does not compress, another one each time. */
QImage noise(const QSize &size)
{
    QImage picture(size, QImage::Format_RGB32);
    for (int i = 0; i < size.width() * size.height(); ++i)
        picture.setPixel(i % size.width(), i / size.width(),
                         QRandomGenerator::global()->generate());
    return picture;
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
    void folders_data();
    void folders();
    void tasksWaitForAFolder();
    void reportsFailures();
    void toolCannotBlock();
    void timeStampsDiffer();

    void recordingThatBeginsLate();
    void imagesOfThePlayer();
    void widgetGoesWhileCapturing();
    void programEndsWhileCapturing_data();
    void programEndsWhileCapturing();
    void bothCameras();

    void framesOfASurface_data();
    void framesOfASurface();

private:
    QTemporaryDir mFolder;
    QString mShots;
    QString mFront;
    QString mRear;
};

void tst_Capture::initTestCase()
{
    mFront = mFolder.filePath(QStringLiteral("clip.front.mp4"));
    mRear = mFolder.filePath(QStringLiteral("clip.rear.mp4"));
    QVERIFY(makeGreyMedia(mFront, NoTint));
    QVERIFY(makeGreyMedia(mRear, BlueTint));
    mShots = mFolder.filePath(QStringLiteral("shots"));
}

void tst_Capture::init()
{
    QFile::remove(toolPath());
    QVERIFY(QFile::link(QStandardPaths::findExecutable(QStringLiteral("ffmpeg")), toolPath()));
    QDir(mShots).removeRecursively();
    Configuration::GetInstance()->setScreenshotSavePath(mShots);
    logLines.clear();
    handlerBefore = qInstallMessageHandler(keepLine);
}

void tst_Capture::cleanup()
{
    qInstallMessageHandler(handlerBefore);
}

void tst_Capture::commandOfAPosition_data()
{
    QTest::addColumn<qint64>("positionMs");
    QTest::addColumn<QString>("time");

    QTest::newRow("hours to milliseconds") << qint64(3723456) << "01:02:03.456";
    QTest::newRow("next day") << qint64(86400000 + 1500) << "00:00:01.500";
    QTest::newRow("more than 32 bits") << (qint64(1) << 32) + 1500 << "00:00:01.500";
}

void tst_Capture::commandOfAPosition()
{
    QFETCH(qint64, positionMs);
    QFETCH(QString, time);
    QFile::remove(toolPath()); // which the worker does not notice
    QVERIFY(capture(mFront, {positionMs}));

    const QString before = QStringLiteral("captureCmd: ") + toolPath() + QStringLiteral(" -ss ") +
                           time + QStringLiteral(" -i \"") + mFront +
                           QStringLiteral("\" -t 1 -r 1 -q:v 2 -f image2 \"") + mShots +
                           QStringLiteral("/ScreenShot_clip__");
    const QRegularExpression whole(QRegularExpression::anchoredPattern(
        QRegularExpression::escape(before) + QStringLiteral("\\d{6}-\\d{6}_\\d{3}\\.jpeg\"")));
    const QStringList commands = linesWith("captureCmd:");
    QCOMPARE(commands.size(), 1);
    QVERIFY2(whole.match(commands.first()).hasMatch(), qPrintable(commands.first()));
}

void tst_Capture::nameOfTheImage_data()
{
    QTest::addColumn<QString>("baseName");

    QTest::newRow("blanks") << QStringLiteral(" two  words ");
    QTest::newRow("quotes") << QStringLiteral("\"say \"\"hi\"\" \" \"\"\"");
    QTest::newRow("non-ASCII") << QStringLiteral("Straße 車");
    QTest::newRow("marks") << QStringLiteral("-i $HOME;`x`\\' 100% %1 %2%4");
    QTest::newRow("numbering") << QStringLiteral("100%d 5%03d");
    QTest::newRow("numbering once") << QStringLiteral("clip%%%04d");
}

void tst_Capture::nameOfTheImage()
{
    QFETCH(QString, baseName);
    // The folders' names are as odd, and the one for the images is yet to be made.
    const QDir sources(mFolder.filePath(QStringLiteral("from/") + baseName));
    const QDir shots(
        mFolder.filePath(QStringLiteral("to/") + baseName + QStringLiteral("/") + baseName));
    const QString fileName = sources.filePath(baseName + QStringLiteral(".front.mp4"));
    QVERIFY(sources.mkpath(QStringLiteral(".")));
    QVERIFY(QFile::copy(mFront, fileName));
    Configuration::GetInstance()->setScreenshotSavePath(shots.path());
    QVERIFY(capture(fileName, {2500}));

    QCOMPARE(imagesIn(shots.path()), QStringList("front 2"));
    const QString name = shots.entryList(QDir::Files).first();
    QVERIFY2(name.startsWith("ScreenShot_" + baseName + "__"), qPrintable(name));
}

void tst_Capture::imagesInOrder()
{
    const QDateTime before = QDateTime::currentDateTime();
    QVERIFY(capture(mFront, {1500, 7500, 4500}));
    const QDateTime after = QDateTime::currentDateTime();

    QCOMPARE(imagesIn(mShots), QStringList({"front 1", "front 7", "front 4"}));
    const QString name = QDir(mShots).entryList(QDir::Files, QDir::Name).first();
    const QString stamp = QFileInfo(name).baseName().section(QStringLiteral("__"), 1);
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
    QVERIFY(runToItsEnd(worker));
    QCOMPARE(imagesIn(mShots), QStringList("rear 2"));
}

void tst_Capture::folders_data()
{
    QTest::addColumn<QString>("setting");
    QTest::addColumn<QString>("folder"); // in the home folder
    const QString byDefault = "Pictures/" + QCoreApplication::applicationName();
    QTest::newRow("none") << "" << byDefault;
    QTest::newRow("relative") << "shots" << byDefault;
    QTest::newRow("another user's") << "~root/shots" << byDefault;
    QTest::newRow("home") << "~"
                          << "";
    QTest::newRow("in the home") << "~/my shots/~"
                                 << "my shots/~";
}

void tst_Capture::folders()
{
    QFETCH(QString, setting);
    QFETCH(QString, folder);
    const QTemporaryDir home;
    const QByteArray homeBefore = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(home.path()));
    Configuration::GetInstance()->setScreenshotSavePath(setting);
    const bool isDone = capture(mFront, {2500});
    qputenv("HOME", homeBefore);
    QVERIFY(isDone);
    QCOMPARE(imagesIn(home.filePath(folder)), QStringList("front 2"));
    QCOMPARE(Configuration::GetInstance()->screenshotSavePath(), setting);
    QVERIFY(!QFileInfo::exists(setting)); // where the test stands
}

void tst_Capture::tasksWaitForAFolder()
{
    CaptureThread worker;
    worker.addTask(mFront, 2500);
    Configuration::GetInstance()->setScreenshotSavePath(mFront + QStringLiteral("/below a file"));
    QVERIFY(runToItsEnd(worker));
    QCOMPARE(linesWith("mkpath error, capture failed").size(), 1);
    QCOMPARE(linesWith("start capture").size(), 0);
    Configuration::GetInstance()->setScreenshotSavePath(mShots);
    QVERIFY(runToItsEnd(worker));
    QCOMPARE(imagesIn(mShots), QStringList("front 2"));
}

void tst_Capture::reportsFailures()
{
    CaptureThread worker;
    QVector<ScreenshotResult> results;
    connect(&worker, &CaptureThread::captured, &worker,
            [&](const ScreenshotResult &result) { results.append(result); });
    const auto captureOnce = [&](qint64 positionMs) {
        worker.addTask(mFront, positionMs);
        return runToItsEnd(worker);
    };
    QVERIFY(captureOnce(2500) && captureOnce(20000)); // the recording has ten seconds
    QFile::remove(toolPath());
    QVERIFY(captureOnce(2500));
    Configuration::GetInstance()->setScreenshotSavePath(mFront + QStringLiteral("/below"));
    QVERIFY(captureOnce(2500));
    QTRY_COMPARE(results.size(), 4);
    QCOMPARE(results[0].outcome, ScreenshotResult::Saved);
    QCOMPARE(shown(results[0].path), QStringLiteral("front 2"));
    QCOMPARE(results[1].outcome, ScreenshotResult::NoImage);
    QCOMPARE(QFileInfo(results[1].path).path(), mShots);
    QCOMPARE(results[2].outcome, ScreenshotResult::NoTool);
    QCOMPARE(results[2].path, toolPath());
    QCOMPARE(results[3].outcome, ScreenshotResult::NoFolder);
    QCOMPARE(results[3].path, mFront + QStringLiteral("/below"));
}

void tst_Capture::toolCannotBlock()
{
    QVERIFY(writeTool(DemandingTool));
    QVERIFY(capture(mFront, {1500}));
    QCOMPARE(imagesIn(mShots).size(), 1);
}

/** Else one camera's image would replace that of the other. */
void tst_Capture::timeStampsDiffer()
{
    constexpr int Tasks = 40;
    QFile::remove(toolPath()); // so that two fit into a millisecond
    CaptureThread workers[2];
    for (int i = 0; i < Tasks; ++i)
        workers[i % 2].addTask(mFront, 1500);
    workers[1].start();
    QVERIFY(runToItsEnd(workers[0]) && workers[1].wait(PatienceMs));
    QStringList stamps = linesWith("start capture");
    QCOMPARE(stamps.size(), Tasks);
    QCOMPARE(stamps.removeDuplicates(), 0);
}

/** Its first picture comes after five seconds, of which the player shows nothing. */
void tst_Capture::recordingThatBeginsLate()
{
    const QString late = mFolder.filePath(QStringLiteral("late.mp4"));
    const QString arguments =
        QStringLiteral("-v error -y -itsoffset 5 -i %1 -c copy %2").arg(mFront, late);
    QCOMPARE(QProcess::execute(QStringLiteral("ffmpeg"), arguments.split(QLatin1Char(' '))), 0);
    QVERIFY(capture(late, {7500}));
    QCOMPARE(imagesIn(mShots), QStringList({"front 2"}));
}

void tst_Capture::imagesOfThePlayer()
{
    const QString fileName = mFolder.filePath(QStringLiteral("drive ä %20 #1.mp4"));
    QVERIFY(QFile::copy(mFront, fileName));
    PlayerWidget widget;
    QVERIFY(play(widget, fileName));
    widget.screenshot(2500, QSize(), true);
    widget.player()->pause();
    widget.screenshot(7500, QSize(), true);
    widget.onCaptureThreadFinished(); // late news of an earlier end
    QVERIFY(linesWith("delete mCaptureThread").isEmpty());
    widget.player()->stop();
    widget.screenshot(1500, QSize(), true); // too late
    QTRY_COMPARE(linesWith("delete mCaptureThread").size(), 1);
    QCOMPARE(imagesIn(mShots), QStringList({"front 2", "front 7"}));

    QVERIFY(play(widget, fileName));
    widget.screenshot(4500, QSize(), true);
    QTRY_COMPARE(linesWith("delete mCaptureThread").size(), 2);
    QCOMPARE(imagesIn(mShots), QStringList({"front 2", "front 7", "front 4"}));
}

void tst_Capture::widgetGoesWhileCapturing()
{
    auto widget = std::make_unique<PlayerWidget>();
    QVERIFY(play(*widget, mFront));
    widget->screenshot(1500, QSize(), true);
    widget->screenshot(2500, QSize(), true);
    widget.reset();
    QVERIFY(linesWith("end run").isEmpty()); // nobody has waited
    QTRY_COMPARE(linesWith("end run").size(), 1);
    QCOMPARE(imagesIn(mShots), QStringList({"front 1", "front 2"}));
}

void tst_Capture::programEndsWhileCapturing_data()
{
    QTest::addColumn<QByteArray>("tool");
    QTest::addColumn<bool>("isEnded");
    QTest::newRow("hanging") << HangingTool << true;
    QTest::newRow("slow") << SlowTool << false;
}

void tst_Capture::programEndsWhileCapturing()
{
    QFETCH(QByteArray, tool);
    QFETCH(bool, isEnded);
    QVERIFY(writeTool(tool));
    QProcess program;
    program.start(QCoreApplication::applicationFilePath(), {EndWhileCapturing, mFront});
    QVERIFY(program.waitForFinished(PatienceMs));
    QCOMPARE(program.exitCode(), 0);
    const QFileInfoList images = QDir(mShots).entryInfoList(QDir::Files);
    QCOMPARE(images.size(), 1); // of two
    QFile image(images.first().filePath());
    QVERIFY(image.open(QFile::ReadOnly));
    const QByteArray process = image.readAll().trimmed();
    QCOMPARE(process == "0", !isEnded);
    QVERIFY(!QFileInfo::exists("/proc/" + process));
}

void tst_Capture::bothCameras()
{
    RowData rows[2];
    rows[0].url = QUrl::fromLocalFile(mFront);
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

    QTRY_COMPARE(linesWith("delete mCaptureThread").size(), 2);
    QStringList images = imagesIn(mShots);
    images.sort();
    QCOMPARE(images, QStringList({"front 3", "rear 5"}));
}

void tst_Capture::framesOfASurface_data()
{
    QTest::addColumn<QByteArray>("frames"); // a letter each
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<int>("failures");

    QTest::newRow("first only") << QByteArray("ab") << QByteArray("a") << 0;
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
    const QSize size(600, 400);
    QMap<char, QImage> pictures{{'a', noise(size)}, {'b', noise(size)}};
    pictures['0'] = QImage(size, QImage::Format_RGB32);
    pictures['0'].fill(Qt::black);
    const QVideoFrame cut(600 * 4, size, 600 * 4, QVideoFrame::Format_RGB32);

    const QString fileName = mFolder.filePath(QStringLiteral("frame.png"));
    QFile::remove(fileName);
    FVideoSurface surface;
    surface.setFilePath(fileName);
    for (const char letter : qAsConst(frames))
        QVERIFY(surface.present(letter == '-' ? cut : QVideoFrame(pictures.value(letter))));
    QCOMPARE(linesWith("ready try again").size(), failures);
    QCOMPARE(linesWith("Capture file error").size(), failures / 3);
    const QImage expected = written.isEmpty() ? QImage() : pictures[written[0]];
    QCOMPARE(QImage(fileName).convertToFormat(QImage::Format_RGB32), expected);
    QCOMPARE(QFile::exists(fileName), !written.isEmpty());
}

/** As a program whose window is closed at once. */
int endWhileCapturing(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    handlerBefore = qInstallMessageHandler(keepLine);
    auto *worker = new CaptureThread;
    worker->addTask(QString::fromLocal8Bit(argv[2]), 1500);
    worker->addTask(QString::fromLocal8Bit(argv[2]), 2500);
    worker->runUnattended();
    worker->start();
    return QTest::qWaitFor([] { return !linesWith("captureCmd").isEmpty(); }, PatienceMs) ? 0 : 1;
}

int main(int argc, char *argv[])
{
    if (argc == 3 && qstrcmp(argv[1], EndWhileCapturing) == 0)
        return endWhileCapturing(argc, argv);
    const QApplication application(argc, argv);
    tst_Capture test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_capture.moc"
