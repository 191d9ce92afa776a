// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "aviwriter.h"

#include "recordingwriter.h"

#include <QtEndian>

namespace {
constexpr int ChunkHeader = 8;
constexpr int SoundChunkToBlock = 65538; // from the start of the header
constexpr int VideoChunksWithoutSound = 3;

QByteArray zeros(int count)
{
    return QByteArray(count, '\0');
}

QByteArray evenly(const QByteArray &bytes)
{
    return bytes.size() % 2 == 0 ? bytes : bytes + '\0';
}
} // namespace

namespace Avi {
QByteArray little32(quint32 value)
{
    QByteArray bytes(int(sizeof value), '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

QByteArray chunk(const QByteArray &id, const QByteArray &payload)
{
    return evenly(chunkClaiming(quint32(payload.size()), id, payload));
}

QByteArray chunkClaiming(quint32 size, const QByteArray &id, const QByteArray &payload)
{
    return id + little32(size) + payload;
}

QByteArray soundChunk(const QByteArray &payload)
{
    return chunkClaiming(quint32(payload.size()), "01wb", payload);
}

QByteArray list(const QByteArray &type, const QByteArray &payload)
{
    return chunk("LIST", type + payload);
}

QByteArray listClaiming(quint32 size, const QByteArray &type, const QByteArray &payload)
{
    return chunkClaiming(size, "LIST", type + payload);
}

QByteArray riff(const QByteArray &content)
{
    return chunk("RIFF", "AVI " + content);
}

QByteArray mainHeader(quint32 microsecondsPerFrame, quint32 totalFrames, quint32 width,
                      quint32 height)
{
    const QByteArray rateGranularityFlags = zeros(12);
    const QByteArray initialFrames = zeros(4);
    const QByteArray bufferSize = zeros(4);
    const QByteArray reserved = zeros(16);
    return chunk("avih", little32(microsecondsPerFrame) + rateGranularityFlags +
                             little32(totalFrames) + initialFrames + little32(2) + bufferSize +
                             little32(width) + little32(height) + reserved);
}

QByteArray videoStream(const QByteArray &coding)
{
    const QByteArray header = "vids" + coding + zeros(48);
    const QByteArray format = little32(40) + zeros(12) + coding + zeros(20);
    return list("strl", chunk("strh", header) + chunk("strf", format));
}
} // namespace Avi

void AviWriter::setTelemetry(int scheme, const QList<TelemetryBlock> &samples)
{
    mScheme = scheme;
    mSamples = samples;
}

QByteArray AviWriter::movie() const
{
    const QByteArray video = Avi::chunk("00dc", zeros(videoChunkSize));
    if (mScheme != 8)
        return video.repeated(VideoChunksWithoutSound);
    const QByteArray sound = zeros(SoundChunkToBlock - ChunkHeader);
    const QByteArray extra = zeros(soundChunkExtra);
    QByteArray chunks;
    for (const TelemetryBlock &sample : mSamples)
        chunks += video + Avi::soundChunk(sound + sample.encoded() + extra);
    return chunks + video + Avi::soundChunk(extra);
}

QByteArray AviWriter::encoded() const
{
    const QByteArray header = Avi::mainHeader(microsecondsPerFrame, totalFrames, width, height);
    const QByteArray junk = junkSize > 0 ? Avi::chunk("JUNK", zeros(junkSize)) : QByteArray();
    const QByteArray headers = Avi::list("hdrl", header + Avi::videoStream("MJPG"));
    QByteArray recording = Avi::riff(headers + junk + Avi::list("movi", movie()));
    if (mScheme == 7)
        graftTelemetry(recording, mSamples, mScheme);
    return recording;
}

bool AviWriter::save(const QString &fileName) const
{
    return saveRecording(fileName, encoded());
}
