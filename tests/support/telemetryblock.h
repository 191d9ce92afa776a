// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

/**
 * One telemetry sample as a camera writes it: fields of ASCII digits at fixed places in a block of
 * 312 bytes. The defaults are a sample without a position fix.
 *
 * The fields are written as they stand, so that a test can put anything into them; a field that is
 * shorter or longer than its place is filled up with blanks or cut.
 */
struct TelemetryBlock
{
    static constexpr int Size = 312;

    QByteArray time = "20260314092600"; ///< 14 characters, local time "yyyyMMddhhmmss"
    char mark1 = 'A';
    QByteArray time2 = "20260314082600"; ///< 14 characters
    char mark2 = 'A';
    char latitudeRef = 'N';             ///< 'N' or 'S'
    QByteArray latitude = "00000000";   ///< ddmmmmmm: degrees, then minutes times 10000
    char longitudeRef = 'E';            ///< 'E' or 'W'
    QByteArray longitude = "000000000"; ///< dddmmmmmm
    QByteArray extraValue = "00000";
    QByteArray speed = "000";     ///< km/h
    QByteArray gsensorX = "+000"; ///< sign, units, two digits of hundredths, in g
    QByteArray gsensorY = "+000";
    QByteArray gsensorZ = "+000";

    /** Signed degrees, north and east positive, rounded to the format's ten-thousandth of a minute.
     *  The magnitudes must be below 100 and 1000. */
    void setPosition(double latitudeDeg, double longitudeDeg);
    /** Clamped to 0..999. */
    void setSpeed(int kmh);
    /** Signed accelerations in g, each rounded to hundredths and clamped to +-9.99. */
    void setAcceleration(double xG, double yG, double zG);

    /** The 312 bytes before they are masked, unused ones zero. */
    QByteArray plain() const;
    /** The 312 bytes as they lie in a recording: bytes 2 to 311 masked with 0x5C. */
    QByteArray encoded() const;
};
