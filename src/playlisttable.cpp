// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlisttable.h"

#include <QHeaderView>
#include <QScrollBar>

#include <iterator>

namespace {

constexpr int RowHeight = 38;
// The last column takes the rest, but no less than this.
constexpr int ColumnWidths[] = {200, 80, 140, 80, 80};

const char TableStyle[] =
    "QTableView{color: rgb(170, 170, 170); background-color: rgb(44, 44, 52); border: none;"
    " alternate-background-color: rgb(54, 54, 62);"
    " selection-background-color: rgb(73, 85, 114); selection-color: rgb(250, 250, 250);}";

// Set on the header itself: below a dialog with a style sheet, sections do not inherit theirs.
const char HeaderStyle[] =
    "QHeaderView{background-color: rgb(20, 20, 20);}"
    "QHeaderView::section{height: 24px; color: white; background-color: rgb(20, 20, 20);"
    " border: none;}";

// %1 the orientation, %2 the dimension across the bar.
const char ScrollBarStyle[] =
    "QScrollBar:%1{%2: 8px; background: rgb(40, 40, 48); margin: 0px; border: none;}"
    "QScrollBar::handle:%1{background: rgb(60, 60, 68); border-radius: 5px; min-%3: 24px;}"
    "QScrollBar::handle:%1:hover{background: rgb(170, 170, 170);}"
    "QScrollBar::add-line:%1, QScrollBar::sub-line:%1{width: 0px; height: 0px;}"
    "QScrollBar::add-page:%1, QScrollBar::sub-page:%1{background: none;}";

} // namespace

PlaylistTable::PlaylistTable(QWidget *parent) : QTableView(parent)
{
    setupRows();
    setupHeaders();
    setupColours();
}

void PlaylistTable::setPlaylist(QAbstractItemModel *playlist)
{
    setModel(playlist);
    for (int column = 0; column < int(std::size(ColumnWidths)); ++column)
        setColumnWidth(column, ColumnWidths[column]);
}

void PlaylistTable::setupRows()
{
    setAlternatingRowColors(true);
    setGridStyle(Qt::DashDotLine);
    setShowGrid(false);
    setFocusPolicy(Qt::NoFocus);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
}

void PlaylistTable::setupHeaders()
{
    verticalHeader()->setVisible(false);
    verticalHeader()->setDefaultSectionSize(RowHeight);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    // The style's minimum, the font's widest glyph, would not let the last section fit.
    horizontalHeader()->setMinimumSectionSize(RowHeight);
}

void PlaylistTable::setupColours()
{
    setStyleSheet(QLatin1String(TableStyle));
    horizontalHeader()->setStyleSheet(QLatin1String(HeaderStyle));
    const QString scrollBarStyle = QLatin1String(ScrollBarStyle);
    verticalScrollBar()->setStyleSheet(scrollBarStyle.arg(
        QStringLiteral("vertical"), QStringLiteral("width"), QStringLiteral("height")));
    horizontalScrollBar()->setStyleSheet(scrollBarStyle.arg(
        QStringLiteral("horizontal"), QStringLiteral("height"), QStringLiteral("width")));
}
