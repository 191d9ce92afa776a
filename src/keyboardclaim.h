// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>

class QWidget;

/**
 * Sees to it that a window gets the keyboard when a full screen comes or goes, however long the
 * window manager takes. One that is busy may forget who asked, and one that loses the window with
 * the keyboard may give it to none: then the window asks again. A window of another program that
 * has the keyboard keeps it, and ends the claim.
 *
 * The picture that has left its full screen is watched as well. A manager that lets go of it late
 * takes it out of the main window, where it is put back.
 *
 * GUI thread only. A child of the window, which goes by itself. Does nothing on other window
 * systems than X11.
 */
class KeyboardClaim : public QObject
{
    Q_OBJECT

public:
    /** Takes the place of any claim there is. @p picture, which may be null, has just left its full
     *  screen; it may be deleted meanwhile. */
    static void make(QWidget *window, QWidget *picture = nullptr);

private:
    KeyboardClaim(QWidget *window, QWidget *picture);

    void look();
    bool hasLeft();

    QWidget *mWindow; // the parent
    QPointer<QWidget> mPicture;
    QTimer mTimer;
    QElapsedTimer mAge;
    QElapsedTimer mSinceAsked;
};
