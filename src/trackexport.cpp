// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "trackexport.h"

#include "drive.h"
#include "drivereport.h"
#include "recordingsearch.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <cstdio>
#include <unistd.h>

namespace {

const QLatin1String StandardOutput("-");

bool openStandardOutput(QFile &file)
{
    return file.open(STDOUT_FILENO, QIODevice::WriteOnly | QIODevice::Unbuffered);
}

/** Where in the folder the file is; "." directly in it. */
QString folderBelow(const QString &folder, const QString &path)
{
    const QDir absolute(QFileInfo(folder).absoluteFilePath());
    return QFileInfo(absolute.relativeFilePath(QFileInfo(path).absoluteFilePath())).path();
}

} // namespace

TrackExport::TrackExport(const TrackJob &job) : mJob(job) {}

TrackExport::Status TrackExport::run()
{
    findSources();
    // Not into the text that goes to the same terminal.
    mShowsProgress = isatty(STDERR_FILENO) && !(printsText() && isatty(STDOUT_FILENO));
    if (mSources.isEmpty())
        return mStatus;
    if (mJob.isInfo)
        report();
    else if (isOneDocument())
        writeTogether();
    else if (mJob.output == StandardOutput)
        note(Failure, QStringLiteral("several recordings go to standard output only with --join"));
    else
        writeSeparately();
    hideProgress();
    return mStatus;
}

void TrackExport::findSources()
{
    for (const QString &input : qAsConst(mJob.inputs)) {
        if (!QFileInfo(input).isDir()) {
            mSources.append({input, QString()});
            continue;
        }
        RecordingSearch search;
        search.lookInto(QDir::cleanPath(input));
        const QStringList found = search.found();
        if (found.isEmpty())
            note(Failure, QStringLiteral("%1: no recordings in this folder").arg(input));
        for (const QString &path : found)
            mSources.append({path, folderBelow(input, path)});
    }
}

bool TrackExport::isOutputFolder() const
{
    return mJob.output.endsWith(QLatin1Char('/')) || QFileInfo(mJob.output).isDir();
}

bool TrackExport::isOneDocument() const
{
    return mJob.isJoined || (mSources.size() == 1 && !isOutputFolder());
}

bool TrackExport::printsText() const
{
    const bool isUnnamed = mJob.output.isEmpty() || mJob.output == StandardOutput;
    return mJob.isInfo || (isOneDocument() && isUnnamed);
}

void TrackExport::report()
{
    QFile file;
    openStandardOutput(file);
    DriveReport drives(&file, mJob.options, mJob.isJsonInfo);
    drives.begin(QString());
    if (!writeSources(&drives, mSources))
        note(Failure, QStringLiteral("cannot write: %1").arg(file.errorString()));
}

void TrackExport::writeSeparately()
{
    for (const Source &source : qAsConst(mSources))
        writeTo(fileFor(source), {source});
}

void TrackExport::writeTogether()
{
    if (!printsText()) {
        writeTo(isOutputFolder() ? fileFor({titleOf(mSources), QString()}) : mJob.output, mSources);
        return;
    }
    QFile file;
    openStandardOutput(file);
    const std::unique_ptr<TrackWriter> writer =
        TrackWriter::create(mJob.format, &file, mJob.options);
    writer->begin(titleOf(mSources));
    if (!writeSources(writer.get(), mSources))
        note(Failure, QStringLiteral("cannot write: %1").arg(file.errorString()));
}

void TrackExport::writeTo(const QString &path, const QVector<Source> &sources)
{
    if (!mJob.mayOverwrite && QFileInfo::exists(path)) {
        note(Failure, QStringLiteral("%1 is there already; --force overwrites it").arg(path));
        return;
    }
    QSaveFile file(path);
    const bool isOpen =
        QDir().mkpath(QFileInfo(path).absolutePath()) && file.open(QIODevice::WriteOnly);
    if (!isOpen) {
        note(Failure, QStringLiteral("cannot write %1: %2").arg(path, file.errorString()));
        return;
    }
    const Status before = mStatus;
    mStatus = Success;
    const std::unique_ptr<TrackWriter> writer =
        TrackWriter::create(mJob.format, &file, mJob.options);
    writer->begin(titleOf(sources));
    const bool isWritten = writeSources(writer.get(), sources);
    // Alone, a recording that could not be read or has nothing to tell leaves no empty file.
    const bool isWorthIt = mStatus == Success || sources.size() > 1;
    mStatus = std::max(before, mStatus);
    if (isWorthIt && !(isWritten && file.commit()))
        note(Failure, QStringLiteral("cannot write %1: %2").arg(path, file.errorString()));
}

bool TrackExport::writeSources(TrackWriter *writer, const QVector<Source> &sources)
{
    for (const Source &source : sources) {
        const std::optional<Drive> drive = read(source);
        if (drive)
            writer->write(*drive);
    }
    hideProgress();
    return writer->finish();
}

std::optional<Drive> TrackExport::read(const Source &source)
{
    showProgress(source.path);
    std::optional<Drive> drive = readDrive(source.path);
    if (!drive)
        note(Failure, QStringLiteral("%1 cannot be read").arg(source.path));
    else if (drive->samples.isEmpty())
        note(NoTelemetry, QStringLiteral("%1 has no telemetry").arg(source.path));
    return drive;
}

/** Recordings whose names differ in their suffix only are told apart by it. */
QString TrackExport::fileFor(const Source &source)
{
    const QDir folder(mJob.output.isEmpty() ? QStringLiteral(".") : mJob.output);
    const QString suffix = QLatin1Char('.') + TrackWriter::nameOf(mJob.format);
    const QString below = source.folder.isEmpty() ? QString() : source.folder + QLatin1Char('/');
    const QFileInfo recording(source.path);
    QString path = folder.filePath(QDir::cleanPath(below + recording.completeBaseName()) + suffix);
    if (mWritten.contains(path))
        path = folder.filePath(QDir::cleanPath(below + recording.fileName()) + suffix);
    mWritten.insert(path);
    return path;
}

QString TrackExport::titleOf(const QVector<Source> &sources) const
{
    const QString first = QFileInfo(sources.first().path).completeBaseName();
    if (sources.size() == 1)
        return first;
    return QStringLiteral("%1 to %2").arg(first, QFileInfo(sources.last().path).completeBaseName());
}

void TrackExport::note(Status status, const QString &message)
{
    mStatus = std::max(mStatus, status);
    hideProgress();
    std::fprintf(stderr, "talvor-telemetry: %s\n", qUtf8Printable(message));
}

/** Over the line before. */
void TrackExport::showProgress(const QString &path)
{
    ++mReadCount;
    if (mShowsProgress)
        std::fprintf(stderr, "\r\033[K%d of %d: %s", mReadCount, mSources.size(),
                     qUtf8Printable(QFileInfo(path).fileName()));
}

void TrackExport::hideProgress() const
{
    if (mShowsProgress)
        std::fprintf(stderr, "\r\033[K");
}
