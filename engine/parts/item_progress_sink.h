#pragma once

#include <string_view>

/// What long work calls back. The calls may come from several threads at once.
class ItemProgressSink
{
public:
    virtual ~ItemProgressSink() = default;

    /// True when the work is to stop.
    virtual bool is_cancelled() = 0;
    /// The path of the item being worked on.
    virtual void report_item(std::u16string_view text) = 0;
    /// A status line, such as "Computing checksums...".
    virtual void report_status(std::u16string_view text) = 0;
};
