// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tracksaving.h"

#include "drive.h"

#include <QFileInfo>
#include <QSaveFile>

TrackSaving::TrackSaving(const QString &recording, const QString &fileName,
                         TrackWriter::Format format, QObject *parent)
    : QThread(parent), mRecording(recording), mFileName(fileName), mFormat(format)
{}

TrackSaving::~TrackSaving()
{
    mIsWanted.store(false, std::memory_order_relaxed);
    wait();
}

void TrackSaving::run()
{
    mOutcome = save();
}

TrackOutcome TrackSaving::save()
{
    const std::optional<Drive> drive = readDrive(mRecording, &mIsWanted);
    if (!mIsWanted.load(std::memory_order_relaxed))
        return TrackOutcome::GivenUp;
    if (!drive)
        return TrackOutcome::Unreadable;
    if (drive->samples.isEmpty())
        return TrackOutcome::NoTelemetry;
    QSaveFile file(mFileName);
    if (file.open(QIODevice::WriteOnly)) {
        const std::unique_ptr<TrackWriter> writer =
            TrackWriter::create(mFormat, &file, TrackOptions());
        writer->begin(QFileInfo(mRecording).completeBaseName());
        writer->write(*drive);
        if (writer->finish() && file.commit())
            return TrackOutcome::Saved;
    }
    mReason = file.errorString();
    return TrackOutcome::Unwritable;
}
