// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"
#include "controlpanel.h"
#include "fcombobox.h"

#include <QMouseEvent>
#include <QSlider>
#include <QtTest>

class TestControlPanel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void buildsWithoutWarnings();
    void buttons();
    void volume();
    void positions();
    void dragging();
    void readOuts();
    void withoutFix();
    void stepper();

private:
    QWidget *child(const char *name) const { return mPanel->findChild<QWidget *>(name); }
    QSlider *slider(const char *name) const { return qobject_cast<QSlider *>(child(name)); }
    QString text(const char *label) const { return child(label)->property("text").toString(); }
    QString requests();
    QString pressed(const char *button, QMediaPlayer::State state = QMediaPlayer::StoppedState);
    QString timeText(int durationS, int positionS);

    std::unique_ptr<ControlPanel> mPanel;
    std::vector<std::unique_ptr<QSignalSpy>> mSpies; ///< one for each of the panel's signals
};

void TestControlPanel::init()
{
    QStandardPaths::setTestModeEnabled(true);
    QLoggingCategory::setFilterRules("*.debug=false");
    mPanel = std::make_unique<ControlPanel>();
    mPanel->resize(800, 130);
    mSpies.clear();
    const QMetaObject *type = mPanel->metaObject();
    for (int i = type->methodOffset(); i < type->methodCount(); ++i) {
        const QByteArray signal = '2' + type->method(i).methodSignature();
        if (type->method(i).methodType() == QMetaMethod::Signal)
            mSpies.push_back(std::make_unique<QSignalSpy>(mPanel.get(), signal));
    }
}

/** What the panel asked for since the last call, as "signal argument ...", by signals. */
QString TestControlPanel::requests()
{
    QStringList texts;
    for (const auto &spy : mSpies) {
        while (!spy->isEmpty()) {
            QString text = QString(spy->signal()).section('(', 0, 0);
            for (const QVariant &argument : spy->takeFirst())
                text += ' ' + argument.toString();
            texts.append(text);
        }
    }
    return texts.join(", ");
}

/** Qt only warns about slots named for no object and about pictures, and not about all of these. */
void TestControlPanel::buildsWithoutWarnings()
{
    static QStringList warnings;
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { warnings.append(text); });
    ControlPanel().grab();
    qInstallMessageHandler(before);
    QCOMPARE(warnings, QStringList());
    for (const QWidget *widget : mPanel->findChildren<QWidget *>()) {
        for (const QString &part : widget->styleSheet().split("url(").mid(1))
            QVERIFY2(QFileInfo::exists(part.section(')', 0, 0)), qPrintable(part));
    }
}

/** What a click asks for. */
QString TestControlPanel::pressed(const char *button, QMediaPlayer::State state)
{
    mPanel->setState(state);
    QTest::mouseClick(child(button), Qt::LeftButton);
    return requests();
}

void TestControlPanel::buttons()
{
    QCOMPARE(pressed("btn_OpenFile"), QString("openFile"));
    QCOMPARE(pressed("btn_ScreenShot"), QString("screenshot"));
    QCOMPARE(pressed("btn_Previous"), QString("previous"));
    QCOMPARE(pressed("btn_Next"), QString("next"));
    QCOMPARE(pressed("btn_PlayOrPause"), QString("play"));
    QCOMPARE(pressed("btn_PlayOrPause", QMediaPlayer::PausedState), QString("play"));
    QCOMPARE(pressed("btn_PlayOrPause", QMediaPlayer::PlayingState), QString("pause"));
    QVERIFY(child("btn_PlayOrPause")->property("checked").toBool());
    QCOMPARE(pressed("btn_Stop", QMediaPlayer::PlayingState), QString("stop"));
    QCOMPARE(mPanel->state(), QMediaPlayer::PlayingState);
    QCOMPARE(pressed("btn_Stop", QMediaPlayer::PausedState), QString("stop"));
    QVERIFY(!child("btn_PlayOrPause")->property("checked").toBool());
    QCOMPARE(pressed("btn_Stop"), QString());

    QCOMPARE(pressed("tBtn_Mute"), QString("changeMuting true"));
    QVERIFY(!mPanel->isMuted());
    mPanel->setMuted(true);
    QCOMPARE(pressed("tBtn_Mute"), QString("changeMuting false"));
}

/** The slider stands at s = 1 - 100^-v for a volume v of 1, and is coarse where it is loud. */
void TestControlPanel::volume()
{
    using Numbers = QList<int>;
    const QList<Numbers> expectations{{0, 0, 0}, {1, 5, 1}, {75, 97, 76}, {100, 99, 100}};
    for (const Numbers &expected : expectations) {
        mPanel->setVolume(expected[0]);
        const int position = slider("hSlider_Volume")->value();
        QCOMPARE(Numbers({expected[0], position, mPanel->volume()}), expected);
        QCOMPARE(requests(), QStringLiteral("changeVolume %1").arg(expected[2]));
    }
    QSlider *handle = slider("hSlider_Volume");
    handle->setSliderDown(true); // the player's answer must not pull it away
    handle->setSliderPosition(50);
    mPanel->setVolume(10);
    QCOMPARE(handle->sliderPosition(), 50);
    handle->setSliderDown(false);
    mPanel->setVolume(75);
    QCOMPARE(handle->value(), 97);
}

