// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "displaycheck.h"

#ifdef TALVOR_WITH_X11
#include "xcbconnection.h"

#include <QByteArray>
#include <QFile>
#include <QList>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

/** The value of the last such option, whose name may begin with one dash or two. */
QByteArray optionValue(int argc, const char *const *argv, const char *name)
{
    QByteArray value;
    for (int i = 1; i + 1 < argc && std::strcmp(argv[i], "--") != 0; ++i) {
        const char *option = argv[i][0] == '-' && argv[i][1] == '-' ? argv[i] + 1 : argv[i];
        if (std::strcmp(option, name) == 0)
            value = argv[++i];
    }
    return value;
}

/** Those that Qt will try, parted by semicolons. */
QByteArray platformNames(int argc, const char *const *argv)
{
    QByteArray platforms = optionValue(argc, argv, "-platform");
    if (platforms.isEmpty())
        platforms = qgetenv("QT_QPA_PLATFORM");
    return platforms.isEmpty() ? "xcb" : platforms;
}

QByteArray displayName(int argc, const char *const *argv)
{
    const QByteArray display = optionValue(argc, argv, "-display");
    return display.isEmpty() ? qgetenv("DISPLAY") : display;
}

using Xcb::Connection;

/** Null when the server cannot be reached. */
Connection x11Connection(const QByteArray &display)
{
    Connection connection(xcb_connect(display.isEmpty() ? nullptr : display.constData(), nullptr));
    if (xcb_connection_has_error(connection.get()) != 0)
        connection.reset();
    return connection;
}

/** What xrdb and the desktops leave for all programs. */
QByteArray resources(xcb_connection_t *connection)
{
    constexpr quint32 most = 1 << 20; // of four bytes each
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const auto request =
        xcb_get_property(connection, 0, root, XCB_ATOM_RESOURCE_MANAGER, XCB_ATOM_STRING, 0, most);
    xcb_get_property_reply_t *reply = xcb_get_property_reply(connection, request, nullptr);
    if (!reply)
        return {};
    const QByteArray text(static_cast<const char *>(xcb_get_property_value(reply)),
                          xcb_get_property_value_length(reply));
    std::free(reply);
    return text;
}

bool hasWayland()
{
    QByteArray path = qgetenv("WAYLAND_DISPLAY");
    if (path.isEmpty())
        path = "wayland-0";
    if (!path.startsWith('/'))
        path = qgetenv("XDG_RUNTIME_DIR") + '/' + path;
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (size_t(path.size()) >= sizeof address.sun_path)
        return false;
    std::copy(path.begin(), path.end(), address.sun_path);
    const int end = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool isConnected =
        connect(end, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    close(end);
    return isConnected;
}

} // namespace

QString displayObstacle(int argc, const char *const *argv)
{
    QByteArray display = optionValue(argc, argv, "-display");
    const auto canShow = [&display](const QByteArray &platform) {
        if (platform.startsWith("wayland"))
            return hasWayland();
        return !platform.startsWith("xcb") || x11Connection(display);
    };
    const QList<QByteArray> candidates = platformNames(argc, argv).split(';');
    if (std::any_of(candidates.begin(), candidates.end(), canShow))
        return {};
    display = displayName(argc, argv);
    return display.isEmpty() ? QStringLiteral("there is no display, as DISPLAY is not set")
                             : QStringLiteral("the display \"%1\" does not answer")
                                   .arg(QString::fromLocal8Bit(display));
}

QByteArray displayIdentity(int argc, const char *const *argv)
{
    QByteArray display = displayName(argc, argv);
    const int screen = display.indexOf('.', display.lastIndexOf(':'));
    if (screen > 0)
        display.truncate(screen); // ":0.0" is ":0" as well
    return platformNames(argc, argv) + '\n' + display + '\n' + qgetenv("WAYLAND_DISPLAY");
}

bool isResolutionSet(int argc, const char *const *argv)
{
    const Connection connection = x11Connection(optionValue(argc, argv, "-display"));
    return connection && ('\n' + resources(connection.get())).contains("\nXft.dpi:");
}

#else

QString displayObstacle(int, const char *const *)
{
    return {};
}

QByteArray displayIdentity(int, const char *const *)
{
    return {};
}

bool isResolutionSet(int, const char *const *)
{
    return true;
}

#endif
