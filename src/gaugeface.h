// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QPolygonF>
#include <QRect>
#include <QRgb>

class QPainter;
class QString;

// What the round gauges have in common. All lengths are in the widget's pixels. GUI thread only.

// A needle whose value is not measured, on a faded face: without the red of one that is, and light
// enough to stand out as 3 to 1.
constexpr QRgb GreyNeedleLight = qRgb(190, 190, 196);
constexpr QRgb GreyNeedleShadow = qRgb(168, 168, 174);

/** What is said of a value that is shown without a position fix, in the interface language. */
QString withoutFixText(const QString &value);

/** The largest square in the middle of an area of the given size that starts at (0, 0). */
QRect gaugeSquare(const QSize &size);

/** Draws the whole picture into the square, free of jags at any size and screen density. */
void drawGaugeFace(QPainter &painter, const QRect &square, const QPixmap &face);

/** Lets the window's ground show through a face that has been drawn into the square. */
void fadeGaugeFace(QPainter &painter, const QRect &square);

/** Moves the painter's origin to the middle of an area of the given size, and turns it clockwise:
 *  a needle drawn towards negative y then points to @p angleDeg from straight up. */
void turnGaugeNeedle(QPainter &painter, const QSize &size, int angleDeg);

/** Fills and outlines a part of a needle. */
void drawNeedlePart(QPainter &painter, const QColor &color, const QPolygonF &part);

/** Fills and outlines a disc around the origin. */
void drawNeedleHub(QPainter &painter, const QColor &color, qreal radius);
