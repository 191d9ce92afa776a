// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "medialoader.h"

#include <QMediaPlayer>
#include <QTimer>
#include <QVideoWidget>

class CaptureThread;
class PictureNotice;
class PointerHider;
class QKeyEvent;
struct ScreenshotResult;

/**
 * One video player: a video widget with the media player that draws into it. Switches to full
 * screen and back by double click, back by Escape too, and hands the keys that matter in full
 * screen to its owner. Has images of its recording made for it. Media errors are logged, never
 * shown.
 *
 * GUI thread only.
 */
class PlayerWidget : public QVideoWidget
{
    Q_OBJECT

public:
    explicit PlayerWidget(QWidget *parent = nullptr);
    ~PlayerWidget() override;

    /** The embedded player, owned by the widget. */
    QMediaPlayer *player() { return &mPlayer; }
    const QMediaPlayer *player() const { return &mPlayer; }
    /** What loads, plays and stops recordings in the embedded player; owned by the widget. */
    MediaLoader *loader() { return &mLoader; }
    const MediaLoader *loader() const { return &mLoader; }
    /** What is told over the picture; a child of the widget. */
    PictureNotice *notice() const { return mNotice; }

    /** Whether the paused picture has been made anew for another size since the pause: then it is
     *  that of the player's position. */
    bool isRefitted() const { return mIsRefitted; }

    /** Fills the screen, if it does not do so already. */
    void enterFullScreen();
    /** Leaves full screen, if it is in it, and gives the keyboard back to the main window. */
    void leaveFullScreen();

signals:
    /** A navigation key pressed in full screen; valid during the emission only. */
    void keyPressSignals(QKeyEvent *event);
    /** Any other key but Escape pressed in full screen; valid during the emission only. */
    void otherKeyPressed(QKeyEvent *event);
    /** Emitted before the widget enters or leaves full screen. */
    void fullScreen(bool isFull);
    /** What has become of a screenshot; one for each while the widget is there. */
    void screenshotDone(const ScreenshotResult &result);

public slots:
    /** Has an image made of the recording at @p postion, in milliseconds, while it is playing or
     *  paused; else nothing happens. The image is as large as the recording's pictures, whatever
     *  @p resolution, in pixels, and @p isOriginal say. Returns at once. */
    void screenshot(qint64 postion, const QSize &resolution, bool isOriginal);
    void onStateChanged(QMediaPlayer::State newState);
    void onError(QMediaPlayer::Error error);
    void onCaptureThreadFinished();
    /** Full screen ends when another program gets the keyboard: it would cover its window. */
    void onApplicationStateChanged(Qt::ApplicationState applicationState);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void returnToParent();
    void fitPausedPicture();
    void withdraw();
    void keyPressInFullScreen(QKeyEvent *event);
    void changeFullScreen(bool isFull);

    QMediaPlayer mPlayer;
    MediaLoader mLoader{&mPlayer};
    PictureNotice *mNotice = nullptr;      // a child
    PointerHider *mPointerHider = nullptr; // a child
    QTimer mFitTimer;                      // from the last change of the size on
    bool mIsRefitted = false;
    // Deleted by hand when it has finished; one that still runs outlives the widget.
    CaptureThread *mCaptureThread = nullptr;
};