QString TestControlPanel::timeText(int durationS, int positionS)
{
    mPanel->setMaxDuration(durationS);
    mPanel->setCurrentPosition(positionS);
    return text("lbl_PlayTime");
}

void TestControlPanel::positions()
{
    QCOMPARE(timeText(0, 0), QString("00:00/00:00"));
    QCOMPARE(timeText(0, 5), QString("00:05/00:00"));
    QCOMPARE(timeText(3600, 3599), QString("59:59/00:00"));
    QCOMPARE(timeText(3601, 10), QString("00:00:10/01:00:01"));
    QCOMPARE(timeText(86399, 45296), QString("12:34:56/23:59:59"));
    QCOMPARE(timeText(30, 29), QString("00:29/00:30"));
    QCOMPARE(requests(), QString());
    for (int seconds : {30, 31, 30})
        mPanel->setCurrentPosition(seconds);
    QCOMPARE(requests(), QString("next, next"));
    mPanel->setStoped();
    QCOMPARE(requests(), QString("stop"));
    QCOMPARE(text("lbl_PlayTime"), QString("00:00/00:30"));

    mPanel->setSliderMove(5);
    QCOMPARE(requests(), QString());
    mPanel->setState(QMediaPlayer::PausedState);
    mPanel->setCurrentPosition(20);
    for (int deltaS : {5, -20, -21, 10, 11})
        mPanel->setSliderMove(deltaS);
    QCOMPARE(requests(), QString("sliderMoved 25, sliderMoved 0, sliderMoved 30"));
}

