// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mediafile.h"

#include "recordingwriter.h"

#include <QDebug>
#include <QFile>
#include <QProcess>

namespace {

const QString Sources = QStringLiteral("-v error -y -f lavfi -i testsrc2=size=320x180:rate=30"
                                       " -f lavfi -i sine=sample_rate=48000 -t %1 ");
const QString Mp4Codings =
    QStringLiteral("-c:v libx264 -preset ultrafast -g 30 -pix_fmt yuv420p -c:a aac -f mp4");
const QString AviCodings =
    QStringLiteral("-c:v mjpeg -q:v 5 -pix_fmt yuvj420p -c:a pcm_s16le -f avi");

bool encode(const QString &fileName, int seconds, const QString &codings)
{
    QProcess ffmpeg;
    const QString arguments = Sources.arg(seconds) + codings;
    ffmpeg.start(QStringLiteral("ffmpeg"), arguments.split(QLatin1Char(' ')) << fileName);
    const bool done = ffmpeg.waitForFinished(-1) && ffmpeg.exitCode() == 0;
    if (!done)
        qWarning() << "ffmpeg:" << ffmpeg.errorString() << ffmpeg.readAllStandardError();
    return done;
}

} // namespace

bool makeMediaFile(const QString &fileName, int seconds, const QList<TelemetryBlock> &samples)
{
    const bool isAvi = fileName.endsWith(QLatin1String(".avi"), Qt::CaseInsensitive);
    if (!encode(fileName, seconds, isAvi ? AviCodings : Mp4Codings))
        return false;
    if (samples.isEmpty())
        return true;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadWrite))
        return false;
    QByteArray recording = file.readAll();
    return graftTelemetry(recording, samples, isAvi ? 7 : 4) && file.seek(0) &&
           file.write(recording) == recording.size();
}
