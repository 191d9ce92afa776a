// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturenoticewindow.h"

#include <QFontMetrics>
#include <QPainter>

namespace {

constexpr int LargestLettersPx = 16;
constexpr int SmallestLettersPx = 9;
constexpr int MarginPx = 12;
constexpr int SpacingPx = 4;
constexpr int WidestTextPx = 480; // longer lines are hard to read

constexpr int MaxTextHeightPx = 10000; // room to measure in

constexpr int BarHeightPx = 3;
constexpr int StepMs = 40;
constexpr int Steps = 60; // from the left to the right
constexpr int BarShare = 4;

constexpr int WrapFlags = Qt::AlignHCenter | Qt::TextWordWrap;

const QColor BackColor(44, 44, 52);
const QColor HeadingColor(255, 255, 255);
const QColor TextColor(225, 225, 230);
const QColor BarBackColor(70, 70, 80);
const QColor BarColor(38, 153, 238);

QFont bold(QFont font)
{
    font.setWeight(QFont::Bold);
    return font;
}

} // namespace

PictureNoticeWindow::PictureNoticeWindow(QWindow *player)
{
    setFlags(Qt::FramelessWindowHint | Qt::WindowTransparentForInput |
             Qt::WindowDoesNotAcceptFocus);
    setParent(player);
    mMotion.setInterval(StepMs);
    connect(&mMotion, &QTimer::timeout, this, [this] {
        mStep = (mStep + 1) % Steps;
        update();
    });
}

QSize PictureNoticeWindow::fit(const Content &content, const QFont &font, const QSize &room)
{
    mContent = content;
    if (mContent.isProgress)
        mMotion.start();
    else
        mMotion.stop();
    mFont = font;
    QSize size;
    for (int letters = LargestLettersPx; letters >= SmallestLettersPx; --letters) {
        mFont.setPixelSize(letters);
        size = sizeWith(mFont, room.width());
        if (size.height() <= room.height() && size.width() <= room.width())
            break;
    }
    update();
    return size.boundedTo(room);
}

void PictureNoticeWindow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(QRect(QPoint(0, 0), size()), BackColor);
    QRect place = QRect(QPoint(0, 0), size()).adjusted(MarginPx, MarginPx, -MarginPx, -MarginPx);
    if (!mContent.heading.isEmpty()) {
        painter.setFont(bold(mFont));
        painter.setPen(HeadingColor);
        const QFontMetrics metrics = painter.fontMetrics();
        painter.drawText(place, Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine,
                         metrics.elidedText(mContent.heading, Qt::ElideMiddle, place.width()));
        place.setTop(place.top() + metrics.height() + SpacingPx);
    }
    painter.setFont(mFont);
    painter.setPen(TextColor);
    painter.drawText(place, WrapFlags | Qt::AlignTop, mContent.text);
    if (mContent.isProgress)
        paintBar(painter);
}

QSize PictureNoticeWindow::sizeWith(const QFont &font, int width) const
{
    const int most = qMin(width - 2 * MarginPx, WidestTextPx);
    const QFontMetrics headingMetrics(bold(font));
    const QSize text =
        QFontMetrics(font)
            .boundingRect(QRect(0, 0, most, MaxTextHeightPx), WrapFlags, mContent.text)
            .size();
    int textWidth = text.width();
    int height = text.height();
    if (!mContent.heading.isEmpty()) {
        const int heading = headingMetrics.horizontalAdvance(mContent.heading);
        textWidth = qMax(textWidth, qMin(heading, most));
        height += headingMetrics.height() + SpacingPx;
    }
    if (mContent.isProgress)
        height += 2 * SpacingPx + BarHeightPx;
    return QSize(textWidth + 2 * MarginPx, height + 2 * MarginPx);
}

void PictureNoticeWindow::paintBar(QPainter &painter)
{
    const QRect bar(MarginPx, height() - MarginPx - BarHeightPx, width() - 2 * MarginPx,
                    BarHeightPx);
    painter.fillRect(bar, BarBackColor);
    const int length = bar.width() / BarShare;
    const int way = (bar.width() + length) * mStep / Steps - length;
    painter.fillRect(bar.intersected(QRect(bar.left() + way, bar.top(), length, bar.height())),
                     BarColor);
}
