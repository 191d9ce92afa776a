// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "patience.h"
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
    text.setHtml(QToolTip::text());
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

QTEST_MAIN(TestPlaylistTable)
#include "tst_playlisttable.moc"
