// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "runningwindow.h"

#include "windowclaim.h"
#include "windowfront.h"

#include <QFile>
#include <QLocalSocket>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <optional>

namespace {

// A folder's worth of recordings may be opened by as many starts at once.
constexpr int MostStarts = 128;
constexpr int MessageMs = 10000;

bool isWhole(const QByteArray &message)
{
    return message == "\n" || message.endsWith("\n\n");
}

/** Nothing if it is not the message of a start. */
std::optional<QList<QUrl>> recordingsOf(const QByteArray &message)
{
    QList<QUrl> urls;
    const QList<QByteArray> lines = message.trimmed().split('\n');
    for (const QByteArray &line : lines) {
        if (line.isEmpty() && lines.size() == 1)
            break;
        const QUrl url = QUrl::fromEncoded(line, QUrl::StrictMode);
        if (!url.isLocalFile() || url.path().isEmpty())
            return std::nullopt;
        urls.append(url);
    }
    return urls;
}

} // namespace

RunningWindow::RunningWindow(WindowClaim *claim, QWidget *window) : mClaim(claim), mWindow(window)
{
    if (!mClaim->isTaken())
        return;
    const QString path = QFile::decodeName(mClaim->socketPath());
    QFile::remove(path); // left behind by a program that crashed
    mServer.setMaxPendingConnections(MostStarts);
    connect(&mServer, &QLocalServer::newConnection, this, &RunningWindow::greet);
    if (!mServer.listen(path))
        mClaim->release();
}

RunningWindow::~RunningWindow()
{
    mServer.close();
    mClaim->release();
}

void RunningWindow::greet()
{
    while (QLocalSocket *start = mServer.nextPendingConnection()) {
        const bool isFlood = mServer.findChildren<QLocalSocket *>().size() > MostStarts;
        if (isFlood || !WindowClaim::isOwnPeer(int(start->socketDescriptor()))) {
            delete start;
            continue;
        }
        start->setReadBufferSize(WindowClaim::MostMessageBytes + 1);
        connect(start, &QLocalSocket::disconnected, start, &QObject::deleteLater);
        QTimer::singleShot(MessageMs, start, &QLocalSocket::abort);
        const auto message = std::make_shared<QByteArray>();
        connect(start, &QLocalSocket::readyRead, this, [this, start, message] {
            *message += start->readAll();
            receive(start, *message);
        });
        start->write(WindowClaim::Hello);
    }
}

void RunningWindow::receive(QLocalSocket *start, const QByteArray &message)
{
    const bool isTooMuch = message.size() > WindowClaim::MostMessageBytes;
    if (!isTooMuch && !isWhole(message))
        return;
    start->disconnect(this);
    const auto recordings = isTooMuch ? std::nullopt : recordingsOf(message);
    // Recordings for a window that is closing would be lost: the start is to wait for its end.
    if (!recordings || !mWindow->isVisible()) {
        start->abort();
        return;
    }
    start->write(WindowClaim::Taken);
    start->disconnectFromServer(); // once that is written
    emit recordingsReceived(*recordings);
    bringToFront(mWindow);
}
