// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "openingplaces.h"

#include "mainwindows.h"
#include "openmenu.h"
#include "playareamanager.h"
#include "playlistmenu.h"
#include "recordingdrop.h"
#include "recordingopener.h"

#include <QTableView>

OpeningPlaces::OpeningPlaces(MainWindows *window, const Widgets &widgets, PlaylistModel *model,
                             RecordingOpener *opener)
    : QObject(window)
{
    const auto *pictureDrop = new RecordingDrop(widgets.area, RecordingDrop::WithFolders);
    connect(pictureDrop, &RecordingDrop::foldersDropped, opener, &RecordingOpener::open);
    const auto *listDrop = new RecordingDrop(widgets.playlist->viewport(), RecordingDrop::All);
    connect(listDrop, &RecordingDrop::foldersDropped, opener, &RecordingOpener::open);
    connect(listDrop, &RecordingDrop::dropFile, window, &MainWindows::onDropFile);
    const auto *openMenu = new OpenMenu(widgets.panel);
    connect(openMenu, &OpenMenu::filesRequested, window, &MainWindows::openFile);
    connect(openMenu, &OpenMenu::folderRequested, window, &MainWindows::openFolder);
    const auto *listMenu = new PlaylistMenu(widgets.playlist, model);
    connect(listMenu, &PlaylistMenu::playRequested, window, &MainWindows::onTableDoubleClicked);
    connect(listMenu, &PlaylistMenu::clearRequested, window, &MainWindows::clearList);
    connect(listMenu, &PlaylistMenu::failed, opener, &RecordingOpener::tell);
    connect(listMenu, &PlaylistMenu::saved, opener, &RecordingOpener::tell);
}
