// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchrecordings.h"

#include "aviwriter.h"
#include "recordingwriter.h"
#include "sparsefile.h"

#include <QDir>

#include <cmath>
#include <vector>

namespace {

constexpr quint32 RideLength = 3600;

constexpr quint32 Gps0Distance = 311; // the blocks of "gps0" lack their last byte
constexpr quint32 ChunkHeader = 8;
constexpr quint32 SoundChunkToBlock = 65538; // from the start of the header
constexpr quint32 SoundChunkSize = 66000;    // payload, which the block lies in
constexpr quint32 VideoChunkSize = 2000;     // payload

QByteArray madeBlock(quint32 index)
{
    const double angle = 2.0 * M_PI * index / RideLength;
    TelemetryBlock block;
    block.setPosition(48.0 + 0.1 * std::sin(angle), 11.0 + 0.1 * std::cos(angle));
    block.setSpeed(int(index % 120));
    block.setAcceleration(std::sin(9.0 * angle), std::cos(7.0 * angle), 1.0);
    block.extraValue = QByteArray::number(index).rightJustified(5, '0');
    return block.encoded();
}

std::vector<QByteArray> madeRide()
{
    std::vector<QByteArray> blocks;
    for (quint32 i = 0; i < RideLength; ++i)
        blocks.push_back(madeBlock(i));
    return blocks;
}

/** The schemes of which a table in "moov" tells where the blocks are. */
struct TableScheme
{
    int number;
    quint32 entrySize;
    quint32 distance;
    const char *handlerType; // null: not a track but a box "gps "
    const char *handlerName;
};

constexpr TableScheme TableSchemes[] = {
    {1, 4, 2, "data", "Ambarella EXT"},
    {2, 8, 18, nullptr, nullptr},
    {6, 4, 0, "meta", "GPS telemetry"},
};

const TableScheme *tableScheme(int number)
{
    for (const TableScheme &scheme : TableSchemes) {
        if (scheme.number == number)
            return &scheme;
    }
    return nullptr;
}

QByteArray telemetryTable(const TableScheme &scheme, const QList<quint32> &chunks)
{
    if (!scheme.handlerType)
        return gpsBox(chunks, scheme.distance + TelemetryBlock::Size);
    Mp4::Track track;
    track.handlerType = scheme.handlerType;
    track.handlerName = scheme.handlerName;
    track.chunks = chunks;
    return track.encoded();
}

QByteArray movieBox(const QByteArray &telemetry)
{
    constexpr quint32 frameCount = 108000;
    return Mp4::box("moov", Mp4::movieHeader(1000, 3600000) +
                                Mp4::videoTrack(1920, 1080, frameCount).encoded() + telemetry);
}

/** "ftyp", the chunks of the telemetry in "mdat", "moov" with their table. */
void writeTableRecording(BenchRecording &recording, const TableScheme &scheme, quint32 pitch)
{
    SparseFile file(recording.fileName);
    const QByteArray type = fileTypeBox();
    const quint32 chunkSize = scheme.distance + TelemetryBlock::Size;
    const quint32 step = pitch > 0 ? pitch : chunkSize;
    const quint32 mediaStart = quint32(type.size()) + ChunkHeader;
    const quint32 mediaSize = step * recording.entryCount;
    file.put(0, type + Mp4::boxClaiming(ChunkHeader + mediaSize, "mdat"));

    QList<quint32> chunks;
    for (quint32 i = 0; i < recording.entryCount; ++i) {
        chunks.append(mediaStart + i * step);
        file.put(chunks.last() + scheme.distance, rideBlock(i));
    }
    const QByteArray movie = movieBox(telemetryTable(scheme, chunks));
    file.put(mediaStart + mediaSize, movie);
    recording.firstEntry = mediaStart + mediaSize + quint64(movie.size()) -
                           quint64(scheme.entrySize) * recording.entryCount;
    recording.entrySize = scheme.entrySize;
    recording.distance = scheme.distance;
}

void putBlocksInRow(SparseFile &file, BenchRecording &recording, quint32 distance)
{
    for (quint32 i = 0; i < recording.entryCount; ++i)
        file.put(recording.firstEntry + quint64(i) * distance, rideBlock(i).left(int(distance)));
    recording.distance = distance;
}

void writeGps0Recording(BenchRecording &recording)
{
    SparseFile file(recording.fileName);
    const quint32 size = ChunkHeader + recording.entryCount * Gps0Distance;
    const QByteArray head = fileTypeBox() + movieBox({}) + Mp4::boxClaiming(size, "gps0");
    file.put(0, head);
    recording.firstEntry = quint64(head.size());
    putBlocksInRow(file, recording, Gps0Distance);
}

QByteArray aviHeaders()
{
    return Avi::list("hdrl", Avi::mainHeader(33333, 108000, 1920, 1080));
}

void writeGpslRecording(BenchRecording &recording)
{
    SparseFile file(recording.fileName);
    const QByteArray head = Avi::riff(aviHeaders() + Avi::list("movi"));
    const QByteArray block = "GPSL" + Mp4::big32(recording.entryCount);
    file.put(0, head + block);
    recording.firstEntry = quint64(head.size() + block.size());
    putBlocksInRow(file, recording, TelemetryBlock::Size);
    file.put(recording.firstEntry + quint64(recording.entryCount) * TelemetryBlock::Size,
             Mp4::big32(quint32(head.size())));
}

/** "hdrl" and "movi", in which video and sound take turns. */
void writeSoundChunkRecording(BenchRecording &recording)
{
    constexpr quint32 pairSize = ChunkHeader + VideoChunkSize + ChunkHeader + SoundChunkSize;
    SparseFile file(recording.fileName);
    const QByteArray headers = aviHeaders();
    const quint32 movieSize = 4 + pairSize * recording.entryCount;
    const QByteArray head = "AVI " + headers + Avi::listClaiming(movieSize, "movi");
    const quint32 riffSize = quint32(head.size()) + movieSize - 4;
    file.put(0, Avi::chunkClaiming(riffSize, "RIFF", head));
    for (quint32 i = 0; i < recording.entryCount; ++i) {
        const quint64 video = ChunkHeader + quint64(head.size()) + quint64(i) * pairSize;
        const quint64 sound = video + ChunkHeader + VideoChunkSize;
        file.put(video, Avi::chunkClaiming(VideoChunkSize, "00dc"));
        file.put(sound, Avi::chunkClaiming(SoundChunkSize, "01wb"));
        // Players look for the first sample in the first chunk.
        file.put(sound + SoundChunkToBlock, rideBlock(i + 1));
        file.put(sound + ChunkHeader + SoundChunkSize - 1, QByteArray(1, '\0'));
    }
}

} // namespace

