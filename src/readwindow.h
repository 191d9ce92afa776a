// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

/**
 * The piece of a file that was read last, and the rule by which the next one is read.
 *
 * A request that begins where the last ones ended, or a little behind, is taken for one of a row:
 * each such piece is twice as long as the one before. Any other request is read just as it is.
 * So tables and blocks in a row come in few reads, scattered ones cost no byte more than they
 * have, and never is much more than twice as much read as was asked for.
 */
class ReadWindow
{
public:
    static constexpr int MaxSize = 64 * 1024; ///< bytes a piece grows to
    /** A gap of so many bytes still counts as in a row. It covers what cameras put before each
     *  block, and a million tiny boxes; what is read in vain stays well below the size of a block.
     */
    static constexpr int RowGap = 128;

    /** A window on no file: everything reads as zeros. */
    ReadWindow() = default;
    /** On an open file, which must stay open, and of whose bytes only the first @p fileSize count.
     */
    ReadWindow(int fileDescriptor, quint64 fileSize);

    quint64 fileSize() const { return mFileSize; }

    /** Whether a request for these bytes needs no reading. */
    bool holds(quint64 offset, int size) const
    {
        return offset >= mOffset && offset - mOffset + quint64(size) <= quint64(mBytes.size());
    }

    /** The @p size bytes at @p offset; bytes behind the end of the file, and
     *  those that the medium refuses to give, are zeros. Good until the next request. */
    const char *bytesAt(quint64 offset, int size)
    {
        return holds(offset, size) ? mBytes.constData() + (offset - mOffset) : load(offset, size);
    }

private:
    const char *load(quint64 offset, int size);
    bool fill(int size);

    int mFileDescriptor = -1;
    quint64 mFileSize = 0;
    quint64 mOffset = 0;
    QByteArray mBytes;
};
