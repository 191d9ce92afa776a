// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keylist.h"

#include <QObject>
#include <QVector>

class ControlPanel;
class MainWindows;
class PlayAreaManager;
class QKeyEvent;
class QTableView;

/**
 * What the keys do, in the main window and in a picture that fills the screen: one table of keys,
 * actions and their descriptions. Volume, sound and rate are set by way of the control panel, which
 * shows them.
 *
 * GUI thread only. A child of the main window.
 */
class Shortcuts : public QObject
{
    Q_OBJECT

public:
    struct Widgets
    {
        ControlPanel *panel;
        PlayAreaManager *area;
        QTableView *playlist;
    };

    Shortcuts(MainWindows *window, const Widgets &widgets);

    /** Plays, pauses or steps by a second; returns whether it was one of these keys. */
    bool controlPlayback(const QKeyEvent &event);
    /** As controlPlayback(), for all other keys of the table too, unless a dialog is open. */
    bool press(const QKeyEvent &event);

    /** What the table says, in the interface's language; keys that do the same share a line. */
    static QVector<KeyList::Line> lines();

private:
    struct Binding;

    static const QVector<Binding> &bindings();
    static QString keyName(int key);

    void onOtherKeyPressed(QKeyEvent *event);
    void later(void (Shortcuts::*showDialog)());

    void openFiles();
    void openFolder();
    void openSettings();
    void listKeys();
    void showOpenDialog();
    void showFolderDialog();
    void showListMenu();
    void resume();
    void showSettings();
    void showKeys();
    void toggleFullScreen();
    void toggleMute();
    void louder();
    void quieter();
    void faster();
    void slower();
    void previous();
    void next();
    void screenshot();
    void frameBack();
    void frameOn();
    void toStart();
    void toEnd();
    void chooseAbove();
    void chooseBelow();
    void playChosen();
    void choose(int rows);

    MainWindows *mWindow = nullptr; // the parent
    Widgets mWidgets;
};
