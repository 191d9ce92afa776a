// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "playareamanager.h"

#include "rowdata.h"

#include <QDebug>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QMimeData>
#include <QUrl>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

// Often enough for a clock that steps with the picture, and to find players out of step soon.
constexpr int NotifyIntervalMs = 100;

// Keeping in step. Seeks alone leave the players up to 70 ms apart, rate changes up to 140 ms.
constexpr qint64 ToleranceMs = 60;
constexpr int ReportsBeforeCorrection = 3;
constexpr qint64 SettleAfterCommandMs = 400;
constexpr qint64 SettleAfterCorrectionMs = 400;
constexpr qint64 MaxSeekLagMs = 300;
constexpr qint64 EndMarginMs = 500;

/** What the player is given: nothing for a pipe or a device, whose opening may wait for ever. */
QMediaContent mediaOf(const QUrl &url)
{
    const QFileInfo file(url.toLocalFile());
    return file.exists() && !file.isFile() ? QMediaContent() : QMediaContent(url);
}

qint64 toMilliseconds(int seconds)
{
    // The product is a 32-bit one; unsigned, because it must not overflow.
    return qint32(quint32(seconds) * 1000u);
}

} // namespace

PlayAreaManager::PlayAreaManager(QWidget *parent) : QWidget(parent), mMain(new PlayerWidget(this))
{
    setAcceptDrops(true);
    createLayouts();
    addToLayout(mMain);
    relayMainPlayer();
}

PlayAreaManager::~PlayAreaManager() = default;

void PlayAreaManager::setPlayerNum(int num)
{
    addToLayout(mMain);
    if (num == 2) {
        createSecond();
        addToLayout(mSecond);
    } else if (num == 1) {
        destroySecond();
    }
}

void PlayAreaManager::setResourceData(const RowData *main, const RowData *related)
{
    mMain->player()->setMedia(mediaOf(main->url));
    if (mSecond)
        mSecond->player()->setMedia(mediaOf(related->url));
    mMainRow = main;
    mRelatedRow = related;
}

QMediaContent PlayAreaManager::media() const
{
    const QMediaContent media = mMain->player()->media();
    return media.isNull() && mMainRow ? QMediaContent(mMainRow->url) : media;
}

QMediaPlayer::State PlayAreaManager::state() const
{
    return mMain->player()->state();
}

int PlayAreaManager::volume() const
{
    return mMain->player()->volume();
}

bool PlayAreaManager::isRecordingName(const QString &text)
{
    const std::array<QLatin1String, 3> endings{QLatin1String("mp4"), QLatin1String("mov"),
                                               QLatin1String("avi")};
    return std::any_of(endings.begin(), endings.end(), [&](QLatin1String ending) {
        return text.endsWith(ending, Qt::CaseInsensitive);
    });
}

void PlayAreaManager::play()
{
    const bool wasPaused = state() == QMediaPlayer::PausedState;
    mMain->player()->play();
    playSecond();
    holdSyncFor(SettleAfterCommandMs);
    if (wasPaused)
        nudgeGeometry();
    else
        mNudgePending = true;
}

void PlayAreaManager::pause()
{
    mMain->player()->pause();
    // A second recording that has ended would be rewound by a pause.
    if (mSecond && secondHasSomethingAt(mMain->player()->position()))
        mSecond->player()->pause();
}

void PlayAreaManager::stop()
{
    mMain->player()->stop();
    if (mSecond)
        mSecond->player()->stop();
}

void PlayAreaManager::seek(int seconds)
{
    const qint64 positionMs = toMilliseconds(seconds);
    mMain->player()->setPosition(positionMs);
    if (mSecond)
        seekSecond(positionMs);
    holdSyncFor(SettleAfterCommandMs);
}

void PlayAreaManager::setVolume(int volume)
{
    mMain->player()->setVolume(volume);
    if (mSecond)
        mSecond->player()->setVolume(volume);
}

void PlayAreaManager::setMuted(bool muted)
{
    mMain->player()->setMuted(muted);
}

