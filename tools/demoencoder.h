// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QImage>
#include <QProcess>
#include <QSize>
#include <QString>

/** What a recording is to be. */
struct RecordingFormat
{
    QSize size; ///< pixels, both even
    int framesPerSecond = 30;
    int seconds = 60;
    QDateTime startTime; ///< written as it reads, without regard to its zone, as cameras do
};

/**
 * Encodes pictures and sound into an MP4 recording of H.264 and AAC, with the ffmpeg program of
 * the system. Its "moov" is the last box; each second begins with a key frame. Blocks its thread
 * while the program is behind.
 */
class DemoEncoder
{
public:
    DemoEncoder() = default;
    /** Stops the program if it still runs. */
    ~DemoEncoder();

    /** Why recordings cannot be encoded on this system; empty when they can. */
    static QString obstacle();

    /** @p soundFile holds what engineSound() made. */
    void start(const RecordingFormat &format, const QString &soundFile, const QString &videoFile);
    /** Hands on a picture of Format_RGB32 and the format's size. Returns false when the program
     *  has ended early. */
    bool write(const QImage &picture);
    /** Waits for the end of the recording. Returns false when it failed. */
    bool finish();
    /** What the program said about its failure; call it after a failure only. */
    QString errorText();

private:
    Q_DISABLE_COPY(DemoEncoder)

    QProcess mProcess;
};
