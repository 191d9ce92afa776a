// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "mediacontrols.h"

#include "mprisplayer.h"
#include "mprisroot.h"
#include "playbackremote.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace {

const QLatin1String ObjectPath("/org/mpris/MediaPlayer2");
const QLatin1String PlayerInterface("org.mpris.MediaPlayer2.Player");
const QLatin1String BusName("org.mpris.MediaPlayer2.talvor-player");

// What the bus takes and answers when a name is requested (DBUS_NAME_FLAG_DO_NOT_QUEUE,
// DBUS_REQUEST_NAME_REPLY_PRIMARY_OWNER).
constexpr uint DoNotQueue = 4;
constexpr uint PrimaryOwner = 1;

QString instanceName()
{
    return BusName + QStringLiteral(".instance%1").arg(QCoreApplication::applicationPid());
}

/** Qt's own functions for names wait for the bus to answer. */
QDBusMessage busCall(const QString &method, const QVariantList &arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), method);
    call.setArguments(arguments);
    return call;
}

} // namespace

MediaControls::MediaControls(PlaybackRemote *remote, const QDBusConnection &bus, QObject *parent)
    : QObject(parent), mBus(bus), mPlayer(new MprisPlayer(remote, bus, this))
{
    // Without it no two object paths would be equal, and every announcement would repeat them.
    QMetaType::registerEqualsComparator<QDBusObjectPath>();
    new MprisRoot(remote, this);
    if (!mBus.isConnected() || !mBus.registerObject(ObjectPath, this))
        return;
    mAnnounced = mPlayer->announcedProperties();
    mAnnouncement.setSingleShot(true);
    mAnnouncement.setInterval(0);
    connect(&mAnnouncement, &QTimer::timeout, this, &MediaControls::announceChanges);
    connect(remote, &PlaybackRemote::changed, &mAnnouncement, QOverload<>::of(&QTimer::start));
    requestName(BusName);
}

MediaControls::~MediaControls()
{
    if (!mName.isEmpty())
        mBus.send(busCall(QStringLiteral("ReleaseName"), {mName}));
    mBus.unregisterObject(ObjectPath);
}

void MediaControls::requestName(const QString &name)
{
    const QDBusPendingCall call =
        mBus.asyncCall(busCall(QStringLiteral("RequestName"), {name, DoNotQueue}));
    const auto *watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, name](QDBusPendingCallWatcher *answered) { onNameAnswered(name, answered); });
}

void MediaControls::onNameAnswered(const QString &name, QDBusPendingCallWatcher *watcher)
{
    watcher->deleteLater();
    const QDBusPendingReply<uint> reply = *watcher;
    if (reply.isError())
        return;
    if (reply.value() == PrimaryOwner)
        mName = name;
    else if (name == BusName)
        requestName(instanceName());
}

void MediaControls::announceChanges()
{
    const QVariantMap properties = mPlayer->announcedProperties();
    QVariantMap changes;
    for (auto property = properties.begin(); property != properties.end(); ++property) {
        if (mAnnounced.value(property.key()) != property.value())
            changes.insert(property.key(), property.value());
    }
    mAnnounced = properties;
    if (changes.isEmpty())
        return;
    QDBusMessage signal =
        QDBusMessage::createSignal(ObjectPath, QStringLiteral("org.freedesktop.DBus.Properties"),
                                   QStringLiteral("PropertiesChanged"));
    signal.setArguments({QString(PlayerInterface), changes, QStringList()});
    mBus.send(signal);
}
