// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "speedtray.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QVariant>

#include "configuration.h"
#include "fittedfont.h"
#include "gaugeface.h"

namespace {

// The scale of the dial.
constexpr int MaxSpeed = 220;
constexpr int StartAngleDeg = -135;
constexpr int SweepDeg = 270;
constexpr double KmPerMile = 1.609344;

// The needle, as parts of the dial's side.
constexpr float NeedleLength = 0.3F;
constexpr double NeedleWidth = 0.04;
constexpr double NeedleTipHalfWidth = 0.5; // in pixels

const QColor TextColor(245, 41, 56);
constexpr double TextTop = 0.76; // as a part of the dial's side
constexpr int LargeTextSide = 201;
constexpr int SmallTextPoints = 10;
constexpr int LargeTextPoints = 14;
// Between the first and the last number of the dial, as parts of its side.
constexpr double TextRoomWidth = 0.42;
constexpr double TextRoomHeight = 0.125;

const QColor NeedleShadow(78, 18, 18);
const QColor NeedleLight(Qt::darkRed);

// Instead of these, while there is no fix.
const QColor GreyText(150, 150, 156);

bool isMetric()
{
    return Configuration::GetInstance()->speedUnit() == 0;
}

} // namespace

SpeedTray::SpeedTray(QWidget *parent)
    : QWidget(parent), pixmap(QStringLiteral(":/image/speed.png")), angle(angleOnDial(0))
{
    setProperty("accessibleRole",
                QStringLiteral("Graphic")); // here: what is said about it is made with it
    showSpeed();
}

void SpeedTray::setSpeed(int kmh)
{
    if (kmh < 0 || kmh > MaxSpeed)
        return;
    mSpeedKmh = kmh;
    speed = isMetric() ? kmh : int(kmh / KmPerMile);
    angle = angleOnDial(speed);
    showSpeed();
}

void SpeedTray::setHasFix(bool hasFix)
{
    if (hasFix == mHasFix)
        return;
    mHasFix = hasFix;
    showSpeed();
}

QString SpeedTray::speedText() const
{
    // In the words of the control bar, which shows the same speed.
    const QString text = isMetric() ? QCoreApplication::translate("ControlPanel", "%1 km/h")
                                    : QCoreApplication::translate("ControlPanel", "%1 MPH");
    return text.arg(speed);
}

int SpeedTray::angleOnDial(int number)
{
    return number * SweepDeg / MaxSpeed + StartAngleDeg;
}

void SpeedTray::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        showSpeed();
}

void SpeedTray::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawGaugeFace(painter, gaugeSquare(size()), pixmap);
    if (!mHasFix)
        fadeGaugeFace(painter, gaugeSquare(size()));
    drawSpeedText(painter);
    drawNeedle(painter);
}

void SpeedTray::showSpeed()
{
    // The picture says nothing to a screen reader.
    setAccessibleDescription(mHasFix ? speedText() : withoutFixText(speedText()));
    setToolTip(mHasFix ? QString() : accessibleDescription());
    update();
}

QRectF SpeedTray::textRect() const
{
    const QRect square = gaugeSquare(size());
    const int textWidth = width() / 3;
    const int textHeight = height() / 12;
    return QRectF(width() / 2 - 0.5 * textWidth, square.top() + square.width() * TextTop, textWidth,
                  textHeight);
}

void SpeedTray::drawSpeedText(QPainter &painter) const
{
    const int side = gaugeSquare(size()).width();
    const int points = side >= LargeTextSide ? LargeTextPoints : SmallTextPoints;
    const QSize room(int(side * TextRoomWidth), int(side * TextRoomHeight));
    painter.setPen(
        QPen(mHasFix ? TextColor : GreyText, 3.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    // The dial does not grow with the text of the screen.
    painter.setFont(fittedFont(QFont(QStringLiteral("Calibri"), points), speedText(), room));
    // The rectangle is lower than a line of the font, and at many sizes narrower than the text.
    painter.drawText(textRect(), Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextDontClip,
                     speedText());
}

void SpeedTray::drawNeedle(QPainter &painter) const
{
    const int side = gaugeSquare(size()).width();
    const qreal base = 0.5 * NeedleWidth * side;
    const qreal length = NeedleLength * side;
    const qreal tip = NeedleTipHalfWidth;
    const QColor light = mHasFix ? NeedleLight : GreyNeedleLight;

    turnGaugeNeedle(painter, size(), angle);
    drawNeedlePart(painter, mHasFix ? NeedleShadow : GreyNeedleShadow,
                   {{{0, 0}, {-base, 0}, {-tip, -length}, {0, -length}}});
    drawNeedlePart(painter, light, {{{0, 0}, {base, 0}, {tip, -length}, {0, -length}}});
    drawNeedleHub(painter, light, NeedleWidth * side - 1.0);
}
