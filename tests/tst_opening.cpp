// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "configuration.h"
#include "mainwindows.h"
#include "mediafile.h"
#include "patience.h"
#include "playareamanager.h"
#include "playlistmemory.h"
#include "playlistmodel.h"
#include "rememberedlist.h"
#include "resumeoffer.h"
#include "rowdata.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>

#include <memory>

/** Opening folders, the list's menu, and the list from one run to the next: the whole program. */
class tst_Opening : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { close(); }

    void folderAsArgument();
    void drops_data();
    void drops();
    void folderAmongFiles();
    void emptyFolder();
    void escapeGivesUp();
    void namesakes();
    void listMenu();
    void clearingWhileAPairPlays();
    void clearingWhileWorkersRead();
    void openMenu();
    void offersWhereItWas();
    void listIsNotKeptUnasked();
    void nonsenseIsNoList_data();
    void nonsenseIsNoList();

private:
    void open();
    void close();
    void drop(QWidget *target, const QStringList &names) const;
    QStringList rows() const;
    QAction *entry(const QString &text) const;
    void choose(const QString &text) const;
    QString title() const { return child<QLabel>("lbl_FileName")->text(); }
    QUrl url(const QString &name) const { return QUrl::fromLocalFile(mCard.filePath(name)); }
    template <typename Widget>
    Widget *child(const char *name) const
    {
        return mWindow->findChild<Widget *>(QLatin1String(name));
    }
    QTableView *table() const { return child<QTableView>("tbl_PlayListView"); }
    PlayAreaManager *area() const { return child<PlayAreaManager>("wgt_PlayArea"); }
    QMediaPlayer *player() const { return area()->mainPlayer()->player(); }

    QTemporaryDir mCard;
    std::unique_ptr<MainWindows> mWindow;
    std::unique_ptr<PlaylistMemory> mMemory;
};

void tst_Opening::initTestCase()
{
    QApplication::setQuitOnLastWindowClosed(false);
    QCoreApplication::setOrganizationName(QStringLiteral("Quellfern"));
    QCoreApplication::setApplicationName(QStringLiteral("Talvor Player V1.6 20200828"));
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    for (const char *folder : {"DCIM/Front", "DCIM/Rear", "other", "empty"})
        QVERIFY(QDir(mCard.path()).mkpath(QLatin1String(folder)));
    QVERIFY(makeMediaFile(mCard.filePath("DCIM/Front/9_F.mp4"), 20));
    QVERIFY(makeMediaFile(mCard.filePath("lone #1 100%.mp4"), 2));
    const QString made = mCard.filePath("DCIM/Front/9_F.mp4");
    for (const char *copy :
         {"DCIM/Front/10_F.mp4", "DCIM/Rear/9_R.mp4", "other/9_F.mp4", "other/10_F.mp4"})
        QVERIFY(QFile::copy(made, mCard.filePath(QLatin1String(copy))));
    // So that 9_F.mp4 and 9_R.mp4 pair: names are equal but for their last seven characters.
    for (const char *name :
         {"DCIM/Front/9_F", "DCIM/Rear/9_R", "DCIM/Front/10_F", "other/9_F", "other/10_F"})
        QVERIFY(QFile::rename(
            mCard.filePath(QLatin1String(name)) + ".mp4",
            mCard.filePath(QString(name).insert(QString(name).lastIndexOf('/') + 1, "ride")) +
                ".mp4"));
}

void tst_Opening::init()
{
    Configuration::ReleaseInstance();
    QFile::remove(Configuration::directory() + "/configuration.ini");
    RememberedList::remove();
    Configuration::GetInstance()->setMaps(MapBaidu); // which is not waited for
    open();
}

void tst_Opening::open()
{
    mWindow = std::make_unique<MainWindows>();
    mMemory = std::make_unique<PlaylistMemory>(mWindow.get());
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get(), PatienceMs));
    mMemory->restore();
}

