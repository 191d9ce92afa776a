// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "directiontray.h"

#include <QPainter>

#include "gaugeface.h"

namespace {

// The needle, as parts of the rose's side.
constexpr float NeedleHalfLength = 0.24F;
constexpr double NeedleWidth = 0.06;

constexpr qreal HubRadius = 4; // in pixels, at every size
const QColor HubColor(120, 120, 120);

// The half that points back, while there is no fix: the other one is light then.
const QColor GreyBackLight(112, 112, 118);
const QColor GreyBackShadow(98, 98, 104);

} // namespace

DirectionTray::DirectionTray(QWidget *parent)
    : QWidget(parent), pixmap(QStringLiteral(":/image/direction.png"))
{}

void DirectionTray::setDirection(int headingDeg)
{
    direction = headingDeg;
    showDirection();
}

void DirectionTray::setHasFix(bool hasFix)
{
    if (hasFix == mHasFix)
        return;
    mHasFix = hasFix;
    showDirection();
}

void DirectionTray::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    drawGaugeFace(painter, gaugeSquare(size()), pixmap);
    if (!mHasFix)
        fadeGaugeFace(painter, gaugeSquare(size()));
    drawNeedle(painter);
}

void DirectionTray::showDirection()
{
    const QString heading = QStringLiteral("%1\u00b0").arg(direction);
    // The picture says nothing to a screen reader.
    setAccessibleDescription(mHasFix ? heading : withoutFixText(heading));
    setToolTip(mHasFix ? QString() : accessibleDescription());
    update();
}

void DirectionTray::drawNeedle(QPainter &painter) const
{
    const int side = gaugeSquare(size()).width();
    const qreal base = NeedleWidth * side * 0.5;
    const qreal length = NeedleHalfLength * side;
    const QPointF front(0, -length);
    const QPointF back(0, length);
    const struct
    {
        QPointF edge;
        QPointF tip;
        QColor color;
    } quarters[] = {
        {{-base, 0}, front, mHasFix ? QColor(Qt::darkRed) : GreyNeedleLight},
        {{base, 0}, front, mHasFix ? QColor(78, 18, 18) : GreyNeedleShadow},
        {{-base, 0}, back, mHasFix ? QColor(240, 240, 240) : GreyBackLight},
        {{base, 0}, back, mHasFix ? QColor(190, 190, 190) : GreyBackShadow},
    };

    turnGaugeNeedle(painter, size(), direction);
    for (const auto &quarter : quarters)
        drawNeedlePart(painter, quarter.color, {{{0, 0}, quarter.edge, quarter.tip, quarter.tip}});
    drawNeedleHub(painter, HubColor, HubRadius);
}
