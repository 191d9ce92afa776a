// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mp4check.h"

#include "recordingfile.h"

#include <QtEndian>

#include <algorithm>
#include <iterator>
#include <limits>

namespace {

constexpr quint64 BoxHeaderSize = 8;
constexpr quint64 LargeBoxHeaderSize = 16;

// In the whole recording, whose boxes may be invented. A day in fragments of a second has fewer.
constexpr int MaxBoxes = 1 << 18;

// More than any card holds: what is said to end behind it is an invention.
constexpr quint64 MaxRecordingSize = Q_UINT64_C(1) << 42;

// Of the last chunk so many samples are added up at most.
constexpr quint32 MaxSamples = 1024;

constexpr quint32 typeOf(const char (&code)[5])
{
    return quint32(quint8(code[0])) << 24 | quint32(quint8(code[1])) << 16 |
           quint32(quint8(code[2])) << 8 | quint32(quint8(code[3]));
}

constexpr quint32 FirstBoxes[] = {typeOf("ftyp"), typeOf("moov"), typeOf("mdat"), typeOf("free"),
                                  typeOf("skip"), typeOf("wide"), typeOf("pnot"), typeOf("uuid"),
                                  typeOf("styp"), typeOf("sidx"), typeOf("moof"), typeOf("gps0")};

constexpr quint32 Pictures = typeOf("vide");
constexpr quint32 Sound = typeOf("soun");

} // namespace

Mp4Check::Mp4Check(RecordingFile &file) : mFile(file), mFileSize(quint64(file.size())) {}

RecordingCondition Mp4Check::condition()
{
    RecordingCondition condition;
    condition.kind = RecordingCondition::NotVideo;
    if (!isContainer())
        return condition;
    readTopLevel();
    condition.coding = mCoding;
    if (!mHasMovie || (mIsMovieBroken && !mHasPictures)) {
        condition.kind = RecordingCondition::NoHeader;
    } else if (mHasPictures) {
        const quint64 end = std::max(mSamplesEnd > 0 ? mSamplesEnd : mMediaEnd, mTelemetryEnd);
        const bool isCut = end > mFileSize;
        condition.kind = isCut ? RecordingCondition::CutOff : RecordingCondition::Whole;
        if (isCut && end <= MaxRecordingSize) {
            condition.wholeBytes = qint64(end);
            condition.missingBytes = qint64(end - mFileSize);
        }
    }
    return condition;
}

/** Returns false where no box can be: too close to the limit, or smaller than its header. */
bool Mp4Check::readBox(quint64 offset, quint64 limit, Box &box)
{
    if (offset > limit || limit - offset < BoxHeaderSize)
        return false;
    quint64 size = uint32At(offset);
    box.type = uint32At(offset + 4);
    box.payload = offset + BoxHeaderSize;
    if (size == 1) {
        size = uint64At(box.payload);
        box.payload = offset + LargeBoxHeaderSize;
    } else if (size == 0 && box.type != 0) {
        size = limit - offset; // up to the end
    }
    box.end = size > std::numeric_limits<quint64>::max() - offset
                  ? std::numeric_limits<quint64>::max()
                  : offset + size;
    return size >= box.payload - offset;
}

template <typename Handler>
void Mp4Check::walk(const Box &parent, Handler handle)
{
    Box box;
    quint64 offset = parent.payload;
    while (mBoxCount++ < MaxBoxes && readBox(offset, parent.end, box)) {
        if (box.end > parent.end) {
            mIsMovieBroken = true;
            return;
        }
        handle(box);
        offset = box.end;
    }
    // Some end with four or eight bytes of zeros.
    mIsMovieBroken = mIsMovieBroken || (parent.end - offset >= BoxHeaderSize && box.type != 0);
}

bool Mp4Check::isContainer()
{
    Box first;
    return readBox(0, mFileSize, first) && std::find(std::begin(FirstBoxes), std::end(FirstBoxes),
                                                     first.type) != std::end(FirstBoxes);
}

/** Players take the first "moov" and no other. */
void Mp4Check::readTopLevel()
{
    Box box;
    while (mBoxCount++ < MaxBoxes && readBox(box.end, mFileSize, box)) {
        const bool isCut = box.end > mFileSize;
        if (box.type == typeOf("moov") && !mHasMovie && !isCut)
            readMovie(box);
        else if (isCut && (box.type == typeOf("mdat") || box.type == typeOf("moof")))
            mMediaEnd = box.end;
        else if (isCut && box.type == typeOf("gps0"))
            mTelemetryEnd = box.end;
    }
}

