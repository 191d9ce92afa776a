// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

class QRect;
class QWidget;

/**
 * Keeps a window of its own lying over a place in another window.
 *
 * What of the place is off the screens is not covered: window managers push a window that is nearly
 * out of sight back to where it can be seen. The overlay never takes the keyboard, and a click on
 * it brings the window below it to the front.
 *
 * Owns neither of the two widgets, which must live as long as it is used. GUI thread only.
 */
class OverlayWindow : public QObject
{
    Q_OBJECT

public:
    /** Turns @p overlay, not yet shown, into a frameless tool window. @p place is its ancestor. */
    OverlayWindow(QWidget *overlay, QWidget *place, QObject *parent = nullptr);

    /** Lays the overlay over the place and shows it, or hides it if hardly any of the place is on a
     *  screen. */
    void cover();
    /** Shows the overlay where it is as soon as the place can be seen. */
    void show();
    void hide();
    /** Puts the overlay below the screens, the size of a dot. A hidden one stays hidden. */
    void park();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeWindow();
    void paintAgain();
    QRect visiblePlace() const;

    QWidget *mOverlay;
    QWidget *mPlace;
    QTimer mPaintTimer;
    int mPaintsLeft = 0; // since the overlay was laid over its place
};
