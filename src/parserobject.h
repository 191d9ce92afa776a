// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gpsdata.h"

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <QObject>
#include <QVector>

/**
 * Base of the container walkers: the open recording, readers for its integers, the facts that the
 * walker finds in its constructor, and the decoder of telemetry samples.
 *
 * Whatever the container, a telemetry sample is one block of 312 bytes. The containers differ in
 * where the blocks lie, which the walker records as a locating scheme (`gpsFormat`) with a table
 * offset and a count.
 *
 * Samples are to be asked for in increasing order: each one's direction is the course from the
 * sample before. An object belongs to one thread, the one that creates it.
 */
class ParserObject : public QObject
{
    Q_OBJECT

public:
    static constexpr int BlockSize = 312;

    /** The locating schemes: where the blocks of a recording lie. */
    enum Scheme
    {
        NoTelemetry = 0,
        AmbarellaTrack = 1, ///< MP4 track whose handler name contains "Ambarella EXT"
        GpsBox = 2,         ///< MP4 box "gps " in "moov"
        FreeGpsChunks = 3,  ///< "freeGPS" in the chunks of an MP4 sound track
        Gps0Box = 4,        ///< top-level MP4 box "gps0"
        UnusedScheme = 5,
        GpsTrack = 6,    ///< MP4 "meta" track whose handler name contains "gps"
        GpslBlock = 7,   ///< AVI block "GPSL"
        SoundChunks = 8, ///< AVI chunks "01wb"
    };

    /** No recording yields more samples than this, whatever its tables claim. */
    static constexpr quint32 MaxSampleCount = 4000000;

    /**
     * Opens the recording for reading. Anything but a readable regular file is reported by a
     * debug line; every later read then yields zeros and no telemetry is found.
     */
    explicit ParserObject(const QString &fileName, QObject *parent = nullptr);
    ~ParserObject() override;

    /** Integers at the current file position, which advances by their width. Bytes missing at the
     *  end of the file read as zero. */
    quint64 readUint64_fromBig();
    quint32 readUint32_fromBig();
    quint16 readUint16_fromBig();
    quint8 readUint8_fromBig();
    quint64 readUint64_fromLittle();
    quint32 readUint32_fromLittle();
    quint16 readUint16_fromLittle();
    quint8 readUint8_fromLittle();

    /** Locates and decodes sample @p index, from 0. Returns false, with @p out zeroed, when there
     *  is no such sample. A block that lies partly or wholly behind the end of the file is decoded
     *  as if the file went on with zeros. */
    bool getGpsData(int index, GpsData &out);

    /** Decodes one unmasked block of BlockSize bytes into @p out, whose fields must be zero;
     *  @p number is the sample's index plus one. Digits that cannot be read leave zero. Always
     *  returns true. */
    bool dataResolve(int number, const char *block, GpsData &out);

    QFile file;
    qint32 gpsFormat = 0;  ///< a Scheme
    qint32 width = 0;      ///< as VideoInfo
    qint32 height = 0;     ///< as VideoInfo
    qint32 decodeType = 0; ///< as VideoInfo
    quint32 duration = 0;  ///< as VideoInfo
    float frameRate = 0.0f;
    QDateTime createDate;
    quint64 gpsTableOffset = 0; ///< file offset of the table of positions, or of the first block
    quint32 gpsCount = 0;       ///< entries in that table
    quint32 gpsExtraOffset = 0; ///< distance from a chunk to its block in scheme 3
    qint32 lastIndex = 0;       ///< number (index + 1) of the last decoded sample
    double lastLongitude = 0.0; ///< magnitude, of that sample
    double lastLatitude = 0.0;  ///< magnitude, of that sample
    double lastDirection = 0.0; ///< last course computed

protected:
    quint64 fileSize() const { return mFileSize; }
    quint64 position() const { return quint64(file.pos()); }
    bool atEnd() const { return position() >= mFileSize; }

    /** Moves to an absolute position; one that lies behind the current position or past the end,
     *  as a wrapped or invented size makes it, moves to the end of the file. */
    void seekForwardTo(quint64 target);
    void skip(quint64 distance);

    /** Reads up to @p size bytes at the current position and fills the rest with zeros. Returns
     *  the number of bytes read; after a short read the position is the end of the file. */
    qint64 readZeroFilled(char *data, qint64 size);
    /** The same at @p offset, without a defined position afterwards. */
    void readAt(quint64 offset, char *data, qint64 size);

private:
    template <typename Int>
    Int readBig();
    template <typename Int>
    Int readLittle();
    bool hasSample(int index) const;
    bool readBlock(int number, char *block);
    quint32 tableEntry(quint64 offset);
    bool findSoundChunk(int number, quint64 &offset);
    void updateDirection(int number, GpsData &sample);

    quint64 mFileSize = 0;

    // The piece of the position table read last: neighbouring entries come in one read.
    QByteArray mTableWindow;
    quint64 mTableWindowOffset = 0;

    // Scheme 8: headers of the "01wb" chunks met so far, and where the walk goes on.
    QVector<quint64> mSoundChunks;
    quint64 mNextChunk = 0;
};
