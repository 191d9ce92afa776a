// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windowhandover.h"

#ifdef TALVOR_WITH_X11
#include "xcbconnection.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QWindow>

#include <poll.h>

namespace {

constexpr int KeyboardMs = 300;
constexpr int WithdrawalMs = 1000;

using Xcb::Owned;
/** Not Qt's own connection: the events that are waited for would be missing there. */
using Xcb::Connection;

/** The manager has put the window out of its frame, and says that it no longer keeps it. */
bool isWithdrawn(xcb_connection_t *connection, xcb_window_t window)
{
    constexpr quint32 withdrawn = 0;
    const xcb_atom_t atom = Xcb::atom(connection, "WM_STATE");
    const Owned<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr));
    const Owned<xcb_get_property_reply_t> state(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, window, atom, atom, 0, 1), nullptr));
    if (!tree || !state)
        return true; // the window or the connection is gone
    const bool isKept =
        xcb_get_property_value_length(state.get()) == sizeof withdrawn &&
        std::memcmp(xcb_get_property_value(state.get()), &withdrawn, sizeof withdrawn) != 0;
    return tree->parent == tree->root && !isKept;
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

#else

void waitForKeyboard(const QWindow &) {}

void waitForWithdrawal(const QWindow &) {}

#endif
