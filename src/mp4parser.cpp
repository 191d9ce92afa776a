// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mp4parser.h"

#include <QDebug>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace {

constexpr quint64 WholeFile = std::numeric_limits<quint64>::max();
constexpr int BoxHeaderSize = 8;
constexpr int LargeBoxHeaderSize = 16;
constexpr int Gps0BlockDistance = 311;

constexpr int DecodeH264 = 1;
constexpr int DecodeH265 = 2;

// Longer than any handler name, and still nothing to a computer's memory.
constexpr quint64 MaxHandlerNameSize = 1024 * 1024;

// A recording that is said to begin after more than a day begins at once.
constexpr quint64 MaxStartS = 24 * 60 * 60;

struct HandlerType
{
    const char *code;
    TrakType kind;
};

constexpr HandlerType HandlerTypes[] = {
    {"vide", TrakType::Video},
    {"soun", TrakType::Sound},
    {"text", TrakType::Text},
    {"meta", TrakType::Metadata},
};

TrakType trakTypeOf(const char *code)
{
    for (const HandlerType &type : HandlerTypes) {
        if (qstrncmp(type.code, code, 4) == 0)
            return type.kind;
    }
    return TrakType::Other;
}

quint32 uint32At(const char *data, int offset)
{
    return qFromBigEndian<quint32>(data + offset);
}

bool isAllZero(const char *bytes, int size)
{
    return *bytes == 0 && std::memcmp(bytes, bytes + 1, size_t(size - 1)) == 0;
}

/** Frames per second rounded to one decimal; 0 when the header leaves it undefined. */
float roundedFrameRate(quint32 samplesTimesScale, quint32 movieDuration)
{
    const float rate = float(samplesTimesScale) / float(movieDuration);
    return std::isfinite(rate) ? QString::number(double(rate), 'f', 1).toFloat() : 0.0f;
}

} // namespace

Mp4Parser::Mp4Parser(const QString &fileName, QObject *parent, KeepRunning keepRunning)
    : ParserObject(fileName, parent, keepRunning)
{
    readRootBox();
    qDebug() << "fileName:" << fileName;
    qDebug() << "videoInfo:" << width << height << duration << gpsCount;
    qDebug() << "videoDecode: " << decodeType;
}

Mp4Parser::~Mp4Parser() = default;

template <typename Handler>
void Mp4Parser::walk(quint64 payload, Handler handle)
{
    const quint64 start = position();
    bool afterEmptyHeader = false;
    while (position() - start < payload && mayGoOn(position())) {
        if (readBoxSizeType(boxType, boxSize, boxPayload) == 0) {
            if (afterEmptyHeader)
                skipEmptyHeaders(payload > WholeFile - start ? WholeFile : start + payload);
            afterEmptyHeader = true;
            continue;
        }
        afterEmptyHeader = false;
        if (!handle(boxType))
            skip(boxPayload);
    }
}

/** Steps over a run of headers of size 0 in bulk: a camera that lost power leaves gigabytes. */
void Mp4Parser::skipEmptyHeaders(quint64 end)
{
    constexpr int PieceSize = ReadWindow::MaxSize;
    end = std::min(end, fileSize());
    while (position() < end && isStillWanted()) {
        const quint64 pieceStart = position();
        const char *piece = file.bytesAt(pieceStart, PieceSize);
        int used = PieceSize;
        if (!isAllZero(piece, PieceSize) || end - pieceStart < PieceSize) {
            used = 0;
            while (used < PieceSize && pieceStart + quint64(used) < end &&
                   uint32At(piece, used) == 0)
                used += BoxHeaderSize;
        }
        seekForwardTo(pieceStart + quint64(used));
        if (used < PieceSize)
            return;
    }
}

quint64 Mp4Parser::readBoxSizeType(QString &type, quint64 &size, quint64 &payload)
{
    char header[BoxHeaderSize];
    readZeroFilled(header, sizeof header);
    size = uint32At(header, 0);
    type = textUpToNul(header + 4, 4);
    int headerSize = BoxHeaderSize;
    if (size == 1) {
        size = readUint64_fromBig();
        headerSize = LargeBoxHeaderSize;
    }
    payload = size - quint64(headerSize);
    return size;
}

void Mp4Parser::readBoxVersionFlags(quint8 &version, quint8 *flags)
{
    char bytes[4];
    readZeroFilled(bytes, sizeof bytes);
    version = quint8(bytes[0]);
    std::copy(bytes + 1, bytes + 4, flags);
}

void Mp4Parser::readRootBox()
{
    walk(WholeFile, [this](const QString &type) {
        if (type == QLatin1String("moov"))
            readMoovBox(boxPayload);
        else if (type == QLatin1String("gps0"))
            readGps0Box(boxSize);
        else
            return false;
        return true;
    });
}

