// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "avicheck.h"

#include "recordingfile.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace {

constexpr quint64 ChunkHeaderSize = 8;
constexpr quint64 ListHeaderSize = 12;

// Between headers and pictures, and inside of headers, there are a few dozen in all.
constexpr int MaxChunks = 4096;
// Of 1 GB each, as a rule.
constexpr int MaxRiffs = 4096;

// So much cameras are wrong about the size of a recording that is whole: it takes a header or two,
// or a sector.
constexpr quint64 Slack = 2048;

constexpr quint64 MaxRecordingSize = Q_UINT64_C(1) << 42;

constexpr quint32 codeOf(const char (&code)[5])
{
    return quint32(quint8(code[0])) | quint32(quint8(code[1])) << 8 |
           quint32(quint8(code[2])) << 16 | quint32(quint8(code[3])) << 24;
}

/** Set at the start of a recording and corrected at its end, if that ever comes. */
bool isPlaceholder(quint32 size)
{
    constexpr quint32 HighestPages = 0x7FFFF000;
    return size == 0 || (size & HighestPages) == HighestPages;
}

bool isPrintable(const QByteArray &code)
{
    return std::all_of(code.begin(), code.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

} // namespace

AviCheck::AviCheck(RecordingFile &file) : mFile(file), mFileSize(quint64(file.size())) {}

bool AviCheck::isAvi(RecordingFile &file)
{
    const char *header = file.bytesAt(0, int(ListHeaderSize));
    return std::memcmp(header, "RIFF", 4) == 0 && std::memcmp(header + 8, "AVI ", 4) == 0;
}

RecordingCondition AviCheck::condition()
{
    readFirstRiff();
    RecordingCondition condition;
    condition.coding = mCoding;
    const quint64 end = claimedEnd();
    if (!mHasPictures) {
        condition.kind = mHasStreams ? RecordingCondition::NotVideo : RecordingCondition::NoHeader;
    } else if (end > 0) {
        condition.kind = RecordingCondition::CutOff;
        condition.wholeBytes = qint64(end);
        condition.missingBytes = qint64(end - mFileSize);
    } else if (!mHasMovie && !mEndsInDisorder) {
        condition.kind = RecordingCondition::NoHeader;
    } else {
        condition.kind = RecordingCondition::Whole;
    }
    return condition;
}

/** Where the recording should end, if that is behind the file; else 0. */
quint64 AviCheck::claimedEnd() const
{
    if (isBehindFile(mIndexedEnd) || mFurtherEnd > 0)
        return std::max({mIndexedEnd, mFurtherEnd, mListEnd});
    if (mRiffEnd == 0)
        return mListEnd;
    // A list that goes on behind a RIFF which the file holds whole is an invention; so is a RIFF
    // that goes on behind all that is to be in it.
    const bool hasAll = mHasMovie && mListEnd == 0 && (mHasIndex || !mExpectsIndex);
    return isBehindFile(mRiffEnd) && !hasAll ? std::max(mListEnd, mRiffEnd) : 0;
}

bool AviCheck::isBehindFile(quint64 end) const
{
    return end > mFileSize + Slack && end <= MaxRecordingSize;
}

/** The chunk at @p offset. Returns false where there is none. */
bool AviCheck::readChunk(quint64 offset, quint64 limit, Chunk &chunk)
{
    if (offset > limit || limit - offset < ChunkHeaderSize)
        return false;
    const QByteArray header(mFile.bytesAt(offset, int(ChunkHeaderSize)), int(ChunkHeaderSize));
    chunk.id = qFromLittleEndian<quint32>(header.constData());
    chunk.size = qFromLittleEndian<quint32>(header.constData() + 4);
    chunk.payload = offset + ChunkHeaderSize;
    chunk.end = chunk.payload + chunk.size;
    mEndsInDisorder = !isPrintable(header.left(4));
    return !mEndsInDisorder;
}

/** Hands the chunks over to @p handle until that returns false. */
template <typename Handler>
void AviCheck::walk(quint64 offset, quint64 limit, Handler handle)
{
    Chunk chunk;
    while (mChunkCount++ < MaxChunks && readChunk(offset, limit, chunk)) {
        if (!handle(chunk))
            return;
        offset = chunk.end + (chunk.size & 1);
    }
}

void AviCheck::readFirstRiff()
{
    const quint32 size = uint32At(4);
    if (!isPlaceholder(size))
        mRiffEnd = ChunkHeaderSize + size;
    walk(ListHeaderSize, mFileSize, [this](const Chunk &chunk) {
        const bool isList = chunk.id == codeOf("LIST");
        const quint32 type = isList ? uint32At(chunk.payload) : 0;
        if (type == codeOf("hdrl"))
            readHeaderList(chunk);
        else if (type == codeOf("movi"))
            mHasMovie = true;
        else if (chunk.id == codeOf("idx1"))
            mHasIndex = true;
        if (type != codeOf("movi") && chunk.id != codeOf("idx1"))
            return chunk.id != codeOf("RIFF");
        if (isPlaceholder(chunk.size))
            return false;
        if (isBehindFile(chunk.end))
            mListEnd = chunk.end;
        return true;
    });
    if (mRiffEnd > 0)
        readFurtherRiffs(mRiffEnd + (size & 1));
}

void AviCheck::readFurtherRiffs(quint64 offset)
{
    Chunk riff;
    for (int riffs = 1; riffs < MaxRiffs && readChunk(offset, mFileSize, riff); ++riffs) {
        if (riff.id != codeOf("RIFF") || uint32At(riff.payload) != codeOf("AVIX") ||
            isPlaceholder(riff.size))
            return;
        if (isBehindFile(riff.end))
            mFurtherEnd = riff.end;
        offset = riff.end + (riff.size & 1);
    }
}

void AviCheck::readHeaderList(const Chunk &list)
{
    walk(list.payload + 4, std::min(list.end, mFileSize), [this](const Chunk &chunk) {
        constexpr quint32 HasIndexFlag = 0x10;
        if (chunk.id == codeOf("avih"))
            mExpectsIndex = (uint32At(chunk.payload + 12) & HasIndexFlag) != 0;
        else if (chunk.id == codeOf("LIST") && uint32At(chunk.payload) == codeOf("strl"))
            readStream(chunk);
        return true;
    });
}

void AviCheck::readStream(const Chunk &list)
{
    bool isPictures = false;
    QByteArray handler;
    QByteArray compression;
    walk(list.payload + 4, std::min(list.end, mFileSize), [&](const Chunk &chunk) {
        if (chunk.id == codeOf("strh")) {
            isPictures = uint32At(chunk.payload) == codeOf("vids");
            handler = codeAt(chunk.payload + 4);
        } else if (chunk.id == codeOf("strf")) {
            compression = codeAt(chunk.payload + 16);
        } else if (chunk.id == codeOf("indx")) {
            readIndexOfIndexes(chunk);
        }
        return true;
    });
    mHasStreams = true;
    if (!isPictures || mHasPictures)
        return;
    mHasPictures = true;
    mCoding = compression.isEmpty() ? handler : compression;
}

/** OpenDML: the last part of a stream's index lies behind the pictures that it tells of. */
void AviCheck::readIndexOfIndexes(const Chunk &chunk)
{
    constexpr quint64 FirstEntry = 24;
    constexpr quint64 EntrySize = 16;
    constexpr quint32 IndexOfIndexes = 0x00000004; // entries of four words, sub-type and type 0
    const quint32 count = uint32At(chunk.payload + 4);
    if (uint32At(chunk.payload) != IndexOfIndexes || count == 0 || chunk.size < FirstEntry ||
        count > (chunk.size - FirstEntry) / EntrySize)
        return;
    const quint64 entry = chunk.payload + FirstEntry + (count - 1) * EntrySize;
    const quint64 offset = uint32At(entry) | quint64(uint32At(entry + 4)) << 32;
    if (offset <= MaxRecordingSize)
        mIndexedEnd = std::max(mIndexedEnd, offset + uint32At(entry + 8));
}

quint32 AviCheck::uint32At(quint64 offset)
{
    return qFromLittleEndian<quint32>(mFile.bytesAt(offset, 4));
}

/** Empty for what is not printable, as the codes of pictures without compression are. */
QByteArray AviCheck::codeAt(quint64 offset)
{
    const QByteArray code(mFile.bytesAt(offset, 4), 4);
    return isPrintable(code) ? code : QByteArray();
}
