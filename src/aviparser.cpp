// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "aviparser.h"

#include <QtEndian>

#include <cstring>

namespace {

constexpr int CodeSize = 4;
constexpr int NodeHeaderSize = 12; // of "RIFF" and of lists: id, size, type
constexpr int ChunkHeaderSize = 8; // id, size
constexpr quint32 TrailerSize = 4;

// The main AVI header: offsets into the payload of "avih".
constexpr int MicrosecondsPerFrameAt = 0;
constexpr int TotalFramesAt = 16;
constexpr int WidthAt = 32;
constexpr int HeightAt = 36;
constexpr int MainHeaderSize = 40; // as far as it is of interest

constexpr quint64 MicrosecondsPerSecond = 1000000;

bool isCode(const char *bytes, const char *code)
{
    return std::memcmp(bytes, code, CodeSize) == 0;
}

quint32 uint32At(const char *bytes, int offset)
{
    return qFromLittleEndian<quint32>(bytes + offset);
}

bool isHeaderList(const char *header)
{
    return isCode(header, "LIST") && uint32At(header, 4) != 0 && isCode(header + 8, "hdrl");
}

bool isMainHeader(const char *header)
{
    return isCode(header, "avih") && uint32At(header, 4) != 0;
}

bool isList(const char *header)
{
    return isCode(header, "LIST");
}

} // namespace

AVIParser::AVIParser(const QString &fileName, QObject *parent, KeepRunning keepRunning)
    : ParserObject(fileName, parent, keepRunning)
{
    if (readHeaders() && !readGpslBlock())
        readMovieList();
}

AVIParser::~AVIParser() = default;

QString AVIParser::readCode()
{
    char code[CodeSize];
    readZeroFilled(code, sizeof code);
    return textUpToNul(code, sizeof code);
}

void AVIParser::readNodeInfo(QString &id, unsigned &size, QString &form)
{
    read2Byte_nodeDesc(id, size);
    form = readCode();
}

void AVIParser::read2Byte(QString &id, unsigned &size)
{
    size = readUint32_fromLittle();
    id = readCode();
}

void AVIParser::read2Byte_nodeDesc(QString &id, unsigned &size)
{
    id = readCode();
    size = readUint32_fromLittle();
}

template <typename Matches>
bool AVIParser::findHeader(int step, Matches matches)
{
    quint64 offset = position();
    while (mayGoOn(offset)) {
        if (matches(file.bytesAt(offset, NodeHeaderSize))) {
            file.seek(qint64(offset));
            return true;
        }
        offset += quint64(step);
    }
    return false;
}

// Headers are looked for one behind the other, without stepping over what they announce.
bool AVIParser::readHeaders()
{
    QString id;
    QString form;
    unsigned size = 0;
    readNodeInfo(id, size, form);
    if (id != QLatin1String("RIFF") || form != QLatin1String("AVI ") || size == 0)
        return false;
    if (!findHeader(NodeHeaderSize, isHeaderList))
        return false;
    skip(NodeHeaderSize);
    if (!findHeader(ChunkHeaderSize, isMainHeader))
        return false;
    skip(ChunkHeaderSize);
    readMainHeader();
    return true;
}

// Read as far as the file goes, whatever size the chunk claims.
void AVIParser::readMainHeader()
{
    char header[MainHeaderSize];
    readZeroFilled(header, sizeof header);
    const quint64 length =
        quint64(uint32At(header, MicrosecondsPerFrameAt)) * uint32At(header, TotalFramesAt);
    duration = quint32(length / MicrosecondsPerSecond);
    width = qint32(uint32At(header, WidthAt));
    height = qint32(uint32At(header, HeightAt));
}

bool AVIParser::readGpslBlock()
{
    file.seek(qint64(fileSize() - TrailerSize));
    const quint32 block = readUint32_fromBig();
    if (block >= fileSize())
        return false;
    file.seek(block);
    if (readCode() != QLatin1String("GPSL"))
        return false;
    gpsCount = readUint32_fromBig();
    gpsTableOffset = position();
    gpsFormat = GpslBlock;
    return true;
}

// Every fourth byte is looked at, into lists and padding alike.
void AVIParser::readMovieList()
{
    file.seek(NodeHeaderSize);
    QString type;
    unsigned size = 0;
    do {
        if (!findHeader(CodeSize, isList))
            return;
        skip(CodeSize);
        read2Byte(type, size);
    } while (type != QLatin1String("movi"));
    countSoundChunks(size);
}

void AVIParser::countSoundChunks(quint32 listSize)
{
    const quint64 firstChunk = position();
    startChunks(firstChunk);
    // The list's size counts its type as well.
    while (CodeSize + nextChunk() - firstChunk < listSize && mayGoOn(nextChunk()))
        passChunk();
    gpsCount = soundChunkCount();
    gpsTableOffset = firstChunk;
    gpsFormat = SoundChunks;
}
