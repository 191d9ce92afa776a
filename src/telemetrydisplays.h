// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gpsdata.h"
#include "gyrosampling.h"

#include <QList>

class ControlPanel;
class DirectionTray;
class GyroChartView;
class MapWebView;
class SpeedTray;

/**
 * All that shows telemetry, as one: the read-outs of the control bar, speed gauge, compass, chart
 * and map. The widgets are not owned and must live longer.
 *
 * GUI thread only. Filling and clearing process events, so that other calls come in between.
 */
class TelemetryDisplays
{
public:
    struct Widgets
    {
        ControlPanel *panel = nullptr;
        SpeedTray *speed = nullptr;
        DirectionTray *direction = nullptr;
        GyroChartView *chart = nullptr;
        MapWebView *map = nullptr;
    };

    explicit TelemetryDisplays(const Widgets &widgets) : mWidgets(widgets) {}

    /** Takes all samples of the recording that is played, before any of them is shown. Says so if
     *  there are none. */
    void setRecording(const QList<GpsData> &samples);
    /** Shows what was measured in the second that is played. */
    void showSample(const GpsData &sample);
    /** Empties speed gauge and chart at once, and forgets the recording. */
    void clearGauges();
    /** Empties all but the map at once: nothing of the last recording stays. */
    void clearRecording();
    /** Empties speed gauge and chart, and the map after the time that it takes. */
    void clearAll();

    /** Draws a curve point by point, with a turn of the event loop after each. Returns whether it
     *  got to the end: giveUpFilling() and another filling end it. */
    bool fillChart(const GyroCurve &curve);
    void giveUpFilling() { ++mFillings; }
    /** Hands the drive to the map, which keeps it for its next page, unless another one has come
     *  meanwhile. */
    void showTrack(int rowId, const QList<GpsData> &samples);

    /** Shows the speed once more, in the unit that is set now. */
    void showSpeedUnit();

private:
    void showFix(bool hasFix);
    void showMissing(bool isMissing);

    Widgets mWidgets;
    QList<GpsData> mSamples; // of the recording that is played
    int mFillings = 0;       // a later one takes over
    int mClearings = 0;      // of the map, one within the other
};
