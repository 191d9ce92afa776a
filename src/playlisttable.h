// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableView>

/** The playlist in the main window: whole rows, one selected at a time, in the window's colours. */
class PlaylistTable : public QTableView
{
    Q_OBJECT

public:
    explicit PlaylistTable(QWidget *parent = nullptr);

    /** Shows this model, which is not owned. */
    void setPlaylist(QAbstractItemModel *playlist);

private:
    void setupRows();
    void setupHeaders();
    void setupColours();
};