void PlayAreaManager::setPlaybackRate(double rate)
{
    mMain->player()->setPlaybackRate(rate);
    if (mSecond)
        mSecond->player()->setPlaybackRate(rate);
    holdSyncFor(SettleAfterCommandMs);
}

void PlayAreaManager::update()
{
    mMain->update();
    if (mSecond)
        mSecond->update();
}

void PlayAreaManager::onSliderStatusChanged(bool isSliderDown, int seconds)
{
    qDebug() << "onSliderStatusChanged" << isSliderDown << seconds;
    if (isSliderDown) {
        pause();
        return;
    }
    QMediaPlayer *main = mMain->player();
    if (main->position() / 1000 != seconds)
        main->setPosition(toMilliseconds(seconds));
    main->play();
    if (mSecond) {
        if (mSecond->player()->position() / 1000 != seconds)
            seekSecond(toMilliseconds(seconds));
        if (secondHasSomethingAt(toMilliseconds(seconds)))
            mSecond->player()->play();
    }
    holdSyncFor(SettleAfterCommandMs);
    nudgeGeometry();
}

void PlayAreaManager::onPositionChanged(qint64 position)
{
    if (mNudgePending) {
        qDebug() << "onPositionChanged" << position;
        mNudgePending = position <= 0;
        nudgeGeometry();
    }
    if (mMainRow)
        emit positionChanged(position / 1000, mMainRow->id);
}

