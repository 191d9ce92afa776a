// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class ControlPanel;
class MainWindows;
class PlayAreaManager;
class PlaylistModel;
class QTableView;
class RecordingOpener;

/**
 * The places of the main window where recordings and folders are opened beside the open button and
 * the drop of files on the picture: drops of folders there, all drops on the list, the menu of the
 * open button; and the list's context menu.
 *
 * GUI thread only. A child of the main window.
 */
class OpeningPlaces : public QObject
{
    Q_OBJECT

public:
    struct Widgets
    {
        ControlPanel *panel;
        PlayAreaManager *area;
        QTableView *playlist;
    };

    OpeningPlaces(MainWindows *window, const Widgets &widgets, PlaylistModel *model,
                  RecordingOpener *opener);
};
