// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"
#include "controlpanel.h"
#include "mainwindows.h"
#include "mediafile.h"
#include "patience.h"
#include "playareamanager.h"
#include "shortcuts.h"

#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QSignalSpy>
#include <QSlider>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include <memory>
#include <utility>

namespace {

constexpr int RecordingSeconds = 20;
constexpr int FramesPerSecond = 30; // of the recordings made here

/** What real keys go to; null while the program does not have the keyboard. */
QWidget *keyboardOwner()
{
    QWidget *window = QApplication::activeWindow();
    return window && window->focusWidget() ? window->focusWidget() : window;
}

} // namespace

/** Keys in the main window, and in a picture that fills the screen, under a window manager. */
class tst_Shortcuts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void volume_data() { windowAndFullScreen(); }
    void volume();
    void muteAndRate_data() { windowAndFullScreen(); }
    void muteAndRate();
    void screenshot_data() { windowAndFullScreen(); }
    void screenshot();
    void frames_data() { windowAndFullScreen(); }
    void frames();
    void framesWhilePlaying();
    void framesInAnotherSize();
    void beginningAndEnd_data() { windowAndFullScreen(); }
    void beginningAndEnd();
    void rows_data() { windowAndFullScreen(); }
    void rows();
    void fullScreen();
    void dialogs_data();
    void dialogs();
    void heldKeys_data();
    void heldKeys();
    void otherModifiersDoNothing();
    void typingIsLeftAlone();
    void keysOfARealKeyboard();
    void listFitsASmallScreen();

private:
    static void windowAndFullScreen();
    void playPausedAt(int second);
    void fillScreen();
    void waitForStandstill();
    void startAsTold();
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void pressAgain(int key);
    int chosenRow() const { return child<QTableView>("tbl_PlayListView")->currentIndex().row(); }
    int volumeShown() const { return child<QSlider>("hSlider_Volume")->value(); }
    qint64 positionMs() const { return player()->position(); }
    qint64 frame() const { return positionMs() * FramesPerSecond / 1000; }
    QString rateShown() const
    {
        return child<QWidget>("fcbox_Rate")->findChild<QLabel *>("lbl_Text")->text();
    }
    template <typename Widget>
    Widget *child(const char *name) const
    {
        return mWindow->findChild<Widget *>(QLatin1String(name));
    }
    PlayAreaManager *area() const { return child<PlayAreaManager>("wgt_PlayArea"); }
    QMediaPlayer *player() const { return area()->mainPlayer()->player(); }

    QTemporaryDir mFolder;
    std::unique_ptr<MainWindows> mWindow;
};

void tst_Shortcuts::initTestCase()
{
    QApplication::setQuitOnLastWindowClosed(false); // there is a window for each test
    QCoreApplication::setOrganizationName(QStringLiteral("Quellfern"));
    QCoreApplication::setApplicationName(QStringLiteral("Talvor Player V1.6 20200828"));
    for (const char *name : {"first.mp4", "second.mp4", "third.mp4"})
        QVERIFY(makeMediaFile(mFolder.filePath(QLatin1String(name)), RecordingSeconds));
}

void tst_Shortcuts::init()
{
    Configuration::GetInstance()->setMaps(MapBaidu); // which is not waited for
    Configuration::GetInstance()->setLanguage(EnglishUS);
    Configuration::GetInstance()->setMainwindowsRect(QRect(300, 150, 1000, 700));
    Configuration::GetInstance()->setMainwindowsIsMaximize(false);
    mWindow = std::make_unique<MainWindows>();
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get(), PatienceMs));
}

void tst_Shortcuts::cleanup()
{
    mWindow.reset();
}

void tst_Shortcuts::windowAndFullScreen()
{
    QTest::addColumn<bool>("isFull");
    QTest::newRow("window") << false;
    QTest::newRow("full screen") << true;
}