bool TelemetryLayout::operator==(const TelemetryLayout &other) const
{
    return scheme == other.scheme && entryCount == other.entryCount && pitch == other.pitch;
}

const QByteArray &rideBlock(quint32 index)
{
    static const std::vector<QByteArray> ride = madeRide();
    return ride[index % RideLength];
}

int rideExtraValue(quint32 index)
{
    return int(index % RideLength);
}

QByteArray fileTypeBox()
{
    return Mp4::box("ftyp", "isom" + Mp4::big32(0) + "isommp42");
}

QByteArray gpsBox(const QList<quint32> &chunks, quint32 chunkSize)
{
    QByteArray payload = Mp4::big32(0) + Mp4::big32(quint32(chunks.size()));
    for (const quint32 chunk : chunks)
        payload += Mp4::big32(chunk) + Mp4::big32(chunkSize);
    return Mp4::box("gps ", payload);
}

BenchRecording writeBenchRecording(const QString &folder, const TelemetryLayout &layout)
{
    const bool isAvi = layout.scheme == 7 || layout.scheme == 8;
    BenchRecording recording;
    recording.fileName = QDir(folder).filePath(isAvi ? QStringLiteral("recording.avi")
                                                     : QStringLiteral("recording.mp4"));
    recording.entryCount = layout.entryCount;
    if (const TableScheme *scheme = tableScheme(layout.scheme))
        writeTableRecording(recording, *scheme, layout.pitch);
    else if (layout.scheme == 4)
        writeGps0Recording(recording);
    else if (layout.scheme == 7)
        writeGpslRecording(recording);
    else
        writeSoundChunkRecording(recording);
    return recording;
}
