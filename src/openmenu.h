// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

class ControlPanel;
class QAbstractButton;

/**
 * The menu of the open button, which has room for a click only: it comes when the button is held
 * or asked for its context menu, and offers a whole folder beside the files that a click offers. A
 * small triangle in the button's corner tells of it.
 *
 * GUI thread only. A child of the button.
 */
class OpenMenu : public QObject
{
    Q_OBJECT

public:
    /** The control panel that has the button. */
    explicit OpenMenu(const ControlPanel *panel);

signals:
    void filesRequested();
    void folderRequested();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void popUp();

    QAbstractButton *mButton = nullptr; // the parent
    QTimer mHold;
};
