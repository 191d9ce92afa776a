// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "telemetryblock.h"

#include <QByteArray>
#include <QList>
#include <QString>

/**
 * Builds MP4 and MOV recordings byte by byte: the boxes singly, whole tracks, and whole recordings
 * with telemetry as the cameras lay it out. Integers are big-endian throughout.
 *
 * Nothing is checked: sizes, counts and offsets may be given wrong, to see what a reader makes of
 * them.
 */
namespace Mp4 {
QByteArray big32(quint32 value);
QByteArray big64(quint64 value);

/** A box with a 32-bit size, which is right. */
QByteArray box(const QByteArray &type, const QByteArray &payload = {});
/** A box that claims @p size for header and payload, whatever the payload is. */
QByteArray boxClaiming(quint32 size, const QByteArray &type, const QByteArray &payload = {});
/** A box with a 64-bit size, which is right. */
QByteArray largeBox(const QByteArray &type, const QByteArray &payload = {});
/** A box with a 64-bit size that claims @p size for its header of 16 bytes and its payload. */
QByteArray largeBoxClaiming(quint64 size, const QByteArray &type, const QByteArray &payload = {});

/** "mvhd", version 0; the duration is in units of the time scale. */
QByteArray movieHeader(quint32 timeScale, quint32 duration, quint32 creationTime = 0);
/** "tkhd", version 0; pixels, and seconds since 1904. */
QByteArray trackHeader(quint16 width, quint16 height, quint32 creationTime = 0);
/** "hdlr"; the name is written as it stands, with a NUL behind it. */
QByteArray handler(const QByteArray &type, const QByteArray &name);
/** "stsd" with one entry for each coding name, such as "avc1" or "hvc1". */
QByteArray sampleDescription(const QList<QByteArray> &codings);
/** "stsz" of samples that all have the same size, so without a table. */
QByteArray sampleSizes(quint32 sampleCount);
/** "stco"; the file positions of the chunks. */
QByteArray chunkOffsets(const QList<quint32> &offsets);

/** Overwrites the 32-bit integer @p offset bytes into the payload of the first box of this type;
 *  -8 is the box's size. Stops the program when there is no such box. */
void patchBig32(QByteArray &recording, const QByteArray &type, int offset, quint32 value);

/** One "trak". The defaults are a video track whose facts are all zero. */
struct Track
{
    QByteArray handlerType = "vide";
    QByteArray handlerName = "VideoHandler";
    quint16 width = 0;         ///< pixels
    quint16 height = 0;        ///< pixels
    quint32 creationTime = 0;  ///< seconds since 1904
    QList<QByteArray> codings; ///< entries of "stsd"
    quint32 sampleCount = 0;   ///< in "stsz": of a video track, its frames
    QList<quint32> chunks;     ///< file positions, in "stco"

    QByteArray encoded() const;
};

/** A video track of H.264 (coding "avc1") or another coding, such as "hvc1". */
Track videoTrack(quint16 width, quint16 height, quint32 frameCount,
                 const QByteArray &coding = "avc1", quint32 creationTime = 0);
} // namespace Mp4

/**
 * A whole recording: "ftyp", the telemetry blocks in "mdat", "moov" with the tracks, and "gps0".
 *
 * The telemetry is laid out as one of the cameras' schemes, which are numbered as the parser does:
 *   1  a track whose handler name contains "Ambarella EXT", each chunk 2 bytes and a block
 *   2  a box "gps " in "moov" with a table of positions and sizes, each entry 18 bytes and a block
 *   3  a sound track, in each of its chunks a block behind the mark "freeGPS"
 *   4  a box "gps0" behind all others, of blocks of which each lacks its last byte
 *   6  a "meta" track whose handler name contains "gps", each chunk a block
 * Cameras begin each table with an entry that is not a sample of the ride, and players pass it
 * over. The writer adds that entry: N samples given are N samples delivered, from N + 1 entries.
 */
class RecordingWriter
{
public:
    quint32 timeScale = 1000; ///< units per second
    quint32 duration = 10000; ///< in these units
    QList<Mp4::Track> tracks; ///< in file order, before the track of the telemetry

    /** Scheme 1, 2, 3, 4 or 6; anything else leaves the recording without telemetry. */
    void setTelemetry(int scheme, const QList<TelemetryBlock> &samples);
    /** Scheme 3: distance of the mark from the start of its chunk. Cameras use 0x10004, 0x20004 and
     *  0x40004; each chunk is that large. */
    void setMarkDistance(quint32 distance) { mMarkDistance = distance; }

    QByteArray encoded() const;
    /** Writes the recording to a file. Returns false, with a warning, when that fails. */
    bool save(const QString &fileName) const;

private:
    QByteArray chunkHead() const;
    QByteArray mediaData() const;
    QList<quint32> chunkPositions() const;
    QByteArray telemetryInMovie() const;

    int mScheme = 0;
    QList<TelemetryBlock> mEntries;
    quint32 mMarkDistance = 0x10004;
};

/** Writes a whole recording to a file. Returns false, with a warning, when that fails. */
bool saveRecording(const QString &fileName, const QByteArray &recording);

/**
 * Adds telemetry to an existing recording, which stays playable: no byte of its pictures and sound
 * moves. N samples given are N samples delivered.
 *
 * Scheme 2 wants "moov" to be the last top-level box, as encoders write it without "faststart": it
 * gets a box "gps " as its last child, and a box "free" with the blocks follows it. Scheme 4 puts a
 * box "gps0" at the end of the file. Returns false and leaves @p recording as it is for another
 * scheme, a recording without such a "moov", and one whose boxes do not end where the file does.
 *
 * Scheme 7 is for AVI recordings: it puts a block "GPSL" and the pointer to it at the end of the
 * file. Returns false and leaves @p recording as it is if that does not begin as an AVI does.
 */
bool graftTelemetry(QByteArray &recording, const QList<TelemetryBlock> &samples, int scheme);
