// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "trackcommandline.h"

#include <QSet>
#include <QString>
#include <QVector>

struct Drive;

/**
 * Does what talvor-telemetry is told: reads the recordings one after the other and writes them out.
 * Messages, and on a terminal the progress, go to standard error. A file appears whole or not at
 * all, and takes the place of another only if the job allows it.
 */
class TrackExport
{
public:
    /** The exit status; of several, the largest counts. */
    enum Status
    {
        Success = 0,
        NoTelemetry = 1, ///< of a recording
        Failure = 2      ///< misuse, or something that could not be read or written
    };

    explicit TrackExport(const TrackJob &job);

    Status run();

private:
    /** A recording, and the folder that its file goes to, below that of the output. */
    struct Source
    {
        QString path;
        QString folder;
    };

    void findSources();
    bool isOutputFolder() const;
    bool isOneDocument() const;
    bool printsText() const;
    void report();
    void writeSeparately();
    void writeTogether();
    void writeTo(const QString &path, const QVector<Source> &sources);
    bool writeSources(TrackWriter *writer, const QVector<Source> &sources);
    std::optional<Drive> read(const Source &source);
    QString fileFor(const Source &source);
    QString titleOf(const QVector<Source> &sources) const;

    void note(Status status, const QString &message);
    void showProgress(const QString &path);
    void hideProgress() const;

    TrackJob mJob;
    QVector<Source> mSources;
    QSet<QString> mWritten; // in this run
    Status mStatus = Success;
    int mReadCount = 0;
    bool mShowsProgress = false;
};
