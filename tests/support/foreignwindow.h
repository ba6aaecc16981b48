// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>
#include <qwindowdefs.h> // WId

#include <cstdlib>
#include <memory>
#include <utility>
#include <xcb/xcb.h>

namespace OrvTest {

struct FreeReply
{
    void operator()(void *reply) const { std::free(reply); }
};

template <typename Reply>
using OwnedReply = std::unique_ptr<Reply, FreeReply>;

/** A window of another program, as far as Qt can tell, inside a window of that program. */
class ForeignWindow
{
public:
    ForeignWindow()
        : m_connection(xcb_connect(nullptr, nullptr))
        , m_root(xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root)
        , m_frame(create(m_root, 60, 50))
        , m_window(create(m_frame, 7, 9))
    {
        state();
    }

    ~ForeignWindow() { xcb_disconnect(m_connection); } // which destroys its windows

    xcb_window_t id() const { return m_window; }
    void close() { xcb_disconnect(std::exchange(m_connection, xcb_connect(nullptr, nullptr))); }

    /** Where the window is: "parent x y width height map-state"; empty when it is no more. */
    QString state() const
    {
        const OwnedReply<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, m_window), nullptr));
        const OwnedReply<xcb_get_geometry_reply_t> place(
            xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, m_window), nullptr));
        const OwnedReply<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(m_connection, xcb_get_window_attributes(m_connection, m_window), nullptr));
        if (!tree || !place || !attributes)
            return {};
        return QStringLiteral("%1 %2 %3 %4 %5 %6")
            .arg(tree->parent == m_frame)
            .arg(place->x)
            .arg(place->y)
            .arg(place->width)
            .arg(place->height)
            .arg(attributes->map_state);
    }

    /** The window that \a other stays in front of. */
    xcb_window_t transientForOf(WId other) const
    {
        const OwnedReply<xcb_get_property_reply_t> property(xcb_get_property_reply(
            m_connection,
            xcb_get_property(m_connection, 0, xcb_window_t(other), XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW, 0, 1),
            nullptr));
        if (!property || xcb_get_property_value_length(property.get()) < int(sizeof(xcb_window_t)))
            return XCB_WINDOW_NONE;
        return *static_cast<const xcb_window_t *>(xcb_get_property_value(property.get()));
    }

private:
    xcb_window_t create(xcb_window_t parent, int16_t x, int16_t y) const
    {
        const xcb_window_t window = xcb_generate_id(m_connection);
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, parent, x, y, 300, 200, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_map_window(m_connection, window);
        return window;
    }

    xcb_connection_t *m_connection;
    const xcb_window_t m_root;
    const xcb_window_t m_frame;
    const xcb_window_t m_window;
};

} // namespace OrvTest
