// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"
#include "keyboardclaim.h"
#include "mainwindows.h"
#include "mediafile.h"
#include "patience.h"
#include "playareamanager.h"

#include <QApplication>
#include <QProcess>
#include <QScreen>
#include <QSignalSpy>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>
#include <QWebEngineView>
#include <QWindow>

#include <csignal>
#include <memory>

namespace {

const QRect WholeScreen(0, 0, 1600, 1000);
const QRect StoredRect(300, 150, 1000, 700);

/** Real input, through the X server and the window manager. */
void xdotool(const QString &arguments)
{
    QCOMPARE(QProcess::execute(QStringLiteral("xdotool"), arguments.split(QLatin1Char(' '))), 0);
}

void clickAt(const QPoint &place, int times)
{
    xdotool(QStringLiteral("mousemove %1 %2 click --delay 40 --repeat %3 1")
                .arg(place.x())
                .arg(place.y())
                .arg(times));
}

/** Sees the button go up again, wherever in the program. */
class ReleaseSpy : public QObject
{
public:
    ReleaseSpy() { qApp->installEventFilter(this); }
    bool isReleased = false;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        isReleased = isReleased || event->type() == QEvent::MouseButtonRelease;
        return false;
    }
};

/** Presses a button, goes a step and lets go, and waits until the program has seen it all. */
void tremble(const QPoint &place, int button, int step)
{
    const ReleaseSpy spy;
    xdotool(QStringLiteral("mousemove %1 %2 mousedown %3 mousemove_relative %4 %4 mouseup %3")
                .arg(place.x())
                .arg(place.y())
                .arg(button)
                .arg(step));
    QTRY_VERIFY(spy.isReleased);
}

QRect onScreen(const QWidget *widget)
{
    return {widget->mapToGlobal(QPoint(0, 0)), widget->size()};
}

/** What the screen shows where the widget is, in 8 x 8 grey fields. */
QImage fieldsOf(const QWidget *widget)
{
    const QRect place = onScreen(widget);
    const QPixmap pixmap = QGuiApplication::primaryScreen()->grabWindow(
        0, place.x(), place.y(), place.width(), place.height());
    return pixmap.toImage()
        .scaled(8, 8, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_Grayscale8);
}

/** Whether fields differ by no more than a twentieth of the range on average. */
bool alike(const QImage &a, const QImage &b)
{
    int sum = 0;
    for (int i = 0; i < 64; ++i)
        sum += qAbs(qGray(a.pixel(i % 8, i / 8)) - qGray(b.pixel(i % 8, i / 8)));
    return sum / 64 <= 12;
}

} // namespace

/** The windows of the program among those of a window manager, moved by real input. */
class tst_Windows : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void fullScreenAndBack();
    void fullScreenAndBackWhileTheManagerIsBusy_data();
    void fullScreenAndBackWhileTheManagerIsBusy();
    void pointerHides();
    void quickHands();
    void fullScreenYieldsToOtherPrograms();
    void managerEndsFullScreen();
    void escapeReachesTheMainWindow();
    void closingFullScreen();
    void fullScreenEndsWithItsPicture();
    void draggingTheMaximisedWindow();
    void draggingTheMaximisedWindowByItsFarCorner();
    void otherButtonsDoNotDrag();

private:
    void playPair();
    void pauseAt(int second);
    int second() const { return child<QSlider>("hSlider_Seek")->value(); }
    template <typename Widget>
    Widget *child(const char *name) const
    {
        return mWindow->findChild<Widget *>(QLatin1String(name));
    }
    PlayAreaManager *area() const { return child<PlayAreaManager>("wgt_PlayArea"); }
    PlayerWidget *player() const { return area()->mainPlayer(); }
    void enterFullScreen();
    bool isHandedOver() const;

    QTemporaryDir mFolder;
    std::unique_ptr<MainWindows> mWindow;
};

