// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMediaPlayer>
#include <QString>
#include <QWidget>

#include <memory>

class QDateTime;
class QLabel;

namespace Ui {
class ControlPanel;
}

/**
 * The control bar under the video: transport buttons, seek slider with times, rate, mute and
 * volume, and three read-outs of the telemetry. It holds no media: it emits requests, and shows
 * the state, position and telemetry that it is given.
 */
class ControlPanel : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString spokenState READ spokenState)

public:
    explicit ControlPanel(QWidget *parent = nullptr);
    ~ControlPanel() override;

    /** The state last set; Stopped at first. */
    QMediaPlayer::State state() const { return mState; }
    /** What a screen reader says of playback when it is asked: state, position and duration. */
    QString spokenState() const;
    /** 0 to 100 on the players' linear scale. */
    int volume() const;
    /** How much of its way the volume's handle has gone, in percent. */
    int volumePercent() const;
    bool isMuted() const { return mMuted; }
    /** The selected rate, 1 for normal speed. */
    double playbackRate() const;

    void setMaxDuration(int seconds);
    /** Shows the position in seconds; at the end of the recording emits next(). */
    void setCurrentPosition(int seconds);
    /** Asks for a stop and shows position 0. */
    void setStoped();

    /** Shows the speed in the configured unit. */
    void setGpsSpeed(int kmh);
    /** The speed last set, in km/h. */
    int gpsSpeed() const { return mSpeedKmh; }
    void setGpsDataTime(const QDateTime &dateTime);
    /** Shows both texts as given, in this order. */
    void setLongitudeAndLatitude(const QString &first, const QString &second);
    /** Whether speed and coordinates were measured, as they are at first; without a fix they are
     *  shown in grey. */
    void setHasFix(bool hasFix);
    /** Shows what stands there without a recording: position 0, no coordinates, speed 0, now. */
    void reinit();
    /** Shows what stands there before anything is known of a recording: position and duration 0,
     *  and no telemetry. */
    void clearRecording();
    /** Asks for a seek by @p deltaSeconds; nothing while stopped or beyond the recording. */
    void setSliderMove(int deltaSeconds);
    /** Moves the volume's handle by @p percent of its way. */
    void stepVolume(int percent);
    /** Goes so many items on in the list of rates, or back if negative, as far as it reaches. */
    void stepRate(int items);
    /** As a click on its button. */
    void toggleMute();

signals:
    void openFile();
    void screenshot();
    void play();
    void pause();
    void stop();
    void next();
    void previous();
    void changeVolume(int volume);
    void changeMuting(bool muting);
    void changeRate(double rate);
    /** Seek to this second. */
    void sliderMoved(int position);
    void sliderStatusChanged(bool isSliderDown, int seconds);

public slots:
    void setState(QMediaPlayer::State state);
    void setVolume(int volume);
    void setMuted(bool muted);
    /** Selects the item with this rate; a rate that is not in the list changes nothing. */
    void setPlaybackRate(float rate);
    void playClicked();
    void muteClicked();
    void updateRate();
    void onVolumeSliderValueChanged();
    void onUpdateLanguage();
    void onSliderStatusProcess();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void enableSeeking(bool enabled);
    void showFix(QLabel *readOut, const QString &name) const;
    void fillRates();
    void setupSliders();
    void connectButtons();
    void connectSliders();

    std::unique_ptr<Ui::ControlPanel> mUi;
    QMediaPlayer::State mState = QMediaPlayer::StoppedState;
    bool mMuted = false;
    int mDuration = 0; // seconds
    bool mIsKmh = true;
    int mSpeedKmh = 0;
    bool mHasFix = true;
};