// The walk goes on from the payload of "gps0" instead of stepping over it: a walk that stepped over
// it would find other boxes, and so other telemetry, in files whose "gps0" has an invented size.
void Mp4Parser::readGps0Box(quint64 size)
{
    const quint64 count = (size - BoxHeaderSize) / Gps0BlockDistance;
    setTelemetry(Gps0Box, position(),
                 unsigned(std::min<quint64>(count, std::numeric_limits<quint32>::max())));
}

void Mp4Parser::readMoovBox(quint64 payload)
{
    walk(payload, [this](const QString &type) {
        if (type == QLatin1String("trak"))
            readTrakBox(boxPayload);
        else if (type == QLatin1String("mvhd"))
            readMvhdBox(boxPayload, boxSize);
        else if (type == QLatin1String("gps "))
            readGpsBox();
        else
            return false;
        return true;
    });
}

// The walk goes on from the table of "gps " instead of stepping over it, as with "gps0".
void Mp4Parser::readGpsBox()
{
    skip(4); // version and flags
    const quint32 count = readUint32_fromBig();
    setTelemetry(GpsBox, position(), count);
}

// "mvhd", "tkhd" and "hdlr" are read field by field, and the walk goes on behind the last field,
// whatever the box's size says: which boxes are found behind a wrong size depends on it.
void Mp4Parser::readMvhdBox(quint64, quint64)
{
    quint8 version = 0;
    quint8 flags[3] = {};
    readBoxVersionFlags(version, flags);
    char fields[96];
    readZeroFilled(fields, sizeof fields);
    movieHeader.creationTime = uint32At(fields, 0);
    movieHeader.modificationTime = uint32At(fields, 4);
    movieHeader.timeScale = uint32At(fields, 8);
    movieHeader.duration = uint32At(fields, 12);
    movieHeader.rate = uint32At(fields, 16);
    movieHeader.volume = qFromBigEndian<quint16>(fields + 20);
    movieHeader.nextTrackId = uint32At(fields, 92);
    duration = movieHeader.timeScale == 0 ? 0 : movieHeader.duration / movieHeader.timeScale;
}

void Mp4Parser::readTrakBox(quint64 payload)
{
    TrakType kind = TrakType::Unknown;
    int trackWidth = 0;
    int trackHeight = 0;
    unsigned creationTime = 0;
    qint64 startMs = 0;
    walk(payload, [&](const QString &type) {
        if (type == QLatin1String("edts"))
            startMs = emptyEditMs(boxPayload);
        if (type == QLatin1String("mdia"))
            readMdiaBox(boxPayload, kind);
        else if (type == QLatin1String("tkhd"))
            readTkhdBox(boxPayload, boxSize, trackWidth, trackHeight, creationTime);
        else
            return false;
        return true;
    });
    if (kind == TrakType::Video || kind == TrakType::Sound)
        mStartMs = mStartMs == NoStart ? startMs : std::min(mStartMs, startMs);
    if (kind != TrakType::Video || trackWidth <= width)
        return;
    width = trackWidth;
    height = trackHeight;
    decodeType = sampleDecode;
    // Cameras write their own clock, not UTC.
    createDate = QDateTime(QDate(1904, 1, 1), QTime(0, 0)).addSecs(qint64(creationTime));
    frameRate = sampleFrameRate;
}

/** How long the empty edit is with which the edit list at the current position begins; 0 for none.
 *  Leaves the position alone. */
qint64 Mp4Parser::emptyEditMs(quint64 payload)
{
    constexpr int ListSize = 36; // header, version and flags, count, and a first edit of 64 bits
    constexpr int FirstEdit = 16;
    if (payload < FirstEdit + 12 || movieHeader.timeScale == 0)
        return 0;
    const char *list = file.bytesAt(position(), ListSize);
    const bool isWide = list[BoxHeaderSize] == 1;
    const quint64 length =
        isWide ? qFromBigEndian<quint64>(list + FirstEdit) : uint32At(list, FirstEdit);
    const bool isEmpty = uint32At(list, FirstEdit + (isWide ? 8 : 4)) == 0xFFFFFFFF;
    const bool isList = qstrncmp(list + 4, "elst", 4) == 0 && uint32At(list, 12) > 0;
    const quint64 seconds = length / movieHeader.timeScale;
    if (!isList || !isEmpty || seconds > MaxStartS)
        return 0;
    return qint64(length * 1000 / movieHeader.timeScale);
}

void Mp4Parser::readTkhdBox(quint64, quint64, int &trackWidth, int &trackHeight,
                            unsigned &creationTime)
{
    quint8 version = 0;
    quint8 flags[3] = {};
    readBoxVersionFlags(version, flags);
    char fields[80];
    readZeroFilled(fields, sizeof fields);
    creationTime = uint32At(fields, 0);
    trackWidth = int(uint32At(fields, 72) >> 16);
    trackHeight = int(uint32At(fields, 76) >> 16);
}

