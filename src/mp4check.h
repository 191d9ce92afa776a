// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "recordingcondition.h"

class RecordingFile;

/**
 * Judges an MP4 or MOV recording (ISO/IEC 14496-12) by its boxes: is there a "moov" with a track of
 * pictures, and does the file hold all that the tables of the tracks tell of. Only where these tell
 * nothing, as in a recording of fragments, the sizes of the boxes count: cameras get them wrong.
 *
 * No size is believed: a box ends at the end of what it is in, and what a recording cannot have is
 * not told on.
 */
class Mp4Check
{
public:
    /** @p file is open and outlives this. */
    explicit Mp4Check(RecordingFile &file);

    /** To be asked for once. NotVideo for a file that is no MP4. */
    RecordingCondition condition();

private:
    struct Box
    {
        quint32 type = 0;
        quint64 payload = 0; ///< offset
        quint64 end = 0;     ///< offset, as it is claimed
    };

    /** Of one track: what is needed of its tables. Payloads are offsets, 0 where there is none. */
    struct Track
    {
        quint32 kind = 0;
        quint32 width = 0; ///< pixels
        QByteArray coding;
        Box chunkOffsets;
        Box sampleSizes;
        Box samplesPerChunk;
    };

    bool readBox(quint64 offset, quint64 limit, Box &box);
    template <typename Handler>
    void walk(const Box &parent, Handler handle);

    bool isContainer();
    void readTopLevel();
    void readMovie(const Box &movie);
    void readTrack(const Box &box);
    void readMedia(const Box &box, Track &track);
    void readSampleTable(const Box &box, Track &track);
    quint64 endOfSamples(const Track &track);
    quint64 sizeOfLastChunk(const Track &track, quint32 chunkCount);

    quint32 uint32At(quint64 offset);
    quint64 uint64At(quint64 offset);
    /** The number of entries that a table has, 0 if they do not fit into its box. */
    quint32 entryCount(const Box &table, quint64 firstEntry, quint64 entrySize);

    RecordingFile &mFile;
    const quint64 mFileSize;
    bool mHasMovie = false;
    bool mIsMovieBroken = false;
    int mBoxCount = 0; // looked at so far
    bool mHasPictures = false;
    quint32 mWidth = 0;        ///< of the widest track of pictures
    QByteArray mCoding;        ///< of that track
    quint64 mMediaEnd = 0;     ///< where the boxes of pictures and sound end, if behind the file
    quint64 mTelemetryEnd = 0; ///< where a box of telemetry ends, if behind the file
    quint64 mSamplesEnd = 0;   ///< behind the last sample that a table tells of; 0 for no table
};
