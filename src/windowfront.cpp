// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windowfront.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QWidget>

#ifdef TALVOR_WITH_X11
#include "xcbconnection.h"

#include <cstdlib>
#include <cstring>

namespace {

using Xcb::atom;
using Xcb::Connection;

xcb_window_t rootOf(xcb_connection_t *connection)
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

void sendToRoot(xcb_connection_t *connection, const xcb_client_message_event_t &message,
                quint32 mask)
{
    xcb_send_event(connection, 0, rootOf(connection), mask,
                   reinterpret_cast<const char *>(&message));
}

/** Window managers keep programs from taking the keyboard by themselves: what Qt asks for carries
 *  the time of the last input in the window, which is older than what the user did elsewhere. */
void activate(xcb_window_t window)
{
    constexpr quint32 byTheUser = 2;
    const Connection connection(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection.get()) != 0)
        return;
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom(connection.get(), "_NET_ACTIVE_WINDOW");
    message.data.data32[0] = byTheUser;
    message.data.data32[1] = XCB_CURRENT_TIME;
    sendToRoot(connection.get(), message,
               XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT);
    xcb_flush(connection.get());
}

/** The text with its end goes in messages of twenty bytes each, from a window of the sender's. */
void tellDesktop(xcb_connection_t *connection, const QByteArray &text)
{
    const xcb_window_t sender = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, sender, rootOf(connection), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 8;
    message.window = sender;
    message.type = atom(connection, "_NET_STARTUP_INFO_BEGIN");
    const QByteArray whole = text + '\0';
    for (int i = 0; i < whole.size(); i += int(sizeof message.data.data8)) {
        const QByteArray part =
            whole.mid(i, sizeof message.data.data8).leftJustified(sizeof message.data.data8, '\0');
        std::memcpy(message.data.data8, part.constData(), sizeof message.data.data8);
        sendToRoot(connection, message, XCB_EVENT_MASK_PROPERTY_CHANGE);
        message.type = atom(connection, "_NET_STARTUP_INFO");
    }
    xcb_destroy_window(connection, sender);
}

} // namespace
#endif

void bringToFront(QWidget *window)
{
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->raise();
    askForKeyboard(window);
}

void askForKeyboard(QWidget *window)
{
    window->activateWindow();
#ifdef TALVOR_WITH_X11
    if (QGuiApplication::platformName() == QLatin1String("xcb"))
        activate(xcb_window_t(window->winId()));
#endif
}

void endStartNotice()
{
#ifdef TALVOR_WITH_X11
    QByteArray id = qgetenv("DESKTOP_STARTUP_ID");
    const Connection connection(id.isEmpty() ? nullptr : xcb_connect(nullptr, nullptr));
    if (!connection || xcb_connection_has_error(connection.get()) != 0)
        return;
    id.replace('\\', "\\\\").replace('"', "\\\"");
    tellDesktop(connection.get(), "remove: ID=\"" + id + '"');
    // The answer comes when the server has passed everything on.
    std::free(xcb_get_input_focus_reply(connection.get(), xcb_get_input_focus(connection.get()),
                                        nullptr));
#endif
}
