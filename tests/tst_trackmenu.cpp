// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "trackmenu.h"

#include "patience.h"
#include "playlistmodel.h"
#include "rowdata.h"
#include "smallrecordings.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMessageBox>
#include <QWidget>

class TestTrackMenu : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void savesInTheChosenFormat_data();
    void savesInTheChosenFormat();
    void tellsWhyNot_data();
    void tellsWhyNot();
    void copiesThePosition();

private:
    QString path(const char *name) const { return mDir.filePath(QLatin1String(name)); }
    void write(const char *name, const QByteArray &content) const;

    QTemporaryDir mDir;
    QWidget mWindow;
    PlaylistModel mModel;
    TrackMenu mTracks{&mWindow, &mModel};
};

void TestTrackMenu::initTestCase()
{
    write("drive.mp4", smallRecording(2, ride(3)));
    write("none.mp4", smallRecording(0, {}));
    write("there.gpx", "mine");
}

void TestTrackMenu::write(const char *name, const QByteArray &content) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

void TestTrackMenu::savesInTheChosenFormat_data()
{
    QTest::addColumn<QByteArray>("chosen");
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QByteArray>("beginning");
    QTest::newRow("GPX") << QByteArray("a.gpx") << QByteArray("a.gpx") << QByteArray("<?xml");
    QTest::newRow("CSV") << QByteArray("a.CSV") << QByteArray("a.CSV") << QByteArray("recording,");
    QTest::newRow("GeoJSON") << QByteArray("a.geojson") << QByteArray("a.geojson")
                             << QByteArray("{\"type\":\"Feature\"");
    QTest::newRow("JSON") << QByteArray("a.json") << QByteArray("a.json")
                          << QByteArray("{\"recordings\"");
    QTest::newRow("none of them") << QByteArray("b.mp4") << QByteArray("b.mp4.gpx")
                                  << QByteArray("<?xml");
}

void TestTrackMenu::savesInTheChosenFormat()
{
    QFETCH(QByteArray, chosen);
    QFETCH(QByteArray, written);
    QFETCH(QByteArray, beginning);
    QSignalSpy saved(&mTracks, &TrackMenu::saved);
    mTracks.save(path("drive.mp4"), path(chosen));
    QTRY_COMPARE(saved.size(), 1);
    QVERIFY(saved.first().first().toString().contains(path(written)));
    QFile file(path(written));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().startsWith(beginning));
    QVERIFY(!QFileInfo::exists(path("b.mp4")));
}

void TestTrackMenu::tellsWhyNot_data()
{
    QTest::addColumn<QByteArray>("recording");
    QTest::addColumn<QByteArray>("chosen");
    QTest::addColumn<QString>("reason");
    QTest::newRow("gone") << QByteArray("gone.mp4") << QByteArray("c.gpx") << "cannot be read";
    QTest::newRow("no telemetry") << QByteArray("none.mp4") << QByteArray("c.gpx")
                                  << "has no telemetry";
    QTest::newRow("no folder") << QByteArray("drive.mp4") << QByteArray("there.gpx/c.gpx")
                               << "there.gpx/c.gpx: ";
    QTest::newRow("a file that nobody asked about")
        << QByteArray("drive.mp4") << QByteArray("there") << "there.gpx: ";
}

void TestTrackMenu::tellsWhyNot()
{
    QFETCH(QByteArray, recording);
    QFETCH(QByteArray, chosen);
    QFETCH(QString, reason);
    mTracks.save(path(recording), path(chosen));
    QTRY_VERIFY(mWindow.findChild<QMessageBox *>());
    QVERIFY(mWindow.findChild<QMessageBox *>()->text().contains(reason));
    delete mWindow.findChild<QMessageBox *>();
    QFile there(path("there.gpx"));
    QVERIFY(there.open(QIODevice::ReadOnly));
    QCOMPARE(there.readAll(), QByteArray("mine"));
    QVERIFY(!QFileInfo::exists(path("c.gpx")));
}

/** That of the moment played, so of the row that is played only. */
void TestTrackMenu::copiesThePosition()
{
    RowData played;
    played.id = 1;
    RowData other;
    other.id = 0;
    const auto entry = [this](const RowData *row) {
        QMenu menu;
        mTracks.addEntries(&menu, row);
        QAction *copy = menu.actions().at(1);
        if (copy->isEnabled())
            copy->trigger();
        return copy->isEnabled();
    };
    GpsData sample;
    emit mModel.gpsDataChanged(1, sample);
    QVERIFY(!entry(&played)); // no fix
    sample.latitude = -12.25;
    sample.longitude = 3.5;
    emit mModel.gpsDataChanged(1, sample);
    QVERIFY(!entry(nullptr));
    QVERIFY(!entry(&other));
    QVERIFY(entry(&played));
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("-12.2500000, 3.5000000"));
    mModel.clearAllData();
    QVERIFY(!entry(&played));
}

QTEST_MAIN(TestTrackMenu)
#include "tst_trackmenu.moc"
