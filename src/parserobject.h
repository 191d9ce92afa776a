// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gpsdata.h"
#include "readwindow.h"
#include "recordingfile.h"

#include <QDateTime>
#include <QObject>
#include <QVector>

#include <atomic>

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
    static constexpr quint32 MaxSampleCount = 1000000;

    /** Set while the walk is wanted; null means always. */
    using KeepRunning = const std::atomic<bool> *;

    /**
     * Opens the recording for reading. Anything but a readable regular file is reported by a
     * debug line; every later read then yields zeros and no telemetry is found. Once
     * @p keepRunning is cleared, a walk ends as if the file did (wasCutShort()).
     */
    explicit ParserObject(const QString &fileName, QObject *parent = nullptr,
                          KeepRunning keepRunning = nullptr);
    ~ParserObject() override;

    /** Whether a walk was given up because nobody waits for it any more: then its facts and its
     *  telemetry are incomplete. */
    bool wasCutShort() const { return mWasCutShort; }

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

    RecordingFile file;
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

    /** Whether a walk or search may take its next step, at @p offset: inside the file, and still
     *  wanted. To be asked at every step. */
    bool mayGoOn(quint64 offset);
    /** Looks whether the walk is still wanted; once it is not, it never is again. */
    bool isStillWanted();

    /** Moves to an absolute position; one that lies behind the current position or past the end,
     *  as a wrapped or invented size makes it, moves to the end of the file. */
    void seekForwardTo(quint64 target);
    void skip(quint64 distance);

    /** Reads up to @p size bytes at the current position and fills the rest with zeros. Returns
     *  the number of bytes read; after a short read the position is the end of the file. */
    qint64 readZeroFilled(char *data, qint64 size);

    /** Text of at most @p length characters, up to the first NUL. */
    static QString textUpToNul(const char *text, uint length);

    /** Begins a walk over AVI chunks at @p firstChunk; no sound chunk is known yet. */
    void startChunks(quint64 firstChunk);
    /** Steps over the chunk at nextChunk(), and remembers where it is if it is a sound chunk. */
    void passChunk();
    quint64 nextChunk() const { return mNextChunk; }
    /** The sound chunks ("01wb") passed. */
    quint32 soundChunkCount() const { return mSoundChunkCount; }

private:
    using TerminatedBlock = char[BlockSize + 1];

    template <typename Int>
    Int readBig();
    template <typename Int>
    Int readLittle();
    bool hasSample(int index) const;
    const char *findBlock(int number);
    quint64 blockOffset(int number);
    int rowSize(int number, quint64 offset);
    quint32 tableEntry(int number);
    bool isTableEntryHeld(int number) const;
    bool findSoundChunk(int number, quint64 &offset);
    void resolve(int number, const TerminatedBlock &text, GpsData &out);
    float acceleration(const char *text);
    void updateDirection(int number, GpsData &sample);

    quint64 mFileSize = 0;
    ReadWindow mTableWindow; // apart from the file's own, which the blocks are read through

    KeepRunning mKeepRunning = nullptr;
    quint32 mSteps = 0;
    bool mWasCutShort = false;
    int mAccelerationErrors = 0;

    // Scheme 8: the headers of the sound chunks passed, counted from mFirstChunk on.
    static constexpr quint64 NoChunk = ~Q_UINT64_C(0);
    quint64 mFirstChunk = NoChunk;
    quint64 mNextChunk = NoChunk;
    quint32 mSoundChunkCount = 0;
    QVector<quint64> mSoundChunks; // no more than samples can be asked for
};
