// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "terminationwatch.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

namespace {

constexpr int Requests[] = {SIGTERM, SIGINT, SIGHUP};

int pipeEnds[2] = {-1, -1}; // for reading, for writing

/** Writing to a pipe is one of the few things that may be done here. */
void passOn(int)
{
    const int error = errno;
    const char request = 0;
    [[maybe_unused]] const ssize_t written = write(pipeEnds[1], &request, sizeof request);
    errno = error;
}

bool isIgnored(int request)
{
    struct sigaction present = {};
    sigaction(request, nullptr, &present);
    return present.sa_handler == SIG_IGN;
}

void handle(int request, void (*handler)(int))
{
    if (isIgnored(request))
        return;
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = int(SA_RESTART | SA_RESETHAND);
    sigaction(request, &action, nullptr);
}

} // namespace

TerminationWatch::TerminationWatch(QObject *parent) : QObject(parent)
{
    if (pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0)
        return; // requests end the program at once
    mNotifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(mNotifier, &QSocketNotifier::activated, this, [this] {
        mNotifier->setEnabled(false);
        emit requested();
    });
    for (const int request : Requests)
        handle(request, passOn);
}

TerminationWatch::~TerminationWatch()
{
    for (const int request : Requests)
        handle(request, SIG_DFL);
    for (int &end : pipeEnds) {
        close(end);
        end = -1;
    }
}
