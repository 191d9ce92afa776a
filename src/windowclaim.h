// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QUrl>

/** How long a start waits for the program that runs already. */
struct HandoverPatience
{
    int answerMs = 2000; ///< for each answer
    int startMs = 60000; ///< longer, while that program may still be starting
};

/**
 * The claim to be the program that other starts hand their recordings to. One program has it for
 * each user, display and folder of settings; it ends with the program at the latest, even by a
 * crash.
 *
 * It is a lock on a file in a folder that only the user can enter: the one that the system has for
 * such things, else one below /tmp. Without such a folder nobody has the claim, and every start
 * opens a window of its own. Needs no application object. No thread of its own; a claim must not be
 * used by two at once.
 *
 * The two programs talk through a socket beside the lock: the running one says Hello, the start
 * answers with the recordings as URLs, one a line, and an empty line, and hears Taken.
 */
class WindowClaim
{
public:
    static const char Hello[];
    static const char Taken[];
    /** A start that names more opens a window of its own. */
    static constexpr int MostMessageBytes = 1 << 20;

    /** @param display names the display as in displayIdentity(). */
    explicit WindowClaim(const QByteArray &display, HandoverPatience patience = HandoverPatience());
    ~WindowClaim();

    /** Takes the claim if nobody has it. Returns whether this program has it now. */
    bool take();
    bool isTaken() const { return mLock >= 0; }
    void release();

    /** Hands the recordings, which may be none, to the program that has the claim; waits for one
     *  that is starting. Returns false if this program is to open its own window: because it has
     *  the claim now, or because the other one does not take them in time. */
    bool handOver(const QList<QUrl> &recordings);

    /** Where the program that has the claim listens; empty when there can be none. */
    QByteArray socketPath() const { return mPath; }

    /** Whether a connected local socket's other end is the same user's. */
    static bool isOwnPeer(int socket);

private:
    Q_DISABLE_COPY(WindowClaim)

    enum class Answer
    {
        Taken,
        None,   ///< in time, or not one of ours
        Absent, ///< nobody listens yet, or no longer
    };

    Answer tell(const QByteArray &message) const;
    QByteArray lockPath() const { return mPath + ".lock"; }
    qint64 patienceMs() const;

    QByteArray mPath;
    HandoverPatience mPatience;
    int mLock = -1; // the descriptor
};
