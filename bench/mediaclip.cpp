// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mediaclip.h"

#include "processrun.h"

#include <QDir>
#include <QFile>
#include <QtEndian>

namespace {

// The quality keeps a key frame below the bytes that an hour of 4 GB has for a frame.
const char EncoderCommand[] = "ffmpeg -v error -y -f lavfi -i testsrc2=size=1920x1080:rate=30"
                              " -f lavfi -i sine=sample_rate=48000 -t 2 -c:v libx264"
                              " -preset veryfast -crf 30 -bf 0 -g 30 -pix_fmt yuv420p -c:a aac";

/** A whole box; @p from is where the search for its type begins. */
QByteArray boxOf(const QByteArray &file, const QByteArray &type, int from)
{
    const int found = file.indexOf(type, from);
    if (found < 4)
        qFatal("The clip has no box %s", type.constData());
    return file.mid(found - 4, int(qFromBigEndian<quint32>(file.constData() + found - 4)));
}

QList<QByteArray> framesOf(const QString &fileName, const QByteArray &file, const QString &stream)
{
    const QString entries = QStringLiteral("packet=size,pos");
    const QByteArray table = outputOf({"ffprobe", "-v", "error", "-select_streams", stream,
                                       "-show_entries", entries, "-of", "csv=p=0", fileName});
    QList<QByteArray> frames;
    for (const QByteArray &line : table.trimmed().split('\n')) {
        const QList<QByteArray> fields = line.split(',');
        frames.append(file.mid(fields.value(1).toInt(), fields.value(0).toInt()));
    }
    return frames;
}

} // namespace

MediaClip makeMediaClip(const QString &folder)
{
    const QString fileName = QDir(folder).filePath(QStringLiteral("clip.mp4"));
    outputOf(QString::fromLatin1(EncoderCommand).split(QLatin1Char(' ')) << fileName);
    QFile clip(fileName);
    if (!clip.open(QIODevice::ReadOnly))
        qFatal("ffmpeg has left no clip");
    const QByteArray bytes = clip.readAll();
    const int firstTrack = bytes.indexOf("trak");
    const int secondTrack = bytes.indexOf("trak", firstTrack + 4);
    return {{boxOf(bytes, "stsd", firstTrack), framesOf(fileName, bytes, "v:0")},
            {boxOf(bytes, "stsd", secondTrack), framesOf(fileName, bytes, "a:0")}};
}
