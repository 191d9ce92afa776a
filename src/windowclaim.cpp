// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windowclaim.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QFile>
#include <QStandardPaths>

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <thread>

namespace {

constexpr auto Pause = std::chrono::milliseconds(50);
constexpr int MostPathBytes = int(sizeof(sockaddr_un::sun_path)) - 1;

/** Whether only this user can have put anything there. */
bool isPrivate(const QByteArray &folder)
{
    struct stat facts = {};
    return lstat(folder.constData(), &facts) == 0 && S_ISDIR(facts.st_mode) &&
           facts.st_uid == geteuid() && (facts.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

QByteArray privateFolder(int nameBytes)
{
    const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
    if (runtime.startsWith('/') && runtime.size() + nameBytes <= MostPathBytes &&
        isPrivate(runtime))
        return runtime;
    const QByteArray own = "/tmp/talvor-player-" + QByteArray::number(geteuid());
    mkdir(own.constData(), S_IRWXU);
    return isPrivate(own) ? own : QByteArray();
}

/** Other settings make another program of it. */
QByteArray pathFor(const QByteArray &display)
{
    const QString settings = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const QByteArray all = display + '\0' + QFile::encodeName(settings);
    const QByteArray name =
        "/talvor-player-" +
        QCryptographicHash::hash(all, QCryptographicHash::Sha1).toHex().left(16);
    const QByteArray folder = privateFolder(name.size());
    return folder.isEmpty() ? folder : folder + name;
}

QByteArray messageOf(const QList<QUrl> &recordings)
{
    QByteArray message;
    for (const QUrl &url : recordings)
        message += url.toEncoded() + '\n';
    return message + '\n';
}

enum class Talk
{
    Done,
    Failed, // too late, or not what was to come
    Ended,  // by the other side
};

/** A connection to a local socket. Every exchange has to be done by its deadline. */
class Connection
{
public:
    explicit Connection(const QByteArray &path)
        : mSocket(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0))
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        std::copy(path.begin(), path.end(), address.sun_path);
        mIsOpen =
            path.size() <= MostPathBytes &&
            connect(mSocket, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    }
    ~Connection() { close(mSocket); }
    Q_DISABLE_COPY(Connection)

    bool isOpen() const { return mIsOpen; }
    int socketDescriptor() const { return mSocket; }

    Talk hear(const QByteArray &expected, QDeadlineTimer deadline) const;
    Talk say(const QByteArray &message, QDeadlineTimer deadline) const;

private:
    bool await(short event, QDeadlineTimer deadline) const
    {
        pollfd waiting{mSocket, event, 0};
        return poll(&waiting, 1, int(deadline.remainingTime())) > 0;
    }

    int mSocket;
    bool mIsOpen = false;
};

Talk Connection::hear(const QByteArray &expected, QDeadlineTimer deadline) const
{
    for (int heard = 0; heard < expected.size();) {
        char text[64];
        const size_t wanted = std::min(sizeof text, size_t(expected.size() - heard));
        if (!await(POLLIN, deadline))
            return Talk::Failed;
        const ssize_t bytes = recv(mSocket, text, wanted, 0);
        if (bytes == 0 || (bytes < 0 && errno == ECONNRESET))
            return Talk::Ended;
        if (bytes < 0 || !std::equal(text, text + bytes, expected.begin() + heard))
            return Talk::Failed;
        heard += int(bytes);
    }
    return Talk::Done;
}

Talk Connection::say(const QByteArray &message, QDeadlineTimer deadline) const
{
    for (int said = 0; said < message.size();) {
        if (!await(POLLOUT, deadline))
            return Talk::Failed;
        const ssize_t bytes =
            send(mSocket, message.constData() + said, size_t(message.size() - said), MSG_NOSIGNAL);
        if (bytes < 0 && (errno == EPIPE || errno == ECONNRESET))
            return Talk::Ended;
        if (bytes < 0 && errno != EAGAIN)
            return Talk::Failed;
        said += std::max(int(bytes), 0);
    }
    return Talk::Done;
}

} // namespace

const char WindowClaim::Hello[] = "talvor-player 1\n";
const char WindowClaim::Taken[] = "taken\n";

WindowClaim::WindowClaim(const QByteArray &display, HandoverPatience patience)
    : mPath(pathFor(display)), mPatience(patience)
{}

WindowClaim::~WindowClaim()
{
    release();
}

bool WindowClaim::take()
{
    if (isTaken() || mPath.isEmpty())
        return isTaken();
    constexpr int flags = O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW;
    const int lock = open(lockPath().constData(), flags, S_IRUSR | S_IWUSR);
    if (lock >= 0 && flock(lock, LOCK_EX | LOCK_NB) == 0) {
        futimens(lock, nullptr); // others see by it how long this program has been starting
        mLock = lock;
        return true;
    }
    const bool isOthers = lock >= 0 && errno == EWOULDBLOCK;
    close(lock);
    if (!isOthers)
        mPath.clear(); // nothing can be locked there
    return false;
}

void WindowClaim::release()
{
    if (!isTaken())
        return;
    flock(mLock, LOCK_UN);
    close(mLock);
    mLock = -1;
}

bool WindowClaim::handOver(const QList<QUrl> &recordings)
{
    const QByteArray message = messageOf(recordings);
    const QDeadlineTimer deadline(mPatience.answerMs);
    while (!take() && !mPath.isEmpty() && message.size() <= MostMessageBytes) {
        const Answer answer = tell(message);
        if (answer != Answer::Absent)
            return answer == Answer::Taken;
        // One that starts listens soon, one that ends gives up its claim.
        if (deadline.hasExpired() && patienceMs() <= mPatience.answerMs)
            return false;
        std::this_thread::sleep_for(Pause);
    }
    return false;
}

bool WindowClaim::isOwnPeer(int socket)
{
#ifdef SO_PEERCRED
    ucred peer = {};
    socklen_t bytes = sizeof peer;
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &bytes) == 0 && peer.uid == geteuid();
#else
    Q_UNUSED(socket)
    return true; // nobody else can enter the folder
#endif
}

/** Before Hello nothing is said, so that a program that hangs does not take the recordings later,
 *  when they are open elsewhere. */
WindowClaim::Answer WindowClaim::tell(const QByteArray &message) const
{
    const Connection running(mPath);
    if (!running.isOpen())
        return Answer::Absent;
    if (!isOwnPeer(running.socketDescriptor()))
        return Answer::None;
    Talk talk = running.hear(Hello, QDeadlineTimer(patienceMs()));
    if (talk == Talk::Done)
        talk = running.say(message, QDeadlineTimer(patienceMs()));
    if (talk == Talk::Done)
        talk = running.hear(Taken, QDeadlineTimer(patienceMs()));
    if (talk == Talk::Ended)
        return Answer::Absent;
    return talk == Talk::Done ? Answer::Taken : Answer::None;
}

/** For an answer: whoever took the claim a moment ago may still be making its window. */
qint64 WindowClaim::patienceMs() const
{
    struct stat facts = {};
    if (stat(lockPath().constData(), &facts) != 0)
        return mPatience.answerMs;
    const qint64 takenMs = facts.st_mtim.tv_sec * 1000LL + facts.st_mtim.tv_nsec / 1000000;
    const qint64 ageMs = QDateTime::currentMSecsSinceEpoch() - takenMs;
    const qint64 startMs = ageMs < 0 ? 0 : mPatience.startMs - ageMs; // a clock may be set back
    return std::max<qint64>(mPatience.answerMs, startMs);
}