void tst_Windows::initTestCase()
{
    QApplication::setQuitOnLastWindowClosed(false); // there is a window for each test
    QCoreApplication::setOrganizationName(QStringLiteral("Quellfern"));
    QCoreApplication::setApplicationName(QStringLiteral("Talvor Player V1.6 20200828"));
    for (const char *name : {"MOVA0001.MP4", "MOVB0001.MP4", "single.mp4"})
        QVERIFY(makeMediaFile(mFolder.filePath(QLatin1String(name)), 20));
}

void tst_Windows::init()
{
    Configuration::GetInstance()->setMaps(MapBaidu); // which is not waited for
    Configuration::GetInstance()->setMainwindowsRect(StoredRect);
    Configuration::GetInstance()->setMainwindowsIsMaximize(false);
    mWindow = std::make_unique<MainWindows>();
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get(), PatienceMs));
    QTRY_COMPARE(mWindow->geometry(), StoredRect);
}

void tst_Windows::cleanup()
{
    mWindow.reset();
}

void tst_Windows::playPair()
{
    mWindow->openRecordings(
        {QUrl::fromLocalFile(mFolder.filePath(QStringLiteral("MOVA0001.MP4"))),
         QUrl::fromLocalFile(mFolder.filePath(QStringLiteral("MOVB0001.MP4")))});
    QTRY_COMPARE(area()->state(), QMediaPlayer::PlayingState);
    QTRY_VERIFY(player()->player()->position() > 0);
}

void tst_Windows::pauseAt(int second)
{
    QTRY_COMPARE(child<QSlider>("hSlider_Seek")->maximum(), 20);
    area()->pause();
    QTRY_COMPARE(area()->state(), QMediaPlayer::PausedState);
    area()->seek(second);
    QTRY_COMPARE(this->second(), second);
}

void tst_Windows::enterFullScreen()
{
    clickAt(onScreen(player()).center(), 2);
    QTRY_VERIFY(player()->isFullScreen() && isHandedOver() && player()->isActiveWindow());
    QTRY_COMPARE(onScreen(player()), WholeScreen);
}

/** Whether nobody waits for the window manager any more. Before, keys may go nowhere. */
bool tst_Windows::isHandedOver() const
{
    return !mWindow->findChild<KeyboardClaim *>();
}

void tst_Windows::fullScreenAndBack()
{
    playPair();
    pauseAt(5);
    const auto *map = mWindow->findChild<QWebEngineView *>();
    const QRect mapPlace = map->geometry();
    for (PlayerWidget *widget : {player(), area()->secondPlayer()}) {
        const QRect place = onScreen(widget);
        const QImage fields = fieldsOf(widget);
        for (const char *way : {"key Escape", "click --repeat 2 --delay 40 1"}) {
            clickAt(place.center(), 2);
            QTRY_COMPARE(onScreen(widget), WholeScreen);
            QVERIFY(widget->isFullScreen());
            QTRY_VERIFY(map->width() < mapPlace.width()); // parked
            QTRY_VERIFY(isHandedOver() && widget->isActiveWindow());
            xdotool(QStringLiteral("key Right")); // it has the keyboard
            QTRY_COMPARE(second(), 6);
            xdotool(QStringLiteral("key Left"));
            QTRY_COMPARE(second(), 5);
            QTRY_VERIFY(!alike(fieldsOf(widget), fields)); // less of it is black
            xdotool(QLatin1String(way));
            QTRY_VERIFY(!widget->isFullScreen() && !widget->isWindow());
            QTRY_COMPARE(onScreen(widget), place);
            QTRY_VERIFY(alike(fieldsOf(widget), fields));
            QTRY_COMPARE(map->geometry(), mapPlace);
            QTRY_VERIFY(isHandedOver() && mWindow->isActiveWindow());
            xdotool(QStringLiteral("key Right")); // and the main window has it back
            QTRY_COMPARE(second(), 6);
            xdotool(QStringLiteral("key Left"));
            QTRY_COMPARE(second(), 5);
        }
    }
}

void tst_Windows::fullScreenAndBackWhileTheManagerIsBusy_data()
{
    QTest::addColumn<bool>("isBusyAtTheEnd");
    QTest::newRow("at the beginning") << false;
    QTest::newRow("at the end") << true;
}

