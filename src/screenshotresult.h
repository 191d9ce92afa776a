// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>
#include <QString>

/** What has become of a screenshot. Crosses threads by value. */
struct ScreenshotResult
{
    enum Outcome
    {
        Saved,
        NoFolder, ///< it cannot be made
        NoTool,   ///< the one that makes the images is missing
        NoImage,  ///< the tool has made none
    };

    Outcome outcome = Saved;
    QString path; ///< of the image, of the folder, of the tool, or of the image that is missing
};
Q_DECLARE_METATYPE(ScreenshotResult)
