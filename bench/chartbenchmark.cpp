// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later

// How long the g-sensor chart takes to fill in a shown window, when samples come one at a time with
// a turn of the event loop after each, as the main window brings them:
//   cmake --preset bench && cmake --build --preset bench
//   tools/with-display.sh build/bench/bench/chart-benchmark
#include "gyrochartview.h"
#include "limittable.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

constexpr int Repetitions = 5;
constexpr double NsPerMs = 1e6;
constexpr double LongestTurnMs = 50.0;

struct FillTime
{
    double wholeMs = 0.0;
    double longestTurnMs = 0.0;
};

GyroData reading(int i)
{
    return {float(std::sin(i * 0.01)), float(std::cos(i * 0.013)), 1.0f};
}

/** The chart lays out 25 times a second, the last time after the last sample. */
void letLastLayoutHappen()
{
    QEventLoop loop;
    QTimer::singleShot(45, &loop, &QEventLoop::quit);
    loop.exec();
}

/** Until the last sample is painted. */
FillTime fill(GyroChartView &view, int count)
{
    FillTime time;
    QElapsedTimer whole;
    QElapsedTimer turn;
    whole.start();
    view.clearAll();
    view.setAxisXRange(count);
    for (int i = 0; i < count; ++i) {
        turn.start();
        view.insertPoints(reading(i));
        QCoreApplication::processEvents();
        time.longestTurnMs = std::max(time.longestTurnMs, double(turn.nsecsElapsed()) / NsPerMs);
    }
    letLastLayoutHappen();
    view.viewport()->repaint();
    time.wholeMs = double(whole.nsecsElapsed()) / NsPerMs;
    return time;
}

void judge(GyroChartView &view, int count, double limitMs, LimitTable &table)
{
    FillTime best{HUGE_VAL, HUGE_VAL};
    for (int i = 0; i < Repetitions; ++i) {
        const FillTime time = fill(view, count);
        best.wholeMs = std::min(best.wholeMs, time.wholeMs);
        best.longestTurnMs = std::min(best.longestTurnMs, time.longestTurnMs);
    }
    const std::string what = std::to_string(count) + " samples: ";
    table.add(what + "all, ms", best.wholeMs, limitMs);
    table.add(what + "longest turn of the event loop, ms", best.longestTurnMs, LongestTurnMs);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    GyroChartView view;
    view.resize(306, 155);
    view.show();
    while (!view.windowHandle()->isExposed())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);

    LimitTable table;
    judge(view, 3600, 600.0, table);
    judge(view, 6000, 1000.0, table);
    judge(view, 20000, 3300.0, table); // as fast, although the window moves on
    return table.print() ? EXIT_SUCCESS : EXIT_FAILURE;
}
