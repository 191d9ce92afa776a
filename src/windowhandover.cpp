// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windowhandover.h"

#ifdef TALVOR_WITH_X11
#include "xcbconnection.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QWindow>

#include <poll.h>

#include <algorithm>

namespace {

constexpr int KeyboardMs = 300;
constexpr int WithdrawalMs = 1000;

using Xcb::Owned;
/** Not Qt's own connection: the events that are waited for would be missing there. */
using Xcb::Connection;

Owned<xcb_query_tree_reply_t> treeOf(xcb_connection_t *connection, xcb_window_t window)
{
    return Owned<xcb_query_tree_reply_t>(
        xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr));
}

/** Whether the manager says that it keeps the window. */
bool isKept(xcb_connection_t *connection, xcb_window_t window)
{
    constexpr quint32 withdrawn = 0;
    const xcb_atom_t atom = Xcb::atom(connection, "WM_STATE");
    const Owned<xcb_get_property_reply_t> state(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, window, atom, atom, 0, 1), nullptr));
    return state && xcb_get_property_value_length(state.get()) == sizeof withdrawn &&
           std::memcmp(xcb_get_property_value(state.get()), &withdrawn, sizeof withdrawn) != 0;
}

/** The manager has put the window out of its frame, and says that it no longer keeps it. */
bool isWithdrawn(xcb_connection_t *connection, xcb_window_t window)
{
    const Owned<xcb_query_tree_reply_t> tree = treeOf(connection, window);
    if (!tree)
        return true; // the window or the connection is gone
    return tree->parent == tree->root && !isKept(connection, window);
}

/** The window or the nearest one around it that the manager keeps, or that belongs to nobody but
 *  the manager: then XCB_NONE. */
xcb_window_t keptWindow(xcb_connection_t *connection, xcb_window_t window)
{
    while (!isKept(connection, window)) {
        const Owned<xcb_query_tree_reply_t> tree = treeOf(connection, window);
        if (!tree || tree->parent == tree->root || tree->parent == XCB_NONE)
            return XCB_NONE;
        window = tree->parent;
    }
    return window;
}

bool isOfThisProgram(xcb_window_t id)
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    return std::any_of(windows.begin(), windows.end(), [id](const QWindow *window) {
        return window->handle() && xcb_window_t(window->winId()) == id;
    });
}

bool hasKeyboard(xcb_connection_t *connection, xcb_window_t window)
{
    const Owned<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    return !reply || reply->focus == window;
}

/** Looks whenever something happens to the window. */
void waitUntil(bool (*isReached)(xcb_connection_t *, xcb_window_t), const QWindow &window,
               int patienceMs)
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    const Connection connection(xcb_connect(nullptr, nullptr));
    const auto id = xcb_window_t(window.winId());
    const quint32 events = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE |
                           XCB_EVENT_MASK_FOCUS_CHANGE;
    xcb_change_window_attributes(connection.get(), id, XCB_CW_EVENT_MASK, &events);
    const QDeadlineTimer deadline(patienceMs);
    while (!deadline.hasExpired() && !isReached(connection.get(), id)) {
        // An answer may have brought an event along, on which the socket would not wait any more.
        if (Owned<xcb_generic_event_t>(xcb_poll_for_event(connection.get())))
            continue;
        pollfd waiting{xcb_get_file_descriptor(connection.get()), POLLIN, 0};
        poll(&waiting, 1, int(deadline.remainingTime()));
    }
}

} // namespace

void waitForKeyboard(const QWindow &window)
{
    waitUntil(hasKeyboard, window, KeyboardMs);
}

void waitForWithdrawal(const QWindow &window)
{
    waitUntil(isWithdrawn, window, WithdrawalMs);
}

KeyboardHolder keyboardHolder(const QWindow &window)
{
    const Connection connection(xcb_connect(nullptr, nullptr));
    const Owned<xcb_get_input_focus_reply_t> focus(xcb_get_input_focus_reply(
        connection.get(), xcb_get_input_focus(connection.get()), nullptr));
    if (!focus)
        return KeyboardHolder::OtherProgram;
    if (focus->focus == xcb_window_t(window.winId()))
        return KeyboardHolder::Window;
    if (focus->focus == XCB_NONE || focus->focus == XCB_INPUT_FOCUS_POINTER_ROOT)
        return KeyboardHolder::Nobody;
    const xcb_window_t holder = keptWindow(connection.get(), focus->focus);
    const bool isOther = holder != XCB_NONE && !isOfThisProgram(holder);
    return isOther ? KeyboardHolder::OtherProgram : KeyboardHolder::Nobody;
}

bool isLetGo(const QWindow &window)
{
    const Connection connection(xcb_connect(nullptr, nullptr));
    return !isKept(connection.get(), xcb_window_t(window.winId()));
}

bool putBack(const QWindow &window)
{
    const Connection connection(xcb_connect(nullptr, nullptr));
    const auto id = xcb_window_t(window.winId());
    const Owned<xcb_query_tree_reply_t> tree = treeOf(connection.get(), id);
    const Owned<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
        connection.get(), xcb_get_window_attributes(connection.get(), id), nullptr));
    const auto parent = window.parent() ? xcb_window_t(window.parent()->winId()) : XCB_NONE;
    if (!tree || !attributes || parent == XCB_NONE)
        return true;
    const bool isHidden = window.isVisible() && attributes->map_state == XCB_MAP_STATE_UNMAPPED;
    if (tree->parent == parent && !isHidden)
        return true;
    const QPoint place = window.position() * window.devicePixelRatio();
    xcb_reparent_window(connection.get(), id, parent, qint16(place.x()), qint16(place.y()));
    if (window.isVisible())
        xcb_map_window(connection.get(), id);
    xcb_flush(connection.get());
    return false;
}

#else

KeyboardHolder keyboardHolder(const QWindow &)
{
    return KeyboardHolder::OtherProgram;
}

bool isLetGo(const QWindow &)
{
    return true;
}

bool putBack(const QWindow &)
{
    return true;
}

void waitForKeyboard(const QWindow &) {}

void waitForWithdrawal(const QWindow &) {}

#endif
