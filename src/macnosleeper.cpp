// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "macnosleeper.h"

#include "appname.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QTimer>

namespace {

// Longer than the hold it renews, on purpose: for ten seconds the computer may fall asleep.
constexpr int RenewalIntervalMs = 130000;
constexpr int HoldMs = 120000;

QDBusMessage screenSaverCall(const QString &method, const QVariantList &arguments)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.ScreenSaver"),
                                       QStringLiteral("/org/freedesktop/ScreenSaver"),
                                       QStringLiteral("org.freedesktop.ScreenSaver"), method);
    call.setArguments(arguments);
    return call;
}

} // namespace

MacNoSleeper::MacNoSleeper(QObject *parent) : QObject(parent)
{
    startTimer(RenewalIntervalMs, Qt::CoarseTimer);
    keepAwake();
}

MacNoSleeper::~MacNoSleeper()
{
    uninhibitScreenSaver();
}

void MacNoSleeper::timerEvent(QTimerEvent *)
{
    keepAwake();
}

void MacNoSleeper::keepAwake()
{
    QProcess::startDetached(
        QStringLiteral("caffeinate"),
        {QStringLiteral("-u"), QStringLiteral("-t"), QString::number(HoldMs / 1000)});
    inhibitScreenSaver();
}

void MacNoSleeper::inhibitScreenSaver()
{
#ifdef Q_OS_LINUX
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    const QDBusPendingCall call = bus.asyncCall(screenSaverCall(
        QStringLiteral("Inhibit"), {QString(APP_NAME), QStringLiteral("Playing recordings")}));
    connect(new QDBusPendingCallWatcher(call, this), &QDBusPendingCallWatcher::finished, this,
            &MacNoSleeper::onInhibited);
    QTimer::singleShot(HoldMs, this, &MacNoSleeper::uninhibitScreenSaver);
#endif
}

// A desktop without the service answers with an error, which changes nothing.
void MacNoSleeper::onInhibited(QDBusPendingCallWatcher *watcher)
{
    const QDBusPendingReply<quint32> reply = *watcher;
    if (reply.isValid())
        mInhibitionCookie = reply.value();
    watcher->deleteLater();
}

void MacNoSleeper::uninhibitScreenSaver()
{
    if (mInhibitionCookie == 0)
        return;
    QDBusConnection::sessionBus().send(
        screenSaverCall(QStringLiteral("UnInhibit"), {mInhibitionCookie}));
    mInhibitionCookie = 0;
}
