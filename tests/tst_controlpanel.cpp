// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"
#include "controlpanel.h"
#include "fcombobox.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QRegularExpression>
#include <QSlider>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTranslator>
#include <QtTest>

#include <functional>

namespace {
/** What the panel asked for, in order, as "signal" or "signal argument ...". */
class Requests : public QObject
{
public:
    explicit Requests(const ControlPanel *panel);

    /** The requests since the last call. */
    QStringList take()
    {
        const QStringList taken = mRequests;
        mRequests.clear();
        return taken;
    }

private:
    template <typename... Arguments>
    void note(const ControlPanel *panel, void (ControlPanel::*signal)(Arguments...),
              const QString &name)
    {
        connect(panel, signal, this, [this, name](Arguments... arguments) {
            mRequests.append(QStringList({name, QVariant(arguments).toString()...}).join(' '));
        });
    }

    QStringList mRequests;
};

Requests::Requests(const ControlPanel *panel)
{
    note(panel, &ControlPanel::openFile, "openFile");
    note(panel, &ControlPanel::screenshot, "screenshot");
    note(panel, &ControlPanel::play, "play");
    note(panel, &ControlPanel::pause, "pause");
    note(panel, &ControlPanel::stop, "stop");
    note(panel, &ControlPanel::next, "next");
    note(panel, &ControlPanel::previous, "previous");
    note(panel, &ControlPanel::changeVolume, "changeVolume");
    note(panel, &ControlPanel::changeMuting, "changeMuting");
    note(panel, &ControlPanel::changeRate, "changeRate");
    note(panel, &ControlPanel::sliderMoved, "sliderMoved");
    note(panel, &ControlPanel::sliderStatusChanged, "sliderStatusChanged");
}

/** Stands for a language: its texts are the source texts in brackets. */
class BracketTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool isKnown =
            qstrcmp(context, "ControlPanel") == 0 || qstrcmp(context, "FComboBox") == 0;
        return isKnown ? '[' + QString::fromUtf8(source) + ']' : QString();
    }
};

QStringList &warnings()
{
    static QStringList list;
    return list;
}

void takeMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        warnings().append(text);
}

using Action = std::function<void(ControlPanel *)>;

template <typename Widget>
Widget *child(const QWidget *parent, const char *name)
{
    auto *widget = parent->findChild<Widget *>(QLatin1String(name));
    if (!widget)
        qFatal("No widget %s", name);
    return widget;
}

Action press(const char *button, QMediaPlayer::State state = QMediaPlayer::PlayingState)
{
    return [=](ControlPanel *panel) {
        panel->setState(state);
        QTest::mouseClick(child<QWidget>(panel, button), Qt::LeftButton);
    };
}

Action slideVolume(int value)
{
    return [=](ControlPanel *panel) { child<QSlider>(panel, "hSlider_Volume")->setValue(value); };
}

Action rate(float value)
{
    return [=](ControlPanel *panel) { panel->setPlaybackRate(value); };
}

Action step(QMediaPlayer::State state, int deltaSeconds)
{
    return [=](ControlPanel *panel) {
        panel->setMaxDuration(30);
        panel->setCurrentPosition(20);
        panel->setState(state);
        panel->setSliderMove(deltaSeconds);
    };
}

Action positions(int durationS, const QList<int> &positionsS)
{
    return [=](ControlPanel *panel) {
        panel->setMaxDuration(durationS);
        for (int seconds : positionsS)
            panel->setCurrentPosition(seconds);
    };
}

Action speed(int unit, int kmh)
{
    return [=](ControlPanel *panel) {
        panel->setGpsSpeed(55);
        Configuration::GetInstance()->setSpeedUnit(unit);
        panel->setGpsSpeed(kmh);
    };
}
} // namespace

Q_DECLARE_METATYPE(Action)

class TestControlPanel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void firstSight();
    void fixedWidgets_data();
    void fixedWidgets();
    void picturesExist();
    void buildsWithoutWarnings();
    void requests_data();
    void requests();
    void texts_data();
    void texts();
    void mirrorsTheState();
    void mute();
    void setVolume_data();
    void setVolume();
    void dragging();
    void reinit();
    void language();
    void stepperFills();
    void stepperButtons_data();
    void stepperButtons();
    void stepperSelection();

