// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableView>

class PlaylistCells;

/**
 * The playlist in the main window: whole rows, one selected at a time, in the window's colours.
 *
 * Rows and columns have fixed sizes in pixels, whatever the size of the screen's text: dates,
 * durations and headers get a font that fits. Other texts are elided in the middle, because the
 * names of front and rear recordings differ at their end; the tool tip has the whole. What is wrong
 * with the recording of the current row, its cell shows to those who see, and the table's
 * description tells screen readers.
 */
class PlaylistTable : public QTableView
{
    Q_OBJECT

public:
    explicit PlaylistTable(QWidget *parent = nullptr);

    /** Shows this model, which is not owned. */
    void setPlaylist(QAbstractItemModel *playlist);

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void setupRows();
    void setupHeaders();
    void setupColours();
    void fitFonts();
    void fitHeaderFont();
    void describeCurrent();
    QString headerText(int column) const;

    PlaylistCells *mCells = nullptr; // a child
};
