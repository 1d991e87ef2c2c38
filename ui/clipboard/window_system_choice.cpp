#include "ui/clipboard/window_system_choice.h"

#include "platform/clipboard.h"

#include <QByteArray>

namespace {

constexpr char platform_choice[] = "QT_QPA_PLATFORM";

}

WindowSystemChoice::WindowSystemChoice()
    : is_made_(qEnvironmentVariableIsEmpty(platform_choice) && platform::needs_x11_windows())
{
    if (is_made_)
        qputenv(platform_choice, "xcb;wayland");
}

void WindowSystemChoice::forget() const
{
    if (is_made_)
        qunsetenv(platform_choice);
}
