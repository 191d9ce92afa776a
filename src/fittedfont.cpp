// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fittedfont.h"

#include <QFontInfo>
#include <QFontMetrics>

namespace {

constexpr int SmallestPixels = 9;

bool fits(const QFont &font, const QString &text, const QSize &room)
{
    const QFontMetrics metrics(font);
    return metrics.horizontalAdvance(text) <= room.width() && metrics.height() <= room.height();
}

} // namespace

QFont fittedFont(QFont font, const QString &text, const QSize &room)
{
    int pixels = QFontInfo(font).pixelSize();
    while (pixels > SmallestPixels && !fits(font, text, room))
        font.setPixelSize(--pixels);
    return font;
}
