// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "patience.h"
#include "playlistcells.h"
#include "playlistmodel.h"
#include "playlisttable.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTextDocument>
#include <QToolTip>
#include <QtTest>

namespace {

const QString LongName = QStringLiteral("20260314_092600_000123 <b>a rather long name</b>_F.MP4");

QString toolTipAt(QWidget *viewport, const QPoint &place)
{
    QToolTip::hideText(); // which takes a moment
    if (!QTest::qWaitFor([] { return !QToolTip::isVisible(); }, PatienceMs))
        return "always";
    QHelpEvent event(QEvent::ToolTip, place, viewport->mapToGlobal(place));
    QCoreApplication::sendEvent(viewport, &event);
    QTextDocument text;
    if (Qt::mightBeRichText(QToolTip::text()))
        text.setHtml(QToolTip::text());
    else
        text.setPlainText(QToolTip::text());
    return QToolTip::isVisible() ? text.toPlainText() : QString();
}

} // namespace

/** Rows, columns and headers of fixed sizes, with the screen's text at any size. */
class TestPlaylistTable : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsCut_data();
    void nothingIsCut();
    void scrollBarIsRound();
    void signs_data();
    void signs();
    void waitingSign();
};

void TestPlaylistTable::nothingIsCut_data()
{
    QTest::addColumn<int>("points");
    QTest::addColumn<QString>("longTitle"); // of a narrow column
    QTest::addColumn<bool>("isTitleWhole");
    for (const char *title : {"Length", "Rozdzielczość", "Длительность"}) {
        for (const int points : {11, 14, 22})
            QTest::addRow("%s in %d points", title, points) << points << title << true;
    }
    QTest::newRow("hopeless") << 11 << "a title for which there is no room" << false;
}

void TestPlaylistTable::nothingIsCut()
{
    QFETCH(int, points);
    QFETCH(QString, longTitle);
    QFETCH(bool, isTitleWhole);
    QStandardItemModel model(1, 5);
    model.setHorizontalHeaderLabels({"File Name", "", "Create Date", "Size", "Resolution"});
    const QStringList texts{LongName, "01:23:45", "2026/03/14 09:26:00", "1.26 GB", "3840 x 2160"};
    for (int column = 0; column < 5; ++column)
        model.setItem(0, column, new QStandardItem(texts[column]));
    PlaylistTable table;
    table.resize(600, 150);
    table.setFont(QFont("Calibri", 4));
    table.setPlaylist(&model);
    table.setFont(QFont("Calibri", points));
    table.show();
    model.setHeaderData(1, Qt::Horizontal, longTitle); // as in another language
    QVERIFY(QTest::qWaitForWindowExposed(&table, PatienceMs));

    QHeaderView *header = table.horizontalHeader();
    QCOMPARE(header->viewport()->font(), header->font());
    QVERIFY(header->fontMetrics().height() <= 24);
    for (int column = 0; column < 5; ++column) {
        const QString text = model.headerData(column, Qt::Horizontal).toString();
        const QPoint place(header->sectionViewportPosition(column) + 10, 10);
        const bool isWhole =
            header->fontMetrics().horizontalAdvance(text) < table.columnWidth(column);
        QCOMPARE(isWhole, column != 1 || isTitleWhole);
        QCOMPARE(toolTipAt(header->viewport(), place), isWhole ? QString() : text);
    }
    for (int column = 0; column < 5; ++column) {
        const QModelIndex cell = model.index(0, column);
        const QSize hint = table.itemDelegate()->sizeHint(QStyleOptionViewItem(), cell);
        QCOMPARE(hint.width() <= table.columnWidth(column), column > 0);
        QVERIFY(column != 2 || hint.width() > 110); // fitted to 140
        const QString toolTip = toolTipAt(table.viewport(), table.visualRect(cell).center());
        QCOMPARE(toolTip, column > 0 ? QString() : LongName);
    }
    QCOMPARE(table.textElideMode(), Qt::ElideMiddle);
    QVERIFY(!table.wordWrap());
}

