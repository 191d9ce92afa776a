// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sparsefile.h"

SparseFile::SparseFile(const QString &fileName) : mFile(fileName)
{
    if (!mFile.open(QIODevice::WriteOnly | QIODevice::Truncate))
        qFatal("%s cannot be written", qPrintable(fileName));
}

SparseFile::~SparseFile()
{
    if (!mFile.flush())
        qFatal("%s: %s", qPrintable(mFile.fileName()), qPrintable(mFile.errorString()));
}

void SparseFile::put(quint64 offset, const QByteArray &bytes)
{
    // A seek empties the buffer, so that bytes in a row had better go without one.
    const bool isThere = quint64(mFile.pos()) == offset || mFile.seek(qint64(offset));
    if (!isThere || mFile.write(bytes) != bytes.size())
        qFatal("%s: %s", qPrintable(mFile.fileName()), qPrintable(mFile.errorString()));
}
