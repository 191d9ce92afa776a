// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlisttable.h"

#include "fittedfont.h"
#include "playlistcells.h"
#include "playlistmodel.h"
#include "recordingsign.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>

#include <iterator>

namespace {

constexpr int RowHeight = 38;
// The last column takes the rest, but no less than this.
constexpr int ColumnWidths[] = {200, 80, 140, 80, 80};
constexpr int HeaderHeight = 24;
constexpr int TextMargins = PlaylistCells::TextMargins; // as well those of the header's sections

// The widest texts of the columns that have no names in them.
const char *const WidestTexts[] = {"", "00:00:00", "0000/00/00 00:00:00", "", "0000 x 0000"};

const char TableStyle[] =
    "QTableView{color: rgb(170, 170, 170); background-color: rgb(44, 44, 52); border: none;"
    " alternate-background-color: rgb(54, 54, 62);"
    " selection-background-color: rgb(73, 85, 114); selection-color: rgb(250, 250, 250);}";

// Set on the header itself: below a dialog with a style sheet, sections do not inherit theirs.
const char HeaderStyle[] =
    "QHeaderView{background-color: rgb(20, 20, 20);}"
    "QHeaderView::section{height: 24px; color: white; background-color: rgb(20, 20, 20);"
    " border: none;}";

// %1 the orientation, %2 the dimension across the bar, %3 that along it. A radius of more than half
// the breadth is ignored, so the handle is as broad as its round ends, one pixel beyond the bar on
// either side (%4).
const char ScrollBarStyle[] =
    "QScrollBar:%1{%2: 8px; background: rgb(40, 40, 48); margin: 0px; border: none;}"
    "QScrollBar::handle:%1{background: rgb(60, 60, 68); border-radius: 5px; margin: %4;"
    " min-%3: 24px;}"
    "QScrollBar::handle:%1:hover{background: rgb(170, 170, 170);}"
    "QScrollBar::add-line:%1, QScrollBar::sub-line:%1{width: 0px; height: 0px;}"
    "QScrollBar::add-page:%1, QScrollBar::sub-page:%1{background: none;}";

/** Tells the text when it is wider than its place. */
void tellElided(const QHelpEvent &event, const QString &text, const QFont &font, int width)
{
    const bool isElided = QFontMetrics(font).horizontalAdvance(text) > width;
    showPlainToolTip(event.globalPos(), isElided ? text : QString());
}

} // namespace

PlaylistTable::PlaylistTable(QWidget *parent) : QTableView(parent), mCells(new PlaylistCells(this))
{
    setItemDelegate(mCells);
    setupRows();
    setupHeaders();
    setupColours();
}

void PlaylistTable::setPlaylist(QAbstractItemModel *playlist)
{
    setModel(playlist);
    for (int column = 0; column < int(std::size(ColumnWidths)); ++column)
        setColumnWidth(column, ColumnWidths[column]);
    connect(playlist, &QAbstractItemModel::headerDataChanged, this, &PlaylistTable::fitHeaderFont);
    connect(playlist, &QAbstractItemModel::headerDataChanged, this,
            &PlaylistTable::describeCurrent); // the language may be another
    connect(playlist, &QAbstractItemModel::dataChanged, this, &PlaylistTable::describeCurrent);
    connect(playlist, &QAbstractItemModel::modelReset, this, &PlaylistTable::describeCurrent);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &PlaylistTable::describeCurrent);
    fitFonts();
}

void PlaylistTable::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange && model())
        fitFonts();
}

bool PlaylistTable::eventFilter(QObject *object, QEvent *event)
{
    const QHeaderView *header = horizontalHeader();
    if (object != header->viewport() || event->type() != QEvent::ToolTip)
        return QTableView::eventFilter(object, event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const int column = header->logicalIndexAt(help->pos());
    tellElided(*help, headerText(column), header->font(),
               header->sectionSize(column) - TextMargins);
    return true;
}

void PlaylistTable::setupRows()
{
    setAlternatingRowColors(true);
    setGridStyle(Qt::DashDotLine);
    setShowGrid(false);
    setFocusPolicy(Qt::NoFocus);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setWordWrap(false);
    setTextElideMode(Qt::ElideMiddle);
}

void PlaylistTable::setupHeaders()
{
    verticalHeader()->setVisible(false);
    verticalHeader()->setDefaultSectionSize(RowHeight);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setTextElideMode(Qt::ElideMiddle);
    horizontalHeader()->viewport()->installEventFilter(this);
    // The style's minimum, the font's widest glyph, would not let the last section fit.
    horizontalHeader()->setMinimumSectionSize(RowHeight);
}

void PlaylistTable::setupColours()
{
    setStyleSheet(QLatin1String(TableStyle));
    horizontalHeader()->setStyleSheet(QLatin1String(HeaderStyle));
    const QString scrollBarStyle = QLatin1String(ScrollBarStyle);
    verticalScrollBar()->setStyleSheet(
        scrollBarStyle.arg(QStringLiteral("vertical"), QStringLiteral("width"),
                           QStringLiteral("height"), QStringLiteral("0px -1px")));
    horizontalScrollBar()->setStyleSheet(
        scrollBarStyle.arg(QStringLiteral("horizontal"), QStringLiteral("height"),
                           QStringLiteral("width"), QStringLiteral("-1px 0px")));
}

void PlaylistTable::fitFonts()
{
    QFont fitted = font();
    for (int column = 0; column < int(std::size(ColumnWidths)); ++column)
        fitted = fittedFont(fitted, QLatin1String(WidestTexts[column]),
                            {ColumnWidths[column] - TextMargins, RowHeight});
    mCells->setFont(fitted);
    fitHeaderFont();
}

void PlaylistTable::fitHeaderFont()
{
    QFont fitted = mCells->font(); // no larger than theirs: the header is lower than the rows
    for (int column = 0; column < int(std::size(ColumnWidths)); ++column)
        fitted = fittedFont(fitted, headerText(column),
                            {ColumnWidths[column] - TextMargins, HeaderHeight});
    horizontalHeader()->setFont(fitted);
    horizontalHeader()->viewport()->setFont(fitted); // which style sheets keep from inheriting it
}

QString PlaylistTable::headerText(int column) const
{
    return model()->headerData(column, Qt::Horizontal).toString();
}

/** Cells have no description of their own: the playlist gives none. */
void PlaylistTable::describeCurrent()
{
    const QVariant condition = currentIndex().data(PlaylistModel::ConditionRole);
    const QString description = condition.isValid()
                                    ? RecordingSign(condition.value<RecordingCondition>()).text()
                                    : QString();
    if (description != accessibleDescription())
        setAccessibleDescription(description);
}
