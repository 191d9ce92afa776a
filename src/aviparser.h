// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "parserobject.h"

#include <QString>

/**
 * Reads an AVI (RIFF) recording once, in its constructor, and fills the facts of ParserObject:
 * picture size and duration from the main AVI header, and where the camera's telemetry lies.
 * Frame rate, coding and creation date stay unset.
 *
 * Telemetry is looked for in two places: a block "GPSL", to which the last four bytes of the file
 * point, and else the "01wb" chunks of the list "movi". Sizes are little-endian, but that pointer
 * and the count of "GPSL" are big-endian, as the cameras write them.
 *
 * All searches end at the end of the file, whatever sizes say; a file that is no AVI, or whose
 * headers are not found, yields nothing.
 */
class AVIParser : public ParserObject
{
    Q_OBJECT

public:
    explicit AVIParser(const QString &fileName, QObject *parent = nullptr,
                       KeepRunning keepRunning = nullptr);
    ~AVIParser() override;

private:
    // The elements at the current position, which advances by their length.
    QString readCode();
    /** Header of "RIFF" or of a list: id, size, form type. */
    void readNodeInfo(QString &id, unsigned &size, QString &form);
    /** What follows the id of a list: size and list type. */
    void read2Byte(QString &id, unsigned &size);
    /** Header of a chunk: id and size. */
    void read2Byte_nodeDesc(QString &id, unsigned &size);

    /** Looks from the current position on, @p step bytes at a time, for a header that
     *  @p matches(const char *) accepts, and goes there. Returns false at the end of the file. */
    template <typename Matches>
    bool findHeader(int step, Matches matches);

    bool readHeaders();
    void readMainHeader();
    bool readGpslBlock();
    void readMovieList();
    void countSoundChunks(quint32 listSize);
};
