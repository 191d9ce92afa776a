// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"
#include "mainwindows.h"

#include <QApplication>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTest>

#include <memory>

namespace {

const QString Title = QStringLiteral("Talvor Player V1.6 20200828");
const QRect DefaultRect(483, 166, 921, 628);

/** Real input, through the X server and the window manager. */
void xdotool(const QString &arguments)
{
    const int status =
        QProcess::execute(QStringLiteral("xdotool"), arguments.split(QLatin1Char(' ')));
    QVERIFY2(status == 0, qPrintable(arguments));
}

} // namespace

/** Frame and title bar of the main window, under a window manager. */
class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void layout();
    void restoresGeometry_data();
    void restoresGeometry();
    void closingStoresGeometry();
    void maximizes_data();
    void maximizes();
    void minimizes();
    void dragsByAFreeArea();
    void escapeAndEnterLeaveItOpen();
    void titlesAreElided();
    void changingTheLanguage();

private:
    void open();
    template <typename Widget = QWidget>
    Widget *child(const char *name) const
    {
        return mWindow->findChild<Widget *>(QLatin1String(name));
    }

    std::unique_ptr<MainWindows> mWindow;
};

void tst_MainWindow::init()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Quellfern"));
    QCoreApplication::setApplicationName(Title);
    Configuration::GetInstance()->setMainwindowsRect(DefaultRect);
    Configuration::GetInstance()->setMainwindowsIsMaximize(false);
}

void tst_MainWindow::cleanup()
{
    mWindow.reset();
}

void tst_MainWindow::open()
{
    mWindow = std::make_unique<MainWindows>();
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));
}

void tst_MainWindow::layout()
{
    open();
    QCOMPARE(mWindow->windowTitle(), Title);
    QCOMPARE(child<QLabel>("lbl_Title")->text(), Title); // whole at the default size
    QCOMPARE(child("label")->size(), QSize(36, 36));
    QCOMPARE(child("wgt_Header")->height(), 40);
    QCOMPARE(child("wgt_PlayCtrl")->height(), 110);
    QCOMPARE(child("tbl_PlayListView")->height(), 150);
    QCOMPARE(child("gView_GyroChart")->height(), 155);
    QVERIFY(child("wgt_Speed")->width() >= 150 && child("wgt_Direction")->width() >= 150);
    QVERIFY(child("wgt_PlayArea")->height() > 200);
    QVERIFY(!child("wgt_Grip")->isEnabled());

    int left = 0;
    for (const char *name : {"pBtn_Step", "pBtn_Minimize", "pBtn_Maximize", "pBtn_Close"}) {
        const auto *button = child<QPushButton>(name);
        QCOMPARE(button->size(), QSize(24, 24));
        QCOMPARE(button->focusPolicy(), Qt::NoFocus);
        QVERIFY(button->x() >= left);
        left = button->x() + 24 + 6;
    }
}

void tst_MainWindow::restoresGeometry_data()
{
    QTest::addColumn<QRect>("stored");
    QTest::addColumn<bool>("maximized");
    QTest::addColumn<QRect>("expected"); // empty: as large as the screen
    QTest::newRow("on the screen") << QRect(50, 60, 1000, 700) << false << QRect(50, 60, 1000, 700);
    QTest::newRow("monitor gone") << QRect(10000, 60, 1000, 700) << false << DefaultRect;
    QTest::newRow("centre just visible")
        << QRect(1100, 60, 980, 700) << false << QRect(1100, 60, 980, 700);
    QTest::newRow("maximised") << QRect(50, 60, 1000, 700) << true << QRect();
}

void tst_MainWindow::restoresGeometry()
{
    QFETCH(const QRect, stored);
    QFETCH(const bool, maximized);
    QFETCH(const QRect, expected);
    Configuration::GetInstance()->setMainwindowsRect(stored);
    Configuration::GetInstance()->setMainwindowsIsMaximize(maximized);
    open();
    QCOMPARE(mWindow->isMaximized(), maximized);
    QCOMPARE(child<QPushButton>("pBtn_Maximize")->isChecked(), maximized);
    if (maximized)
        QTRY_COMPARE(mWindow->size(), QSize(1600, 1000));
    else
        QTRY_COMPARE(mWindow->geometry(), expected);
}

void tst_MainWindow::closingStoresGeometry()
{
    open();
    mWindow->setGeometry(120, 90, 1000, 640);
    QTRY_COMPARE(mWindow->geometry(), QRect(120, 90, 1000, 640));
    QTest::mouseClick(child("pBtn_Close"), Qt::LeftButton);
    QVERIFY(!mWindow->isVisible());
    const QSettings file(
        QStandardPaths::standardLocations(QStandardPaths::AppLocalDataLocation).constFirst() +
            QStringLiteral("/configuration.ini"),
        QSettings::IniFormat);
    QCOMPARE(file.value(QStringLiteral("mainwindowsRect")).toRect(), QRect(120, 90, 1000, 640));
    QCOMPARE(file.value(QStringLiteral("mainwindowsIsMaximize")).toBool(), false);
}

