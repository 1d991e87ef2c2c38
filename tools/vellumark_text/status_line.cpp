#include "vellumark_text/status_line.h"

#include "common/printable.h"
#include "engine/text/utf.h"
#include "platform/paths.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <utility>

namespace {

constexpr std::string_view erase_line = "\r\033[K";

/// Whether there is a line that an interrupt has to take away.
std::atomic<bool> is_shown = false;
static_assert(std::atomic<bool>::is_always_lock_free, "asked in a signal handler");

std::size_t terminal_columns()
{
    winsize size{};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

void write_error(std::string_view text)
{
    // A status that can't be shown is no loss.
    static_cast<void>(!write(STDERR_FILENO, text.data(), text.size()));
}

/// Columns a unit may take: from the first Hangul letter on many characters are twice as wide.
std::size_t width_of(char16_t unit)
{
    return unit >= 0x1100 ? 2 : 1;
}

template <typename Iterator>
std::size_t fitting_units(Iterator begin, Iterator end, std::size_t columns)
{
    std::size_t units = 0;
    for (; begin != end && width_of(*begin) <= columns; ++begin, ++units)
        columns -= width_of(*begin);
    return units;
}

std::u16string elided(const std::u16string& text, std::size_t columns)
{
    if (fitting_units(text.begin(), text.end(), columns) == text.size() || columns < 3)
        return text.substr(0, fitting_units(text.begin(), text.end(), columns));
    const std::size_t kept = columns - 3;
    const std::size_t front = fitting_units(text.begin(), text.end(), kept / 2);
    const std::size_t back = fitting_units(text.rbegin(), text.rend(), kept - kept / 2);
    return text.substr(0, front) + u"..." + text.substr(text.size() - back);
}

}

std::u16string status_text(std::u16string_view status, std::u16string_view item, std::size_t columns)
{
    std::u16string text(status);
    if (!status.empty())
        text += u' ';
    text += item;
    std::ranges::replace_if(text, controls_terminal, u'?');
    return elided(text, columns);
}

StatusLine::StatusLine()
{
    if (isatty(STDERR_FILENO) != 0)
        refresher_ = std::jthread([this](const std::stop_token& stop) { keep_showing(stop); });
}

StatusLine::~StatusLine()
{
    if (refresher_.joinable()) {
        refresher_.request_stop();
        refresher_.join();
    }
    erase();
}

void StatusLine::erase()
{
    if (is_shown.exchange(false))
        write_error(erase_line);
}

void StatusLine::report_item(std::u16string_view text)
{
    const std::lock_guard lock(mutex_);
    item_ = text;
    has_news_ = true;
}

void StatusLine::report_status(std::u16string_view text)
{
    const std::lock_guard lock(mutex_);
    status_ = text;
    has_news_ = true;
}

void StatusLine::keep_showing(const std::stop_token& stop)
{
    std::unique_lock lock(mutex_);
    while (!wake_up_.wait_for(lock, stop, std::chrono::milliseconds(100), [&] { return stop.stop_requested(); }) &&
           !stop.stop_requested()) {
        if (!std::exchange(has_news_, false))
            continue;
        const std::u16string host_path = to_utf16(platform::to_host_path(item_));
        is_shown = true;
        write_error(std::string(erase_line) + to_utf8(status_text(status_, host_path, terminal_columns() - 1)));
    }
}
