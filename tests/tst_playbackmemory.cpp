// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"
#include "controlpanel.h"
#include "mainwindows.h"
#include "mediafile.h"
#include "patience.h"
#include "playareamanager.h"
#include "playbackmemory.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QSlider>
#include <QTemporaryDir>

#include <memory>

/** The main window with what it remembers, opened anew as by another start. */
class tst_PlaybackMemory : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { close(); }

    void firstStart();
    void comesBack();
    void nonsenseIsTheDefault_data();
    void nonsenseIsTheDefault();
    void silenceIsNotKept();
    void draggingWritesOnce();

private:
    void open();
    void close();
    QString shown() const;
    template <typename Widget>
    Widget *child(const char *name) const
    {
        return mWindow->findChild<Widget *>(QLatin1String(name));
    }
    void click(const char *button) const { child<QAbstractButton>(button)->click(); }
    QSlider *slider() const { return child<QSlider>("hSlider_Volume"); }
    QMediaPlayer *player() const
    {
        return child<PlayAreaManager>("wgt_PlayArea")->mainPlayer()->player();
    }

    QTemporaryDir mFolder;
    std::unique_ptr<MainWindows> mWindow;
    std::unique_ptr<PlaybackMemory> mMemory;
};

void tst_PlaybackMemory::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Quellfern"));
    QCoreApplication::setApplicationName(QStringLiteral("Talvor Player V1.6 20200828"));
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    QVERIFY(makeMediaFile(mFolder.filePath(QStringLiteral("one.mp4")), 20));
}

void tst_PlaybackMemory::init()
{
    Configuration::ReleaseInstance();
    QFile::remove(Configuration::directory() + QStringLiteral("/configuration.ini"));
    open();
}

void tst_PlaybackMemory::open()
{
    mWindow = std::make_unique<MainWindows>();
    mMemory = std::make_unique<PlaybackMemory>(mWindow.get());
    mWindow->show();
}

void tst_PlaybackMemory::close()
{
    mMemory.reset();
    mWindow.reset();
}

/** By the control bar and by the player. */
QString tst_PlaybackMemory::shown() const
{
    const auto *panel = child<ControlPanel>("wgt_ControlPanel");
    return QStringLiteral("%1 %2 %3 %4 %5 %6 %7")
        .arg(panel->volume())
        .arg(player()->volume())
        .arg(child<QAbstractButton>("tBtn_Mute")->isChecked())
        .arg(panel->isMuted())
        .arg(player()->isMuted())
        .arg(child<QLabel>("lbl_Text")->text())
        .arg(player()->playbackRate());
}

void tst_PlaybackMemory::firstStart()
{
    QTRY_COMPARE(shown(), QStringLiteral("100 100 0 0 0 1.0x 1"));
    close();
    QVERIFY(!QFileInfo::exists(Configuration::directory() + QStringLiteral("/configuration.ini")));
}

void tst_PlaybackMemory::comesBack()
{
    slider()->setValue(50);
    click("tBtn_Mute");
    click("pBtn_Down");
    const QString set = QStringLiteral("15 15 1 1 1 2.0x 2"); // -ln(1 - 0.50) / ln(100) = 0.1505
    QTRY_COMPARE(shown(), set);
    for (int i = 0; i < 3; ++i) {
        close();
        open();
        QTRY_COMPARE(shown(), set);
    }
    mWindow->openRecordings({QUrl::fromLocalFile(mFolder.filePath(QStringLiteral("one.mp4")))});
    QTRY_VERIFY(player()->position() > 0);
    QCOMPARE(shown(), set);

    click("tBtn_Mute");
    click("pBtn_Up");
    QTRY_COMPARE(shown(), QStringLiteral("15 15 0 0 0 1.0x 1"));
    close();
    open();
    QTRY_COMPARE(shown(), QStringLiteral("15 15 0 0 0 1.0x 1"));
}

void tst_PlaybackMemory::nonsenseIsTheDefault_data()
{
    QTest::addColumn<int>("volume");
    QTest::addColumn<double>("rate");
    QTest::newRow("zero") << 0 << 0.0;
    QTest::newRow("negative") << -1 << -1.0;
    QTest::newRow("much") << 400 << 16.0;
    QTest::newRow("no number") << 101 << qQNaN();
}

void tst_PlaybackMemory::nonsenseIsTheDefault()
{
    QFETCH(const int, volume);
    QFETCH(const double, rate);
    Configuration::GetInstance()->setVolume(volume);
    Configuration::GetInstance()->setPlaybackRate(rate);
    close();
    open();
    QTRY_COMPARE(shown(), QStringLiteral("100 100 0 0 0 1.0x 1"));
}

void tst_PlaybackMemory::silenceIsNotKept()
{
    slider()->setValue(50);
    QTRY_COMPARE(Configuration::GetInstance()->volume(), 15);
    slider()->setValue(0);
    QTRY_COMPARE(player()->volume(), 0);
    close();
    open();
    QTRY_COMPARE(shown(), QStringLiteral("15 15 0 0 0 1.0x 1"));
}

void tst_PlaybackMemory::draggingWritesOnce()
{
    int changes = 0;
    connect(child<PlayAreaManager>("wgt_PlayArea"), &PlayAreaManager::volumeChanged, this, [&] {
        ++changes;
        QCOMPARE(Configuration::GetInstance()->volume(), 100);
    });
    for (int value = 99; value > 20; --value)
        slider()->setValue(value);
    QVERIFY(changes > 10);
    QTRY_COMPARE(Configuration::GetInstance()->volume(), 5); // -ln(1 - 0.21) / ln(100) = 0.0512
}

QTEST_MAIN(tst_PlaybackMemory)
#include "tst_playbackmemory.moc"