private:
    QString text(const char *label) const { return child<QLabel>(mPanel.get(), label)->text(); }

    QTemporaryDir mHome;
    std::unique_ptr<ControlPanel> mPanel;
    std::unique_ptr<Requests> mRequests;
};

void TestControlPanel::initTestCase()
{
    QVERIFY(mHome.isValid());
    qputenv("XDG_DATA_HOME", QFile::encodeName(mHome.path()));
    QLoggingCategory::setFilterRules("*.debug=false");
}

void TestControlPanel::init()
{
    Configuration::GetInstance()->setSpeedUnit(0);
    mPanel = std::make_unique<ControlPanel>();
    mPanel->resize(800, 130);
    mRequests = std::make_unique<Requests>(mPanel.get());
}

void TestControlPanel::firstSight()
{
    mPanel->grab();
    QCOMPARE(mPanel->state(), QMediaPlayer::StoppedState);
    QVERIFY(!mPanel->isMuted());
    QCOMPARE(mPanel->playbackRate(), 1.0);
    QCOMPARE(text("lbl_Text"), QString("1.0x"));
    const auto *volumeSlider = child<QSlider>(mPanel.get(), "hSlider_Volume");
    QCOMPARE(volumeSlider->value(), 30);
    QCOMPARE(volumeSlider->minimum(), 0);
    QCOMPARE(volumeSlider->maximum(), 100);
    QVERIFY(child<QToolButton>(mPanel.get(), "tBtn_Mute")->isCheckable());
    for (const char *label : {"lbl_GpsDateTime", "pBtn_SP", "lbl_LongitudeAndLatitude"}) {
        const auto *readOut = child<QLabel>(mPanel.get(), label);
        QCOMPARE(readOut->font().pixelSize(), 11);
        QCOMPARE(readOut->font().family(), QString("Calibri"));
        QCOMPARE(readOut->alignment(), Qt::Alignment(Qt::AlignCenter));
    }
    QCOMPARE(child<QLabel>(mPanel.get(), "lbl_PlayTime")->font().pixelSize(), 12);
}

void TestControlPanel::fixedWidgets_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("toolTip");

    QTest::newRow("btn_OpenFile") << QSize(32, 32) << "Open Files";
    QTest::newRow("btn_ScreenShot") << QSize(32, 32) << "Capture";
    QTest::newRow("btn_Previous") << QSize(24, 24) << "Previous";
    QTest::newRow("btn_PlayOrPause") << QSize(32, 32) << "Play";
    QTest::newRow("btn_Stop") << QSize(32, 32) << "Stop";
    QTest::newRow("btn_Next") << QSize(24, 24) << "Next";
    QTest::newRow("fcbox_Rate") << QSize(60, 32) << "";
    QTest::newRow("tBtn_Mute") << QSize(20, 20) << "Volume";
    QTest::newRow("hSlider_Volume") << QSize(100, 12) << "";
    QTest::newRow("pBtn_Up") << QSize(16, 16) << "Slow";
    QTest::newRow("pBtn_Down") << QSize(16, 16) << "Quick";
}

void TestControlPanel::fixedWidgets()
{
    const auto *widget = child<QWidget>(mPanel.get(), QTest::currentDataTag());
    mPanel->grab();
    QTEST(widget->size(), "size");
    QTEST(widget->toolTip(), "toolTip");
    QCOMPARE(widget->focusPolicy(), Qt::NoFocus);
}

void TestControlPanel::picturesExist()
{
    const QRegularExpression picture("url\\(([^)]*)\\)");
    QStringList found;
    for (const QWidget *widget : mPanel->findChildren<QWidget *>()) {
        auto matches = picture.globalMatch(widget->styleSheet());
        while (matches.hasNext()) {
            found.append(matches.next().captured(1));
            QVERIFY2(!QImage(found.last()).isNull(), qPrintable(found.last()));
        }
    }
    for (const char *name : {"speedup_normal", "speedup_hover", "speedup_pressed",
                             "speeddown_normal", "speeddown_hover", "speeddown_pressed"})
        QVERIFY2(found.contains(QStringLiteral(":/image/%1.png").arg(name)), name);
}

