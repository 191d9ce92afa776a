// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demosound.h"

#include <QtMath>

#include <cmath>

QByteArray engineSound(const DemoDrive &drive, double seconds)
{
    constexpr int Harmonics = 5;
    constexpr double Loudness = 1600.0;
    const int count = int(seconds * EngineSoundRate);
    QByteArray samples(count * int(sizeof(qint16)), Qt::Uninitialized);
    auto *sample = reinterpret_cast<qint16 *>(samples.data());

    double phase = 0.0;
    for (int number = 0; number < count; ++number) {
        const double speed = drive.speedAt(double(number) / EngineSoundRate);
        const double pitch = 52.0 + 3.2 * speed;
        phase = std::fmod(phase + 2.0 * M_PI * pitch / EngineSoundRate, 2.0 * M_PI);
        double hum = 0.0;
        for (int harmonic = 1; harmonic <= Harmonics; ++harmonic)
            hum += std::sin(harmonic * phase) / harmonic;
        sample[number] = qint16(Loudness * (0.5 + speed / 40.0) * hum);
    }
    return samples;
}
