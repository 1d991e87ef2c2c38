#include "ui/clipboard/system_clipboard.h"

#include "ui/text.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace {

platform::WindowSystem window_system()
{
    const bool is_wayland = QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
    return is_wayland ? platform::WindowSystem::wayland : platform::WindowSystem::x11;
}

/// What this process has copied it has to be asked for here, as it answers no one else while it waits. On Wayland
/// only a program whose window has the focus gets an answer.
bool is_ours_to_read(const QClipboard& clipboard)
{
    return clipboard.ownsClipboard() || window_system() == platform::WindowSystem::wayland;
}

}

SystemClipboard::SystemClipboard() : clipboard_(platform::make_clipboard(window_system())) {}

bool SystemClipboard::open()
{
    return clipboard_->open();
}

bool SystemClipboard::empty()
{
    return clipboard_->empty();
}

bool SystemClipboard::set_text(std::u16string_view text)
{
    return clipboard_->set_text(text);
}

std::optional<std::u16string> SystemClipboard::read_text()
{
    const QClipboard& clipboard = *QGuiApplication::clipboard();
    if (!is_ours_to_read(clipboard))
        return clipboard_->read_text();
    const QMimeData* data = clipboard.mimeData();
    return data && data->hasText() ? std::optional(from_qstring(data->text())) : std::nullopt;
}

void SystemClipboard::close()
{
    clipboard_->close();
}
