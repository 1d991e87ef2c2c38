#pragma once

#include "engine/parts/item_progress_sink.h"

#include <condition_variable>
#include <mutex>
#include <stop_token>
#include <string>
#include <string_view>
#include <thread>

/// Shows on a terminal what is being done: one line on standard error, refreshed ten times a second by a thread of
/// its own, that is gone when the object is. Work that ends before the first refresh shows nothing. Elsewhere it
/// shows nothing. It never cancels: an interrupt ends the whole program.
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

    /// Takes the line off the terminal if it is there. May be called from a signal handler.
    static void erase();

private:
    void keep_showing(const std::stop_token& stop);

    std::mutex mutex_;
    std::u16string status_, item_;
    bool has_news_ = false;
    std::condition_variable_any wake_up_;
    std::jthread refresher_; ///< only on a terminal
};

/// What the line shows: status and item on one line of `columns` columns at the most, cut in the middle, without
/// characters that control a terminal.
std::u16string status_text(std::u16string_view status, std::u16string_view item, std::size_t columns);
