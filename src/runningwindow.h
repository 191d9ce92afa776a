// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QLocalServer>
#include <QObject>
#include <QUrl>

class QLocalSocket;
class QWidget;
class WindowClaim;

/**
 * The running program's end of the handing over: hears of other starts as long as it lives, takes
 * the recordings that they name, and brings the window to the front. Whatever else comes through
 * the socket is dropped after bounded bytes and time. A window that is closed takes nothing more.
 *
 * Does nothing without the claim; gives the claim up when it goes. The claim and the window must
 * outlive it. GUI thread only.
 */
class RunningWindow : public QObject
{
    Q_OBJECT

public:
    RunningWindow(WindowClaim *claim, QWidget *window);
    ~RunningWindow() override;

signals:
    /** What another start was to open, local files in its order; may be none. */
    void recordingsReceived(const QList<QUrl> &recordings);

private:
    void greet();
    void receive(QLocalSocket *start, const QByteArray &message);

    WindowClaim *mClaim;
    QWidget *mWindow;
    QLocalServer mServer;
};