void tst_Shortcuts::playPausedAt(int second)
{
    QList<QUrl> urls;
    for (const char *name : {"first.mp4", "second.mp4", "third.mp4"})
        urls.append(QUrl::fromLocalFile(mFolder.filePath(QLatin1String(name))));
    mWindow->openRecordings(urls);
    QTRY_COMPARE(area()->state(), QMediaPlayer::PlayingState);
    QTRY_COMPARE(child<QSlider>("hSlider_Seek")->maximum(), RecordingSeconds);
    QTRY_VERIFY(positionMs() > 0);
    area()->pause();
    QTRY_COMPARE(area()->state(), QMediaPlayer::PausedState);
    area()->seek(second);
    QTRY_COMPARE(positionMs(), second * 1000);
}

void tst_Shortcuts::fillScreen()
{
    area()->toggleFullScreen();
    QTRY_VERIFY(area()->mainPlayer()->isFullScreen() && area()->mainPlayer()->isActiveWindow());
}

/** The media backend takes its time to pause. */
void tst_Shortcuts::waitForStandstill()
{
    qint64 seenMs = -1;
    QTRY_VERIFY(std::exchange(seenMs, positionMs()) == positionMs());
}

/** The first recording paused at its fifth second, in the window or filling the screen. */
void tst_Shortcuts::startAsTold()
{
    QFETCH(const bool, isFull);
    playPausedAt(5);
    if (isFull)
        fillScreen();
}

void tst_Shortcuts::press(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(keyboardOwner(), Qt::Key(key), modifiers);
}

/** As a keyboard does for a key that is held. */
void tst_Shortcuts::pressAgain(int key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(mWindow.get(), &event);
}

void tst_Shortcuts::volume()
{
    startAsTold();
    player()->setVolume(40);
    const int before = volumeShown();
    press(Qt::Key_Up);
    QVERIFY2(qAbs(volumeShown() - before - 5) <= 1, qPrintable(QString::number(volumeShown())));
    QVERIFY(player()->volume() > 40);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    QVERIFY2(qAbs(volumeShown() - before + 5) <= 2, qPrintable(QString::number(volumeShown())));
    QVERIFY(player()->volume() < 40);
    for (int i = 0; i < 21; ++i)
        press(Qt::Key_Down);
    QCOMPARE(player()->volume(), 0);
    for (int i = 0; i < 40; ++i)
        press(Qt::Key_Up);
    QCOMPARE(player()->volume(), 100);
}

void tst_Shortcuts::muteAndRate()
{
    startAsTold();
    const auto *button = child<QToolButton>("tBtn_Mute");
    for (const bool muted : {true, false}) {
        press(Qt::Key_M);
        QTRY_COMPARE(player()->isMuted(), muted);
        QCOMPARE(button->isChecked(), muted);
    }
    using Steps = QVector<QPair<int, double>>;
    for (const auto &[key, rate] : Steps{{Qt::Key_Plus, 2.0},
                                         {Qt::Key_Plus, 2.0},
                                         {Qt::Key_Minus, 1.0},
                                         {Qt::Key_BracketLeft, 0.5},
                                         {Qt::Key_BracketRight, 1.0}}) {
        press(key);
        QTRY_COMPARE(player()->playbackRate(), rate);
        QCOMPARE(rateShown(), QString::number(rate, 'f', 1) + 'x');
    }
}

void tst_Shortcuts::screenshot()
{
    startAsTold();
    const QSignalSpy screenshots(child<ControlPanel>("wgt_ControlPanel"),
                                 &ControlPanel::screenshot);
    press(Qt::Key_S);
    QCOMPARE(screenshots.size(), 1);
}

