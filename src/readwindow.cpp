// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "readwindow.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

ReadWindow::ReadWindow(int fileDescriptor, quint64 fileSize)
    : mFileDescriptor(fileDescriptor), mFileSize(fileSize)
{}

const char *ReadWindow::load(quint64 offset, int size)
{
    const quint64 end = mOffset + quint64(mBytes.size());
    const bool isInRow = offset >= mOffset && offset <= end + RowGap;
    const int piece = isInRow ? std::max(size, std::min(2 * mBytes.size(), MaxSize)) : size;
    mOffset = offset;
    // A bad spot in the medium further on must not cost what was asked for.
    if (!fill(piece) && piece > size)
        fill(size);
    return mBytes.constData();
}

/** Returns false when the medium failed; what could not be read is zeros. */
bool ReadWindow::fill(int size)
{
    mBytes.resize(size);
    const quint64 left = mFileSize - std::min(mOffset, mFileSize);
    const int wanted = int(std::min(quint64(size), left));
    int got = 0;
    bool isGood = true;
    while (isGood && got < wanted) {
        const ssize_t count = pread(mFileDescriptor, mBytes.data() + got, size_t(wanted - got),
                                    off_t(mOffset + quint64(got)));
        if (count > 0)
            got += int(count);
        else if (count == 0)
            break; // the file has become shorter
        else
            isGood = errno == EINTR;
    }
    std::memset(mBytes.data() + got, 0, size_t(size - got));
    return isGood;
}
