// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "gyrochartview.h"

#include "configuration.h"
#include "languagefont.h"

#include <QtCharts/QChart>
#include <QtCharts/QLegend>

#include <QEvent>
#include <QGraphicsLayout>
#include <QLabel>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

using namespace QtCharts;

namespace {

constexpr int WindowSize = 6000;
constexpr int FirstYRange = 2;
constexpr int YRangeStep = 2;
constexpr int YTickCount = 5;
constexpr float LargestG = 1e6f; // beyond this a reading is no acceleration, and the axis stays
constexpr qreal CursorWidth = 3.0;
constexpr int LegendFontPixels = 10;
constexpr int LabelFontPixels = 12;
constexpr int LayoutPeriodMs = 40;
constexpr int NoteMargin = 8;   // pixels beside the line that stands over an empty chart
constexpr int NotePadding = 16; // pixels between its letters and its edges, both together

QFont pixelFont(int pixelSize)
{
    QFont font(QStringLiteral("Calibri"));
    font.setPixelSize(pixelSize);
    return font;
}

// Not announced: the chart would lay out the whole line again for every point.
void appendQuietly(QLineSeries *series, qreal x, qreal y)
{
    const QSignalBlocker blocker(series);
    series->append(x, y);
}

void removeFirstQuietly(QLineSeries *series)
{
    const QSignalBlocker blocker(series);
    series->remove(0);
}

} // namespace

GyroChartView::GyroChartView(QWidget *parent) : QChartView(new QChart, parent)
{
    setupSeries();
    setupAxes();
    setupLook();
    setupNote();
    mLayoutTimer.setSingleShot(true);
    mLayoutTimer.setInterval(LayoutPeriodMs);
    connect(&mLayoutTimer, &QTimer::timeout, this, &GyroChartView::layOutIfStale);
}

void GyroChartView::insertPoints(const GyroData &sample)
{
    const bool isFull = pointCount > WindowSize;
    const struct
    {
        QLineSeries *series;
        float value;
    } lines[] = {{seriesX, sample.x}, {seriesY, sample.y}, {seriesZ, sample.z}};
    for (const auto &line : lines) {
        if (isFull)
            removeFirstQuietly(line.series);
        appendQuietly(line.series, nextX, qreal(line.value));
    }
    ++nextX;
    mFollowsLast = mFollowsLast || isFull;
    growYRange(sample);
    ++pointCount;
    requestLayout();
}

void GyroChartView::setAxisXRange(int count)
{
    mFollowsLast = false;
    mAxisX->setRange(0, count - 1);
}

void GyroChartView::setCurAxis(int x)
{
    seriesCursor->replace(QVector<QPointF>{QPointF(x, -yRange), QPointF(x, yRange)});
}

void GyroChartView::setTelemetryMissing(bool isMissing)
{
    mNote->setVisible(isMissing);
    placeNote();
}

bool GyroChartView::isOnLines(const QPoint &position) const
{
    return seriesX->count() > 0 &&
           chart()->plotArea().contains(chart()->mapFromScene(mapToScene(position)));
}

int GyroChartView::sampleNear(const QPoint &position) const
{
    if (seriesX->count() == 0)
        return -1;
    const QPointF place = chart()->mapFromScene(mapToScene(position));
    const qreal x = chart()->mapToValue(place, seriesX).x();
    // An axis that has room for one sample only has no length.
    const qreal oldest = nextX - seriesX->count();
    return int(std::lround(std::isfinite(x) ? std::clamp(x, oldest, nextX - 1.0) : oldest));
}

void GyroChartView::clearAll()
{
    mIsStale = false;
    mFollowsLast = false;
    for (QLineSeries *series : {seriesX, seriesY, seriesZ, seriesCursor})
        series->replace(QVector<QPointF>());
    pointCount = 0;
    nextX = 0;
    yRange = FirstYRange;
    mAxisX->setRange(0, WindowSize);
    showYRange();
}

void GyroChartView::changeEvent(QEvent *event)
{
    QChartView::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        translateNote();
}

void GyroChartView::resizeEvent(QResizeEvent *event)
{
    QChartView::resizeEvent(event);
    placeNote();
}