void tst_Shortcuts::frames()
{
    startAsTold();
    const qint64 first = frame();
    QCOMPARE(first, 5 * FramesPerSecond);
    for (int i = 1; i <= 40; ++i) {
        press(Qt::Key_Period);
        QTRY_COMPARE(frame(), first + i);
    }
    press(Qt::Key_Comma);
    QTRY_COMPARE(frame(), first + 39);
    // The letter on a Russian keyboard's key of the full stop.
    QTest::sendKeyEvent(QTest::Click, keyboardOwner(), Qt::Key(0x042E), QStringLiteral("\u044E"),
                        Qt::NoModifier);
    QTRY_COMPARE(frame(), first + 40);
    area()->seek(0);
    QTRY_COMPARE(positionMs(), 0);
    press(Qt::Key_Comma);
    QCoreApplication::processEvents();
    QCOMPARE(frame(), 0);
    QCOMPARE(area()->state(), QMediaPlayer::PausedState);
}

void tst_Shortcuts::framesWhilePlaying()
{
    playPausedAt(5);
    press(Qt::Key_Period);
    QTRY_COMPARE(frame(), 5 * FramesPerSecond + 1);
    press(Qt::Key_Space);
    QTRY_VERIFY(area()->state() == QMediaPlayer::PlayingState && positionMs() > 5200);
    press(Qt::Key_Comma);
    QTRY_COMPARE(area()->state(), QMediaPlayer::PausedState);
    waitForStandstill();
    const qint64 paused = frame();
    QVERIFY(paused >= 156); // 5.2 s
    // The pause has brought up the picture after it.
    press(Qt::Key_Period);
    QTRY_COMPARE(frame(), paused + 2);
    press(Qt::Key_Comma);
    QTRY_COMPARE(frame(), paused + 1);
}

/** The picture is made anew for it, and is that of the position then. */
void tst_Shortcuts::framesInAnotherSize()
{
    playPausedAt(5);
    press(Qt::Key_Space);
    QTRY_VERIFY(area()->state() == QMediaPlayer::PlayingState && positionMs() > 5200);
    press(Qt::Key_Space);
    QTRY_COMPARE(area()->state(), QMediaPlayer::PausedState);
    fillScreen();
    QTRY_VERIFY(area()->mainPlayer()->isRefitted());
    waitForStandstill();
    const qint64 paused = frame();
    press(Qt::Key_Period);
    QTRY_COMPARE(frame(), paused + 1);
}

void tst_Shortcuts::beginningAndEnd()
{
    startAsTold();
    press(Qt::Key_Home);
    QTRY_COMPARE(positionMs(), 0);
    press(Qt::Key_Space);
    QTRY_VERIFY(area()->state() == QMediaPlayer::PlayingState && positionMs() > 0);
    press(Qt::Key_End);
    QTRY_COMPARE(positionMs(), player()->duration() - 1000);
    QCOMPARE(area()->state(), QMediaPlayer::PausedState);
    QCOMPARE(chosenRow(), 0);
    press(Qt::Key_Home);
    QTRY_COMPARE(positionMs(), 0);
    area()->stop();
    QTRY_COMPARE(area()->state(), QMediaPlayer::StoppedState);
    press(Qt::Key_End);
    QCoreApplication::processEvents();
    QCOMPARE(positionMs(), 0);
}

