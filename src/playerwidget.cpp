// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "playerwidget.h"

#include "capturethread.h"
#include "keyboardclaim.h"
#include "mediaurl.h"
#include "picturenotice.h"
#include "pointerhider.h"
#include "windowhandover.h"

#include <QDebug>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMetaEnum>
#include <QScreen>
#include <QWindow>

namespace {

constexpr int ResizeSettleMs = 100;

} // namespace

PlayerWidget::PlayerWidget(QWidget *parent)
    : QVideoWidget(parent), mNotice(new PictureNotice(this)), mPointerHider(new PointerHider(this))
{
    mPlayer.setAudioRole(QAudio::VideoRole);
    mPlayer.setVideoOutput(this);
    connect(&mPlayer, &QMediaPlayer::stateChanged, this, &PlayerWidget::onStateChanged);
    connect(&mPlayer, QOverload<QMediaPlayer::Error>::of(&QMediaPlayer::error), this,
            &PlayerWidget::onError);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            &PlayerWidget::onApplicationStateChanged);
    mFitTimer.setSingleShot(true);
    mFitTimer.setInterval(ResizeSettleMs);
    connect(&mFitTimer, &QTimer::timeout, this, &PlayerWidget::fitPausedPicture);
    setUpdatesEnabled(true);
}

PlayerWidget::~PlayerWidget()
{
    if (mCaptureThread)
        mCaptureThread->runUnattended();
}

void PlayerWidget::enterFullScreen()
{
    if (!isFullScreen())
        changeFullScreen(true);
}

void PlayerWidget::leaveFullScreen()
{
    if (isFullScreen())
        changeFullScreen(false);
}

void PlayerWidget::screenshot(qint64 postion, const QSize &resolution, bool isOriginal)
{
    Q_UNUSED(resolution)
    Q_UNUSED(isOriginal)
    if (mPlayer.state() == QMediaPlayer::StoppedState)
        return;
    if (!mCaptureThread) {
        mCaptureThread = new CaptureThread;
        connect(mCaptureThread, &QThread::finished, this, &PlayerWidget::onCaptureThreadFinished);
        connect(mCaptureThread, &CaptureThread::captured, this, &PlayerWidget::screenshotDone);
    }
    mCaptureThread->addTask(mediaUrl(mPlayer.media()).path(QUrl::FullyDecoded), postion);
    mCaptureThread->start();
}

void PlayerWidget::onStateChanged(QMediaPlayer::State newState)
{
    mIsRefitted = false;
    // While a recording is shown, the video output draws for itself; a repaint would flicker.
    const bool stopped = newState == QMediaPlayer::StoppedState;
    setUpdatesEnabled(stopped);
    if (stopped)
        update();
}

void PlayerWidget::onError(QMediaPlayer::Error error)
{
    const QMetaObject &meta = QMediaPlayer::staticMetaObject;
    const QMetaEnum errors = meta.enumerator(meta.indexOfEnumerator("Error"));
    const QByteArray name = QByteArrayLiteral("QMediaPlayer::") + errors.valueToKey(error);
    qDebug() << "onError" << name.constData() << mPlayer.errorString();
    if (error != QMediaPlayer::NoError)
        setUpdatesEnabled(true);
}

void PlayerWidget::onCaptureThreadFinished()
{
    // The news comes late: by then the worker may have been started again, with a new task.
    if (!mCaptureThread || mCaptureThread->isRunning())
        return;
    qDebug() << "onCaptureThreadFinished, delete mCaptureThread";
    delete mCaptureThread;
    mCaptureThread = nullptr;
}

void PlayerWidget::onApplicationStateChanged(Qt::ApplicationState applicationState)
{
    if (isFullScreen() && applicationState != Qt::ApplicationActive)
        changeFullScreen(false);
}

