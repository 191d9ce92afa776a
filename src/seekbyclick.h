// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gpsdata.h"

#include <QList>
#include <QObject>
#include <QPoint>

class ControlPanel;
class GyroChartView;
class MapWebView;
class PlayAreaManager;
class QMouseEvent;

/**
 * Moves playback to what is clicked: a bump in the g-sensor chart, a bend of the route on the map.
 *
 * The chart works like the seek slider: playback is paused while the mouse button is held, and goes
 * on then. What was paused before stays paused. The widgets are not owned and must live longer.
 *
 * GUI thread only.
 */
class SeekByClick : public QObject
{
    Q_OBJECT

public:
    struct Widgets
    {
        ControlPanel *panel = nullptr;
        PlayAreaManager *area = nullptr;
        GyroChartView *chart = nullptr;
        MapWebView *map = nullptr;
    };

    SeekByClick(const Widgets &widgets, QObject *parent);

    /** From now on the displays can be clicked, as they show these samples. @p samplesPerPoint as
     *  in GyroCurve. */
    void setRecording(const QList<GpsData> &samples, float samplesPerPoint);
    /** Clicks do nothing until the next recording is set, and one that is held ends. */
    void forget();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool canSeek() const;
    bool isOnChart(const QPoint &position) const;
    bool press(const QMouseEvent &event);
    bool move(const QMouseEvent &event);
    bool release();
    void holdAt(const QPoint &position);
    void showPointer(const QPoint &position);
    bool showToolTip(const QPoint &position) const;
    QString textOf(const GpsData &sample) const;
    int sampleAt(const QPoint &position) const;
    int secondOf(int sample) const;
    void onMapClicked(const QPoint &place);
    void goTo(int sample);

    Widgets mWidgets;
    int mRecordings = 0;     // set or forgotten so far: an answer of the map may come late
    QList<GpsData> mSamples; // of the recording that is played, as soon as it can be clicked
    float mSamplesPerPoint = 1.0f;
    bool mIsHeld = false;     // the mouse button, on the chart
    bool mWasPlaying = false; // when it went down
    int mHeldSecond = -1;
};
