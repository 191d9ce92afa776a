// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QWidget>

class QPainter;

/**
 * The compass: a picture of the rose, which never turns, and a needle whose red half points to
 * where the vehicle is heading.
 *
 * GUI thread only.
 */
class DirectionTray : public QWidget
{
public:
    /** Points north. */
    explicit DirectionTray(QWidget *parent = nullptr);

    /** Shows a heading in degrees clockwise from north; any number of full turns may be in it. */
    void setDirection(int headingDeg);
    /** Whether the heading was measured, as it is at first; without a fix it is shown in grey. */
    void setHasFix(bool hasFix);
    /** The heading as it was set. */
    int headingDeg() const { return direction; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void showDirection();
    void drawNeedle(QPainter &painter) const;

    QPixmap pixmap;
    int direction = 0;
    bool mHasFix = true;
};