void TestControlPanel::dragging()
{
    mPanel->setMaxDuration(100);
    mPanel->grab();
    QSlider *seek = slider("hSlider_Seek");
    const QPoint centre = seek->rect().center();
    QTest::mouseClick(seek, Qt::LeftButton, {}, centre); // there is nothing to seek in
    QCOMPARE(requests(), QString());
    mPanel->setState(QMediaPlayer::PlayingState);
    // Far from the handle, which jumps there.
    QTest::mousePress(seek, Qt::LeftButton, {}, {seek->width() * 3 / 4, centre.y()});
    const int start = seek->sliderPosition();
    QVERIFY2(qAbs(start - 75) <= 2, qPrintable(QString::number(start)));
    QCOMPARE(requests(), QStringLiteral("sliderStatusChanged true %1").arg(start));

    QMouseEvent move(QEvent::MouseMove, centre, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(seek, &move);
    const int middle = seek->sliderPosition();
    QVERIFY2(qAbs(middle - 50) <= 2, qPrintable(QString::number(middle)));
    QCOMPARE(requests(), QStringLiteral("sliderMoved %1").arg(middle));
    // The player's position does not tear the handle away, but the text tells it.
    QCOMPARE(timeText(100, 7), QString("00:07/01:40"));
    QCOMPARE(seek->sliderPosition(), middle);

    QTest::mouseRelease(seek, Qt::LeftButton, {}, centre);
    QCOMPARE(requests(), QStringLiteral("sliderStatusChanged false %1").arg(middle));

    QTest::mousePress(seek, Qt::LeftButton, {}, centre);
    requests();
    mPanel->setState(QMediaPlayer::StoppedState); // lets go of it, and asks for nothing
    QTest::mouseRelease(seek, Qt::LeftButton, {}, centre);
    QCOMPARE(requests(), QString());
    QVERIFY(!seek->isSliderDown());
    mPanel->setState(QMediaPlayer::PlayingState);
    mPanel->setCurrentPosition(20);
    for (const int delta : {120, -120}) {
        QWheelEvent wheel(centre, seek->mapToGlobal(centre), {}, {0, delta}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(seek, &wheel);
    }
    QCOMPARE(requests(), QString("sliderMoved 21, sliderMoved 19"));
    QCOMPARE(seek->value(), 20); // until the player is there
}

void TestControlPanel::readOuts()
{
    Configuration::GetInstance()->setSpeedUnit(0);
    mPanel->setGpsSpeed(7);
    QCOMPARE(text("pBtn_SP"), QString("007 km/h"));
    Configuration::GetInstance()->setSpeedUnit(1);
    mPanel->setGpsSpeed(157);
    QCOMPARE(text("pBtn_SP"), QString("097 MPH")); // 97.55
    mPanel->setGpsDataTime(QDateTime({2026, 3, 4}, {17, 5, 9}));
    mPanel->setLongitudeAndLatitude("S3.5", "W12.7");
    QCOMPARE(timeText(100, 50), QString("00:50/01:40"));

    // A change of the language leaves what the recording has filled in.
    child("tBtn_Mute")->setToolTip("other language");
    child("pBtn_Up")->setToolTip("other language");
    mPanel->setPlaybackRate(2.0f);
    requests();
    Configuration::GetInstance()->setLanguage(EnglishUS);
    QCOMPARE(child("tBtn_Mute")->toolTip(), QString("Volume"));
    QCOMPARE(child("pBtn_Up")->toolTip(), QString("Slow"));
    QCOMPARE(requests(), QString("changeRate 2"));
    QCOMPARE(text("lbl_Text"), QString("2.0x"));
    QCOMPARE(text("lbl_GpsDateTime"), QString("2026/03/04 17:05:09"));
    QCOMPARE(text("lbl_LongitudeAndLatitude"), QString("S3.5,W12.7"));
    QCOMPARE(text("pBtn_SP"), QString("097 MPH"));
    QCOMPARE(text("lbl_PlayTime"), QString("00:50/01:40"));

    mPanel->reinit();
    const auto shown = QDateTime::fromString(text("lbl_GpsDateTime"), "yyyy/MM/dd hh:mm:ss");
    QVERIFY(qAbs(shown.secsTo(QDateTime::currentDateTime())) <= 2);
    QCOMPARE(text("lbl_LongitudeAndLatitude"), QString("00.000000,000.000000"));
    QCOMPARE(text("pBtn_SP"), QString("000 MPH"));
    QCOMPARE(text("lbl_PlayTime"), QString("00:00/01:40"));
}

/** Speed and coordinates go grey, and say so; date and time are the camera's own. */
void TestControlPanel::withoutFix()
{
    const auto brightest = [this](const char *label) {
        const QImage image = child(label)->grab().toImage();
        int most = 0;
        for (int i = 0; i < image.width() * image.height(); ++i)
            most = qMax(most, qGray(image.pixel(i % image.width(), i / image.width())));
        return most;
    };
    mPanel->setStyleSheet(QStringLiteral("background: rgb(44, 44, 52)"));
    mPanel->setHasFix(false);
    Configuration::GetInstance()->setLanguage(EnglishUS); // which the form's words come back with
    for (const char *label : {"pBtn_SP", "lbl_LongitudeAndLatitude"}) {
        // On this ground 3 : 1 takes a grey of 119; the normal one is 210.
        QVERIFY(brightest(label) >= 119 && brightest(label) < 160);
        QVERIFY(child(label)->accessibleDescription().endsWith(" (no position fix)"));
        QCOMPARE(child(label)->toolTip(), child(label)->accessibleDescription());
    }
    QVERIFY(brightest("lbl_GpsDateTime") > 190);
    mPanel->setHasFix(true);
    QVERIFY(brightest("pBtn_SP") > 190 && brightest("lbl_LongitudeAndLatitude") > 190);
    QCOMPARE(child("pBtn_SP")->accessibleDescription(), QString("Speed"));
    QCOMPARE(child("pBtn_SP")->toolTip(), QString());
}

void TestControlPanel::stepper()
{
    auto *stepper = mPanel->findChild<FComboBox *>("fcbox_Rate");
    const QWidget *up = child("pBtn_Up");
    const QWidget *down = child("pBtn_Down");
    QVERIFY(up->isEnabled() && down->isEnabled());
    QCOMPARE(pressed("pBtn_Down"), QString("changeRate 2"));
    QVERIFY(up->isEnabled() && !down->isEnabled());
    stepper->on_pBtn_Down_clicked();
    QCOMPARE(requests(), QString());
    QCOMPARE(pressed("pBtn_Up"), QString("changeRate 1"));
    QCOMPARE(pressed("pBtn_Up"), QString("changeRate 0.5"));
    QVERIFY(!up->isEnabled() && down->isEnabled());
    stepper->on_pBtn_Up_clicked();
    QCOMPARE(requests(), QString());

    // Selecting leaves the buttons as they are.
    for (int index : {3, 2, 2})
        stepper->setCurrentIndex(index);
    QCOMPARE(requests(), QString("changeRate 2, changeRate 2"));
    QCOMPARE(text("lbl_Text"), QString("2.0x"));
    QVERIFY(!up->isEnabled() && down->isEnabled());
    QVERIFY(!stepper->itemData(3, Qt::UserRole).isValid());

    mPanel->setPlaybackRate(0.5f);
    mPanel->setPlaybackRate(2.00001f); // near enough
    for (float rate : {2.0001f, 1.5f, 0.0f})
        mPanel->setPlaybackRate(rate);
    QCOMPARE(requests(), QString("changeRate 0.5, changeRate 2"));
    QCOMPARE(mPanel->playbackRate(), 2.0);
}

QTEST_MAIN(TestControlPanel)
#include "tst_controlpanel.moc"
