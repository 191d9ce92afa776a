// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "recordingcondition.h"

class RecordingFile;

/**
 * Judges an AVI recording (RIFF, and OpenDML for those of several RIFFs) by its lists and chunks:
 * do the headers tell of a stream of pictures, and does the file reach as far as list, RIFF and
 * index say.
 *
 * Players go by what is there and not by the sizes, which cameras leave unset or write some bytes
 * off. So a recording counts as cut off only if what is missing is more than that and no other size
 * of it says that it is whole.
 */
class AviCheck
{
public:
    /** @p file is open and outlives this. */
    explicit AviCheck(RecordingFile &file);

    static bool isAvi(RecordingFile &file);

    /** To be asked for once, of an AVI. */
    RecordingCondition condition();

private:
    struct Chunk
    {
        quint32 id = 0;
        quint32 size = 0;
        quint64 payload = 0; ///< offset; of a list, that of its type
        quint64 end = 0;     ///< offset, as it is claimed
    };

    quint64 claimedEnd() const;
    bool isBehindFile(quint64 end) const;
    bool readChunk(quint64 offset, quint64 limit, Chunk &chunk);
    template <typename Handler>
    void walk(quint64 offset, quint64 limit, Handler handle);

    void readFirstRiff();
    void readFurtherRiffs(quint64 offset);
    void readHeaderList(const Chunk &list);
    void readStream(const Chunk &list);
    void readIndexOfIndexes(const Chunk &chunk);

    quint32 uint32At(quint64 offset);
    QByteArray codeAt(quint64 offset);

    RecordingFile &mFile;
    const quint64 mFileSize;
    quint64 mRiffEnd = 0;    ///< of the first RIFF; 0 where it does not tell
    quint64 mListEnd = 0;    ///< of its list of pictures or of its index, if behind the file
    quint64 mFurtherEnd = 0; ///< of a further RIFF, if behind the file
    quint64 mIndexedEnd = 0; ///< of what an index of indexes tells of
    bool mHasStreams = false;
    bool mHasPictures = false;
    bool mHasMovie = false;
    int mChunkCount = 0; // looked at so far
    bool mExpectsIndex = false;
    bool mHasIndex = false;
    bool mEndsInDisorder = false; ///< there is something that is no chunk
    QByteArray mCoding;
};
