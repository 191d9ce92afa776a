// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "capturethread.h"

#include "configuration.h"
#include "mp4parser.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QMutexLocker>
#include <QProcess>
#include <QTime>

namespace {

constexpr qint64 NoTask = -1;

// For how long the tool may go on once the worker has been asked to end.
constexpr int GraceMs = 3000;
constexpr int TerminateMs = 500;
constexpr int AskPeriodMs = 100;

QObject *unattendedWorkers = nullptr; // the parent of workers without another owner

/** Asks all of them before it awaits the first, so that they end at the same time. */
void endUnattendedWorkers()
{
    for (QThread *worker : unattendedWorkers->findChildren<QThread *>())
        worker->requestInterruption();
    delete unattendedWorkers;
    unattendedWorkers = nullptr;
}

/** The folder that a setting means: it is stored as it was typed. One that depends on the folder
 *  in which the program was started, or none, is not what anybody wants. */
QString imageFolder(QString setting)
{
    if (setting == QLatin1String("~") || setting.startsWith(QLatin1String("~/")))
        setting.replace(0, 1, QDir::homePath());
    return QDir::isAbsolutePath(setting)
               ? setting
               : Configuration::GetInstance()->defaultScreenshotSavePath();
}

bool ensureFolder(const QString &folder)
{
    return QFileInfo(folder).isDir() || QDir().mkpath(folder);
}

/** A time of its own for each image, as part of its name: the workers of two cameras are often
 *  asked within the same millisecond, for recordings of the same name in two folders. */
QString takeTimeStamp()
{
    static QMutex mutex;
    static QString last;
    const QMutexLocker locker(&mutex);
    const auto now = [] {
        return QDateTime::currentDateTime().toString(QStringLiteral("yyMMdd-hhmmss_zzz"));
    };
    QString stamp = now();
    for (; stamp == last; stamp = now())
        QThread::msleep(1);
    last = stamp;
    return stamp;
}

QString outputFile(const QString &folder, const QString &videoFile, const QString &timeStamp)
{
    return QStringLiteral("%1/ScreenShot_%2__%3.jpeg")
        .arg(folder, QFileInfo(videoFile).baseName(), timeStamp);
}

/** The position as a time of day: it is a 32-bit one and starts anew after 24 hours. */
QString timeOfDay(qint64 positionMs)
{
    return QTime(0, 0).addMSecs(qint32(positionMs)).toString(QStringLiteral("hh:mm:ss.zzz"));
}

/** A name to stand between double quotes in a command, where three of them are read as one. */
QString quotable(QString name)
{
    return name.replace(QLatin1Char('"'), QLatin1String("\"\"\""));
}

QString toolArguments(const QString &videoFile, qint64 positionMs, const QString &output)
{
    return QStringLiteral(" -ss %1 -i \"%2\" -t 1 -r 1 -q:v 2 -f image2 \"%3\"")
        .arg(timeOfDay(positionMs), quotable(videoFile), quotable(output));
}

/** When the first picture of a recording comes. The tool counts from there, the player from 0. */
qint64 startMsOf(const QString &videoFile, const std::atomic<bool> &isWanted)
{
    const bool isAvi = videoFile.endsWith(QLatin1String(".avi"), Qt::CaseInsensitive);
    return isAvi ? 0 : Mp4Parser(videoFile, nullptr, &isWanted).startMs();
}

/** Waits for the tool to end, however long that takes, unless the thread is asked to end. */
void awaitTool(QProcess &tool)
{
    while (tool.state() != QProcess::NotRunning && !tool.waitForFinished(AskPeriodMs)) {
        if (!QThread::currentThread()->isInterruptionRequested())
            continue;
        if (tool.waitForFinished(GraceMs))
            return;
        tool.terminate();
        if (tool.waitForFinished(TerminateMs))
            return;
        tool.kill();
    }
}

/** Returns false when there is no such tool. It gets no input, because it would wait for an answer
 *  for ever; and what it tells, pages for each image, goes nowhere. */
bool runTool(const QString &program, const QString &arguments, const QString &workingFolder)
{
    QProcess tool;
    tool.setStandardInputFile(QProcess::nullDevice());
    tool.setStandardOutputFile(QProcess::nullDevice());
    tool.setStandardErrorFile(QProcess::nullDevice());
    tool.setWorkingDirectory(workingFolder);
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    // The program apart: the blanks in the name of its folder are not quoted.
    tool.start(program, QProcess::splitCommand(arguments));
#else
    tool.start(program + arguments);
#endif
    if (!tool.waitForStarted(-1))
        return false;
    awaitTool(tool);
    return true;
}

} // namespace

