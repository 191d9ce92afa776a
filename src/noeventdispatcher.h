// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractEventDispatcher>

/**
 * The event dispatcher of a thread that never runs an event loop. QThread gives each thread one
 * that holds a file descriptor to be woken by; this one holds nothing, so that threads are not
 * limited by the descriptors of the process.
 *
 * To be given to a QThread before each start(); the thread deletes it when it ends. Signals that
 * such a thread emits arrive elsewhere as ever; timers, socket notifiers and events for objects of
 * its own are what it cannot have.
 */
class NoEventDispatcher final : public QAbstractEventDispatcher
{
    Q_OBJECT

public:
    using QAbstractEventDispatcher::QAbstractEventDispatcher;

    bool processEvents(QEventLoop::ProcessEventsFlags) override { return false; }
    bool hasPendingEvents() override { return false; }

    void registerSocketNotifier(QSocketNotifier *) override {}
    void unregisterSocketNotifier(QSocketNotifier *) override {}

    void registerTimer(int, int, Qt::TimerType, QObject *) override {}
    bool unregisterTimer(int) override { return false; }
    bool unregisterTimers(QObject *) override { return false; }
    QList<TimerInfo> registeredTimers(QObject *) const override { return {}; }
    int remainingTime(int) override { return -1; }

    void wakeUp() override {}
    void interrupt() override {}
    void flush() override {}
};
