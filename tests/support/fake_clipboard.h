#pragma once

#include "platform/clipboard.h"

#include <string>

/// A clipboard in memory. Calls are written down; one can be made to fail.
class FakeClipboard final : public platform::Clipboard
{
public:
    bool open() override { return call("open"); }

    bool empty() override { return call("empty"); }

    bool set_text(std::u16string_view new_text) override
    {
        if (!call("set"))
            return false;
        text = new_text;
        return true;
    }

    std::optional<std::u16string> read_text() override
    {
        call("read");
        return text;
    }

    void close() override { call("close"); }

    std::optional<std::u16string> text;
    std::string calls;
    std::string fails_at; ///< the name of the call that fails

private:
    bool call(const std::string& name)
    {
        calls += name + " ";
        return name != fails_at;
    }
};