/** For longer than the program waits for it without processing events. */
void tst_Windows::fullScreenAndBackWhileTheManagerIsBusy()
{
    QFETCH(bool, isBusyAtTheEnd);
    const pid_t manager = qEnvironmentVariableIntValue("TALVOR_WINDOW_MANAGER_PID");
    QVERIFY(manager > 0);
    playPair();
    pauseAt(5);
    const QRect place = onScreen(player());
    const QImage fields = fieldsOf(player());
    enterFullScreen();
    if (!isBusyAtTheEnd) {
        player()->leaveFullScreen();
        ::kill(manager, SIGSTOP);
        player()->enterFullScreen();
        QTest::qWait(500);
        ::kill(manager, SIGCONT);
        QTRY_VERIFY(isHandedOver() && player()->isActiveWindow());
    }
    if (isBusyAtTheEnd)
        ::kill(manager, SIGSTOP);
    xdotool(QStringLiteral("key Escape"));
    QTRY_VERIFY(!player()->isFullScreen() && !player()->isWindow());
    ::kill(manager, SIGCONT);
    QTRY_VERIFY(isHandedOver() && mWindow->isActiveWindow());
    QTRY_COMPARE(onScreen(player()), place);
    QTRY_VERIFY(alike(fieldsOf(player()), fields));
    xdotool(QStringLiteral("key Right"));
    QTRY_COMPARE(second(), 6);
}

void tst_Windows::pointerHides()
{
    const auto isHidden = [this] { return player()->cursor().shape() == Qt::BlankCursor; };
    enterFullScreen();
    QTRY_VERIFY(isHidden());
    xdotool(QStringLiteral("mousemove_relative 5 5"));
    QTRY_VERIFY(!isHidden());
    QTRY_VERIFY(isHidden());
    xdotool(QStringLiteral("key Escape"));
    QTRY_VERIFY(!player()->isWindow());
    QVERIFY(!isHidden());
}

void tst_Windows::quickHands()
{
    playPair();
    pauseAt(5);
    const QRect place = onScreen(player());
    const QImage fields = fieldsOf(player());
    for (int i = 0; i < 3; ++i) {
        QSignalSpy changes(player(), &PlayerWidget::fullScreen);
        clickAt(place.center(), 4); // to full screen, and back unless a click met neither window
        QTRY_VERIFY(!changes.isEmpty() && isHandedOver());
        xdotool(QStringLiteral("key Escape"));
        QTRY_COMPARE(onScreen(player()), place);
        QTRY_VERIFY(isHandedOver());
        QTRY_VERIFY(alike(fieldsOf(player()), fields));
    }
    QCOMPARE(mWindow->geometry(), StoredRect); // not dragged along
}

void tst_Windows::fullScreenYieldsToOtherPrograms()
{
    playPair();
    enterFullScreen();
    QProcess other;
    other.start(QStringLiteral("xmessage"), {QStringLiteral("a notification")});
    QVERIFY(other.waitForStarted(PatienceMs));
    QTRY_VERIFY(!player()->isFullScreen() && !player()->isWindow());
    QVERIFY(!mWindow->isActiveWindow());
    other.kill();
    other.waitForFinished(PatienceMs);
}

void tst_Windows::managerEndsFullScreen()
{
    const QRect place = onScreen(player());
    enterFullScreen();
    QSignalSpy changes(player(), &PlayerWidget::fullScreen);
    player()->windowHandle()->setWindowState(Qt::WindowNoState); // as by a key of the manager's
    QTRY_VERIFY(!player()->isWindow());
    QCOMPARE(changes, QList<QVariantList>({{false}}));
    QTRY_COMPARE(onScreen(player()), place);
}

void tst_Windows::escapeReachesTheMainWindow()
{
    enterFullScreen();
    // It lies below. A busy manager may still be about to give the keyboard to the full screen.
    QTRY_VERIFY((mWindow->activateWindow(), mWindow->isActiveWindow()));
    QVERIFY(player()->isFullScreen());
    xdotool(QStringLiteral("key Escape"));
    QTRY_VERIFY(!player()->isFullScreen());
    QVERIFY(mWindow->isVisible());
}