void tst_Shortcuts::rows()
{
    startAsTold();
    const auto plays = [this](const char *name) {
        return player()->media().request().url().fileName() == QLatin1String(name) &&
               area()->state() == QMediaPlayer::PlayingState;
    };
    press(Qt::Key_PageDown);
    QTRY_VERIFY(plays("second.mp4"));
    QCOMPARE(chosenRow(), 1);
    press(Qt::Key_PageUp);
    QTRY_VERIFY(plays("first.mp4"));

    press(Qt::Key_Up, Qt::ControlModifier); // there is none above
    QCOMPARE(chosenRow(), 0);
    for (const int row : {1, 2, 2}) {
        press(Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(chosenRow(), row);
    }
    QVERIFY(plays("first.mp4"));
    press(Qt::Key_Return);
    QTRY_VERIFY(plays("third.mp4"));
    press(Qt::Key_Up, Qt::ControlModifier);
    press(Qt::Key_Enter, Qt::KeypadModifier);
    QTRY_VERIFY(plays("second.mp4"));
}

void tst_Shortcuts::fullScreen()
{
    playPausedAt(5);
    PlayerWidget *picture = area()->mainPlayer();
    for (const int key : {Qt::Key_F, Qt::Key_F11}) {
        press(key);
        QTRY_VERIFY(picture->isFullScreen() && picture->isActiveWindow());
        press(key);
        QTRY_VERIFY(!picture->isWindow() && mWindow->isActiveWindow());
    }
    fillScreen();
    press(Qt::Key_Escape);
    QTRY_VERIFY(!picture->isWindow() && mWindow->isActiveWindow());
}

void tst_Shortcuts::dialogs_data()
{
    QTest::addColumn<bool>("isFull");
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QByteArray>("dialog");
    const Qt::KeyboardModifiers none;
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    const Qt::KeyboardModifiers control = Qt::ControlModifier;
    QTest::newRow("open") << false << int(Qt::Key_O) << control << QByteArray("QFileDialog");
    QTest::newRow("open, full screen")
        << true << int(Qt::Key_O) << control << QByteArray("QFileDialog");
    QTest::newRow("settings") << false << int(Qt::Key_Comma) << control << QByteArray("Setting");
    QTest::newRow("settings, full screen")
        << true << int(Qt::Key_Comma) << control << QByteArray("Setting");
    QTest::newRow("keys") << false << int(Qt::Key_F1) << none << QByteArray("KeyList");
    QTest::newRow("keys, question mark")
        << false << int(Qt::Key_Question) << shift << QByteArray("KeyList");
    QTest::newRow("keys, full screen") << true << int(Qt::Key_F1) << none << QByteArray("KeyList");
}

void tst_Shortcuts::dialogs()
{
    QFETCH(const bool, isFull);
    QFETCH(const int, key);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    QFETCH(const QByteArray, dialog);
    startAsTold();
    // Most of them wait for their end where they are shown.
    QString seen;
    QSet<QWidget *> all;
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&] {
        QWidget *shown = QApplication::activeModalWidget();
        if (!shown || !shown->isActiveWindow())
            return;
        all.insert(shown);
        if (seen.isEmpty()) {
            seen = QLatin1String(shown->metaObject()->className());
            press(Qt::Key_M);
            pressAgain(Qt::Key_Up);
        }
        QTest::keyClick(shown, Qt::Key_Escape);
    });
    watch.start(20);
    const int volume = volumeShown();
    press(key, modifiers);
    press(key, modifiers); // opens no second one
    QTRY_COMPARE(seen, QString(dialog));
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QCOMPARE(all.size(), 1);
    QTRY_VERIFY(QApplication::activeWindow());
    QCOMPARE(area()->mainPlayer()->isFullScreen(), isFull && dialog == "KeyList");
    QCOMPARE(volumeShown(), volume);
    QVERIFY(!player()->isMuted());
    press(Qt::Key_M); // the keys are back
    QTRY_VERIFY(player()->isMuted());
}

void tst_Shortcuts::heldKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("repeats");
    QTest::newRow("louder") << int(Qt::Key_Up) << true;
    QTest::newRow("picture on") << int(Qt::Key_Period) << true;
    QTest::newRow("mute") << int(Qt::Key_M) << false;
    QTest::newRow("faster") << int(Qt::Key_Plus) << false;
    QTest::newRow("full screen") << int(Qt::Key_F) << false;
    QTest::newRow("screenshot") << int(Qt::Key_S) << false;
    QTest::newRow("next") << int(Qt::Key_PageDown) << false;
    QTest::newRow("keys") << int(Qt::Key_F1) << false;
}

