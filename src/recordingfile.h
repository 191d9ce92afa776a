// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "readwindow.h"

#include <QFile>

/**
 * A recording opened for small reads at scattered places.
 *
 * It is a QFile in every respect but two: moving the position costs no system call, and a read
 * fetches what was asked for and no more, except that reads which follow one another are fetched
 * ahead in growing pieces (ReadWindow). The size is that at the time of opening.
 */
class RecordingFile : public QFile
{
    Q_OBJECT

public:
    explicit RecordingFile(const QString &fileName);

    /** Opens the file for reading, unbuffered. Returns false for anything but a readable regular
     *  file: opening a pipe would wait for its writer. */
    bool openRegular();

    /** Whether bytesAt() has these bytes without reading. */
    bool holds(quint64 offset, int size) const { return mWindow.holds(offset, size); }
    /** The @p size bytes at @p offset; those behind the end of the file are zeros. The pointer is
     *  good until the next read. Neither uses nor moves the position. */
    const char *bytesAt(quint64 offset, int size) { return mWindow.bytesAt(offset, size); }

    qint64 size() const override;
    bool seek(qint64 offset) override;
    bool atEnd() const override;

protected:
    qint64 readData(char *data, qint64 maxSize) override;

private:
    ReadWindow mWindow;
};
