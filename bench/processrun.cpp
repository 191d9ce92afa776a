// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "processrun.h"

#include <QFile>
#include <QTemporaryFile>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <vector>

namespace {

const char Nowhere[] = "/dev/null";

/** What the started program has as its input and output. */
class Redirection
{
public:
    explicit Redirection(const QString &outputFile)
    {
        constexpr int NewFile = O_WRONLY | O_CREAT | O_TRUNC;
        posix_spawn_file_actions_init(&mActions);
        posix_spawn_file_actions_addopen(&mActions, STDIN_FILENO, Nowhere, O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&mActions, STDOUT_FILENO, QFile::encodeName(outputFile),
                                         NewFile, 0600);
        posix_spawn_file_actions_addopen(&mActions, STDERR_FILENO, Nowhere, O_WRONLY, 0);
    }
    ~Redirection() { posix_spawn_file_actions_destroy(&mActions); }
    Redirection(const Redirection &) = delete;
    Redirection &operator=(const Redirection &) = delete;

    const posix_spawn_file_actions_t *actions() const { return &mActions; }

private:
    posix_spawn_file_actions_t mActions;
};

bool endsWell(pid_t process, double &peakKib)
{
    int status = 0;
    rusage usage = {};
    while (wait4(process, &status, 0, &usage) < 0) {
        if (errno != EINTR)
            return false;
    }
    peakKib = double(usage.ru_maxrss);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

ProcessRun runProcess(const QStringList &command, const QString &outputFile)
{
    QList<QByteArray> words;
    for (const QString &word : command)
        words.append(QFile::encodeName(word));
    std::vector<char *> arguments;
    for (QByteArray &word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const Redirection redirection(outputFile);

    ProcessRun run;
    pid_t process = 0;
    const auto start = std::chrono::steady_clock::now();
    run.isGood = posix_spawnp(&process, arguments[0], redirection.actions(), nullptr,
                              arguments.data(), environ) == 0 &&
                 endsWell(process, run.peakKib);
    run.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    return run;
}

QByteArray outputOf(const QStringList &command)
{
    QTemporaryFile output;
    if (!output.open() || !runProcess(command, output.fileName()).isGood)
        qFatal("This failed: %s", qPrintable(command.join(QLatin1Char(' '))));
    return output.readAll();
}