/** The window manager may end full screen as well, and leave a window behind. */
void PlayerWidget::returnToParent()
{
    const bool isLeftBehind = isWindow() && parentWidget() && !isFullScreen();
    if (isLeftBehind)
        changeFullScreen(false);
}

void PlayerWidget::keyPressEvent(QKeyEvent *event)
{
    qDebug() << "PlayerWidget::keyPressEvent" << event->key() << event->modifiers();
    if (isFullScreen()) {
        keyPressInFullScreen(event);
        return;
    }
    // The modifiers are tested against the code of the Alt key, which no modifier flag matches: the
    // keyboard never enters full screen, and Alt and Enter stay with the window.
    if (event->key() == Qt::Key_Enter && (int(event->modifiers()) & Qt::Key_Alt) != 0) {
        qDebug() << "Key_Enter, setValue=" << !isFullScreen();
        changeFullScreen(!isFullScreen());
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

void PlayerWidget::mouseDoubleClickEvent(QMouseEvent *event)
{
    changeFullScreen(!isFullScreen());
    event->accept();
}

// Past the video widget's own handler, so that presses reach the window and can drag it.
void PlayerWidget::mousePressEvent(QMouseEvent *event)
{
    QWidget::mousePressEvent(event);
}

void PlayerWidget::resizeEvent(QResizeEvent *event)
{
    QVideoWidget::resizeEvent(event);
    mFitTimer.start();
}

void PlayerWidget::changeEvent(QEvent *event)
{
    QVideoWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        QTimer::singleShot(0, this, &PlayerWidget::returnToParent); // not amid the change
}

// In full screen it stands for the main window, and its end is that window's.
void PlayerWidget::closeEvent(QCloseEvent *event)
{
    QVideoWidget::closeEvent(event);
    if (!isFullScreen() || !parentWidget())
        return;
    event->ignore();
    changeFullScreen(false);
    window()->close();
}

/** Frames are scaled when they come: a paused player shows its own once more, in the new size. */
void PlayerWidget::fitPausedPicture()
{
    if (mPlayer.state() != QMediaPlayer::PausedState)
        return;
    mPlayer.setPosition(mPlayer.position());
    mIsRefitted = true;
}

void PlayerWidget::keyPressInFullScreen(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Left:
    case Qt::Key_Right:
        emit keyPressSignals(event);
        break;
    case Qt::Key_Escape:
        qDebug() << "Key_Escape, setValue=false";
        changeFullScreen(false);
        event->accept();
        break;
    default:
        emit otherKeyPressed(event);
        break;
    }
}

void PlayerWidget::changeFullScreen(bool isFull)
{
    emit fullScreen(isFull);
    mPointerHider->setActive(isFull);
    const QWindow *before = window()->windowHandle();
    const QScreen *screen = before ? before->screen() : QGuiApplication::primaryScreen();
    // One that ends because another program has the keyboard does not take it back.
    const bool isUsed = QGuiApplication::applicationState() == Qt::ApplicationActive;
    if (!isFull)
        withdraw();
    setFullScreen(isFull);
    if (!isFull) {
        if (isUsed && parentWidget())
            KeyboardClaim::make(window(), this);
        return;
    }
    // Where no window manager does it; the widget's own setGeometry() would end the state.
    windowHandle()->setGeometry(screen->geometry());
    raise();
    activateWindow();
    KeyboardClaim::make(this);
}

/** Takes the full screen off the display, so that it can become a part of the main window again. */
void PlayerWidget::withdraw()
{
    // While this is still a window of its own: not every manager gives the keyboard back itself,
    // and it is not asked to when a part of the same window has it. Another program keeps it.
    QWidget *heir = parentWidget() ? parentWidget()->window() : nullptr;
    if (heir && heir->windowHandle() &&
        QGuiApplication::applicationState() == Qt::ApplicationActive) {
        heir->activateWindow();
        waitForKeyboard(*heir->windowHandle());
    }
    hide();
    if (windowHandle())
        waitForWithdrawal(*windowHandle());
}