/** Qt warns, and goes on, about slots named for objects or signals that do not exist. */
void TestControlPanel::buildsWithoutWarnings()
{
    warnings().clear();
    const QtMessageHandler before = qInstallMessageHandler(takeMessage);
    ControlPanel().grab();
    qInstallMessageHandler(before);
    QCOMPARE(warnings(), QStringList());
}

void TestControlPanel::requests_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<QStringList>("requests");
    const auto row = [](const char *name, const Action &action, const QStringList &requests) {
        QTest::newRow(name) << action << requests;
    };
    const auto stopped = QMediaPlayer::StoppedState;
    const auto playing = QMediaPlayer::PlayingState;
    const auto paused = QMediaPlayer::PausedState;

    row("open", press("btn_OpenFile"), {"openFile"});
    row("capture", press("btn_ScreenShot"), {"screenshot"});
    row("previous", press("btn_Previous"), {"previous"});
    row("next", press("btn_Next"), {"next"});
    row("stop", press("btn_Stop"), {"stop"});
    row("stop while paused", press("btn_Stop", paused), {"stop"});
    row("stop while stopped", press("btn_Stop", stopped), {});
    row("play", press("btn_PlayOrPause", stopped), {"play"});
    row("play on", press("btn_PlayOrPause", paused), {"play"});
    row("pause", press("btn_PlayOrPause", playing), {"pause"});
    row("set stopped", [](ControlPanel *panel) { panel->setStoped(); }, {"stop"});

    row("step on", step(playing, 5), {"sliderMoved 25"});
    row("step back", step(paused, -5), {"sliderMoved 15"});
    row("step while stopped", step(stopped, 5), {});
    row("step to 0", step(playing, -20), {"sliderMoved 0"});
    row("step below 0", step(playing, -21), {});
    row("step to the end", step(paused, 10), {"sliderMoved 30"});
    row("step beyond the end", step(paused, 11), {});

    row("end of recording", positions(60, {59, 60, 61, 60}), {"next", "next"});
    row("end of nothing", positions(0, {0}), {});

    // A slider at s of 1 stands for the volume v = -ln(1 - s) / ln 100.
    row("silent", slideVolume(0), {"changeVolume 0"});
    row("nearly silent", slideVolume(1), {"changeVolume 0"});
    row("volume rounded up", slideVolume(5), {"changeVolume 1"});
    row("slider at half", slideVolume(50), {"changeVolume 15"});
    row("slider at 90", slideVolume(90), {"changeVolume 50"});
    row("slider at 99", slideVolume(99), {"changeVolume 100"});
    row("loudest", slideVolume(100), {"changeVolume 100"});

    row("slow", rate(0.5f), {"changeRate 0.5"});
    row("normal", rate(1.0f), {"changeRate 1"});
    row("quick", rate(2.0f), {"changeRate 2"});
    row("nearly quick", rate(2.00001f), {"changeRate 2"});
    row("not near enough", rate(2.0001f), {});
    row("between", rate(1.5f), {});
    row("no rate", rate(0.0f), {});
    row("quick button", press("pBtn_Down"), {"changeRate 2"});
    row("slow button", press("pBtn_Up"), {"changeRate 0.5"});
}

void TestControlPanel::requests()
{
    QFETCH(Action, action);
    action(mPanel.get());
    QTEST(mRequests->take(), "requests");
}

