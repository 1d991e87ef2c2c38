#pragma once

#include "platform/clipboard.h"

/// The desktop's clipboard as a program with windows has it. Main thread only, with an application object.
class SystemClipboard final : public platform::Clipboard
{
public:
    SystemClipboard();

    bool open() override;
    bool empty() override;
    bool set_text(std::u16string_view text) override;
    std::optional<std::u16string> read_text() override;
    void close() override;

private:
    const std::unique_ptr<platform::Clipboard> clipboard_;
};