void tst_Opening::close()
{
    mWindow->close();
    mMemory.reset();
    mWindow.reset();
}

void tst_Opening::drop(QWidget *target, const QStringList &names) const
{
    QMimeData mime;
    QList<QUrl> urls;
    for (const QString &name : names)
        urls.append(url(name));
    mime.setUrls(urls);
    QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton,
                          Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(9, 9), Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton,
                    Qt::NoModifier);
    QCoreApplication::sendEvent(target, &drop);
    QVERIFY(drop.isAccepted());
    QCOMPARE(drop.dropAction(), Qt::CopyAction); // after a move the source deletes its files
}

QStringList tst_Opening::rows() const
{
    QStringList names;
    for (int row = 0; row < table()->model()->rowCount(); ++row)
        names.append(table()->model()->index(row, 0).data().toString());
    return names;
}

QAction *tst_Opening::entry(const QString &text) const
{
    const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    if (!menu)
        return nullptr;
    for (QAction *action : menu->actions()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

void tst_Opening::choose(const QString &text) const
{
    QAction *action = entry(text);
    QVERIFY2(action, qPrintable(text));
    action->trigger();
    QApplication::activePopupWidget()->close();
}

void tst_Opening::folderAsArgument()
{
    mWindow->openRecordings({url("DCIM")});
    QTRY_COMPARE(rows(), QStringList({"ride9_F.mp4", "ride10_F.mp4", "ride9_R.mp4"}));
    QTRY_COMPARE(title(), QString("ride9_F.mp4"));
    QCOMPARE(table()->currentIndex().row(), 0);
    QTRY_VERIFY(player()->position() > 0);
    QVERIFY(area()->secondPlayer()); // found though its row came last
}

void tst_Opening::drops_data()
{
    QTest::addColumn<bool>("isOnList");
    QTest::newRow("on the picture") << false;
    QTest::newRow("on the list") << true;
}

void tst_Opening::drops()
{
    QFETCH(const bool, isOnList);
    QWidget *target = isOnList ? table()->viewport() : static_cast<QWidget *>(area());
    drop(target, {"lone #1 100%.mp4"});
    QCOMPARE(rows(), QStringList({"lone #1 100%.mp4"}));
    QCOMPARE(title(), QString("lone #1 100%.mp4"));
    drop(target, {"other"});
    QTRY_COMPARE(title(), QString("ride9_F.mp4"));
    QCOMPARE(rows(), QStringList({"lone #1 100%.mp4", "ride9_F.mp4", "ride10_F.mp4"}));
    QCOMPARE(table()->currentIndex().row(), 1);
}

/** The order stays, and the picture tells of the file as of any other. */
void tst_Opening::folderAmongFiles()
{
    QSignalSpy told(area(), &PlayAreaManager::dropFile);
    drop(area(), {"other", "lone #1 100%.mp4"});
    QCOMPARE(told.size(), 1);
    QTRY_COMPARE(rows(), QStringList({"ride9_F.mp4", "ride10_F.mp4", "lone #1 100%.mp4"}));
    QTRY_COMPARE(title(), QString("ride9_F.mp4"));
}

void tst_Opening::emptyFolder()
{
    mWindow->openRecordings({url("other/ride9_F.mp4")});
    mWindow->openRecordings({url("empty")});
    QTRY_COMPARE(title(), QString("No recordings in empty"));
    QTRY_COMPARE(title(), QString("ride9_F.mp4")); // only for a moment
    QCOMPARE(rows().size(), 1);
}

void tst_Opening::escapeGivesUp()
{
    mWindow->openRecordings({url("other")});
    mWindow->openRecordings({url("DCIM")});
    QVERIFY2(title().startsWith("Searching for recordings: "), qPrintable(title()));
    QTest::keyClick(mWindow.get(), Qt::Key_Escape);
    QCOMPARE(title(), QString());
    drop(area(), {"empty"}); // which comes after all that was given up
    QTRY_COMPARE(title(), QString("No recordings in empty"));
    QCOMPARE(rows(), QStringList());
    QVERIFY(mWindow->isVisible());

    mWindow->openRecordings({url("other")});
    close(); // does not wait for it
    open();
}

void tst_Opening::namesakes()
{
    mWindow->openRecordings({url("other/ride9_F.mp4"), url("other/ride10_F.mp4")});
    mWindow->openRecordings({url("other/ride9_F.mp4")}); // the very same
    QCoreApplication::processEvents();
    QCOMPARE(title(), QString("ride9_F.mp4"));
    drop(area(), {"DCIM/Front/ride10_F.mp4"});
    QCOMPARE(title(), QString("ride10_F.mp4")); // the listed one plays
    QTRY_COMPARE(title(), QString("In the list already, from another folder: ride10_F.mp4"));
    drop(area(), {"DCIM/Front/ride9_F.mp4", "DCIM/Front/ride10_F.mp4"});
    QTRY_COMPARE(title(), QString("In the list already, from other folders: 2 recordings"));
    QCOMPARE(rows().size(), 2);
}

void tst_Opening::listMenu()
{
    mWindow->openRecordings({url("other/ride9_F.mp4"), url("other/ride10_F.mp4")});
    const QPoint second = table()->visualRect(table()->model()->index(1, 0)).center();
    QContextMenuEvent request(QContextMenuEvent::Mouse, second,
                              table()->viewport()->mapToGlobal(second));
    QCoreApplication::sendEvent(table()->viewport(), &request);
    choose("Copy Name");
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("ride10_F.mp4"));
    QCOMPARE(table()->currentIndex().row(), 1);

    QTest::keyClick(mWindow.get(), Qt::Key_Menu); // of the selected one
    choose("Play");
    QCOMPARE(title(), QString("ride10_F.mp4"));

    QTest::keyClick(mWindow.get(), Qt::Key_F10, Qt::ShiftModifier);
    QVERIFY(!entry("Remember List")->isChecked());
    choose("Remember List");
    QVERIFY(Configuration::GetInstance()->remembersList());
    mWindow->clearList();
    QTest::keyClick(mWindow.get(), Qt::Key_Menu);
    for (const char *text : {"Play", "Open Folder", "Copy Name", "Clear List"})
        QVERIFY2(!entry(text)->isEnabled(), text);
    QVERIFY(entry("Remember List")->isChecked());
    QApplication::activePopupWidget()->close();
}

void tst_Opening::clearingWhileAPairPlays()
{
    mWindow->openRecordings({url("DCIM")});
    QTRY_VERIFY(player()->position() > 0);
    QTest::keyClick(mWindow.get(), Qt::Key_Menu);
    choose("Clear List");
    QCOMPARE(rows(), QStringList());
    QCOMPARE(title(), QString());
    QCOMPARE(area()->state(), QMediaPlayer::StoppedState);
    QVERIFY(!area()->mainRow());
    for (const char *button : {"btn_PlayOrPause", "btn_Next", "btn_Previous", "btn_ScreenShot"})
        QTest::mouseClick(child<QWidget>(button), Qt::LeftButton);
    QCOMPARE(area()->state(), QMediaPlayer::StoppedState);
    mWindow->openRecordings({url("lone #1 100%.mp4")});
    QCOMPARE(rows(), QStringList({"lone #1 100%.mp4"}));
    QTRY_VERIFY(player()->position() > 0);
}

void tst_Opening::clearingWhileWorkersRead()
{
    PlaylistModel *model = mWindow->findChild<PlaylistModel *>();
    for (int round = 0; round < 5; ++round) {
        mWindow->openRecordings({url("other/ride9_F.mp4"), url("other/ride10_F.mp4")});
        model->updateAllGpsData(1);
        for (int turn = 0; turn < round; ++turn)
            QCoreApplication::processEvents();
        mWindow->clearList();
        QCOMPARE(rows(), QStringList());
    }
}

void tst_Opening::openMenu()
{
    auto *button = child<QPushButton>("btn_OpenFile");
    QTest::mousePress(button, Qt::LeftButton);
    QTRY_VERIFY(entry("Open All in a Folder…"));
    QVERIFY(entry("Open Files…"));
    QVERIFY(!button->isDown());
    QApplication::activePopupWidget()->close();
}

/** Two lives of the window. */
void tst_Opening::offersWhereItWas()
{
    Configuration::GetInstance()->setRemembersList(true);
    mWindow->openRecordings({url("other"), url("lone #1 100%.mp4")});
    const QStringList names{"ride9_F.mp4", "ride10_F.mp4", "lone #1 100%.mp4"};
    QTRY_COMPARE(rows(), names);
    mWindow->onTableDoubleClicked(table()->model()->index(1, 0));
    QTRY_VERIFY(title() == names.at(1) && player()->position() > 0);
    area()->pause();
    area()->seek(12);
    QTRY_COMPARE(player()->position(), 12000);
    close();
    open();
    QTRY_VERIFY(mWindow->findChild<ResumeOffer *>());
    QCOMPARE(rows(), names);
    QCOMPARE(table()->currentIndex().row(), 1);
    QCOMPARE(area()->state(), QMediaPlayer::StoppedState);
    QVERIFY(player()->media().isNull());

    close(); // what was not answered is offered again
    open();
    QTRY_VERIFY(mWindow->findChild<ResumeOffer *>());
    QCOMPARE(mWindow->findChild<ResumeOffer *>()->findChild<QLabel *>()->toolTip() +
                 mWindow->findChild<ResumeOffer *>()->findChild<QLabel *>()->text(),
             QString("Continue ride10_F.mp4 at 00:12?"));
    QTest::keyClick(mWindow.get(), Qt::Key_R);
    QTRY_VERIFY(player()->position() >= 12000);
    QCOMPARE(title(), names.at(1));
    QTRY_VERIFY(!mWindow->findChild<ResumeOffer *>());

    mWindow->onStop(); // and nothing is left to continue
    close();
    open();
    QTRY_COMPARE(rows(), names);
    QCoreApplication::processEvents();
    QVERIFY(!mWindow->findChild<ResumeOffer *>());
}

void tst_Opening::listIsNotKeptUnasked()
{
    mWindow->openRecordings({url("lone #1 100%.mp4")});
    close();
    QVERIFY(RememberedList::load().recordings.isEmpty());
    Configuration::GetInstance()->setRemembersList(true);
    open();
    mWindow->openRecordings({url("lone #1 100%.mp4")});
    close();
    QCOMPARE(RememberedList::load().recordings, QList<QUrl>({url("lone #1 100%.mp4")}));
    open();
    QTest::keyClick(mWindow.get(), Qt::Key_Menu);
    choose("Remember List"); // no more
    QVERIFY(RememberedList::load().recordings.isEmpty());
}

void tst_Opening::nonsenseIsNoList_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("not JSON") << QByteArray("\xff{[");
    QTest::newRow("other JSON") << QByteArray(R"([1, {"recordings": 7}])");
    QTest::newRow("no local files")
        << QByteArray(R"({"recordings": ["http://h/a.mp4", "file://h/a.mp4", 5, null, "a.mp4"],)"
                      R"( "playing": {}, "positionMs": -1e99})");
}

void tst_Opening::nonsenseIsNoList()
{
    QFETCH(QByteArray, text);
    QFile file(Configuration::directory() + "/playlist.json");
    QVERIFY(file.open(QFile::WriteOnly) && file.write(text) == text.size() && file.flush());
    const RememberedList list = RememberedList::load();
    QVERIFY(list.recordings.isEmpty() && list.playing.isEmpty());
    QCOMPARE(list.positionMs, 0);
}

QTEST_MAIN(tst_Opening)
#include "tst_opening.moc"
