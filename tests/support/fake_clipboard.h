#pragma once

#include "platform/clipboard.h"

#include <optional>
#include <string>

/// A clipboard whose every step can be made to fail, and which knows how it was used.
class FakeClipboard final : public platform::Clipboard
{
public:
    bool can_open = true, can_empty = true, can_set = true;
    std::optional<std::u16string> text; ///< what is there, also to be read
    std::string calls;                  ///< one letter each: (o)pen, (e)mpty, (s)et, (r)ead, (c)lose

    bool open() override
    {
        calls += 'o';
        return can_open;
    }

    bool empty() override
    {
        calls += 'e';
        return can_empty;
    }

    bool set_text(std::u16string_view value) override
    {
        calls += 's';
        if (can_set)
            text = value;
        return can_set;
    }

    std::optional<std::u16string> read_text() override
    {
        calls += 'r';
        return text;
    }

    void close() override { calls += 'c'; }
};
