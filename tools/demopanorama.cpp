// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demopanorama.h"

#include "democountry.h"

#include <QPainter>
#include <QtMath>

#include <cmath>

namespace {
const QColor SkyTop(70, 128, 196);
const QColor SkyLow(220, 232, 240);

struct Ridge
{
    double height;   ///< in parts of the picture's height
    double southern; ///< 0: as high all round, 1: flat in the north
    int firstWave;   ///< waves once round; finer ones follow
    QColor foot;
    QColor crest;
};

const Ridge Ridges[] = {
    {0.42, 0.70, 11, {176, 196, 214}, {150, 172, 198}},
    {0.22, 0.35, 17, {160, 184, 192}, {124, 152, 170}},
    {0.10, 0.00, 23, {146, 170, 150}, {98, 130, 110}},
};

/** 0 to 1 along the circle, @p turn in radians. */
double ridgeLine(const Ridge &ridge, double turn)
{
    double sum = 0.5;
    double weight = 0.22;
    for (int waves = ridge.firstWave; waves < 900; waves = waves * 2 + 3) {
        sum += weight * std::sin(waves * turn + 6.3 * demoNoise(waves, ridge.firstWave));
        weight *= 0.52;
    }
    const double south = 0.5 - 0.5 * std::cos(turn);
    return qBound(0.0, sum, 1.0) * (1.0 - ridge.southern * (1.0 - south));
}

void paintRidge(QPainter &painter, const Ridge &ridge, const QSizeF &size)
{
    const double top = size.height() * (1.0 - ridge.height);
    QLinearGradient gradient(0, top, 0, size.height());
    gradient.setColorAt(0, ridge.crest);
    gradient.setColorAt(1, ridge.foot);

    QPolygonF outline;
    for (int x = 0; x <= size.width(); ++x) {
        const double line = ridgeLine(ridge, 2.0 * M_PI * x / size.width());
        outline.append({double(x), size.height() - line * (size.height() - top)});
    }
    outline << QPointF(size.width(), size.height()) << QPointF(0, size.height());
    painter.setBrush(gradient);
    painter.drawPolygon(outline);
}

void paintPuff(QPainter &painter, const QPointF &middle, double radius)
{
    QRadialGradient gradient(QPointF(), radius);
    gradient.setColorAt(0, QColor(255, 255, 255, 150));
    gradient.setColorAt(1, QColor(255, 255, 255, 0));
    painter.save();
    painter.translate(middle);
    painter.scale(1.0, 0.42);
    painter.setBrush(gradient);
    painter.drawEllipse(QPointF(), radius, radius);
    painter.restore();
}

void paintCloud(QPainter &painter, int number, const QSizeF &size)
{
    constexpr int Puffs = 9;
    const double unit = size.height() * (0.10 + 0.14 * demoNoise(number, 1));
    const QPointF middle(size.width() * demoNoise(number, 2),
                         size.height() * (0.12 + 0.42 * demoNoise(number, 3)));
    for (int puff = 0; puff < Puffs; ++puff) {
        const double along = (puff + demoNoise(number, puff + 20)) / Puffs - 0.5;
        const QPointF place =
            middle + unit * QPointF(along * 5.0, 0.5 * demoNoise(number, puff + 40));
        const double radius = unit * (1.25 - 1.6 * std::fabs(along));
        // A second time one turn on, for the clouds that cross the edge.
        for (double turn : {-size.width(), 0.0, size.width()})
            paintPuff(painter, place + QPointF(turn, 0), radius);
    }
}
} // namespace

QImage paintedPanorama(const QSize &size)
{
    constexpr int Clouds = 26;
    QImage picture(size, QImage::Format_RGB32);
    QLinearGradient sky(0, 0, 0, size.height());
    sky.setColorAt(0, SkyTop);
    sky.setColorAt(1, SkyLow);

    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.fillRect(picture.rect(), sky);
    for (int cloud = 0; cloud < Clouds; ++cloud)
        paintCloud(painter, cloud, size);
    for (const Ridge &ridge : Ridges)
        paintRidge(painter, ridge, size);
    return picture;
}
