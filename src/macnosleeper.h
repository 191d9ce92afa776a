// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QProcess>

class QDBusPendingCallWatcher;

/**
 * Keeps the display and the computer awake for as long as it lives: for 120 s at once and then
 * again every 130 s. It starts the `caffeinate` command, which is silently missing on most
 * systems, and on Linux takes the desktop's screen-saver inhibition over D-Bus
 * (org.freedesktop.ScreenSaver); without a session bus that does nothing.
 */
class MacNoSleeper : public QObject
{
    Q_OBJECT

public:
    explicit MacNoSleeper(QObject *parent = nullptr);
    ~MacNoSleeper() override;

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void keepAwake();
    void inhibitScreenSaver();
    void onInhibited(QDBusPendingCallWatcher *watcher);
    void uninhibitScreenSaver();

    QProcess mProcess;             // never started; lives as long as this object
    quint32 mInhibitionCookie = 0; // 0 while there is no inhibition
};
