// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "seekbyclick.h"

#include "configuration.h"
#include "controlpanel.h"
#include "gyrochartview.h"
#include "gyrosampling.h"
#include "mapclicks.h"
#include "mapwebview.h"
#include "playareamanager.h"

#include <QDateTime>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr double KmPerMile = 1.609344;

QString readingText(const char *axis, float g)
{
    return QStringLiteral("%1 %2 G").arg(QLatin1String(axis)).arg(double(g), 0, 'f', 2);
}

} // namespace

// The chart scrolls what it shows: the mouse goes to its viewport.
SeekByClick::SeekByClick(const Widgets &widgets, QObject *parent)
    : QObject(parent), mWidgets(widgets)
{
    mWidgets.chart->viewport()->setMouseTracking(true);
    mWidgets.chart->viewport()->installEventFilter(this);
    connect(mWidgets.map->clicks(), &MapClicks::clicked, this, &SeekByClick::onMapClicked);
}

void SeekByClick::setRecording(const QList<GpsData> &samples, float samplesPerPoint)
{
    ++mRecordings;
    mSamples = samples;
    mSamplesPerPoint = samplesPerPoint;
}

void SeekByClick::forget()
{
    ++mRecordings;
    mSamples.clear();
    mIsHeld = false;
    mWidgets.chart->viewport()->unsetCursor();
}

bool SeekByClick::eventFilter(QObject *watched, QEvent *event)
{
    const auto mouse = [event] { return static_cast<QMouseEvent *>(event); };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return press(*mouse());
    case QEvent::MouseMove:
        return move(*mouse());
    case QEvent::MouseButtonRelease:
        return mouse()->button() == Qt::LeftButton && release();
    case QEvent::ToolTip:
        return showToolTip(static_cast<QHelpEvent *>(event)->pos());
    default:
        return QObject::eventFilter(watched, event);
    }
}

bool SeekByClick::canSeek() const
{
    return !mSamples.isEmpty() && mWidgets.area->state() != QMediaPlayer::StoppedState;
}

bool SeekByClick::isOnChart(const QPoint &position) const
{
    return canSeek() && mWidgets.chart->isOnLines(position);
}

bool SeekByClick::press(const QMouseEvent &event)
{
    if (event.button() != Qt::LeftButton || !isOnChart(event.pos()))
        return false;
    mIsHeld = true;
    mHeldSecond = -1;
    mWasPlaying = mWidgets.area->state() == QMediaPlayer::PlayingState;
    emit mWidgets.panel->sliderStatusChanged(true, secondOf(sampleAt(event.pos())));
    holdAt(event.pos());
    return true;
}

bool SeekByClick::move(const QMouseEvent &event)
{
    if (mIsHeld && !(event.buttons() & Qt::LeftButton))
        release(); // elsewhere, as when the window was hidden meanwhile
    if (mIsHeld)
        holdAt(event.pos());
    else
        showPointer(event.pos());
    return mIsHeld;
}

/** The slider's release always plays; what was paused has come to its place already. */
bool SeekByClick::release()
{
    if (!mIsHeld)
        return false;
    mIsHeld = false;
    QToolTip::hideText();
    if (mWasPlaying && mWidgets.area->state() == QMediaPlayer::PausedState)
        emit mWidgets.panel->sliderStatusChanged(false, mHeldSecond);
    return true;
}

void SeekByClick::holdAt(const QPoint &position)
{
    if (!canSeek())
        return;
    const int second = secondOf(sampleAt(position));
    if (second != mHeldSecond)
        emit mWidgets.panel->sliderMoved(second);
    mHeldSecond = second;
    showToolTip(position);
}

void SeekByClick::showPointer(const QPoint &position)
{
    if (isOnChart(position))
        mWidgets.chart->viewport()->setCursor(Qt::PointingHandCursor);
    else
        mWidgets.chart->viewport()->unsetCursor();
    if (QToolTip::isVisible())
        showToolTip(position); // of what is under the pointer by now
}

bool SeekByClick::showToolTip(const QPoint &position) const
{
    if (!mIsHeld && !isOnChart(position)) {
        QToolTip::hideText();
        return false;
    }
    // As one of no widget: a dark style sheet of the window's would make black letters unreadable.
    QToolTip::showText(mWidgets.chart->viewport()->mapToGlobal(position),
                       textOf(mSamples.at(sampleAt(position))));
    return true;
}

QString SeekByClick::textOf(const GpsData &sample) const
{
    const bool isKmh = Configuration::GetInstance()->speedUnit() == 0;
    const int speed = isKmh ? sample.speed : int(sample.speed / KmPerMile);
    const QDateTime time =
        QDateTime::fromString(QLatin1String(sample.time), QStringLiteral("yyyyMMddhhmmss"));
    QStringList lines;
    if (time.isValid())
        lines.append(time.toString(QStringLiteral("yyyy/MM/dd hh:mm:ss")));
    lines.append((isKmh ? tr("%1 km/h") : tr("%1 MPH")).arg(speed));
    lines.append(readingText("X", sample.gsensorX));
    lines.append(readingText("Y", sample.gsensorY));
    lines.append(readingText("Z", sample.gsensorZ));
    return lines.join(QLatin1Char('\n'));
}

int SeekByClick::sampleAt(const QPoint &position) const
{
    const int sample = sampleOfPoint(mWidgets.chart->sampleNear(position), mSamplesPerPoint);
    return std::clamp(sample, 0, mSamples.size() - 1);
}

/** At the very end playback would go on with the next recording. */
int SeekByClick::secondOf(int sample) const
{
    const qint64 durationMs = mWidgets.area->mainPlayer()->player()->duration();
    const int last = int(std::max(qint64(0), durationMs - 1) / 1000);
    return std::min(secondOfSample(sample, mSamplesPerPoint), last);
}

void SeekByClick::onMapClicked(const QPoint &place)
{
    if (!canSeek())
        return;
    const qint64 second = mWidgets.area->mainPlayer()->player()->position() / 1000;
    const QPointer<SeekByClick> self(this);
    mWidgets.map->clicks()->askForSample(place, sampleOfPoint(int(second), mSamplesPerPoint),
                                         [self, recordings = mRecordings](int sample) {
                                             if (self && self->mRecordings == recordings)
                                                 self->goTo(sample);
                                         });
}

/** What the page names may be anything. */
void SeekByClick::goTo(int sample)
{
    if (canSeek() && sample < mSamples.size())
        emit mWidgets.panel->sliderMoved(secondOf(sample));
}
