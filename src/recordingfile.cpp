// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingfile.h"

#include <QFileInfo>

#include <algorithm>
#include <cstring>
#include <limits>

RecordingFile::RecordingFile(const QString &fileName) : QFile(fileName) {}

bool RecordingFile::openRegular()
{
    if (!QFileInfo(*this).isFile() || !open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return false;
    mWindow = ReadWindow(handle(), quint64(QFile::size()));
    return true;
}

qint64 RecordingFile::size() const
{
    return isOpen() ? qint64(mWindow.fileSize()) : QFile::size();
}

// The file engine is left where it is: reads name their place themselves.
bool RecordingFile::seek(qint64 offset)
{
    return QIODevice::seek(offset);
}

bool RecordingFile::atEnd() const
{
    return pos() >= size();
}

qint64 RecordingFile::readData(char *data, qint64 maxSize)
{
    const qint64 left = std::max<qint64>(size() - pos(), 0);
    const int count = int(std::min<qint64>({maxSize, left, std::numeric_limits<int>::max()}));
    std::memcpy(data, bytesAt(quint64(pos()), count), size_t(count));
    return count;
}