void tst_MainWindow::maximizes_data()
{
    QTest::addColumn<bool>("byButton");
    QTest::newRow("button") << true;
    QTest::newRow("double click on the title bar") << false;
}

void tst_MainWindow::maximizes()
{
    QFETCH(const bool, byButton);
    open();
    auto *button = child<QPushButton>("pBtn_Maximize");
    const auto toggle = [&] {
        if (byButton)
            QTest::mouseClick(button, Qt::LeftButton);
        else
            QTest::mouseDClick(child("wgt_Header"), Qt::LeftButton, {}, QPoint(400, 3));
    };
    toggle();
    QTRY_COMPARE(mWindow->geometry(), QRect(0, 0, 1600, 1000));
    QVERIFY(button->isChecked());
    QCOMPARE(button->toolTip(), QStringLiteral("Restore Down"));
    toggle();
    QTRY_COMPARE(mWindow->geometry(), DefaultRect);
    QVERIFY(!button->isChecked());
    QCOMPARE(button->toolTip(), QStringLiteral("Maximize"));
}

void tst_MainWindow::minimizes()
{
    open();
    QTest::mouseClick(child("pBtn_Minimize"), Qt::LeftButton);
    QTRY_VERIFY(mWindow->isMinimized());
    mWindow->showNormal();
    QTRY_VERIFY(mWindow->isActiveWindow());
}

void tst_MainWindow::dragsByAFreeArea()
{
    open();
    QTRY_COMPARE(mWindow->geometry(), DefaultRect);
    const QPoint grip = mWindow->geometry().topLeft() + QPoint(500, 20); // in the title bar
    xdotool(QStringLiteral("mousemove %1 %2 mousedown 1").arg(grip.x()).arg(grip.y()));
    QCoreApplication::processEvents();
    xdotool(QStringLiteral("mousemove_relative --sync -- -70 40"));
    QTRY_COMPARE(mWindow->geometry().topLeft(), DefaultRect.topLeft() + QPoint(-70, 40));
    xdotool(QStringLiteral("mouseup 1"));
    QCoreApplication::processEvents();
    xdotool(QStringLiteral("mousemove_relative --sync -- 30 30"));
    QCoreApplication::processEvents();
    QCOMPARE(mWindow->geometry().topLeft(), DefaultRect.topLeft() + QPoint(-70, 40)); // let go
}

void tst_MainWindow::escapeAndEnterLeaveItOpen()
{
    open();
    for (const char *key : {"Escape", "Return", "KP_Enter"})
        xdotool(QStringLiteral("key %1").arg(QLatin1String(key)));
    QCoreApplication::processEvents();
    QVERIFY(mWindow->isVisible());
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_MainWindow::titlesAreElided()
{
    open();
    const auto *label = child<QLabel>("lbl_FileName");
    const QString name = QStringLiteral("A") + QString(300, QLatin1Char('m')) + QStringLiteral("Z");
    mWindow->setTitleFileName(name);
    QVERIFY(label->text().startsWith(QLatin1Char('A')) && label->text().endsWith(QLatin1Char('Z')));
    QVERIFY(label->text().contains(QChar(0x2026)));
    QTRY_COMPARE(mWindow->geometry(), DefaultRect); // a long name does not widen the window
    QCOMPARE(child<QLabel>("lbl_Title")->text(), Title);

    const int narrow = label->text().size();
    mWindow->resize(1400, 700);
    QTRY_VERIFY(label->text().size() > narrow);
}

void tst_MainWindow::changingTheLanguage()
{
    open();
    mWindow->setTitleFileName(QStringLiteral("MOVA0001.MP4"));
    QTest::mouseClick(child("pBtn_Maximize"), Qt::LeftButton);
    Configuration::GetInstance()->setLanguage(EnglishUK);
    mWindow->resize(1500, 900);
    QCOMPARE(mWindow->windowTitle(), Title);
    QCOMPARE(child<QLabel>("lbl_Title")->text(), Title);
    QCOMPARE(child<QLabel>("lbl_FileName")->text(), QString());
    QCOMPARE(child<QPushButton>("pBtn_Maximize")->toolTip(), QStringLiteral("Restore Down"));
    QCOMPARE(QCoreApplication::applicationVersion(), QStringLiteral("1.0.0.090311"));
}

QTEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
