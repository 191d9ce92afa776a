// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "parserobject.h"

#include "coordinateconv.h"

#include <QDebug>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

constexpr char TelemetryMask = 0x5C;
constexpr int FirstMaskedByte = 2;
constexpr double SamePositionDeg = 0.00001;

// The sample block: offsets from its first byte.
constexpr int TimeAt = 8;
constexpr int TimeLength = 14;
constexpr int Mark1At = 22;
constexpr int Time2At = 23;
constexpr int Mark2At = 37;
constexpr int LatitudeRefAt = 38;
constexpr int LatitudeAt = 39;
constexpr int LongitudeRefAt = 47;
constexpr int LongitudeAt = 48;
constexpr int ExtraValueAt = 57;
constexpr int SpeedAt = 62;
constexpr int GsensorXAt = 173;
constexpr int GsensorYAt = 177;
constexpr int GsensorZAt = 181;

/** Where the blocks of a scheme lie: directly every `stride` bytes, or behind a table whose
 *  entries are `stride` bytes apart. */
struct LocatingScheme
{
    bool hasTable;
    int stride;
    int distance; ///< from the table's value to the block
};

constexpr LocatingScheme Schemes[] = {
    {false, 0, 0}, // 0: no telemetry
    {true, 4, 2},  // 1: MP4 track named "Ambarella EXT"
    {true, 8, 18}, // 2: MP4 "gps " box
    {true, 4, 14}, // 3: "freeGPS" in the chunks of a sound track, behind the extra offset
    // Blocks are read 312 bytes long but lie 311 apart: the last byte belongs to the next block.
    {false, 311, 0}, // 4: MP4 "gps0" box
    {false, 0, 0},   // 5: not in use
    {true, 4, 0},    // 6: MP4 "meta" track named "gps"
    {false, 312, 0}, // 7: AVI "GPSL" block
};

constexpr int EntrySize = 4; // of a table: what counts of it

constexpr quint64 BlockInSoundChunk = 0x10002;

// A walk looks so often whether it is still wanted. Those of ordinary recordings are over before.
constexpr quint32 StepsBetweenLooks = 256;

// A table of invented positions must not fill the log with its millions of bad samples.
constexpr int MaxAccelerationErrors = 1000;

bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/**
 * Reads one decimal number as the scanf conversion "%<width>d" does, literally: blanks before it
 * are skipped without counting in the width, one sign is accepted and counts. Returns false, and
 * leaves @p value alone, when there is no digit; @p text then no longer matters.
 */
bool scanNumber(const char *&text, int width, int &value)
{
    while (isBlank(*text))
        ++text;
    const bool negative = *text == '-';
    if (negative || *text == '+') {
        ++text;
        --width;
    }
    int number = 0;
    const char *const first = text;
    for (; width > 0 && *text >= '0' && *text <= '9'; --width)
        number = number * 10 + (*text++ - '0');
    if (text == first)
        return false;
    value = negative ? -number : number;
    return true;
}

/** Two numbers of fixed width in a row; a failed first one leaves the second zero as well. */
void scanTwoNumbers(const char *text, int firstWidth, int &first, int secondWidth, int &second)
{
    if (scanNumber(text, firstWidth, first))
        scanNumber(text, secondWidth, second);
}

/** Degrees from digits of degrees followed by six digits of minutes times ten thousand. */
double scanAngle(const char *text, int degreeWidth)
{
    int degrees = 0;
    int minutes = 0;
    scanTwoNumbers(text, degreeWidth, degrees, 6, minutes);
    return minutes / 10000.0 / 60.0 + degrees;
}

} // namespace

ParserObject::ParserObject(const QString &fileName, QObject *parent, KeepRunning keepRunning)
    : QObject(parent), file(fileName), mKeepRunning(keepRunning)
{
    if (file.openRegular()) {
        mFileSize = quint64(file.size());
        mTableWindow = ReadWindow(file.handle(), mFileSize);
    } else {
        qDebug() << "Mp4Parser open file error, file:" << fileName;
    }
}

ParserObject::~ParserObject() = default;

quint64 ParserObject::readUint64_fromBig()
{
    return readBig<quint64>();
}

quint32 ParserObject::readUint32_fromBig()
{
    return readBig<quint32>();
}

quint16 ParserObject::readUint16_fromBig()
{
    return readBig<quint16>();
}

quint8 ParserObject::readUint8_fromBig()
{
    return readBig<quint8>();
}

quint64 ParserObject::readUint64_fromLittle()
{
    return readLittle<quint64>();
}

quint32 ParserObject::readUint32_fromLittle()
{
    return readLittle<quint32>();
}

quint16 ParserObject::readUint16_fromLittle()
{
    return readLittle<quint16>();
}

quint8 ParserObject::readUint8_fromLittle()
{
    return readLittle<quint8>();
}

