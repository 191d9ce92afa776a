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
#include <QMouseEvent>
#include <QUrl>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

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
constexpr qint64 NearEndMs = 2 * EndMarginMs; // where a seek that is lost is repeated

// Most cameras take 25 or 30 pictures a second.
constexpr double UnknownFrameMs = 40;
constexpr float MaxFrameRate = 1000;

// A seek that comes while a player changes its state may be lost.
constexpr int SeekCheckDelayMs = 300;
constexpr qint64 LostSeekBeforeMs = -300;
constexpr qint64 LostSeekAfterMs = 1500;

// A busy computer needs a second to start again after a seek.
constexpr qint64 StuckAfterMs = 2500;
constexpr int MaxRestarts = 2;
constexpr int ReportsOfMotion = 5; // more than a seek brings by itself

/** After a move, which some sources propose, they would delete the camera's file. */
void acceptCopy(QDropEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

/** Sets a variable of the environment for as long as it lives. */
class ScopedVariable
{
public:
    ScopedVariable(const char *name, const QByteArray &value)
        : mName(name), mWasSet(qEnvironmentVariableIsSet(name)), mBefore(qgetenv(name))
    {
        qputenv(name, value);
    }
    ~ScopedVariable()
    {
        if (mWasSet)
            qputenv(mName, mBefore);
        else
            qunsetenv(mName);
    }
    Q_DISABLE_COPY(ScopedVariable)

private:
    const char *mName;
    bool mWasSet;
    QByteArray mBefore;
};

QSize resolutionOf(const RowData &row)
{
    return {row.width, row.height};
}

/** How long a picture of the recording stands, in milliseconds. */
double frameMs(const RowData &row)
{
    const bool isKnown = row.frameRate >= 1 && row.frameRate <= MaxFrameRate;
    return isKnown ? 1000 / double(row.frameRate) : UnknownFrameMs;
}

/** Whether a player has moved since the last look at it (-1 for none), which this one becomes. */
bool hasMoved(qint64 &seenMs, qint64 nowMs)
{
    const qint64 beforeMs = std::exchange(seenMs, nowMs);
    return beforeMs >= 0 && beforeMs != nowMs;
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
    mSeekCheck.setSingleShot(true);
    mSeekCheck.setInterval(SeekCheckDelayMs);
    connect(&mSeekCheck, &QTimer::timeout, this, &PlayAreaManager::repeatLostSeeks);
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
    ++mRound;
    mRestarts = 0;
    mSecondWaits = false;
    mMain->loader()->load(QMediaContent(main->url));
    if (mSecond)
        mSecond->loader()->load(QMediaContent(related->url));
    mMainRow = main;
    mRelatedRow = related;
    mSecondPositionMs = 0;
    mSecondEndMs = 0;
}

bool PlayAreaManager::unloadOne()
{
    for (PlayerWidget *widget : {mMain, mSecond}) {
        if (!widget || widget->player()->media().isNull())
            continue;
        widget->loader()->unload();
        return true;
    }
    return false;
}

bool PlayAreaManager::isSettled() const
{
    return !mMain->loader()->isLoading() && !(mSecond && mSecond->loader()->isLoading());
}

void PlayAreaManager::forgetRows()
{
    mMainRow = nullptr;
    mRelatedRow = nullptr;
}

void PlayAreaManager::leaveFullScreen()
{
    mMain->leaveFullScreen();
    if (mSecond)
        mSecond->leaveFullScreen();
}

bool PlayAreaManager::isPictureFullScreen() const
{
    return mMain->isFullScreen() || (mSecond && mSecond->isFullScreen());
}

void PlayAreaManager::toggleFullScreen()
{
    if (isPictureFullScreen())
        leaveFullScreen();
    else
        mMain->enterFullScreen();
}

void PlayAreaManager::stepFrames(int frames)
{
    if (state() == QMediaPlayer::PlayingState) {
        pause();
        return;
    }
    if (state() != QMediaPlayer::PausedState || !mMainRow)
        return;
    // Aims at the middle of a picture's time, which the rounding to milliseconds cannot miss.
    const double stepMs = frameMs(*mMainRow);
    const auto targetMs = qint64((double(shownFrame(stepMs) + frames) + 0.5) * stepMs);
    const auto lastMs = qint64(double(mMain->player()->duration()) - stepMs / 2);
    seekBoth(qMax<qint64>(0, qMin(targetMs, lastMs)));
}

void PlayAreaManager::seekToStart()
{
    if (state() != QMediaPlayer::StoppedState)
        seekBoth(0);
}

void PlayAreaManager::seekToEnd()
{
    const qint64 durationMs = mMain->player()->duration();
    if (state() == QMediaPlayer::StoppedState || durationMs <= 0)
        return;
    pause();
    seekBoth(qMax<qint64>(0, durationMs - NearEndMs));
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
    mMain->loader()->play();
    playSecond();
    holdSyncFor(SettleAfterCommandMs);
    if (wasPaused)
        nudgeGeometry();
    else
        mNudgePending = true;
}

void PlayAreaManager::pause()
{
    mSecondWaits = false;
    mMain->loader()->pause();
    // A second recording that has ended would be rewound by a pause.
    if (mSecond && secondHasSomethingAt(mMain->player()->position()))
        mSecond->loader()->pause();
}

void PlayAreaManager::stop()
{
    ++mRound;
    mSecondWaits = false;
    mSeekCheck.stop();
    mMain->loader()->stop();
    if (mSecond)
        mSecond->loader()->stop();
}

void PlayAreaManager::seek(int seconds)
{
    seekBoth(toMilliseconds(seconds));
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

void PlayAreaManager::screenshot()
{
    if (!mMainRow)
        return;
    const qint64 mainMs = mMain->player()->position();
    const qint64 secondMs = mSecond ? mSecond->player()->position() : 0;
    const bool isOriginal = !mMainRow->fileName.endsWith(QLatin1String("AVI"), Qt::CaseInsensitive);
    mMain->screenshot(mainMs, resolutionOf(*mMainRow), isOriginal);
    if (mSecond && mRelatedRow)
        mSecond->screenshot(secondMs, resolutionOf(*mRelatedRow), isOriginal);
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
    // Whoever hears of the new position may stop, or go on to another recording, which the rest
    // is not meant for.
    const int round = mRound;
    if (mMain->player()->position() / 1000 != seconds)
        seekMain(toMilliseconds(seconds));
    if (round == mRound)
        mMain->loader()->play();
    if (round != mRound)
        return;
    if (mSecond && mSecond->player()->position() / 1000 != seconds)
        seekSecond(toMilliseconds(seconds));
    playSecond();
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

// While a picture is on its way to or from the full screen, quick clicks meet the area below it.
// They are not meant for the window, which would be maximised.
void PlayAreaManager::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept();
}

void PlayAreaManager::dragEnterEvent(QDragEnterEvent *event)
{
    if (!droppedRecordings(*event->mimeData()).isEmpty())
        acceptCopy(event);
}

void PlayAreaManager::dropEvent(QDropEvent *event)
{
    const QStringList recordings = droppedRecordings(*event->mimeData());
    if (!recordings.isEmpty())
        acceptCopy(event);
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
    connect(player, &QMediaPlayer::positionChanged, this, &PlayAreaManager::relayPosition);
    const MediaLoader *loader = mMain->loader();
    connect(loader, &MediaLoader::loaded, this, &PlayAreaManager::onMainLoaded);
    connect(loader, &MediaLoader::failed, this, &PlayAreaManager::onMainFailed);
    connect(loader, &MediaLoader::ended, this, &PlayAreaManager::ended);
    connect(loader, &MediaLoader::settled, this, &PlayAreaManager::noteSettled);
    relayKeysAndFullScreen(mMain);
}

void PlayAreaManager::relayPosition(qint64 positionMs)
{
    // The backend delivers a report or two after a stop: the player itself is at 0 by then.
    const bool isLate = state() == QMediaPlayer::StoppedState && positionMs > 0 &&
                        mMain->player()->position() != positionMs;
    if (isLate)
        return;
    onPositionChanged(positionMs);
    freeIfStuck(mMain->player()->position());
    keepInStep();
}

void PlayAreaManager::onMainLoaded()
{
    if (mSecondWaits && state() == QMediaPlayer::PlayingState)
        playSecond();
}

void PlayAreaManager::onMainFailed()
{
    stop();
    emit failed();
}

void PlayAreaManager::noteSettled()
{
    if (isSettled())
        emit settled();
}

void PlayAreaManager::noteSecondPosition(qint64 positionMs)
{
    // The last report is the duration, wherever the recording ended.
    if (positionMs < mSecond->player()->duration())
        mSecondPositionMs = positionMs;
}

void PlayAreaManager::onSecondEnded()
{
    mSecondEndMs = mSecondPositionMs;
}

void PlayAreaManager::relayKeysAndFullScreen(PlayerWidget *player)
{
    connect(player, &PlayerWidget::keyPressSignals, this, &PlayAreaManager::keyPressSignals);
    connect(player, &PlayerWidget::otherKeyPressed, this, &PlayAreaManager::otherKeyPressed);
    connect(player, &PlayerWidget::fullScreen, this, &PlayAreaManager::fullScreenChanged);
    connect(player, &PlayerWidget::screenshotDone, this, &PlayAreaManager::screenshotDone);
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
    {
        // It is never heard. With two streams, a sound server often does not start the second one
        // again after a seek, and the picture stands with it.
        const ScopedVariable noSound("QT_GSTREAMER_PLAYBIN_AUDIOSINK", "fakeaudiosink");
        mSecond = new PlayerWidget(this);
    }
    QMediaPlayer *player = mSecond->player();
    player->setMuted(true);
    player->setVolume(volume());
    player->setNotifyInterval(NotifyIntervalMs);
    connect(player, &QMediaPlayer::positionChanged, this, &PlayAreaManager::noteSecondPosition);
    connect(mSecond->loader(), &MediaLoader::ended, this, &PlayAreaManager::onSecondEnded);
    connect(mSecond->loader(), &MediaLoader::settled, this, &PlayAreaManager::noteSettled);
    connect(mSecond->loader(), &MediaLoader::failed, this, &PlayAreaManager::secondFailed);
    relayKeysAndFullScreen(mSecond);
}

void PlayAreaManager::destroySecond()
{
    if (!mSecond)
        return;
    // Its full screen ends with it, in the orderly way, which gives the keyboard back.
    mSecond->leaveFullScreen();
    mPlayersLayout->removeWidget(mSecond);
    // Not at once: this may run inside one of its own events, or in the end-of-media handling of
    // the other player.
    mSecond->player()->disconnect(this);
    mSecond->loader()->disconnect(this);
    mSecond->disconnect(this);
    mSecond->loader()->stop();
    mSecond->hide();
    mSecond->setParent(nullptr);
    mSecond->deleteLater();
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
    for (QUrl url : urls) {
        if (url.host() == QLatin1String("localhost"))
            url.setHost(QString());
        const QString text = url.toString();
        if (!url.isLocalFile() || !url.host().isEmpty())
            continue;
        // The text is a URL, not a path: a folder is told by its ending only, as a link is that
        // leads nowhere yet.
        if (!QFileInfo(text).isDir() && isRecordingName(text))
            recordings.append(text);
    }
    return recordings;
}

/** Where the second recording ends; 0 or less while unknown. */
qint64 PlayAreaManager::secondEndMs() const
{
    const qint64 duration = mSecond->player()->duration();
    return mSecondEndMs > 0 ? qMin(duration, mSecondEndMs) : duration;
}

/** Whether the second recording is long enough to have a picture there; true while unknown. */
bool PlayAreaManager::secondHasSomethingAt(qint64 positionMs) const
{
    const qint64 end = secondEndMs();
    return end <= 0 || positionMs < end;
}

void PlayAreaManager::playSecond()
{
    // It never plays on its own: nothing would stop it.
    mSecondWaits = !mMain->loader()->isLoaded();
    if (!mSecond || mSecondWaits)
        return;
    QMediaPlayer *second = mSecond->player();
    // One that has ended would start again from its beginning.
    if (secondHasSomethingAt(mMain->player()->position()))
        mSecond->loader()->play();
    second->setMuted(true);
    second->setPlaybackRate(mMain->player()->playbackRate());
}

/** Counted from 0. A pause amid the playing brings up the next picture already; after a seek it is
 *  that of the position. */
qint64 PlayAreaManager::shownFrame(double stepMs) const
{
    const qint64 nowMs = mMain->player()->position();
    const bool isOfPosition = nowMs == mSoughtMs || mMain->isRefitted();
    return qint64(double(nowMs) / stepMs) + (isOfPosition ? 0 : 1);
}

void PlayAreaManager::seekBoth(qint64 positionMs)
{
    seekMain(positionMs);
    if (mSecond)
        seekSecond(positionMs);
    holdSyncFor(SettleAfterCommandMs);
}

void PlayAreaManager::seekMain(qint64 positionMs)
{
    mMain->player()->setPosition(positionMs);
    mSoughtMs = positionMs;
    mSeekCheck.start();
}

void PlayAreaManager::repeatLostSeeks()
{
    for (PlayerWidget *widget : {mMain, mSecond}) {
        if (!widget || widget->player()->state() == QMediaPlayer::StoppedState)
            continue;
        QMediaPlayer *player = widget->player();
        const qint64 offMs = player->position() - mSoughtMs;
        const bool isLost = offMs < LostSeekBeforeMs || offMs > LostSeekAfterMs;
        if (isLost && mSoughtMs + EndMarginMs < player->duration())
            player->setPosition(mSoughtMs);
    }
}

/** With a sound server, one seek in a hundred leaves the stream held for ever, and the picture
 * waits for its clock. Neither seeks nor pauses free it. */
void PlayAreaManager::freeIfStuck(qint64 mainMs)
{
    const bool shouldMove = state() == QMediaPlayer::PlayingState && mMain->loader()->isLoaded() &&
                            mainMs + EndMarginMs < mMain->player()->duration();
    const bool stands = shouldMove && mainMs == mStandsAtMs;
    mStandsAtMs = shouldMove ? mainMs : -1;
    mReportsMoved = stands ? 0 : mReportsMoved + 1;
    if (!stands)
        mStanding.start();
    if (mReportsMoved >= ReportsOfMotion)
        mRestarts = 0;
    if (stands && mStanding.elapsed() > StuckAfterMs && mRestarts < MaxRestarts) {
        ++mRestarts;
        mMain->loader()->restart();
    }
}

void PlayAreaManager::seekSecond(qint64 positionMs)
{
    QMediaPlayer *second = mSecond->player();
    if (!secondHasSomethingAt(positionMs)) {
        mSecond->loader()->stop();
        return;
    }
    second->setPosition(positionMs);
    // After its end it is stopped and would show nothing beside a paused main recording.
    if (second->state() == QMediaPlayer::StoppedState && state() == QMediaPlayer::PausedState)
        mSecond->loader()->pause();
}

void PlayAreaManager::holdSyncFor(qint64 settleMs)
{
    mSinceCommand.start();
    mSettleMs = settleMs;
    mReportsOff = 0;
    mMainSeenMs = -1;
    mSecondSeenMs = -1;
    mCorrectionPending = false;
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
    const qint64 secondMs = second->position();
    const bool mainMoves = hasMoved(mMainSeenMs, mainMs);
    const bool secondMoves = hasMoved(mSecondSeenMs, secondMs);
    if (!mainMoves || secondEndMs() <= 0 || mainMs + EndMarginMs >= secondEndMs())
        return;
    if (second->state() != QMediaPlayer::PlayingState) {
        rejoin(mainMs);
        return;
    }
    // One that has not started again after a seek is on its way: another seek would only hold it
    // up.
    if (!secondMoves)
        return;
    const qint64 aheadMs = secondMs - mainMs;
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
    holdSyncFor(SettleAfterCorrectionMs);
    mCorrectionPending = true;
}

/** A seek takes its time while the main recording plays on: the next one aims ahead by that. */
void PlayAreaManager::learnSeekLag(qint64 aheadMs)
{
    if (!mCorrectionPending)
        return;
    mCorrectionPending = false;
    mSeekLagMs = qBound<qint64>(0, mSeekLagMs - aheadMs, MaxSeekLagMs);
}
