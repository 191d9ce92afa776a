// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "walker.h"

#include "aviparser.h"
#include "mp4parser.h"

std::unique_ptr<ParserObject> walkRecording(const QString &fileName)
{
    if (fileName.endsWith(QLatin1String(".AVI"), Qt::CaseInsensitive))
        return std::make_unique<AVIParser>(fileName);
    return std::make_unique<Mp4Parser>(fileName);
}
