// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "trackwriter.h"

#include <QThread>

#include <atomic>

/** What became of a track that was to be saved. */
enum class TrackOutcome
{
    Saved,
    GivenUp,
    Unreadable,  ///< the recording
    NoTelemetry, ///< in it
    Unwritable   ///< the file
};

/**
 * Saves the drive of one recording as a file, on a thread of its own: reading a slow card may take
 * a while. The file appears whole or not at all, in the place of one that was there.
 *
 * Belongs to the GUI thread; its end is told by finished(), after which outcome() and reason() may
 * be asked.
 */
class TrackSaving : public QThread
{
    Q_OBJECT

public:
    TrackSaving(const QString &recording, const QString &fileName, TrackWriter::Format format,
                QObject *parent = nullptr);
    /** Gives up, and waits for the end: a few samples. */
    ~TrackSaving() override;

    TrackOutcome outcome() const { return mOutcome; }
    /** Why the file could not be written, in the system's words. */
    QString reason() const { return mReason; }
    QString fileName() const { return mFileName; }

protected:
    void run() override;

private:
    TrackOutcome save();

    QString mRecording;
    QString mFileName;
    TrackWriter::Format mFormat;
    std::atomic<bool> mIsWanted{true};
    TrackOutcome mOutcome = TrackOutcome::GivenUp;
    QString mReason;
};
