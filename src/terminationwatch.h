// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QSocketNotifier;

/**
 * Turns the operating system's requests to end (SIGTERM, SIGINT and SIGHUP) into a signal that
 * arrives in the event loop, so that the program can end as if the user closed it. A second request
 * ends it at once; one that the starter of the program had ignored stays ignored.
 *
 * One at a time. GUI thread only.
 */
class TerminationWatch : public QObject
{
    Q_OBJECT

public:
    explicit TerminationWatch(QObject *parent = nullptr);
    ~TerminationWatch() override;

signals:
    void requested();

private:
    QSocketNotifier *mNotifier = nullptr;
};