void TestControlPanel::texts_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<QByteArray>("label");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const Action &action, const char *label,
                        const char *expected) {
        QTest::newRow(name) << action << QByteArray(label) << expected;
    };
    const Action nothing = [](ControlPanel *) {};
    const char timeLabel[] = "lbl_PlayTime";
    const char speedLabel[] = "pBtn_SP";

    row("first date", nothing, "lbl_GpsDateTime", "0000/00/00 00:00:00");
    row("first position", nothing, "lbl_LongitudeAndLatitude", "N00.000000,E000.000000");
    row("first time", nothing, timeLabel, "00:00:00/00:00:00");
    row("first speed", nothing, speedLabel, "000 km/h");

    row("nothing open", positions(0, {0}), timeLabel, "00:00/00:00");
    row("before nothing", positions(0, {-1}), timeLabel, "00:00/00:00");
    row("duration not known", positions(0, {5}), timeLabel, "00:05/00:00");
    row("start", positions(65, {0}), timeLabel, "00:00/01:05");
    row("within", positions(600, {61}), timeLabel, "01:01/10:00");
    row("end", positions(60, {60}), timeLabel, "01:00/01:00");
    row("an hour", positions(3600, {3599}), timeLabel, "59:59/00:00");
    row("just above an hour", positions(3601, {10}), timeLabel, "00:00:10/01:00:01");
    row("most of a day", positions(86399, {45296}), timeLabel, "12:34:56/23:59:59");

    const auto stopped = [](ControlPanel *panel) {
        positions(100, {50})(panel);
        panel->setStoped();
    };
    row("stopped", stopped, timeLabel, "00:00/01:40");

    row("standing", speed(0, 0), speedLabel, "000 km/h");
    row("one digit", speed(0, 7), speedLabel, "007 km/h");
    row("four digits", speed(0, 1234), speedLabel, "1234 km/h");
    row("below a mile", speed(1, 1), speedLabel, "000 MPH");
    row("62.14 miles", speed(1, 100), speedLabel, "062 MPH");
    row("99.42 miles", speed(1, 160), speedLabel, "099 MPH");
    row("620.75 miles", speed(1, 999), speedLabel, "620 MPH");

    const QDateTime date({2026, 3, 4}, {17, 5, 9});
    row(
        "date", [=](ControlPanel *panel) { panel->setGpsDataTime(date); }, "lbl_GpsDateTime",
        "2026/03/04 17:05:09");
    row(
        "position", [](ControlPanel *panel) { panel->setLongitudeAndLatitude("S3.5", "W12.7"); },
        "lbl_LongitudeAndLatitude", "S3.5,W12.7");
}

void TestControlPanel::texts()
{
    QFETCH(Action, action);
    QFETCH(QByteArray, label);
    action(mPanel.get());
    QTEST(text(label), "expected");
}

void TestControlPanel::mirrorsTheState()
{
    const auto *stop = child<QPushButton>(mPanel.get(), "btn_Stop");
    const auto *play = child<QPushButton>(mPanel.get(), "btn_PlayOrPause");
    QVERIFY(!stop->isEnabled() && !play->isChecked());
    const auto stopped = QMediaPlayer::StoppedState;
    const auto playing = QMediaPlayer::PlayingState;
    const auto paused = QMediaPlayer::PausedState;
    for (auto state : {playing, paused, playing, stopped, paused, stopped}) {
        mPanel->setState(state);
        QCOMPARE(mPanel->state(), state);
        QCOMPARE(stop->isEnabled(), state != stopped);
        QCOMPARE(play->isChecked(), state == playing);
    }
    press("btn_PlayOrPause", playing)(mPanel.get());
    QCOMPARE(mPanel->state(), playing);
}

void TestControlPanel::mute()
{
    for (int round = 0; round < 2; ++round) {
        press("tBtn_Mute")(mPanel.get());
        QCOMPARE(mRequests->take(), QStringList{"changeMuting true"});
        QVERIFY(!mPanel->isMuted());
    }
    mPanel->setMuted(true);
    QVERIFY(mPanel->isMuted());
    QCOMPARE(mRequests->take(), QStringList());
    press("tBtn_Mute")(mPanel.get());
    QCOMPARE(mRequests->take(), QStringList{"changeMuting false"});
}

/** The slider stands at s = 1 - 100^-v for a volume v of 1, and is coarse where it is loud. */
void TestControlPanel::setVolume_data()
{
    QTest::addColumn<int>("volume");
    QTest::addColumn<int>("slider");
    QTest::addColumn<int>("volumeOfSlider");

    QTest::newRow("silent") << 0 << 0 << 0;
    QTest::newRow("lowest") << 1 << 5 << 1;    // 1 - 0.9550
    QTest::newRow("low") << 10 << 37 << 10;    // 1 - 0.6310
    QTest::newRow("half") << 50 << 90 << 50;   // 1 - 0.1
    QTest::newRow("high") << 75 << 97 << 76;   // 1 - 0.0316
    QTest::newRow("full") << 100 << 99 << 100; // 1 - 0.01
}

void TestControlPanel::setVolume()
{
    QFETCH(int, volume);
    mPanel->setVolume(volume);
    QTEST(child<QSlider>(mPanel.get(), "hSlider_Volume")->value(), "slider");
    QTEST(mPanel->volume(), "volumeOfSlider");
}

