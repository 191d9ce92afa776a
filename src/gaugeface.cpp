// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "gaugeface.h"

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>

namespace {
const QColor WindowGround(44, 44, 52);
constexpr double FadedPart = 0.6;
} // namespace

QString withoutFixText(const QString &value)
{
    // In the words of the control bar, which shows the same.
    return QCoreApplication::translate("ControlPanel", "%1 (no position fix)").arg(value);
}

QRect gaugeSquare(const QSize &size)
{
    const int side = std::min(size.width(), size.height());
    return QRect((size.width() - side) / 2, (size.height() - side) / 2, side, side);
}

void drawGaugeFace(QPainter &painter, const QRect &square, const QPixmap &face)
{
    // The painter itself looks at no more than four pixels of the picture for one of the screen.
    // A face shrunk to a third would lose parts of its marks.
    const QSize screenSize = square.size() * painter.device()->devicePixelRatioF();
    const QPixmap fitted = face.scaled(screenSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.drawPixmap(QRectF(square), fitted, QRectF(fitted.rect()));
}

void fadeGaugeFace(QPainter &painter, const QRect &square)
{
    QColor veil = WindowGround;
    veil.setAlphaF(FadedPart);
    painter.setPen(Qt::NoPen);
    painter.setBrush(veil);
    painter.drawEllipse(QRectF(square));
}

void turnGaugeNeedle(QPainter &painter, const QSize &size, int angleDeg)
{
    painter.translate(size.width() * 0.5, size.height() * 0.5);
    painter.rotate(angleDeg);
}

void drawNeedlePart(QPainter &painter, const QColor &color, const QPolygonF &part)
{
    painter.setPen(color);
    painter.setBrush(color);
    painter.drawPolygon(part);
}

void drawNeedleHub(QPainter &painter, const QColor &color, qreal radius)
{
    painter.setPen(color);
    painter.setBrush(color);
    painter.drawEllipse(QPointF(0, 0), radius, radius);
}