void TestPlaylistTable::scrollBarIsRound()
{
    const QColor bar(40, 40, 48);
    const QColor handle(60, 60, 68);
    QStandardItemModel model(100, 5);
    PlaylistTable table;
    table.resize(300, 150); // narrower than the columns
    table.setPlaylist(&model);
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table, PatienceMs));
    for (QScrollBar *scrollBar : {table.verticalScrollBar(), table.horizontalScrollBar()}) {
        const QImage image = scrollBar->grab().toImage();
        const bool isVertical = scrollBar->orientation() == Qt::Vertical;
        QCOMPARE(isVertical ? image.width() : image.height(), 8);
        QCOMPARE(image.pixelColor(0, 0), bar);
        QCOMPARE(image.pixelColor(isVertical ? QPoint(7, 0) : QPoint(0, 7)), bar);
        QCOMPARE(image.pixelColor(isVertical ? QPoint(4, 1) : QPoint(1, 4)), handle);
        QCOMPARE(image.pixelColor(isVertical ? QPoint(0, 12) : QPoint(12, 0)), handle);
    }
}

void TestPlaylistTable::signs_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("telemetry");
    QTest::addColumn<QStringList>("words"); // of the tool tip; none: there is no sign
    const auto row = [](const char *name, RecordingCondition::Kind kind,
                        RecordingCondition::Telemetry telemetry, const QStringList &words) {
        QTest::newRow(name) << int(kind) << int(telemetry) << words;
    };
    using C = RecordingCondition;
    row("whole", C::Whole, C::HasTelemetry, {});
    row("whole, still being read", C::Whole, C::TelemetryUnknown, {});
    row("without telemetry", C::Whole, C::NoTelemetry, {"No telemetry"});
    row("cut off", C::CutOff, C::NoTelemetry, {"cut off", "3 MB of 2 GB", "No telemetry"});
    row("without header", C::NoHeader, C::NoTelemetry, {"header"});
    row("empty", C::Empty, C::NoTelemetry, {"Empty"});
    row("gone", C::Gone, C::NoTelemetry, {"gone"});
    row("no video", C::NotVideo, C::NoTelemetry, {"Not an MP4"});
}

void TestPlaylistTable::signs()
{
    QFETCH(int, kind);
    QFETCH(int, telemetry);
    QFETCH(QStringList, words);
    QStandardItemModel model(1, 5);
    PlaylistTable table;
    table.resize(600, 150);
    table.setPlaylist(&model);
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table, PatienceMs));
    table.selectRow(0);
    const QImage plain = table.viewport()->grab().toImage();

    RecordingCondition condition;
    condition.kind = RecordingCondition::Kind(kind);
    condition.telemetry = RecordingCondition::Telemetry(telemetry);
    condition.missingBytes = 3 << 20;
    condition.wholeBytes = qint64(2) << 30;
    const QModelIndex name = model.index(0, 0);
    model.setData(name, QVariant::fromValue(condition), PlaylistModel::ConditionRole);
    const QImage marked = table.viewport()->grab().toImage();
    QCOMPARE(marked != plain, !words.isEmpty());
    const QRect behind(24, 0, plain.width() - 24, plain.height()); // of the sign
    QCOMPARE(marked.copy(behind), plain.copy(behind));
    const QString toolTip = toolTipAt(table.viewport(), table.visualRect(name).center());
    QCOMPARE(toolTip.isEmpty(), words.isEmpty());
    for (const QString &word : words)
        QVERIFY2(toolTip.contains(word), qPrintable(toolTip));
    QCOMPARE(table.accessibleDescription(), toolTip);
    QCOMPARE(toolTipAt(table.viewport(), table.visualRect(model.index(0, 1)).center()), QString());
    QCOMPARE(table.columnWidth(0), 200);
    QVERIFY(!table.findChild<PlaylistCells *>()->isAnimating());
}

/** It moves while the row waits, and not longer. */
void TestPlaylistTable::waitingSign()
{
    QStandardItemModel model(1, 5);
    PlaylistTable table;
    table.resize(600, 150);
    table.setPlaylist(&model);
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table, PatienceMs));
    const auto *cells = table.findChild<PlaylistCells *>();
    const auto image = [&] { return table.viewport()->grab().toImage(); };
    const QImage plain = image();
    RecordingCondition condition;
    model.setData(model.index(0, 0), QVariant::fromValue(condition), PlaylistModel::ConditionRole);
    QCOMPARE(image(), plain); // not at once
    QTRY_VERIFY(image() != plain);
    const QImage first = image();
    QTRY_VERIFY(image() != first && image() != plain);
    QVERIFY(cells->isAnimating());
    condition.kind = RecordingCondition::Whole;
    model.setData(model.index(0, 0), QVariant::fromValue(condition), PlaylistModel::ConditionRole);
    QTRY_VERIFY(!cells->isAnimating());
    QCOMPARE(image(), plain);
}

QTEST_MAIN(TestPlaylistTable)
#include "tst_playlisttable.moc"