void PlayAreaManager::dragEnterEvent(QDragEnterEvent *event)
{
    if (!droppedRecordings(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void PlayAreaManager::dropEvent(QDropEvent *event)
{
    const QStringList recordings = droppedRecordings(*event->mimeData());
    for (const QString &recording : recordings)
        emit dropFile(recording);
}

void PlayAreaManager::createLayouts()
{
    auto *background = new QWidget(this);
    background->setObjectName(QStringLiteral("wgtbackWidget"));
    background->setStyleSheet(
        QStringLiteral("QWidget#wgtbackWidget{background-color: rgb(10, 10, 10);}"));

    auto *outer = new QHBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(background);

    mPlayersLayout = new QHBoxLayout(background);
    mPlayersLayout->setSpacing(1);
    mPlayersLayout->setContentsMargins(0, 0, 0, 0);
}

void PlayAreaManager::relayMainPlayer()
{
    QMediaPlayer *player = mMain->player();
    player->setNotifyInterval(NotifyIntervalMs);
    connect(player, &QMediaPlayer::stateChanged, this, &PlayAreaManager::stateChanged);
    connect(player, &QMediaPlayer::volumeChanged, this, &PlayAreaManager::volumeChanged);
    connect(player, &QMediaPlayer::mutedChanged, this, &PlayAreaManager::mutedChanged);
    connect(player, &QMediaPlayer::durationChanged, this, &PlayAreaManager::durationChanged);
    connect(player, &QMediaPlayer::positionChanged, this, &PlayAreaManager::onPositionChanged);
    connect(player, &QMediaPlayer::positionChanged, this, &PlayAreaManager::keepInStep);
    relayKeysAndFullScreen(mMain);
}

void PlayAreaManager::relayKeysAndFullScreen(PlayerWidget *player)
{
    connect(player, &PlayerWidget::keyPressSignals, this, &PlayAreaManager::keyPressSignals);
    connect(player, &PlayerWidget::fullScreen, this, &PlayAreaManager::fullScreenChanged);
}

void PlayAreaManager::addToLayout(PlayerWidget *player)
{
    if (mPlayersLayout->indexOf(player) < 0)
        mPlayersLayout->addWidget(player, 1); // both equally wide, whatever their pictures
}

void PlayAreaManager::createSecond()
{
    if (mSecond)
        return;
    mSecond = new PlayerWidget(this);
    mSecond->player()->setMuted(true);
    mSecond->player()->setVolume(volume());
    relayKeysAndFullScreen(mSecond);
}

void PlayAreaManager::destroySecond()
{
    if (!mSecond)
        return;
    // Its full screen ends with it.
    if (mSecond->isFullScreen())
        emit fullScreenChanged(false);
    mPlayersLayout->removeWidget(mSecond);
    delete mSecond;
    mSecond = nullptr;
}

/** Makes layout and video outputs be laid out and painted anew, by one pixel more or less. */
void PlayAreaManager::nudgeGeometry()
{
    QRect rect = geometry();
    rect.setBottom(rect.bottom() + (mNudgeGrows ? 1 : -1));
    setGeometry(rect);
    mNudgeGrows = !mNudgeGrows;
}

QStringList PlayAreaManager::droppedRecordings(const QMimeData &data)
{
    QStringList recordings;
    const QList<QUrl> urls = data.urls();
    for (const QUrl &url : urls) {
        const QString text = url.toString();
        // Required: the text is a URL, not a path, so that this never finds a folder.
        if (!QFileInfo(text).isDir() && isRecordingName(text))
            recordings.append(text);
    }
    return recordings;
}

/** Whether the second recording is long enough to have a picture there; true while unknown. */
bool PlayAreaManager::secondHasSomethingAt(qint64 positionMs) const
{
    const qint64 duration = mSecond->player()->duration();
    return duration <= 0 || positionMs < duration;
}

void PlayAreaManager::playSecond()
{
    if (!mSecond)
        return;
    QMediaPlayer *second = mSecond->player();
    // One that has ended would start again from its beginning.
    if (secondHasSomethingAt(mMain->player()->position()))
        second->play();
    second->setMuted(true);
    second->setPlaybackRate(mMain->player()->playbackRate());
}

void PlayAreaManager::seekSecond(qint64 positionMs)
{
    QMediaPlayer *second = mSecond->player();
    if (!secondHasSomethingAt(positionMs)) {
        second->stop();
        return;
    }
    second->setPosition(positionMs);
    // After its end it is stopped and would show nothing beside a paused main recording.
    if (second->state() == QMediaPlayer::StoppedState && state() == QMediaPlayer::PausedState)
        second->pause();
}

void PlayAreaManager::holdSyncFor(qint64 settleMs)
{
    mSinceCommand.start();
    mSettleMs = settleMs;
    mReportsOff = 0;
}

/** Measures on every report of the main player how far the second one is ahead, and corrects it
 *  by a single seek when it is off for several reports in a row. */
void PlayAreaManager::keepInStep()
{
    const bool settled = mSinceCommand.isValid() && mSinceCommand.elapsed() >= mSettleMs;
    if (!mSecond || !settled || state() != QMediaPlayer::PlayingState)
        return;
    const QMediaPlayer *second = mSecond->player();
    const qint64 mainMs = mMain->player()->position();
    if (second->duration() <= 0 || mainMs + EndMarginMs >= second->duration())
        return;
    if (second->state() != QMediaPlayer::PlayingState) {
        rejoin(mainMs);
        return;
    }
    const qint64 aheadMs = second->position() - mainMs;
    learnSeekLag(aheadMs);
    if (std::abs(aheadMs) <= ToleranceMs) {
        mReportsOff = 0;
    } else if (++mReportsOff >= ReportsBeforeCorrection) {
        correctSecond(mainMs);
    }
}

/** The second recording had ended or was past its end, and the main one was taken back. */
void PlayAreaManager::rejoin(qint64 mainMs)
{
    mSecond->player()->setPosition(mainMs);
    playSecond();
    holdSyncFor(SettleAfterCommandMs);
}

void PlayAreaManager::correctSecond(qint64 mainMs)
{
    mSecond->player()->setPosition(mainMs + mSeekLagMs);
    mCorrectionPending = true;
    holdSyncFor(SettleAfterCorrectionMs);
}

/** A seek takes its time while the main recording plays on: the next one aims ahead by that. */
void PlayAreaManager::learnSeekLag(qint64 aheadMs)
{
    if (!mCorrectionPending)
        return;
    mCorrectionPending = false;
    mSeekLagMs = qBound<qint64>(0, mSeekLagMs - aheadMs, MaxSeekLagMs);
}
