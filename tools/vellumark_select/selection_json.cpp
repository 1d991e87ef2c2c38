#include "vellumark_select/selection_json.h"

#include "engine/items/selection_protocol.h"
#include "platform/utf.h"

#include <array>

namespace {

bool needs_escape(char32_t code)
{
    // Qt's reader drops it at a string's start.
    constexpr char32_t byte_order_mark = 0xFEFF;
    return code < 0x20 || code == byte_order_mark || platform::is_surrogate(code);
}

std::string key(std::string_view name)
{
    return '"' + std::string(name) + "\":";
}

}

SelectionJson::SelectionJson(std::optional<std::size_t> index) : text_("{")
{
    if (index)
        text_ += key(selection_protocol::command_index_key) + std::to_string(*index) + ',';
    text_ += key(selection_protocol::paths_key) + '[';
}

void SelectionJson::add(std::u16string_view path)
{
    text_ += is_empty_ ? "\"" : ",\"";
    is_empty_ = false;
    for (std::size_t i = 0; i < path.size(); ++i) {
        const bool is_pair =
            platform::is_high_surrogate(path[i]) && i + 1 < path.size() && platform::is_low_surrogate(path[i + 1]);
        append_character(is_pair ? platform::from_surrogates(path[i], path[i + 1]) : path[i]);
        i += is_pair ? 1 : 0;
    }
    text_ += '"';
}

void SelectionJson::append_character(char32_t code)
{
    if (needs_escape(code)) {
        constexpr std::string_view digits = "0123456789abcdef";
        text_ += "\\u";
        for (int shift = 12; shift >= 0; shift -= 4)
            text_ += digits[code >> shift & 0xF];
        return;
    }
    if (code == U'"' || code == U'\\')
        text_ += '\\';
    std::array<char, 4> bytes{};
    text_.append(bytes.data(), platform::put_utf8(bytes.data(), code));
}
