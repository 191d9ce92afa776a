// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QFile>

/** A new file with bytes at a few places and holes between them, which take no room on the disk.
 *  It is complete once the object is gone. A failure ends the program. */
class SparseFile
{
public:
    explicit SparseFile(const QString &fileName);
    ~SparseFile();

    void put(quint64 offset, const QByteArray &bytes);

private:
    QFile mFile;
};