bool ParserObject::getGpsData(int index, GpsData &out)
{
    out = GpsData();
    if (!hasSample(index))
        return false;
    out.id = index;

    const char *block = findBlock(index + 1);
    if (!block)
        return false;
    TerminatedBlock text = {block[0], block[1]};
    for (int i = FirstMaskedByte; i < BlockSize; ++i)
        text[i] = block[i] ^ TelemetryMask;
    resolve(index + 1, text, out);
    return true;
}

bool ParserObject::dataResolve(int number, const char *block, GpsData &out)
{
    TerminatedBlock text = {};
    std::memcpy(text, block, BlockSize);
    resolve(number, text, out);
    return true;
}

bool ParserObject::mayGoOn(quint64 offset)
{
    if (++mSteps % StepsBetweenLooks == 0)
        isStillWanted();
    return offset < mFileSize && !mWasCutShort;
}

bool ParserObject::isStillWanted()
{
    mWasCutShort = mWasCutShort || (mKeepRunning && !mKeepRunning->load(std::memory_order_relaxed));
    return !mWasCutShort;
}

void ParserObject::seekForwardTo(quint64 target)
{
    if (target < position() || target > mFileSize)
        target = mFileSize;
    file.seek(qint64(target));
}

void ParserObject::skip(quint64 distance)
{
    seekForwardTo(position() + distance);
}

qint64 ParserObject::readZeroFilled(char *data, qint64 size)
{
    const qint64 got = std::max<qint64>(file.isOpen() ? file.read(data, size) : 0, 0);
    std::memset(data + got, 0, size_t(size - got));
    return got;
}

QString ParserObject::textUpToNul(const char *text, uint length)
{
    return QString::fromLatin1(text, int(qstrnlen(text, length)));
}

void ParserObject::startChunks(quint64 firstChunk)
{
    mFirstChunk = mNextChunk = firstChunk;
    mSoundChunkCount = 0;
    mSoundChunks.clear();
}

void ParserObject::passChunk()
{
    constexpr int HeaderSize = 8;
    const char *header = file.bytesAt(mNextChunk, HeaderSize);
    quint64 size = qFromLittleEndian<quint32>(header + 4);
    // Sound chunks are stepped over by their plain size, all others by the size rounded up to even.
    // Behind a sound chunk of odd size, which chunks are found depends on this difference.
    if (std::memcmp(header, "01wb", 4) == 0) {
        ++mSoundChunkCount;
        if (quint32(mSoundChunks.size()) < MaxSampleCount)
            mSoundChunks.append(mNextChunk);
    } else {
        size += size % 2;
    }
    mNextChunk += HeaderSize + size;
}

template <typename Int>
Int ParserObject::readBig()
{
    char bytes[sizeof(Int)];
    readZeroFilled(bytes, sizeof bytes);
    return qFromBigEndian<Int>(bytes);
}

template <typename Int>
Int ParserObject::readLittle()
{
    char bytes[sizeof(Int)];
    readZeroFilled(bytes, sizeof bytes);
    return qFromLittleEndian<Int>(bytes);
}

bool ParserObject::hasSample(int index) const
{
    // A table that could not fit into the file is an invention, not a table.
    if (gpsCount == 0 || gpsCount > mFileSize / 4)
        return false;
    // The last entry of every table is never delivered, and numbers of samples, chart and track
    // depend on that. With entry 0 skipped as well, N entries give the samples 0 to N - 2 from the
    // entries 1 to N - 1.
    return quint32(index) < std::min(gpsCount - 1, MaxSampleCount);
}

/** The masked bytes of a block, good until the next read; null for an unknown scheme. */
const char *ParserObject::findBlock(int number)
{
    static constexpr char NoBlock[BlockSize] = {};
    if (gpsFormat == SoundChunks) {
        quint64 chunk = 0;
        return findSoundChunk(number, chunk) ? file.bytesAt(chunk + BlockInSoundChunk, BlockSize)
                                             : NoBlock;
    }
    if (gpsFormat == UnusedScheme)
        return NoBlock;
    if (gpsFormat <= NoTelemetry || gpsFormat > SoundChunks)
        return nullptr;
    const quint64 offset = blockOffset(number);
    return file.bytesAt(offset,
                        file.holds(offset, BlockSize) ? BlockSize : rowSize(number, offset));
}

/** Where block @p number lies. Numbers start at 1: entry 0 of every table is skipped, and
 *  which block a second of the recording shows depends on that. */
quint64 ParserObject::blockOffset(int number)
{
    const LocatingScheme &scheme = Schemes[gpsFormat];
    if (!scheme.hasTable)
        return gpsTableOffset + quint64(scheme.stride) * quint64(number);
    const quint64 extra = gpsFormat == FreeGpsChunks ? gpsExtraOffset : 0;
    return tableEntry(number) + quint64(scheme.distance) + extra;
}

