// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gyrodata.h"

#include <QtCharts/QChartView>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>

#include <QTimer>

class QLabel;

/**
 * The g-sensor chart: the accelerations along three axes against the number of the sample, and a
 * cursor at the sample being played. It holds a window of the last 6,000 samples.
 *
 * Samples may be inserted one by one, at any rate: the series hold each at once, but the lines are
 * laid out and painted 25 times a second at most.
 *
 * GUI thread only.
 */
class GyroChartView : public QtCharts::QChartView
{
    Q_OBJECT

public:
    explicit GyroChartView(QWidget *parent = nullptr);

    /** Adds the next sample, in g. Beyond the window the oldest one goes. The y axis grows until
     *  it holds the sample, and does not shrink again. */
    void insertPoints(const GyroData &sample);
    /** Shows the samples 0 to @p count - 1. */
    void setAxisXRange(int count);
    /** Moves the cursor to sample @p x. */
    void setCurAxis(int x);
    /** Whether a line over the empty chart says that the recording has no telemetry. */
    void setTelemetryMissing(bool isMissing);
    /** Whether a place of the viewport lies among the lines, and there are some. */
    bool isOnLines(const QPoint &position) const;
    /** The number of the sample that is nearest to a place of the viewport, to its left or right.
     *  Samples that have gone are none. -1 if there are none. */
    int sampleNear(const QPoint &position) const;
    /** Removes samples and cursor, and shows the axes as at the beginning. */
    void clearAll();

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setupSeries();
    void setupAxes();
    void setupLook();
    void setupNote();
    void translateNote();
    void placeNote();
    void growYRange(const GyroData &sample);
    void showYRange();
    void requestLayout();
    void layOutIfStale();

    // Owned by the chart.
    QtCharts::QLineSeries *seriesX = nullptr;
    QtCharts::QLineSeries *seriesY = nullptr;
    QtCharts::QLineSeries *seriesZ = nullptr;
    QtCharts::QLineSeries *seriesCursor = nullptr;
    int pointCount = 0; ///< samples inserted so far
    int nextX = 0;      ///< where the next one goes
    int yRange = 0;     ///< in g: the y axis runs from -yRange to yRange

    QtCharts::QValueAxis *mAxisX = nullptr;
    QtCharts::QValueAxis *mAxisY = nullptr;
    QLabel *mNote = nullptr;   // a child, over the chart
    QTimer mLayoutTimer;       // runs for a while after each layout
    bool mIsStale = false;     // samples were inserted since the last layout
    bool mFollowsLast = false; // the x axis is to show the window up to the last sample
};