void Mp4Parser::readMdiaBox(quint64 payload, TrakType &kind)
{
    QString handlerName;
    quint64 chunkTable = 0;
    unsigned chunkCount = 0;
    walk(payload, [&](const QString &type) {
        if (type == QLatin1String("hdlr"))
            readHdlrBox(boxPayload, boxSize, kind, handlerName);
        else if (type == QLatin1String("minf"))
            readMinfBox(boxPayload, chunkTable, chunkCount);
        else
            return false;
        return true;
    });
    if (handlerName.contains(QLatin1String("Ambarella EXT"), Qt::CaseInsensitive))
        setTelemetry(AmbarellaTrack, chunkTable, chunkCount);
    else if (kind == TrakType::Metadata &&
             handlerName.contains(QLatin1String("gps"), Qt::CaseInsensitive))
        setTelemetry(GpsTrack, chunkTable, chunkCount);
    else if (kind == TrakType::Sound)
        probeFreeGps(chunkTable, chunkCount);
}

void Mp4Parser::readHdlrBox(quint64, quint64 size, TrakType &kind, QString &handlerName)
{
    quint8 version = 0;
    quint8 flags[3] = {};
    readBoxVersionFlags(version, flags);
    char fields[20]; // pre-defined, handler type, reserved
    readZeroFilled(fields, sizeof fields);
    kind = trakTypeOf(fields + 4);
    // A size below that of header and fields wraps: such a name is read as far as the file goes.
    constexpr quint64 SizeWithoutName = 32;
    handlerName = readHandlerName(size - SizeWithoutName);
}

QString Mp4Parser::readHandlerName(quint64 length)
{
    const quint64 start = position();
    const quint64 held =
        std::min({length, fileSize() - std::min(start, fileSize()), MaxHandlerNameSize});
    QByteArray name(int(held), '\0');
    readZeroFilled(name.data(), name.size());
    file.seek(qint64(std::min(start, fileSize())));
    skip(length);
    return textUpToNul(name.constData(), uint(name.size()));
}

void Mp4Parser::readMinfBox(quint64 payload, quint64 &chunkTable, unsigned &chunkCount)
{
    walk(payload, [&](const QString &type) {
        if (type != QLatin1String("stbl"))
            return false;
        readStblBox(boxPayload, chunkTable, chunkCount);
        return true;
    });
}

void Mp4Parser::readStblBox(quint64 payload, quint64 &chunkTable, unsigned &chunkCount)
{
    walk(payload, [&](const QString &type) {
        if (type == QLatin1String("stco"))
            readStcoBox(chunkTable, chunkCount);
        else if (type == QLatin1String("stsd"))
            readStsdBox(boxPayload);
        else if (type == QLatin1String("stsz"))
            readStszBox(boxPayload);
        else
            return false;
        return true;
    });
}

void Mp4Parser::readStcoBox(quint64 &chunkTable, unsigned &chunkCount)
{
    skip(4); // version and flags
    chunkCount = readUint32_fromBig();
    chunkTable = position();
    skip(quint64(chunkCount) * sizeof(quint32));
}

// Walked from its version word on: version, flags and entry count pass for a header of size 0.
void Mp4Parser::readStsdBox(quint64 payload)
{
    walk(payload, [this](const QString &type) {
        if (type == QLatin1String("avc1"))
            sampleDecode = DecodeH264;
        else if (type == QLatin1String("hvc1"))
            sampleDecode = DecodeH265;
        return false;
    });
}

void Mp4Parser::readStszBox(quint64 payload)
{
    const quint64 start = position();
    skip(8); // version, flags, sample size
    const quint32 count = readUint32_fromBig();
    // The product is a 32-bit one and wraps.
    if (qint32(count) > 0)
        sampleFrameRate = roundedFrameRate(count * movieHeader.timeScale, movieHeader.duration);
    // Back to where the box ends, if it is too short for the fields.
    file.seek(qint64(std::min(start, fileSize())));
    skip(payload);
}

void Mp4Parser::setTelemetry(int format, quint64 tableOffset, unsigned count)
{
    gpsFormat = format;
    gpsTableOffset = tableOffset;
    gpsCount = count;
}

/** Some cameras put each block behind a marker at one of three distances into a sound chunk. */
void Mp4Parser::probeFreeGps(quint64 chunkTable, unsigned chunkCount)
{
    constexpr quint32 Distances[] = {0x10004, 0x20004, 0x40004};
    const quint64 firstChunk = uint32At(file.bytesAt(chunkTable, sizeof(quint32)), 0);
    for (const quint32 distance : Distances) {
        if (std::memcmp(file.bytesAt(firstChunk + distance, 8), "freeGPS", 7) == 0) {
            setTelemetry(FreeGpsChunks, chunkTable, chunkCount);
            gpsExtraOffset = distance;
            break;
        }
    }
}