/** The size of the row of blocks that begins with @p number at @p offset, as far as it is known
 *  without reading: what one read is to fetch. */
int ParserObject::rowSize(int number, quint64 offset)
{
    quint64 last = offset;
    for (quint32 next = quint32(number) + 1; next < gpsCount; ++next) {
        if (!isTableEntryHeld(int(next)))
            break;
        const quint64 following = blockOffset(int(next));
        if (following <= last || following > last + BlockSize + ReadWindow::RowGap ||
            following + BlockSize > offset + ReadWindow::MaxSize)
            break;
        last = following;
    }
    return int(last - offset) + BlockSize;
}

quint32 ParserObject::tableEntry(int number)
{
    const quint64 stride = quint64(Schemes[gpsFormat].stride);
    const quint64 offset = gpsTableOffset + stride * quint64(number);
    // The table is fetched in large pieces, but no further than it goes.
    const quint64 rest = stride * std::max<quint64>(gpsCount - quint64(number), 1);
    const int size =
        isTableEntryHeld(number) ? EntrySize : int(std::min<quint64>(rest, ReadWindow::MaxSize));
    return qFromBigEndian<quint32>(mTableWindow.bytesAt(offset, size));
}

bool ParserObject::isTableEntryHeld(int number) const
{
    const LocatingScheme &scheme = Schemes[gpsFormat];
    const quint64 offset = gpsTableOffset + quint64(scheme.stride) * quint64(number);
    return !scheme.hasTable || mTableWindow.holds(offset, EntrySize);
}

bool ParserObject::findSoundChunk(int number, quint64 &offset)
{
    const quint64 firstChunk = quint32(gpsTableOffset); // AVI offsets have 32 bits
    if (mFirstChunk != firstChunk)
        startChunks(firstChunk);
    while (mSoundChunks.size() < number && mayGoOn(mNextChunk))
        passChunk();
    if (mSoundChunks.size() < number)
        return false;
    offset = mSoundChunks.at(number - 1);
    return true;
}

/** Numbers may run on into the next field, but never past the end of @p text. */
void ParserObject::resolve(int number, const TerminatedBlock &text, GpsData &out)
{
    std::memcpy(out.time, text + TimeAt, TimeLength);
    out.time[TimeLength] = '\0';
    out.mark1 = text[Mark1At];
    std::memcpy(out.time2, text + Time2At, TimeLength);
    out.time2[TimeLength] = '\0';
    out.mark2 = text[Mark2At];
    out.latitudeRef = text[LatitudeRefAt];
    out.longitudeRef = text[LongitudeRefAt];

    out.latitude = scanAngle(text + LatitudeAt, 2);
    if (out.latitudeRef == 'S')
        out.latitude = -out.latitude;
    out.longitude = scanAngle(text + LongitudeAt, 3);
    if (out.longitudeRef == 'W')
        out.longitude = -out.longitude;

    const char *extraValue = text + ExtraValueAt;
    scanNumber(extraValue, 5, out.extraValue);
    const char *speed = text + SpeedAt;
    scanNumber(speed, 3, out.speed);

    out.gsensorX = acceleration(text + GsensorXAt);
    out.gsensorY = acceleration(text + GsensorYAt);
    out.gsensorZ = acceleration(text + GsensorZAt);

    updateDirection(number, out);
}

float ParserObject::acceleration(const char *text)
{
    int units = 0;
    int hundredths = 0;
    scanTwoNumbers(text + 1, 1, units, 2, hundredths);
    const float value = float(hundredths) / 100.0f + float(units);
    if (*text == '-')
        return -value;
    if (*text == '+')
        return value;
    if (++mAccelerationErrors <= MaxAccelerationErrors)
        qDebug() << "gsensor data error";
    return 0.0f;
}

void ParserObject::updateDirection(int number, GpsData &sample)
{
    const double latitude = std::fabs(sample.latitude);
    const double longitude = std::fabs(sample.longitude);
    // The signed values are compared with magnitudes, so in the south and the west the
    // course is computed anew for every sample, and it is that of the mirrored track.
    const bool keeps = lastIndex >= number ||
                       std::fabs(lastLongitude - sample.longitude) <= SamePositionDeg ||
                       std::fabs(lastLatitude - sample.latitude) <= SamePositionDeg;
    if (!keeps) {
        double course = 0.0;
        double distanceKm = 0.0;
        CoordinateConv().LongLatToXY(lastLongitude, lastLatitude, longitude, latitude, course,
                                     distanceKm);
        // Two equal magnitudes have no course.
        if (!std::isnan(course))
            lastDirection = course;
    }
    sample.direction = lastDirection;
    lastLatitude = latitude;
    lastLongitude = longitude;
    lastIndex = number;
}
