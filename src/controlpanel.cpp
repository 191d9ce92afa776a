// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "controlpanel.h"

#include "ui_controlpanel.h"

#include "configuration.h"

#include <QAudio>
#include <QDateTime>
#include <QProxyStyle>
#include <QWheelEvent>

namespace {

constexpr int NormalRateIndex = 1;
// From here on times are shown with hours; a recording of exactly one hour is shown without.
constexpr int FirstDurationWithHours = 3601;
constexpr double KmPerMile = 1.609344;

int convertedVolume(int volume, QAudio::VolumeScale from, QAudio::VolumeScale to)
{
    return qRound(QAudio::convertVolume(volume / qreal(100), from, to) * 100);
}

/** A click beside a slider's handle takes the handle there, as in every media player. */
class JumpToClickStyle : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        if (hint == SH_Slider_AbsoluteSetButtons)
            return Qt::LeftButton;
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

QString twoDigits(int number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

QString clockText(int seconds, bool withHours)
{
    const QString minutesAndSeconds =
        twoDigits(seconds / 60 % 60) + QLatin1Char(':') + twoDigits(seconds % 60);
    if (!withHours)
        return minutesAndSeconds;
    return twoDigits(seconds / 3600 % 60) + QLatin1Char(':') + minutesAndSeconds;
}

} // namespace

ControlPanel::ControlPanel(QWidget *parent)
    : QWidget(parent), mUi(std::make_unique<Ui::ControlPanel>())
{
    mUi->setupUi(this);
    fillRates();
    setupSliders();
    connectButtons();
    connectSliders();
    mUi->hSlider_Seek->setEnabled(false);
    connect(mUi->fcbox_Rate, &FComboBox::activated, this, &ControlPanel::updateRate);
    connect(Configuration::GetInstance(), &Configuration::updateLanguage, this,
            &ControlPanel::onUpdateLanguage);
    setGpsSpeed(0);
}

ControlPanel::~ControlPanel() = default;

int ControlPanel::volume() const
{
    return convertedVolume(mUi->hSlider_Volume->value(), QAudio::LogarithmicVolumeScale,
                           QAudio::LinearVolumeScale);
}

int ControlPanel::volumePercent() const
{
    return mUi->hSlider_Volume->value();
}

double ControlPanel::playbackRate() const
{
    return mUi->fcbox_Rate->itemData(mUi->fcbox_Rate->currentIndex()).toDouble();
}

QString ControlPanel::spokenState() const
{
    if (mState == QMediaPlayer::StoppedState)
        return tr("Stopped");
    const QString text =
        mState == QMediaPlayer::PlayingState ? tr("Playing, %1 of %2") : tr("Paused, %1 of %2");
    const bool withHours = mDuration >= FirstDurationWithHours;
    return text.arg(clockText(mUi->hSlider_Seek->value(), withHours),
                    clockText(mDuration, withHours));
}

void ControlPanel::setMaxDuration(int seconds)
{
    mDuration = seconds;
    mUi->hSlider_Seek->setMaximum(seconds);
}

void ControlPanel::setCurrentPosition(int seconds)
{
    if (!mUi->hSlider_Seek->isSliderDown())
        mUi->hSlider_Seek->setValue(seconds);

    const bool withHours = mDuration >= FirstDurationWithHours;
    const int shown = mDuration == 0 ? qMax(seconds, 0) : seconds;
    mUi->lbl_PlayTime->setText(clockText(shown, withHours) + QLatin1Char('/') +
                               clockText(mDuration, withHours));
    // Last, because the listener may start the next recording, whose position must stand. Not while
    // the slider is held: the end comes again once it has been let go.
    if (seconds == mDuration && mDuration != 0 && !mUi->hSlider_Seek->isSliderDown())
        emit next();
}

void ControlPanel::setStoped()
{
    emit stop();
    setCurrentPosition(0);
}

void ControlPanel::setGpsSpeed(int kmh)
{
    mSpeedKmh = kmh;
    mIsKmh = Configuration::GetInstance()->speedUnit() == 0;
    const int shown = mIsKmh ? kmh : int(kmh / KmPerMile);
    const QString text = mIsKmh ? tr("%1 km/h") : tr("%1 MPH");
    mUi->pBtn_SP->setText(text.arg(shown, 3, 10, QLatin1Char('0')));
    update();
}

void ControlPanel::setGpsDataTime(const QDateTime &dateTime)
{
    mUi->lbl_GpsDateTime->setText(dateTime.toString(QStringLiteral("yyyy/MM/dd hh:mm:ss")));
}

void ControlPanel::setLongitudeAndLatitude(const QString &first, const QString &second)
{
    mUi->lbl_LongitudeAndLatitude->setText(QStringLiteral("%1,%2").arg(first, second));
}

void ControlPanel::setHasFix(bool hasFix)
{
    mHasFix = hasFix;
    showFix(mUi->pBtn_SP, tr("Speed"));
    showFix(mUi->lbl_LongitudeAndLatitude, tr("Coordinates"));
}

/** The form's style draws a label that is not enabled in grey. */
void ControlPanel::showFix(QLabel *readOut, const QString &name) const
{
    const QString description = mHasFix ? name : tr("%1 (no position fix)").arg(name);
    readOut->setEnabled(mHasFix);
    readOut->setAccessibleDescription(description);
    readOut->setToolTip(mHasFix ? QString() : description);
}

void ControlPanel::reinit()
{
    setLongitudeAndLatitude(QStringLiteral("00.000000"), QStringLiteral("000.000000"));
    setGpsDataTime(QDateTime::currentDateTime());
    setGpsSpeed(0);
    setCurrentPosition(0);
}

void ControlPanel::clearRecording()
{
    setMaxDuration(0);
    setCurrentPosition(0);
    mUi->lbl_GpsDateTime->setText(tr("0000/00/00 00:00:00"));
    mUi->lbl_LongitudeAndLatitude->setText(tr("N00.000000,E000.000000"));
    setGpsSpeed(0);
}

void ControlPanel::setSliderMove(int deltaSeconds)
{
    const int target = mUi->hSlider_Seek->value() + deltaSeconds;
    if (mState == QMediaPlayer::StoppedState || target < 0 || target > mUi->hSlider_Seek->maximum())
        return;
    emit sliderMoved(target);
}

void ControlPanel::stepVolume(int percent)
{
    mUi->hSlider_Volume->setValue(mUi->hSlider_Volume->value() + percent);
}

void ControlPanel::stepRate(int items)
{
    for (; items > 0; --items)
        mUi->fcbox_Rate->on_pBtn_Down_clicked();
    for (; items < 0; ++items)
        mUi->fcbox_Rate->on_pBtn_Up_clicked();
}

void ControlPanel::toggleMute()
{
    mUi->tBtn_Mute->click();
}

void ControlPanel::setState(QMediaPlayer::State state)
{
    if (state == mState)
        return;
    mState = state;
    mUi->btn_Stop->setEnabled(state != QMediaPlayer::StoppedState);
    enableSeeking(state != QMediaPlayer::StoppedState);
    mUi->btn_PlayOrPause->setChecked(state == QMediaPlayer::PlayingState);
    mUi->btn_PlayOrPause->update();
}

/** Without a recording there is nothing to seek in. */
void ControlPanel::enableSeeking(bool enabled)
{
    // A handle that is being held is let go of, which must not start anything.
    const QSignalBlocker blocker(mUi->hSlider_Seek);
    if (!enabled)
        mUi->hSlider_Seek->setSliderDown(false);
    mUi->hSlider_Seek->setEnabled(enabled);
}

void ControlPanel::setVolume(int volume)
{
    // The player's rounded answer must not pull the handle from under the mouse.
    if (mUi->hSlider_Volume->isSliderDown())
        return;
    mUi->hSlider_Volume->setValue(
        convertedVolume(volume, QAudio::LinearVolumeScale, QAudio::LogarithmicVolumeScale));
}

void ControlPanel::setMuted(bool muted)
{
    mMuted = muted;
}

void ControlPanel::setPlaybackRate(float rate)
{
    for (int i = 0; i < mUi->fcbox_Rate->count(); ++i) {
        if (qFuzzyCompare(rate, mUi->fcbox_Rate->itemData(i).toFloat())) {
            mUi->fcbox_Rate->setCurrentIndex(i);
            return;
        }
    }
}

void ControlPanel::playClicked()
{
    // A click has toggled the button, but only the player's state decides how it looks.
    mUi->btn_PlayOrPause->setChecked(mState == QMediaPlayer::PlayingState);
    if (mState == QMediaPlayer::PlayingState)
        emit pause();
    else
        emit play();
}

void ControlPanel::muteClicked()
{
    emit changeMuting(!mMuted);
}

void ControlPanel::updateRate()
{
    emit changeRate(playbackRate());
}

void ControlPanel::onVolumeSliderValueChanged()
{
    emit changeVolume(volume());
}

void ControlPanel::onUpdateLanguage()
{
    // The form's texts are placeholders; what the read-outs show stays.
    const QString dateTime = mUi->lbl_GpsDateTime->text();
    const QString coordinates = mUi->lbl_LongitudeAndLatitude->text();
    const QString playTime = mUi->lbl_PlayTime->text();
    mUi->retranslateUi(this);
    mUi->lbl_GpsDateTime->setText(dateTime);
    mUi->lbl_LongitudeAndLatitude->setText(coordinates);
    mUi->lbl_PlayTime->setText(playTime);
    setGpsSpeed(mSpeedKmh);
    setHasFix(mHasFix);
}

void ControlPanel::onSliderStatusProcess()
{
    emit sliderStatusChanged(mUi->hSlider_Seek->isSliderDown(),
                             mUi->hSlider_Seek->sliderPosition());
}

bool ControlPanel::eventFilter(QObject *object, QEvent *event)
{
    if (object != mUi->hSlider_Seek || event->type() != QEvent::Wheel)
        return QWidget::eventFilter(object, event);
    // By itself the slider would move its handle without a seek.
    setSliderMove(static_cast<QWheelEvent *>(event)->angleDelta().y() > 0 ? 1 : -1);
    return true;
}

void ControlPanel::fillRates()
{
    mUi->fcbox_Rate->addItem(QStringLiteral("0.5x"), 0.5);
    mUi->fcbox_Rate->addItem(QStringLiteral("1.0x"), 1.0);
    mUi->fcbox_Rate->addItem(QStringLiteral("2.0x"), 2.0);
    mUi->fcbox_Rate->setCurrentIndex(NormalRateIndex);
}

void ControlPanel::connectButtons()
{
    connect(mUi->btn_OpenFile, &QPushButton::clicked, this, &ControlPanel::openFile);
    connect(mUi->btn_ScreenShot, &QPushButton::clicked, this, &ControlPanel::screenshot);
    connect(mUi->btn_PlayOrPause, &QPushButton::clicked, this, &ControlPanel::playClicked);
    connect(mUi->btn_Stop, &QPushButton::clicked, this, &ControlPanel::stop);
    connect(mUi->btn_Next, &QPushButton::clicked, this, &ControlPanel::next);
    connect(mUi->btn_Previous, &QPushButton::clicked, this, &ControlPanel::previous);
    connect(mUi->tBtn_Mute, &QToolButton::clicked, this, &ControlPanel::muteClicked);
}

void ControlPanel::setupSliders()
{
    auto *style = new JumpToClickStyle;
    style->setParent(this);
    mUi->hSlider_Seek->setStyle(style);
    mUi->hSlider_Seek->installEventFilter(this);
    mUi->hSlider_Volume->setStyle(style);
}

void ControlPanel::connectSliders()
{
    connect(mUi->hSlider_Volume, &QSlider::valueChanged, this,
            &ControlPanel::onVolumeSliderValueChanged);
    connect(mUi->hSlider_Seek, &QSlider::sliderMoved, this, &ControlPanel::sliderMoved);
    connect(mUi->hSlider_Seek, &QSlider::sliderPressed, this, &ControlPanel::onSliderStatusProcess);
    connect(mUi->hSlider_Seek, &QSlider::sliderReleased, this,
            &ControlPanel::onSliderStatusProcess);
}