void Mp4Check::readMovie(const Box &movie)
{
    mHasMovie = true;
    walk(movie, [this](const Box &box) {
        if (box.type == typeOf("trak"))
            readTrack(box);
    });
}

void Mp4Check::readTrack(const Box &box)
{
    Track track;
    walk(box, [&](const Box &child) {
        if (child.type == typeOf("mdia"))
            readMedia(child, track);
        else if (child.type == typeOf("tkhd") && child.end - child.payload >= 8)
            track.width = uint32At(child.end - 8) >> 16; // width and height are the last fields
    });
    if (track.kind == Pictures && (!mHasPictures || track.width > mWidth)) {
        mHasPictures = true;
        mWidth = track.width;
        mCoding = track.coding;
    }
    if (track.kind == Pictures || track.kind == Sound)
        mSamplesEnd = std::max(mSamplesEnd, endOfSamples(track));
}

void Mp4Check::readMedia(const Box &box, Track &track)
{
    walk(box, [&](const Box &child) {
        if (child.type == typeOf("hdlr") && child.end - child.payload >= 12)
            track.kind = uint32At(child.payload + 8);
        else if (child.type == typeOf("minf"))
            walk(child, [&](const Box &table) {
                if (table.type == typeOf("stbl"))
                    readSampleTable(table, track);
            });
    });
}

void Mp4Check::readSampleTable(const Box &box, Track &track)
{
    walk(box, [&](const Box &child) {
        if (child.type == typeOf("stsd") && child.end - child.payload >= 16)
            track.coding = QByteArray(mFile.bytesAt(child.payload + 12, 4), 4);
        else if (child.type == typeOf("stco") || child.type == typeOf("co64"))
            track.chunkOffsets = child;
        else if (child.type == typeOf("stsz"))
            track.sampleSizes = child;
        else if (child.type == typeOf("stsc"))
            track.samplesPerChunk = child;
    });
}

/** Chunks lie in the order of their table: the last entry tells where the samples end. */
quint64 Mp4Check::endOfSamples(const Track &track)
{
    const bool isWide = track.chunkOffsets.type == typeOf("co64");
    const quint32 entrySize = isWide ? 8 : 4;
    const quint32 count = entryCount(track.chunkOffsets, 8, entrySize);
    if (count == 0)
        return 0;
    const quint64 last = track.chunkOffsets.payload + 8 + quint64(count - 1) * entrySize;
    const quint64 offset = isWide ? uint64At(last) : uint32At(last);
    const quint64 size = sizeOfLastChunk(track, count);
    return offset > MaxRecordingSize || size > MaxRecordingSize ? MaxRecordingSize + 1
                                                                : offset + size;
}

/** In bytes; 1 at least, also where the tables do not tell. */
quint64 Mp4Check::sizeOfLastChunk(const Track &track, quint32 chunkCount)
{
    const quint32 rules = entryCount(track.samplesPerChunk, 8, 12);
    if (rules == 0 || track.sampleSizes.type == 0)
        return 1;
    const quint64 rule = track.samplesPerChunk.payload + 8 + quint64(rules - 1) * 12;
    const quint32 samples = uint32At(rule) <= chunkCount ? uint32At(rule + 4) : 0;
    const quint32 equalSize = uint32At(track.sampleSizes.payload + 4);
    const quint32 sampleCount = uint32At(track.sampleSizes.payload + 8);
    // Of sound, the sizes of MOV are not those of what lies in the file.
    if (equalSize > 0 && track.kind == Sound)
        return 1;
    if (equalSize > 0)
        return std::max<quint64>(quint64(std::min(samples, sampleCount)) * equalSize, 1);
    const quint32 sizes = entryCount(
        {track.sampleSizes.type, track.sampleSizes.payload + 4, track.sampleSizes.end}, 8, 4);
    quint64 sum = 0;
    for (quint32 i = std::min({samples, sizes, MaxSamples}); i > 0; --i)
        sum += uint32At(track.sampleSizes.payload + 12 + quint64(sizes - i) * 4);
    return std::max<quint64>(sum, 1);
}

quint32 Mp4Check::uint32At(quint64 offset)
{
    return qFromBigEndian<quint32>(mFile.bytesAt(offset, 4));
}

quint64 Mp4Check::uint64At(quint64 offset)
{
    return qFromBigEndian<quint64>(mFile.bytesAt(offset, 8));
}

quint32 Mp4Check::entryCount(const Box &table, quint64 firstEntry, quint64 entrySize)
{
    const quint64 size = table.end - table.payload;
    if (table.type == 0 || size < firstEntry)
        return 0;
    const quint32 count = uint32At(table.payload + 4);
    return count <= (size - firstEntry) / entrySize ? count : 0;
}
