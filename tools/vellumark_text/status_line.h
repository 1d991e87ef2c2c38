#pragma once

#include "engine/parts/item_progress_sink.h"

#include <chrono>
#include <mutex>
#include <string>

/// Shows on a terminal what is being done: one line on standard error, written at most ten times a second, that is
/// gone when the object is. Elsewhere it shows nothing. It never cancels: an interrupt ends the whole program.
class StatusLine final : public ItemProgressSink
{
public:
    StatusLine();
    ~StatusLine() override;
    StatusLine(const StatusLine&) = delete;
    StatusLine& operator=(const StatusLine&) = delete;

    bool is_cancelled() override { return false; }

    void report_item(std::u16string_view text) override;
    void report_status(std::u16string_view text) override;

    /// Takes the line off the terminal. May be called from a signal handler.
    static void erase();

private:
    void show(std::u16string_view item);

    const bool on_terminal_;
    std::mutex mutex_;
    std::u16string status_;
    std::chrono::steady_clock::time_point next_{};
};

/// What the line shows: status and item on one line of `columns` columns at the most, cut in the middle, without
/// characters that control a terminal.
std::u16string status_text(std::u16string_view status, std::u16string_view item, std::size_t columns);