void tst_Windows::closingFullScreen()
{
    Configuration::GetInstance()->setMainwindowsRect(QRect());
    playPair();
    enterFullScreen();
    xdotool(QStringLiteral("key alt+F4"));
    QTRY_VERIFY(!mWindow->isVisible());
    QVERIFY(!player()->isVisible());
    QCOMPARE(area()->state(), QMediaPlayer::StoppedState);
    QCOMPARE(Configuration::GetInstance()->getMainwindowsRect(), StoredRect);
}

/** The next recording has no second picture. */
void tst_Windows::fullScreenEndsWithItsPicture()
{
    playPair();
    clickAt(onScreen(area()->secondPlayer()).center(), 2);
    QTRY_VERIFY(area()->secondPlayer()->isFullScreen() && isHandedOver());
    mWindow->openRecordings({QUrl::fromLocalFile(mFolder.filePath(QStringLiteral("single.mp4")))});
    QTRY_VERIFY(!area()->secondPlayer() && area()->state() == QMediaPlayer::PlayingState);
    QTRY_VERIFY(isHandedOver() && mWindow->isActiveWindow());
    xdotool(QStringLiteral("key space"));
    QTRY_COMPARE(area()->state(), QMediaPlayer::PausedState);
}

void tst_Windows::draggingTheMaximisedWindow()
{
    clickAt(StoredRect.topLeft() + QPoint(500, 3), 2); // on the title bar
    QTRY_COMPARE(mWindow->geometry(), WholeScreen);
    for (const QPoint &place : {QPoint(700, 3), onScreen(player()).center()}) {
        tremble(place, 1, 1);
        QVERIFY(mWindow->isMaximized());
        QCOMPARE(mWindow->geometry(), WholeScreen);
    }
    // Half way along the bar, so that it is half way along the restored one.
    xdotool(QStringLiteral("mousemove 800 10 mousedown 1 mousemove_relative 40 50"));
    QTRY_COMPARE(mWindow->geometry(), QRect(QPoint(840 - 500, 60 - 7), StoredRect.size()));
    QVERIFY(!mWindow->isMaximized());
    xdotool(QStringLiteral("mousemove_relative 10 20 mouseup 1"));
    const QRect dropped(QPoint(350, 73), StoredRect.size());
    QTRY_COMPARE(mWindow->geometry(), dropped);
    mWindow->close();
    QCOMPARE(Configuration::GetInstance()->getMainwindowsRect(), dropped);
    QCOMPARE(Configuration::GetInstance()->getMainwindowsIsMaximize(), false);
}

/** Which the normal window would not reach. */
void tst_Windows::draggingTheMaximisedWindowByItsFarCorner()
{
    clickAt(StoredRect.topLeft() + QPoint(500, 3), 2);
    QTRY_COMPARE(mWindow->geometry(), WholeScreen);
    const QPoint place = onScreen(child<QWidget>("wgt_Direction")).center();
    xdotool(QStringLiteral("mousemove %1 %2 mousedown 1 mousemove_relative 40 50")
                .arg(place.x())
                .arg(place.y()));
    QTRY_COMPARE(mWindow->size(), StoredRect.size());
    QTRY_VERIFY(mWindow->geometry().contains(place + QPoint(40, 50)));
    xdotool(QStringLiteral("mouseup 1"));
}

void tst_Windows::otherButtonsDoNotDrag()
{
    tremble(StoredRect.topLeft() + QPoint(500, 3), 3, 60);
    QCOMPARE(mWindow->geometry(), StoredRect);
    tremble(StoredRect.topLeft() + QPoint(500, 3), 1, 60);
    QTRY_COMPARE(mWindow->geometry(), StoredRect.translated(60, 60));
}

QTEST_MAIN(tst_Windows)
#include "tst_windows.moc"
