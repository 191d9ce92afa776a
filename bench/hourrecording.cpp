// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "hourrecording.h"

#include "mediaclip.h"
#include "neededbytes.h"
#include "recordingwriter.h"
#include "sparsefile.h"

#include <QDir>

namespace {

constexpr quint32 Seconds = 3600;
constexpr quint32 FramesPerSecond = 30;
constexpr quint32 SoundRate = 48000;
constexpr quint32 SamplesPerSoundFrame = 1024;
constexpr quint32 SoundFramesPerChunk = 47; // a second and a little
constexpr quint32 SoundChunks = Seconds * SoundRate / SamplesPerSoundFrame / SoundFramesPerChunk;
constexpr quint32 MovieScale = 1000;

// One second of the file: slots of picture and a telemetry block each, then sound.
constexpr quint32 SecondSize = 1190000;
constexpr quint32 SoundRoom = 30000;
constexpr quint32 FrameSize = 34000; // from where the frames are holes, and the most for any
constexpr quint32 SoundFrameSize = 350;
constexpr quint32 ChunkToBlock = 18;
constexpr quint32 TelemetryChunkSize = ChunkToBlock + TelemetryBlock::Size;
constexpr quint32 BoxHeader = 8;

QByteArray tableBox(const QByteArray &type, const QList<quint32> &values, quint32 entryCount)
{
    QByteArray payload = Mp4::big32(0) + Mp4::big32(entryCount);
    for (const quint32 value : values)
        payload += Mp4::big32(value);
    return Mp4::box(type, payload);
}

/** One track: what of it is where, and in what kinds of boxes that is told. */
struct TrackPlan
{
    CodedTrack coded;
    quint32 frameSize;      ///< of frames behind those that are coded
    quint32 framesPerChunk; ///< in the file in a row
    quint32 timeScale;
    quint32 frameDuration;
    QList<quint32> chunks;

    quint32 frameCount() const { return quint32(chunks.size()) * framesPerChunk; }
    quint32 sizeOfFrame(quint32 frame) const;
    void putChunk(SparseFile &file, quint32 position);
    QByteArray sizes() const;
    QByteArray sampleTable(const QByteArray &keyFrames) const;
};

quint32 TrackPlan::sizeOfFrame(quint32 frame) const
{
    if (frame >= quint32(coded.frames.size()))
        return frameSize;
    const quint32 size = quint32(coded.frames.at(int(frame)).size());
    if (size > frameSize)
        qFatal("A frame of the clip is too large: %u bytes", size);
    return size;
}

void TrackPlan::putChunk(SparseFile &file, quint32 position)
{
    const int first = int(frameCount());
    chunks.append(position);
    const QByteArrayList frames = coded.frames.mid(first, int(framesPerChunk));
    if (!frames.isEmpty())
        file.put(position, frames.join());
}

QByteArray TrackPlan::sizes() const
{
    QByteArray payload = Mp4::big32(0) + Mp4::big32(0) + Mp4::big32(frameCount());
    for (quint32 i = 0; i < frameCount(); ++i)
        payload += Mp4::big32(sizeOfFrame(i));
    return Mp4::box("stsz", payload);
}

QByteArray TrackPlan::sampleTable(const QByteArray &keyFrames) const
{
    const QByteArray times = tableBox("stts", {frameCount(), frameDuration}, 1);
    const QByteArray grouping = tableBox("stsc", {1, framesPerChunk, 1}, 1);
    return Mp4::box("stbl", coded.description + times + keyFrames + grouping + sizes() +
                                Mp4::chunkOffsets(chunks));
}

QByteArray mediaHeader(const TrackPlan &plan)
{
    return Mp4::box("mdhd", Mp4::big32(0) + Mp4::big64(0) + Mp4::big32(plan.timeScale) +
                                Mp4::big32(plan.frameCount() * plan.frameDuration) +
                                Mp4::big32(0x55C40000)); // language not told
}

QByteArray dataInThisFile()
{
    const QByteArray here = Mp4::box("url ", Mp4::big32(1));
    return Mp4::box("dinf", Mp4::box("dref", Mp4::big32(0) + Mp4::big32(1) + here));
}

QByteArray keyFrameTable()
{
    QList<quint32> numbers;
    for (quint32 second = 0; second < Seconds; ++second)
        numbers.append(second * FramesPerSecond + 1);
    return tableBox("stss", numbers, Seconds);
}

QByteArray trackBox(QByteArray header, quint32 id, const QByteArray &handler,
                    const QByteArray &mediaKind, const TrackPlan &plan, const QByteArray &keyFrames)
{
    Mp4::patchBig32(header, "tkhd", 12, id);
    Mp4::patchBig32(header, "tkhd", 20, Seconds * MovieScale);
    const QByteArray information =
        Mp4::box("minf", mediaKind + dataInThisFile() + plan.sampleTable(keyFrames));
    return Mp4::box("trak", header + Mp4::box("mdia", mediaHeader(plan) + handler + information));
}

/** Everything of an hour that is decided while its media are written. */
struct HourPlan
{
    TrackPlan video;
    TrackPlan sound;
    QList<quint32> telemetry;

