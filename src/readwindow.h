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

    /** A window on no file: everything reads as zeros. */
    ReadWindow() = default;
    /** On an open file, which must stay open, and of whose bytes only the first @p fileSize count.
     */
    ReadWindow(int fileDescriptor, quint64 fileSize);

    quint64 fileSize() const { return mFileSize; }

    /** The @p size bytes at @p offset; bytes behind the end of the file, and
     *  those that the medium refuses to give, are zeros. Good until the next request. */
    const char *bytesAt(quint64 offset, int size)
    {
        const quint64 inWindow = offset - mOffset;
        if (offset < mOffset || inWindow + quint64(size) > quint64(mBytes.size()))
            return load(offset, size);
        return mBytes.constData() + inWindow;
    }

private:
    const char *load(quint64 offset, int size);
    bool fill(int size);

    int mFileDescriptor = -1;
    quint64 mFileSize = 0;
    quint64 mOffset = 0;
    QByteArray mBytes;
};
