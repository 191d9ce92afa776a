// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableView>

/**
 * The playlist in the main window: whole rows, one selected at a time, in the window's colours.
 *
 * Rows and columns have fixed sizes in pixels, whatever the size of the screen's text: dates,
 * durations and headers get a font that fits. Other texts are elided in the middle, because the
 * names of front and rear recordings differ at their end; the tool tip has the whole.
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
    QString headerText(int column) const;

    class Cells;
    Cells *mCells = nullptr; // a child
};
