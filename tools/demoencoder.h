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
 * Encodes one recording, with the ffmpeg program of the system: from pictures and sound an MP4 of
 * H.264 and AAC, whose "moov" is the last box and whose seconds each begin with a key frame; or
 * from such an MP4 an AVI of Motion JPEG and PCM. Blocks its thread while the program is behind.
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
    /** Makes an AVI of the first @p seconds of an encoded recording, or of all of it if that is
     *  shorter. Its pictures are at most 960 pixels wide, and it has up to 0.7 MB a second. */
    void startAvi(const QString &videoFile, double seconds, const QString &aviFile);
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
