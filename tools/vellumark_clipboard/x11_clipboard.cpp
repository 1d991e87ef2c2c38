#include "vellumark_clipboard/x11_clipboard.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};

template <typename Reply>
std::unique_ptr<Reply, Free> owned(Reply* reply)
{
    return std::unique_ptr<Reply, Free>(reply);
}

xcb_atom_t clipboard_atom(xcb_connection_t* connection)
{
    constexpr std::string_view name = "CLIPBOARD";
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const auto reply = owned(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

}

bool prepare_x11()
{
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    for (const char* name : {"SESSION_MANAGER", "QT_QPA_PLATFORMTHEME", "QT_IM_MODULE", "QT_ACCESSIBILITY",
                             "QT_LINUX_ACCESSIBILITY_ALWAYS_ON"})
        qunsetenv(name);
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

bool owns_clipboard(QGuiApplication& application)
{
    const auto* x11 = application.nativeInterface<QNativeInterface::QX11Application>();
    if (!x11)
        return false;
    xcb_connection_t* connection = x11->connection();
    const auto cookie = xcb_get_selection_owner(connection, clipboard_atom(connection));
    const auto reply = owned(xcb_get_selection_owner_reply(connection, cookie, nullptr));
    if (!reply || reply->owner == XCB_NONE)
        return false;
    // The ids of all that a connection makes begin alike.
    const xcb_setup_t* setup = xcb_get_setup(connection);
    return (reply->owner & ~setup->resource_id_mask) == setup->resource_id_base;
}