    void putMedia(SparseFile &file, quint32 start, const HourLayout &layout);
    QByteArray movie() const;

private:
    void putTelemetry(SparseFile &file, quint32 position);
    void putSecond(SparseFile &file, quint32 start, const HourLayout &layout);
};

void HourPlan::putTelemetry(SparseFile &file, quint32 position)
{
    file.put(position + ChunkToBlock, rideBlock(quint32(telemetry.size())));
    telemetry.append(position);
}

void HourPlan::putSecond(SparseFile &file, quint32 start, const HourLayout &layout)
{
    const quint32 slotSize = (SecondSize - SoundRoom) / layout.slotsPerSecond;
    const quint32 pictureSize = slotSize - layout.blocksPerSlot * TelemetryChunkSize;
    for (quint32 i = 0; i < layout.slotsPerSecond; ++i) {
        const quint32 slot = start + i * slotSize;
        video.putChunk(file, slot);
        for (quint32 block = 0; block < layout.blocksPerSlot; ++block)
            putTelemetry(file, slot + pictureSize + block * TelemetryChunkSize);
    }
    if (quint32(sound.chunks.size()) < SoundChunks)
        sound.putChunk(file, start + SecondSize - SoundRoom);
}

void HourPlan::putMedia(SparseFile &file, quint32 start, const HourLayout &layout)
{
    telemetry.append(start); // players pass over the first entry
    for (quint32 second = 0; second < Seconds; ++second)
        putSecond(file, start + second * SecondSize, layout);
}

QByteArray HourPlan::movie() const
{
    const QByteArray pictures = Mp4::box("vmhd", Mp4::big32(1) + Mp4::big64(0));
    const QByteArray noises = Mp4::box("smhd", Mp4::big64(0));
    return Mp4::box("moov", Mp4::movieHeader(MovieScale, Seconds * MovieScale) +
                                trackBox(Mp4::trackHeader(1920, 1080), 1,
                                         Mp4::handler("vide", "VideoHandler"), pictures, video,
                                         keyFrameTable()) +
                                trackBox(Mp4::trackHeader(0, 0), 2,
                                         Mp4::handler("soun", "SoundHandler"), noises, sound, {}) +
                                gpsBox(telemetry, TelemetryChunkSize));
}

TrackPlan videoPlan(const CodedTrack &coded, quint32 framesPerChunk)
{
    return {coded, FrameSize, framesPerChunk, FramesPerSecond, 1, {}};
}

TrackPlan soundPlan(const CodedTrack &coded)
{
    return {coded, SoundFrameSize, SoundFramesPerChunk, SoundRate, SamplesPerSoundFrame, {}};
}

} // namespace

HourRecording writeHourRecording(const QString &folder, const HourLayout &layout)
{
    const MediaClip clip = makeMediaClip(folder);
    HourPlan plan{
        videoPlan(clip.video, FramesPerSecond / layout.slotsPerSecond), soundPlan(clip.sound), {}};
    HourRecording hour;
    hour.recording.fileName = QDir(folder).filePath(QStringLiteral("hour.mp4"));
    SparseFile file(hour.recording.fileName);
    const QByteArray type = fileTypeBox();
    const quint32 start = quint32(type.size()) + BoxHeader;
    file.put(0, type + Mp4::boxClaiming(BoxHeader + Seconds * SecondSize, "mdat"));
    plan.putMedia(file, start, layout);
    const QByteArray movie = plan.movie();
    file.put(start + Seconds * SecondSize, movie);

    hour.recording.entryCount = quint32(plan.telemetry.size());
    hour.neededBytes = 2 * BoxHeader + neededOfBoxes(movie) +
                       quint64(hour.recording.sampleCount()) * TelemetryBlock::Size;
    return hour;
}
