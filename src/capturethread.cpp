// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "capturethread.h"

#include "configuration.h"

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

QObject *unattendedWorkers = nullptr; // the parent of workers without another owner

void awaitUnattendedWorkers()
{
    delete unattendedWorkers;
    unattendedWorkers = nullptr;
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

/** Runs the tool to its end, however long that takes. It gets no input, because it would wait for
 *  an answer for ever; and what it tells, pages for each image, goes nowhere. */
void runTool(const QString &program, const QString &arguments)
{
    QProcess tool;
    tool.setStandardInputFile(QProcess::nullDevice());
    tool.setStandardOutputFile(QProcess::nullDevice());
    tool.setStandardErrorFile(QProcess::nullDevice());
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    // The program apart: the blanks in the name of its folder are not quoted.
    tool.start(program, QProcess::splitCommand(arguments));
#else
    tool.start(program + arguments);
#endif
    tool.waitForFinished(-1);
}

} // namespace

CaptureThread::CaptureThread(QObject *parent) : QThread(parent) {}

CaptureThread::~CaptureThread()
{
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
        qAddPostRoutine(awaitUnattendedWorkers);
    }
    setParent(unattendedWorkers);
    connect(this, &QThread::finished, this, &QObject::deleteLater);
    if (isFinished())
        deleteLater();
}

void CaptureThread::run()
{
    const QString folder = Configuration::GetInstance()->screenshotSavePath();
    if (!ensureFolder(folder)) {
        qDebug() << "mkpath error, capture failed";
        return;
    }
    const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/ffmpeg");
    for (Task task = takeTask(); task.positionMs >= 0; task = takeTask()) {
        const QString timeStamp = takeTimeStamp();
        qDebug() << "start capture, timeStr" << timeStamp;
        const QString output = outputFile(folder, task.videoFile, timeStamp);
        const QString arguments = toolArguments(task.videoFile, task.positionMs, output);
        qDebug().noquote() << "captureCmd:" << program + arguments;
        runTool(program, arguments);
    }
    qDebug() << "Capture task finished, exit thread";
    qDebug() << "end run";
}

CaptureThread::Task CaptureThread::takeTask()
{
    const QMutexLocker locker(&mMutex);
    return {mVideoFile, mPositionsMs.isEmpty() ? NoTask : mPositionsMs.takeFirst()};
}