void TestControlPanel::dragging()
{
    mPanel->setMaxDuration(100);
    mPanel->grab();
    auto *slider = child<QSlider>(mPanel.get(), "hSlider_Seek");
    const QPoint handle(6, slider->height() / 2);
    QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, handle);
    QCOMPARE(mRequests->take(), QStringList{"sliderStatusChanged true 0"});

    const QPoint centre = slider->rect().center();
    QMouseEvent move(QEvent::MouseMove, centre, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(slider, &move);
    const int middle = slider->sliderPosition();
    QVERIFY2(qAbs(middle - 50) <= 2, qPrintable(QString::number(middle)));
    QCOMPARE(mRequests->take(), QStringList{QStringLiteral("sliderMoved %1").arg(middle)});
    // The player's position does not tear the handle away, but the text tells it.
    mPanel->setCurrentPosition(7);
    QCOMPARE(slider->sliderPosition(), middle);
    QCOMPARE(text("lbl_PlayTime"), QString("00:07/01:40"));

    QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, centre);
    QCOMPARE(mRequests->take(),
             QStringList{QStringLiteral("sliderStatusChanged false %1").arg(middle)});
    mPanel->setCurrentPosition(8);
    QCOMPARE(slider->value(), 8);
    QCOMPARE(mRequests->take(), QStringList());
}

void TestControlPanel::reinit()
{
    mPanel->setMaxDuration(100);
    mPanel->setCurrentPosition(50);
    mPanel->setGpsSpeed(88);
    const QString before = QDateTime::currentDateTime().toString("yyyy/MM/dd hh:mm:ss");
    mPanel->reinit();
    const QString after = QDateTime::currentDateTime().toString("yyyy/MM/dd hh:mm:ss");
    QVERIFY(text("lbl_GpsDateTime") >= before && text("lbl_GpsDateTime") <= after);
    QCOMPARE(text("lbl_LongitudeAndLatitude"), QString("00.000000,000.000000"));
    QCOMPARE(text("pBtn_SP"), QString("000 km/h"));
    QCOMPARE(text("lbl_PlayTime"), QString("00:00/01:40"));
    QCOMPARE(mRequests->take(), QStringList());
}

void TestControlPanel::language()
{
    press("pBtn_Down")(mPanel.get());
    positions(100, {50})(mPanel.get());
    mPanel->setGpsSpeed(55);
    mPanel->setLongitudeAndLatitude("N1", "E2");
    mRequests->take();
    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    Configuration::GetInstance()->setLanguage(EnglishUS);
    QCOMPARE(child<QWidget>(mPanel.get(), "btn_OpenFile")->toolTip(), QString("[Open Files]"));
    QCOMPARE(child<QWidget>(mPanel.get(), "tBtn_Mute")->toolTip(), QString("[Volume]"));
    QCOMPARE(child<QWidget>(mPanel.get(), "pBtn_Up")->toolTip(), QString("[Slow]"));
    QCOMPARE(child<QWidget>(mPanel.get(), "pBtn_Down")->toolTip(), QString("[Quick]"));
    QCOMPARE(mRequests->take(), QStringList{"changeRate 2"});
    // What the recording has filled in stays.
    QCOMPARE(text("lbl_Text"), QString("2.0x"));
    QCOMPARE(text("pBtn_SP"), QString("[055 km/h]"));
    QCOMPARE(text("lbl_PlayTime"), QString("00:50/01:40"));
    QCOMPARE(text("lbl_LongitudeAndLatitude"), QString("N1,E2"));
    QCoreApplication::removeTranslator(&translator);
}

