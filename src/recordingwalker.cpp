// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingwalker.h"

#include "aviparser.h"
#include "mp4parser.h"

bool isAviName(const QString &fileName)
{
    return fileName.endsWith(QLatin1String(".AVI"), Qt::CaseInsensitive);
}

std::unique_ptr<ParserObject> createWalker(const QString &fileName,
                                           ParserObject::KeepRunning keepRunning)
{
    if (isAviName(fileName))
        return std::make_unique<AVIParser>(fileName, nullptr, keepRunning);
    return std::make_unique<Mp4Parser>(fileName, nullptr, keepRunning);
}

VideoInfo videoInfoOf(const ParserObject &walker)
{
    VideoInfo info;
    info.width = walker.width;
    info.height = walker.height;
    info.duration = walker.duration;
    info.frameRate = walker.frameRate;
    info.createDate = walker.createDate;
    info.decodeType = walker.decodeType;
    return info;
}
