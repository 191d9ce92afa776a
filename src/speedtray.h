// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QWidget>

class QPainter;

/**
 * The round speedometer: a picture of the dial, a tapered needle, and the speed in figures in the
 * configured unit. The dial serves both units: the needle points at the number that is written.
 *
 * GUI thread only.
 */
class SpeedTray : public QWidget
{
    Q_OBJECT

public:
    /** Shows 0. */
    explicit SpeedTray(QWidget *parent = nullptr);

    /** Shows a speed in km/h, converted to the configured unit. One outside the dial, below 0 or
     *  above 220, changes nothing. */
    void setSpeed(int kmh);

    /** Whether the speed was measured, as it is at first; without a fix it is shown in grey. */
    void setHasFix(bool hasFix);

    /** The speed shown, in km/h as it was set. */
    int speedKmh() const { return mSpeedKmh; }
    /** The number shown, in the unit that was configured when it was set. */
    int shownSpeed() const { return speed; }
    /** Where the needle points, in degrees clockwise from straight up. */
    int needleAngleDeg() const { return angle; }
    /** The speed as it is written, with the unit configured now, in the interface language. */
    QString speedText() const;

    /** The needle's direction for a number on the dial, in whole degrees clockwise from straight
     *  up: -135 for 0, 135 for 220. */
    static int angleOnDial(int number);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void showSpeed();
    QRectF textRect() const;
    void drawSpeedText(QPainter &painter) const;
    void drawNeedle(QPainter &painter) const;

    QPixmap pixmap;
    int angle = 0;
    int speed = 0;
    int mSpeedKmh = 0;
    bool mHasFix = true;
};
