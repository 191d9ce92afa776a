// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "computeinfo.h"
#include "configuration.h"
#include "mainwindows.h"
#include "mapwebview.h"
#include "playlistmodel.h"
#include "recordingwriter.h"
#include "speedtray.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineView>

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
    void allLanguagesAndBack();
    void changingTheSpeedUnit();
    void warnsOfLargeRecordings_data();
    void warnsOfLargeRecordings();

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
    Configuration::GetInstance()->setMaps(MapBaidu); // which is not waited for
    Configuration::GetInstance()->setLanguage(EnglishUS);
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
    Configuration::GetInstance()->setMaps(MapGoogle);
    Configuration::GetInstance()->setLanguage(EnglishUK);
    const QUrl map =
        child<MapWebView>("wgt_MapView")->findChild<QWebEngineView *>()->page()->requestedUrl();
    QCOMPARE(map.fileName(), QStringLiteral("WG_GoogleMapIndex_en_uk.html"));
    mWindow->resize(1500, 900);
    QCOMPARE(mWindow->windowTitle(), Title);
    QCOMPARE(child<QLabel>("lbl_Title")->text(), Title);
    QCOMPARE(child<QLabel>("lbl_FileName")->text(), QString());
    QCOMPARE(child<QPushButton>("pBtn_Maximize")->toolTip(), QStringLiteral("Restore Down"));
    QCOMPARE(QCoreApplication::applicationVersion(), QStringLiteral("1.0.0.090311"));
}

void tst_MainWindow::allLanguagesAndBack()
{
    open();
    const auto texts = [this] {
        const QAbstractItemModel *playlist = child<QTableView>("tbl_PlayListView")->model();
        return QStringList{child<QPushButton>("pBtn_Close")->toolTip(),
                           child<QPushButton>("btn_Stop")->toolTip(),
                           playlist->headerData(0, Qt::Horizontal).toString()};
    };
    const QStringList english = texts();
    QCOMPARE(english, QStringList({"Close", "Stop", "File Name"}));
    QSet<QStringList> seen;
    for (int language = Chinese; language <= Korean; ++language) {
        Configuration::GetInstance()->setLanguage(Language_e(language));
        seen.insert(texts());
        QCOMPARE(child<QLabel>("lbl_Title")->text(), Title);
        QCOMPARE(QCoreApplication::organizationName(), QStringLiteral("Quellfern"));
    }
    QCOMPARE(seen.size(), 12); // the two kinds of English read the same
    Configuration::GetInstance()->setLanguage(EnglishUS);
    QCOMPARE(texts(), english);
}

void tst_MainWindow::changingTheSpeedUnit()
{
    open();
    const auto *bar = child<QLabel>("pBtn_SP");
    const auto *gauge = child<SpeedTray>("wgt_Speed");
    for (const int unit : {1, 0}) {
        QTimer::singleShot(0, mWindow.get(), [unit] {
            QWidget *dialog = QApplication::activeModalWidget();
            dialog->findChild<QComboBox *>("cBox_SpeedUnit")->setCurrentIndex(unit);
            QTest::mouseClick(dialog->findChild<QPushButton *>("pBtn_OK"), Qt::LeftButton);
        });
        QTest::mouseClick(child("pBtn_Step"), Qt::LeftButton);
        QCOMPARE(Configuration::GetInstance()->speedUnit(), unit);
        QCOMPARE(bar->text(), unit == 1 ? QString("000 MPH") : QString("000 km/h"));
        QCOMPARE(gauge->speedText(), unit == 1 ? QString("0 MPH") : QString("0 km/h"));
    }
}

void tst_MainWindow::warnsOfLargeRecordings_data()
{
    QTest::addColumn<QByteArray>("coding");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isCapable");
    QTest::addColumn<QString>("warning"); // what it ends with; empty for none
    const QSize large(3840, 2160);
    QTest::newRow("large H.265") << QByteArray("hvc1") << large << false << "H.265 (HEVC).";
    QTest::newRow("large H.264") << QByteArray("avc1") << large << false << "H.264 (AVC).";
    QTest::newRow("large, other") << QByteArray("vp09") << large << false << "";
    QTest::newRow("four million") << QByteArray("hvc1") << QSize(2500, 1600) << false << "";
    QTest::newRow("one more") << QByteArray("hvc1") << QSize(3809, 1051) << false
                              << "H.265 (HEVC)."; // 4003259
    QTest::newRow("capable") << QByteArray("hvc1") << large << true << "";
}

void tst_MainWindow::warnsOfLargeRecordings()
{
    QFETCH(QByteArray, coding);
    QFETCH(QSize, size);
    QFETCH(bool, isCapable);
    QFETCH(QString, warning);
    ComputeInfo *computer = ComputeInfo::GetInstance();
    computer->isHDDecodeH264 = computer->isHDDecodeH265 = computer->mCpuLevelH = isCapable;
    const QTemporaryDir folder;
    RecordingWriter writer;
    writer.tracks = {Mp4::videoTrack(quint16(size.width()), quint16(size.height()), 300, coding)};
    QVERIFY(writer.save(folder.filePath("large.mp4")));
    open();
    mWindow->openRecordings({QUrl::fromLocalFile(folder.filePath("large.mp4"))});
    const auto *model =
        static_cast<const PlaylistModel *>(child<QTableView>("tbl_PlayListView")->model());
    QTRY_COMPARE(model->getVideoSize(0), size);

    QString text;
    QTimer box;
    connect(&box, &QTimer::timeout, this, [&text] {
        auto *shown = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!shown)
            return;
        text = shown->text();
        shown->accept();
    });
    box.start(20);
    QCOMPARE(mWindow->isSuportH264orH265(0), warning.isEmpty());
    QVERIFY2(warning.isEmpty() ? text.isEmpty() : text.endsWith(warning), qPrintable(text));
}

QTEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
