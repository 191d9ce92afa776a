// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

/** What talking to the X server beside Qt has in common: owners of what its library allocates. */
namespace Xcb {

struct Disconnect
{
    void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
};
/** A connection of one's own. It is an object even where the server refused it. */
using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

struct Free
{
    void operator()(void *pointer) const { std::free(pointer); }
};
/** A reply or an event; null when there is none. */
template <typename Reply>
using Owned = std::unique_ptr<Reply, Free>;

/** The number that stands for a name at this server; waits for the answer. XCB_ATOM_NONE when the
 *  connection is broken. */
inline xcb_atom_t atom(xcb_connection_t *connection, const char *name)
{
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, std::uint16_t(std::strlen(name)), name),
        nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

} // namespace Xcb
