// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "telemetryblock.h"

#include <QtGlobal>

#include <cmath>

namespace {
constexpr int FirstMaskedByte = 2;
constexpr char Mask = 0x5C;
constexpr qint64 UnitsPerDegree = 60 * 10000;

QByteArray digits(qint64 value, int width)
{
    return QByteArray::number(value).rightJustified(width, '0');
}

QByteArray angle(double degrees, int degreeDigits)
{
    const qint64 units = qRound64(std::fabs(degrees) * UnitsPerDegree);
    return digits(units / UnitsPerDegree, degreeDigits) + digits(units % UnitsPerDegree, 6);
}

QByteArray acceleration(double g)
{
    const int hundredths = qBound(-999, qRound(g * 100.0), 999);
    return (hundredths < 0 ? '-' : '+') + digits(qAbs(hundredths), 3);
}

void put(QByteArray &block, int offset, int width, const QByteArray &field)
{
    block.replace(offset, width, field.leftJustified(width, ' ', true));
}
} // namespace

void TelemetryBlock::setPosition(double latitudeDeg, double longitudeDeg)
{
    latitudeRef = latitudeDeg < 0.0 ? 'S' : 'N';
    latitude = angle(latitudeDeg, 2);
    longitudeRef = longitudeDeg < 0.0 ? 'W' : 'E';
    longitude = angle(longitudeDeg, 3);
}

void TelemetryBlock::setSpeed(int kmh)
{
    speed = digits(qBound(0, kmh, 999), 3);
}

void TelemetryBlock::setAcceleration(double xG, double yG, double zG)
{
    gsensorX = acceleration(xG);
    gsensorY = acceleration(yG);
    gsensorZ = acceleration(zG);
}

QByteArray TelemetryBlock::plain() const
{
    QByteArray block(Size, '\0');
    put(block, 8, 14, time);
    block[22] = mark1;
    put(block, 23, 14, time2);
    block[37] = mark2;
    block[38] = latitudeRef;
    put(block, 39, 8, latitude);
    block[47] = longitudeRef;
    put(block, 48, 9, longitude);
    put(block, 57, 5, extraValue);
    put(block, 62, 3, speed);
    put(block, 173, 4, gsensorX);
    put(block, 177, 4, gsensorY);
    put(block, 181, 4, gsensorZ);
    return block;
}

QByteArray TelemetryBlock::encoded() const
{
    QByteArray block = plain();
    for (int i = FirstMaskedByte; i < Size; ++i)
        block[i] = char(block.at(i) ^ Mask);
    return block;
}
