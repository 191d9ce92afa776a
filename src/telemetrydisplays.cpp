// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "telemetrydisplays.h"

#include "controlpanel.h"
#include "directiontray.h"
#include "fix.h"
#include "gpsuser.h"
#include "gyrochartview.h"
#include "mapwebview.h"
#include "speedtray.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>

#include <cmath>

namespace {

constexpr int MaxClearings = 2;

/** The hemisphere letter carries the sign. */
QString coordinateText(char reference, double degrees)
{
    return QLatin1Char(reference) + QString::number(std::fabs(degrees), 'f', 6);
}

MapPoint pointOf(const GpsData &sample)
{
    return {sample.id, sample.longitude, sample.latitude};
}

QVector<QVector<double>> trackOf(const QList<GpsData> &samples)
{
    QVector<QVector<double>> track;
    track.reserve(samples.size());
    for (const GpsData &sample : samples)
        track.append({sample.longitude, sample.latitude});
    return track;
}

} // namespace

void TelemetryDisplays::setRecording(const QList<GpsData> &samples)
{
    mSamples = samples;
    showMissing(samples.isEmpty());
}

void TelemetryDisplays::showSample(const GpsData &sample)
{
    ControlPanel *panel = mWidgets.panel;
    // Latitude first, whatever the name says: the bar reads like its placeholder.
    panel->setLongitudeAndLatitude(coordinateText(sample.latitudeRef, sample.latitude),
                                   coordinateText(sample.longitudeRef, sample.longitude));
    panel->setGpsDataTime(
        QDateTime::fromString(QLatin1String(sample.time), QStringLiteral("yyyyMMddhhmmss")));
    panel->setGpsSpeed(sample.speed);
    mWidgets.speed->setSpeed(sample.speed);
    mWidgets.direction->setDirection(int(sample.direction));
    mWidgets.chart->setCurAxis(sample.id);
    showFix(hasFix(sample));
    if (hasPosition(sample))
        mWidgets.map->addPoint(pointOf(sample));
    if (hasFix(sample))
        return;
    const GpsData *last = lastFixBefore(mSamples, sample.id);
    mWidgets.map->loseFix(sample.id, last ? std::make_optional(pointOf(*last)) : std::nullopt);
}

void TelemetryDisplays::clearGauges()
{
    mSamples.clear();
    showFix(true);
    showMissing(false);
    mWidgets.speed->setSpeed(0);
    mWidgets.chart->clearAll();
}

void TelemetryDisplays::clearRecording()
{
    clearGauges();
    mWidgets.direction->setDirection(0);
    mWidgets.panel->clearRecording();
}

void TelemetryDisplays::clearAll()
{
    clearGauges();
    // A later one comes while an earlier one waits, and clears the map for both. Of a third one
    // there is nothing left to do.
    if (mClearings >= MaxClearings)
        return;
    ++mClearings;
    mWidgets.map->clearAll();
    --mClearings;
}

bool TelemetryDisplays::fillChart(const GyroCurve &curve)
{
    const int filling = ++mFillings;
    mWidgets.chart->clearAll();
    mWidgets.chart->setAxisXRange(curve.xRange);
    for (const GyroData &point : curve.points) {
        mWidgets.chart->insertPoints(point);
        QCoreApplication::processEvents();
        if (filling != mFillings)
            return false;
    }
    return true;
}

void TelemetryDisplays::showTrack(int rowId, const QList<GpsData> &samples)
{
    const QVector<QVector<double>> track = trackOf(samples);
    qDebug() << "获取某个视频的所有GPS数据，组数：" << track.size();
    const int filling = mFillings;
    mWidgets.map->loadAllGpsData(track);
    if (filling != mFillings)
        return; // A later recording's track has come in the meantime, and stays.
    delete mWidgets.map->userData(GPS_USER_DATA_ID);
    mWidgets.map->setUserData(GPS_USER_DATA_ID, new GPSUser(rowId, track));
    qDebug() << "本地存储每个视频的GPS数据" << track.size();
}

void TelemetryDisplays::showSpeedUnit()
{
    mWidgets.panel->setGpsSpeed(mWidgets.panel->gpsSpeed());
    mWidgets.speed->setSpeed(mWidgets.speed->speedKmh());
}

/** What the receiver does not measure without a fix is greyed; the clock and the g-sensor run on.
 */
void TelemetryDisplays::showFix(bool hasFix)
{
    mWidgets.panel->setHasFix(hasFix);
    mWidgets.speed->setHasFix(hasFix);
    mWidgets.direction->setHasFix(hasFix);
}

void TelemetryDisplays::showMissing(bool isMissing)
{
    mWidgets.chart->setTelemetryMissing(isMissing);
    mWidgets.map->setTelemetryMissing(isMissing);
}
