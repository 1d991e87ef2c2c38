#pragma once

#include "engine/parts/item_progress_sink.h"

/// Lets a run go on to its end, and wants to know nothing of it.
class NeverCancelled final : public ItemProgressSink
{
public:
    void report_item(std::u16string_view) override {}

    void report_status(std::u16string_view) override {}

    bool is_cancelled() override { return false; }
};