void GyroChartView::setupSeries()
{
    chart()->setTheme(QChart::ChartThemeDark);
    const struct
    {
        QLineSeries *&series;
        const char *name;
        Qt::GlobalColor colour;
    } lines[] = {{seriesX, "X ", Qt::red}, {seriesY, "Y ", Qt::green}, {seriesZ, "Z ", Qt::blue}};
    for (const auto &line : lines) {
        line.series = new QLineSeries;
        line.series->setName(QLatin1String(line.name));
        line.series->setColor(line.colour);
        chart()->addSeries(line.series);
    }
    seriesCursor = new QLineSeries;
    seriesCursor->setName(QStringLiteral("C "));
    seriesCursor->setPen(QPen(QBrush(Qt::yellow), CursorWidth));
    chart()->addSeries(seriesCursor);
}

void GyroChartView::setupAxes()
{
    mAxisX = new QValueAxis;
    mAxisX->setRange(0, WindowSize);
    mAxisX->setVisible(false);
    mAxisY = new QValueAxis;
    mAxisY->setLabelFormat(QStringLiteral("%dG"));
    mAxisY->setLineVisible(false);
    mAxisY->setGridLinePen(QPen(QBrush(Qt::black), 1.0));
    mAxisY->setTickCount(YTickCount);
    mAxisY->setLabelsFont(pixelFont(LabelFontPixels));
    yRange = FirstYRange;
    showYRange();

    chart()->addAxis(mAxisX, Qt::AlignBottom);
    chart()->addAxis(mAxisY, Qt::AlignLeft);
    for (QLineSeries *series : {seriesX, seriesY, seriesZ, seriesCursor}) {
        series->attachAxis(mAxisX);
        series->attachAxis(mAxisY);
    }
}

void GyroChartView::setupLook()
{
    QLegend *legend = chart()->legend();
    legend->setAlignment(Qt::AlignBottom);
    legend->setFont(pixelFont(LegendFontPixels));
    legend->layout()->setContentsMargins(0, 0, 0, 0);
    setRenderHint(QPainter::Antialiasing);
    setFocusPolicy(Qt::NoFocus); // a scroll area would take the arrow keys from the window
    viewport()->setFocusPolicy(Qt::NoFocus);
    chart()->layout()->setContentsMargins(0, 0, 0, 0);
    chart()->setMargins(QMargins());
    chart()->setBackgroundRoundness(0);
    chart()->setBackgroundVisible(false);
}

void GyroChartView::setupNote()
{
    mNote = new QLabel(this);
    mNote->setObjectName(QStringLiteral("lbl_NoTelemetry"));
    mNote->setAlignment(Qt::AlignCenter);
    mNote->setWordWrap(true);
    mNote->setAttribute(Qt::WA_TransparentForMouseEvents);
    // On the ground of the chart, so that no line of its grid crosses the letters.
    mNote->setStyleSheet(QStringLiteral(
        "padding: 2px 6px; color: rgb(210, 210, 210); background: rgb(44, 44, 52);"));
    translateNote();
    mNote->hide();
}

void GyroChartView::translateNote()
{
    mNote->setText(tr("No telemetry in this recording"));
    mNote->setFont(
        languageFont(pixelFont(LabelFontPixels), Configuration::GetInstance()->language()));
    placeNote();
}

/** In the middle of the lines, in as many lines as its width asks for. */
void GyroChartView::placeNote()
{
    const int mostWidth = width() - 2 * NoteMargin;
    const int wantedWidth = mNote->fontMetrics().horizontalAdvance(mNote->text()) + NotePadding;
    const int noteWidth = std::min(wantedWidth, mostWidth);
    QRect place(0, 0, noteWidth, mNote->heightForWidth(noteWidth));
    place.moveCenter(mapFromScene(chart()->mapToScene(chart()->plotArea().center())));
    mNote->setGeometry(place);
}

void GyroChartView::growYRange(const GyroData &sample)
{
    const float most = std::max({std::fabs(sample.x), std::fabs(sample.y), std::fabs(sample.z)});
    if (!(most < LargestG) || most < float(yRange))
        return;
    yRange += YRangeStep * (int((most - float(yRange)) / YRangeStep) + 1);
    showYRange();
}

void GyroChartView::showYRange()
{
    mAxisY->setRange(-yRange, yRange);
}

void GyroChartView::requestLayout()
{
    mIsStale = true;
    if (!mLayoutTimer.isActive())
        layOutIfStale();
}

void GyroChartView::layOutIfStale()
{
    if (!mIsStale)
        return;
    mIsStale = false;
    if (mFollowsLast)
        mAxisX->setRange(pointCount - 1 - WindowSize, pointCount - 1);
    for (QLineSeries *series : {seriesX, seriesY, seriesZ})
        emit series->pointsReplaced();
    mLayoutTimer.start();
}