void tst_Shortcuts::heldKeys()
{
    QFETCH(const int, key);
    playPausedAt(5);
    QSignalSpy screenshots(child<ControlPanel>("wgt_ControlPanel"), &ControlPanel::screenshot);
    const auto state = [&] {
        return QVariantList{volumeShown(),
                            frame(),
                            player()->isMuted(),
                            rateShown(),
                            area()->mainPlayer()->isFullScreen(),
                            screenshots.size(),
                            chosenRow(),
                            QApplication::activeModalWidget() != nullptr};
    };
    const QVariantList before = state();
    pressAgain(key);
    QCoreApplication::processEvents();
    QTEST(state() != before, "repeats");
    press(key);
    QTRY_VERIFY(state() != before);
}

void tst_Shortcuts::otherModifiersDoNothing()
{
    playPausedAt(5);
    const QSignalSpy screenshots(child<ControlPanel>("wgt_ControlPanel"),
                                 &ControlPanel::screenshot);
    const int volume = volumeShown();
    for (const Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::AltModifier}) {
        for (const int key : {Qt::Key_M, Qt::Key_S, Qt::Key_F, Qt::Key_F1, Qt::Key_PageDown})
            press(key, modifier);
    }
    press(Qt::Key_Up, Qt::AltModifier);
    QCoreApplication::processEvents();
    QVERIFY(!player()->isMuted());
    QCOMPARE(screenshots.size(), 0);
    QVERIFY(!area()->mainPlayer()->isFullScreen());
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(chosenRow(), 0);
    QCOMPARE(volumeShown(), volume);
}

void tst_Shortcuts::typingIsLeftAlone()
{
    QString typed;
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&] {
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->isActiveWindow())
            return;
        auto *line = dialog->findChild<QLineEdit *>("lEdit_SavePath");
        line->clear();
        QTest::keyClicks(line, "smf,.+-[]?");
        typed = line->text();
        dialog->close();
    });
    watch.start(20);
    press(Qt::Key_Comma, Qt::ControlModifier);
    QTRY_COMPARE(typed, QStringLiteral("smf,.+-[]?"));
    QVERIFY(!player()->isMuted());
}

/** Where plus and question mark come with Shift. */
void tst_Shortcuts::keysOfARealKeyboard()
{
    playPausedAt(5);
    const auto type = [](const char *key) {
        QCOMPARE(QProcess::execute("xdotool", {"key", QLatin1String(key)}), 0);
    };
    type("plus");
    QTRY_COMPARE(rateShown(), QStringLiteral("2.0x"));
    type("KP_Subtract");
    QTRY_COMPARE(rateShown(), QStringLiteral("1.0x"));
    type("period");
    QTRY_COMPARE(frame(), 5 * FramesPerSecond + 1);
    type("question");
    QTRY_VERIFY(QApplication::activeModalWidget() &&
                QApplication::activeModalWidget()->isActiveWindow());
    type("Escape");
    QTRY_VERIFY(!QApplication::activeModalWidget());
    QTRY_VERIFY(mWindow->isActiveWindow());
    type("f");
    QTRY_VERIFY(area()->mainPlayer()->isFullScreen() && area()->mainPlayer()->isActiveWindow());
    type("m");
    QTRY_VERIFY(player()->isMuted());
}

void tst_Shortcuts::listFitsASmallScreen()
{
    for (int language = Chinese; language <= Korean; ++language) {
        Configuration::GetInstance()->setLanguage(Language_e(language));
        const QVector<KeyList::Line> lines = Shortcuts::lines();
        KeyList list(lines, mWindow.get());
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list, PatienceMs));
        QVERIFY2(list.width() <= 1366 && list.height() <= 768,
                 qPrintable(QString("%1 x %2").arg(list.width()).arg(list.height())));
        QStringList shown;
        for (const QLabel *label : list.findChildren<QLabel *>()) {
            QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->text()));
            shown.append(label->text());
        }
        for (const KeyList::Line &line : lines)
            QVERIFY2(shown.contains(line.description), qPrintable(line.description));
    }
}

QTEST_MAIN(tst_Shortcuts)
#include "tst_shortcuts.moc"
