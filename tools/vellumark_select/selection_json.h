#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// The message that hands a selection to the application, one JSON object.
class SelectionJson
{
public:
    /// `index` is a row of the menu list.
    explicit SelectionJson(std::optional<std::size_t> index);

    /// Adds a path in drive or server form. What stands for a byte of a name that is no valid UTF-8 is written as an
    /// escape, for UTF-8 has no room for it.
    void add(std::u16string_view path);

    bool is_empty() const { return is_empty_; }

    /// The whole message.
    std::string text() const { return text_ + "]}"; }

private:
    void append_character(char32_t code);

    std::string text_;
    bool is_empty_ = true;
};