CaptureThread::CaptureThread(QObject *parent) : QThread(parent)
{
    qRegisterMetaType<ScreenshotResult>("ScreenshotResult");
}

CaptureThread::~CaptureThread()
{
    mIsWanted = false;
    requestInterruption();
    wait();
}

void CaptureThread::addTask(const QString &file, qint64 position)
{
    const QMutexLocker locker(&mMutex);
    qDebug() << "addTask" << file;
    if (file != mVideoFile) {
        qDebug() << "capture video file changed, clear all task" << mVideoFile << file;
        mPositionsMs.clear();
    }
    mVideoFile = file;
    mPositionsMs.append(position);
}

void CaptureThread::runUnattended()
{
    if (!unattendedWorkers) {
        unattendedWorkers = new QObject;
        qAddPostRoutine(endUnattendedWorkers);
    }
    setParent(unattendedWorkers);
    connect(this, &QThread::finished, this, &QObject::deleteLater);
    if (isFinished())
        deleteLater();
}

void CaptureThread::run()
{
    const QString folder = imageFolder(Configuration::GetInstance()->screenshotSavePath());
    if (!ensureFolder(folder)) {
        qDebug() << "mkpath error, capture failed";
        emit captured({ScreenshotResult::NoFolder, folder});
        return;
    }
    for (Task task = takeTask(); task.positionMs >= 0; task = takeTask())
        capture(task, folder);
    qDebug() << "Capture task finished, exit thread";
    qDebug() << "end run";
}

void CaptureThread::capture(const Task &task, const QString &folder)
{
    const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/ffmpeg");
    const QString timeStamp = takeTimeStamp();
    qDebug() << "start capture, timeStr" << timeStamp;
    const QString image = outputFile(folder, task.videoFile, timeStamp);
    // The tool takes "%d" in the path of an image for its number. It writes one whose path has such
    // a mark from within the folder, under a name without any.
    const bool hasMarks = image.contains(QLatin1Char('%'));
    const QString written =
        hasMarks ? outputFile(QStringLiteral("."), QString(), timeStamp) : image;
    const qint64 positionMs =
        qMax<qint64>(0, task.positionMs - startMsOf(task.videoFile, mIsWanted));
    const QString arguments = toolArguments(task.videoFile, positionMs, written);
    qDebug().noquote() << "captureCmd:" << program + arguments;
    const bool hasTool = runTool(program, arguments, hasMarks ? folder : QString());
    if (hasMarks)
        QFile::rename(QDir(folder).filePath(written), image);
    if (isInterruptionRequested())
        return;
    if (!hasTool)
        emit captured({ScreenshotResult::NoTool, program});
    else if (QFileInfo(image).size() == 0)
        emit captured({ScreenshotResult::NoImage, image});
    else
        emit captured({ScreenshotResult::Saved, image});
}

CaptureThread::Task CaptureThread::takeTask()
{
    const QMutexLocker locker(&mMutex);
    if (mPositionsMs.isEmpty() || isInterruptionRequested())
        return {mVideoFile, NoTask};
    return {mVideoFile, mPositionsMs.takeFirst()};
}