void TestControlPanel::stepperFills()
{
    FComboBox stepper;
    QSignalSpy activated(&stepper, &FComboBox::activated);
    auto *up = stepper.findChild<QPushButton *>("pBtn_Up");
    auto *down = stepper.findChild<QPushButton *>("pBtn_Down");
    QVERIFY(!up->isEnabled() && !down->isEnabled());
    stepper.on_pBtn_Up_clicked();
    stepper.on_pBtn_Down_clicked();
    stepper.setCurrentIndex(0);
    stepper.onUpdateLanguage();
    QVERIFY(!stepper.itemData(0, Qt::UserRole).isValid());

    activated.clear(); // whether an empty list announces a language change is left open
    stepper.addItem("one", 1);
    QVERIFY(!up->isEnabled() && !down->isEnabled());
    stepper.addItem("two", "zwei");
    QVERIFY(up->isEnabled() && down->isEnabled());
    QTest::mouseClick(up, Qt::LeftButton);
    QVERIFY(up->isEnabled() && down->isEnabled());
    QCOMPARE(activated.count(), 0);
    for (int role : {int(Qt::UserRole), int(Qt::DisplayRole), -1})
        QCOMPARE(stepper.itemData(1, role), QVariant("zwei"));
    QVERIFY(!stepper.itemData(2, Qt::UserRole).isValid());
}

void TestControlPanel::stepperButtons_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<QString>("presses"); // u for the upper button, d for the lower one
    QTest::addColumn<QList<int>>("announced");
    QTest::addColumn<bool>("canUp");
    QTest::addColumn<bool>("canDown");

    using Indexes = QList<int>;
    QTest::newRow("none") << 1 << "" << Indexes{} << true << true;
    QTest::newRow("to the last") << 1 << "d" << Indexes{2} << true << false;
    QTest::newRow("beyond the last") << 1 << "dd" << Indexes{2} << true << false;
    QTest::newRow("to the first") << 1 << "u" << Indexes{0} << false << true;
    QTest::newRow("beyond the first") << 1 << "uu" << Indexes{0} << false << true;
    QTest::newRow("there and back") << 1 << "uddu" << Indexes{0, 1, 2, 1} << true << true;
    QTest::newRow("up from the first") << 0 << "u" << Indexes{} << true << true;
    QTest::newRow("down from the last") << 2 << "d" << Indexes{} << true << true;
    QTest::newRow("all the way") << 0 << "dd" << Indexes{1, 2} << true << false;
}

void TestControlPanel::stepperButtons()
{
    QFETCH(int, start);
    QFETCH(QString, presses);
    QFETCH(QList<int>, announced);
    FComboBox stepper;
    const QStringList items{"0.5x", "1.0x", "2.0x"};
    for (const QString &item : items)
        stepper.addItem(item, item.left(3).toDouble());
    stepper.setCurrentIndex(start);
    QList<int> indexes;
    connect(&stepper, &FComboBox::activated, this,
            [&indexes](int index) { indexes.append(index); });
    auto *up = stepper.findChild<QPushButton *>("pBtn_Up");
    auto *down = stepper.findChild<QPushButton *>("pBtn_Down");
    for (QChar sign : presses)
        QTest::mouseClick(sign == 'u' ? up : down, Qt::LeftButton);

    QCOMPARE(indexes, announced);
    const int current = announced.isEmpty() ? start : announced.last();
    QCOMPARE(stepper.currentIndex(), current);
    QCOMPARE(stepper.findChild<QLabel *>("lbl_Text")->text(), items.at(current));
    QTEST(up->isEnabled(), "canUp");
    QTEST(down->isEnabled(), "canDown");
}

void TestControlPanel::stepperSelection()
{
    auto *stepper = child<FComboBox>(mPanel.get(), "fcbox_Rate");
    QList<int> indexes;
    connect(stepper, &FComboBox::activated, this, [&indexes](int index) { indexes.append(index); });
    stepper->setCurrentIndex(3);
    QCOMPARE(indexes, QList<int>());
    QCOMPARE(text("lbl_Text"), QString("1.0x"));
    press("pBtn_Down")(mPanel.get());
    stepper->setCurrentIndex(0);
    stepper->setCurrentIndex(0);
    QCOMPARE(indexes, QList<int>({2, 0, 0}));
    QCOMPARE(text("lbl_Text"), QString("0.5x"));
    // Selecting leaves the buttons as the last step set them.
    QVERIFY(child<QPushButton>(mPanel.get(), "pBtn_Up")->isEnabled());
    QVERIFY(!child<QPushButton>(mPanel.get(), "pBtn_Down")->isEnabled());
    QCOMPARE(stepper->itemData(0, Qt::UserRole), QVariant(0.5));
    QCOMPARE(stepper->itemData(2, Qt::UserRole), QVariant(2.0));
}

QTEST_MAIN(TestControlPanel)
#include "tst_controlpanel.moc"
