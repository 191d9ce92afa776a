// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingwriter.h"

#include <QDebug>
#include <QSaveFile>
#include <QtEndian>

namespace {
constexpr int ShortHeader = 8;
constexpr int LargeHeader = 16;
constexpr quint32 LargeSizeFollows = 1;
constexpr quint32 FixedPointOne = 0x10000;

template <typename Int>
QByteArray big(Int value)
{
    QByteArray bytes(int(sizeof value), '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray zeros(int count)
{
    return QByteArray(count, '\0');
}

QByteArray unityMatrix()
{
    return Mp4::big32(FixedPointOne) + zeros(12) + Mp4::big32(FixedPointOne) + zeros(12) +
           Mp4::big32(0x40000000);
}
} // namespace

namespace Mp4 {
QByteArray big32(quint32 value)
{
    return big(value);
}

QByteArray big64(quint64 value)
{
    return big(value);
}

QByteArray box(const QByteArray &type, const QByteArray &payload)
{
    return boxClaiming(quint32(ShortHeader + payload.size()), type, payload);
}

QByteArray boxClaiming(quint32 size, const QByteArray &type, const QByteArray &payload)
{
    return big32(size) + type + payload;
}

QByteArray largeBox(const QByteArray &type, const QByteArray &payload)
{
    return largeBoxClaiming(quint64(LargeHeader + payload.size()), type, payload);
}

QByteArray largeBoxClaiming(quint64 size, const QByteArray &type, const QByteArray &payload)
{
    return big32(LargeSizeFollows) + type + big64(size) + payload;
}

QByteArray movieHeader(quint32 timeScale, quint32 duration, quint32 creationTime)
{
    const QByteArray times = big32(creationTime) + big32(creationTime) + big32(timeScale);
    const QByteArray rateAndVolume = big32(FixedPointOne) + big(quint16(0x100)) + zeros(10);
    return box("mvhd", zeros(4) + times + big32(duration) + rateAndVolume + unityMatrix() +
                           zeros(24) + big32(0xFFFFFFFF));
}

QByteArray trackHeader(quint16 width, quint16 height, quint32 creationTime)
{
    const QByteArray versionAndEnabled = big32(3);
    const QByteArray times = big32(creationTime) + big32(creationTime);
    return box("tkhd", versionAndEnabled + times + big32(1) + zeros(4 + 4 + 8 + 8) + unityMatrix() +
                           big32(width * FixedPointOne) + big32(height * FixedPointOne));
}

QByteArray handler(const QByteArray &type, const QByteArray &name)
{
    return box("hdlr", zeros(8) + type + zeros(12) + name + '\0');
}

QByteArray sampleDescription(const QList<QByteArray> &codings)
{
    constexpr int visualEntry = 78;
    QByteArray payload = zeros(4) + big32(quint32(codings.size()));
    for (const QByteArray &coding : codings)
        payload += box(coding, zeros(visualEntry));
    return box("stsd", payload);
}

QByteArray sampleSizes(quint32 sampleCount)
{
    constexpr quint32 bytesPerSample = 4096;
    return box("stsz", zeros(4) + big32(bytesPerSample) + big32(sampleCount));
}

QByteArray chunkOffsets(const QList<quint32> &offsets)
{
    QByteArray payload = zeros(4) + big32(quint32(offsets.size()));
    for (quint32 offset : offsets)
        payload += big32(offset);
    return box("stco", payload);
}

void patchBig32(QByteArray &recording, const QByteArray &type, int offset, quint32 value)
{
    const int found = recording.indexOf(type);
    if (found < 4)
        qFatal("The recording has no box %s", type.constData());
    recording.replace(found + type.size() + offset, 4, big32(value));
}

QByteArray Track::encoded() const
{
    const QByteArray table =
        box("stbl", sampleDescription(codings) + sampleSizes(sampleCount) + chunkOffsets(chunks));
    const QByteArray media = box("mdia", handler(handlerType, handlerName) + box("minf", table));
    return box("trak", trackHeader(width, height, creationTime) + media);
}

Track videoTrack(quint16 width, quint16 height, quint32 frameCount, const QByteArray &coding,
                 quint32 creationTime)
{
    Track track;
    track.width = width;
    track.height = height;
    track.creationTime = creationTime;
    track.codings = {coding};
    track.sampleCount = frameCount;
    return track;
}
} // namespace Mp4

namespace {
const QByteArray FreeGpsMark = "freeGPS ";
constexpr int FreeGpsMarkToBlock = 14;
constexpr int TableEntryToBlock = 18;
constexpr int Gps0BlockSize = TelemetryBlock::Size - 1;

struct CarrierTrack
{
    int scheme;
    const char *handlerType;
    const char *handlerName;
};

constexpr CarrierTrack CarrierTracks[] = {
    {1, "data", "Ambarella EXT"},
    {3, "soun", "SoundHandler"},
    {6, "meta", "GPS telemetry"},
};

QByteArray fileType()
{
    return Mp4::box("ftyp", "isom" + zeros(4) + "isommp42");
}

QList<TelemetryBlock> withLeadingEntry(const QList<TelemetryBlock> &samples)
{
    TelemetryBlock leading;
    leading.time = leading.time2 = "00000000000000";
    leading.mark1 = leading.mark2 = 'V';
    return QList<TelemetryBlock>{leading} + samples;
}

/** The box "gps " for entries of @p entrySize bytes that lie one behind the other. */
QByteArray gpsTable(const QList<quint32> &positions, quint32 entrySize)
{
    QByteArray payload = zeros(4) + Mp4::big32(quint32(positions.size()));
    for (quint32 position : positions)
        payload += Mp4::big32(position) + Mp4::big32(entrySize);
    return Mp4::box("gps ", payload);
}

QByteArray gps0Box(const QList<TelemetryBlock> &entries)
{
    QByteArray payload;
    for (const TelemetryBlock &entry : entries)
        payload += entry.encoded().left(Gps0BlockSize);
    return Mp4::box("gps0", payload);
}

QByteArray joined(const QList<TelemetryBlock> &entries, const QByteArray &head)
{
    QByteArray bytes;
    for (const TelemetryBlock &entry : entries)
        bytes += head + entry.encoded();
    return bytes;
}

QList<quint32> equalSteps(quint32 first, int step, int count)
{
    QList<quint32> positions;
    for (int i = 0; i < count; ++i)
        positions.append(first + quint32(i * step));
    return positions;
}
} // namespace

void RecordingWriter::setTelemetry(int scheme, const QList<TelemetryBlock> &samples)
{
    mScheme = scheme;
    mEntries = withLeadingEntry(samples);
}

/** What a chunk of the telemetry has before its block. */
QByteArray RecordingWriter::chunkHead() const
{
    if (mScheme == 1)
        return zeros(2);
    if (mScheme == 2)
        return zeros(TableEntryToBlock);
    if (mScheme == 3)
        return zeros(int(mMarkDistance)) + FreeGpsMark.leftJustified(FreeGpsMarkToBlock, '\0');
    return {};
}

QByteArray RecordingWriter::mediaData() const
{
    const bool isInMediaData = mScheme != 0 && mScheme != 4;
    return Mp4::box("mdat", isInMediaData ? joined(mEntries, chunkHead()) : QByteArray());
}

QList<quint32> RecordingWriter::chunkPositions() const
{
    const int step = chunkHead().size() + TelemetryBlock::Size;
    return equalSteps(quint32(fileType().size() + ShortHeader), step, mEntries.size());
}

QByteArray RecordingWriter::telemetryInMovie() const
{
    if (mScheme == 2)
        return gpsTable(chunkPositions(), quint32(TableEntryToBlock + TelemetryBlock::Size));
    for (const CarrierTrack &carrier : CarrierTracks) {
        if (carrier.scheme != mScheme)
            continue;
        Mp4::Track track;
        track.handlerType = carrier.handlerType;
        track.handlerName = carrier.handlerName;
        track.chunks = chunkPositions();
        return track.encoded();
    }
    return {};
}

QByteArray RecordingWriter::encoded() const
{
    QByteArray movie = Mp4::movieHeader(timeScale, duration);
    for (const Mp4::Track &track : tracks)
        movie += track.encoded();
    movie += telemetryInMovie();
    const QByteArray tail = mScheme == 4 ? gps0Box(mEntries) : QByteArray();
    return fileType() + mediaData() + Mp4::box("moov", movie) + tail;
}

bool RecordingWriter::save(const QString &fileName) const
{
    return saveRecording(fileName, encoded());
}

bool saveRecording(const QString &fileName, const QByteArray &recording)
{
    QSaveFile file(fileName);
    if (file.open(QIODevice::WriteOnly) && file.write(recording) == recording.size() &&
        file.commit())
        return true;
    qWarning() << "Recording not written:" << fileName << file.errorString();
    return false;
}

namespace {
quint64 boxSizeAt(const QByteArray &recording, int offset)
{
    if (recording.size() - offset < ShortHeader)
        return 0;
    const char *header = recording.constData() + offset;
    const quint32 size = qFromBigEndian<quint32>(header);
    if (size != LargeSizeFollows)
        return size;
    if (recording.size() - offset < LargeHeader)
        return 0;
    return qFromBigEndian<quint64>(header + ShortHeader);
}

/** Where the last top-level box begins, -1 when the boxes do not fill the recording exactly. */
int lastBox(const QByteArray &recording)
{
    int last = -1;
    for (int offset = 0; offset < recording.size();) {
        const quint64 size = boxSizeAt(recording, offset);
        if (size < ShortHeader || size > quint64(recording.size() - offset))
            return -1;
        last = offset;
        offset += int(size);
    }
    return last;
}

bool graftGpsTable(QByteArray &recording, int movie, const QList<TelemetryBlock> &entries)
{
    const int size = recording.size() - movie;
    if (recording.mid(movie, ShortHeader) != Mp4::big32(quint32(size)) + "moov")
        return false;
    const int step = TableEntryToBlock + TelemetryBlock::Size;
    const int tableSize = gpsTable({}, 0).size() + entries.size() * 8;
    const int firstEntry = recording.size() + tableSize + ShortHeader;
    const auto positions = equalSteps(quint32(firstEntry), step, entries.size());
    recording.replace(movie, 4, Mp4::big32(quint32(size + tableSize)));
    recording += gpsTable(positions, quint32(step));
    recording += Mp4::box("free", joined(entries, zeros(TableEntryToBlock)));
    return true;
}

/** Count and pointer are big-endian, unlike all else in an AVI. */
bool graftGpslBlock(QByteArray &recording, const QList<TelemetryBlock> &entries)
{
    if (!recording.startsWith("RIFF") || recording.mid(ShortHeader, 4) != "AVI ")
        return false;
    const quint32 block = quint32(recording.size());
    recording += "GPSL" + Mp4::big32(quint32(entries.size())) + joined(entries, {});
    recording += Mp4::big32(block);
    return true;
}
} // namespace

bool graftTelemetry(QByteArray &recording, const QList<TelemetryBlock> &samples, int scheme)
{
    const QList<TelemetryBlock> entries = withLeadingEntry(samples);
    if (scheme == 7)
        return graftGpslBlock(recording, entries);
    const int last = lastBox(recording);
    if (last < 0)
        return false;
    if (scheme == 2)
        return graftGpsTable(recording, last, entries);
    if (scheme != 4)
        return false;
    recording += gps0Box(entries);
    return true;
}
