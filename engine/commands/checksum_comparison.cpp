#include "engine/commands/checksum_comparison.h"

#include "engine/commands/vellumark_command.h"
#include "engine/items/mv_items_set.h"
#include "engine/parts/checksum_part.h"
#include "engine/text/letters.h"
#include "engine/text/utf.h"

#include <algorithm>

namespace {

bool is_hex_digit(char16_t unit)
{
    return is_ascii_digit(unit) || (to_lower(unit) >= u'a' && to_lower(unit) <= u'f');
}

bool is_checksum(std::u16string_view text, const ChecksumRow& row)
{
    return text.size() == row.hex_digits && std::ranges::all_of(text, is_hex_digit);
}

bool in_run(char16_t unit)
{
    return (is_ascii_digit(unit) || is_ascii_letter(unit)) && to_lower(unit) != u'x';
}

/// Empty when there is none.
std::u16string_view first_checksum(std::u16string_view text, const ChecksumRow& row)
{
    while (!text.empty()) {
        const auto begin = std::ranges::find_if(text, in_run);
        const auto end = std::find_if_not(begin, text.end(), in_run);
        if (const std::u16string_view run(begin, end); is_checksum(run, row))
            return run;
        text = {end, text.end()};
    }
    return {};
}

/// The type that the command writes as its only part; null for any other command.
const ChecksumRow* only_checksum(const VellumarkCommand& command)
{
    const ItemPartsList& parts = *command.file_parts();
    if (parts.size() != 1)
        return nullptr;
    const auto* part = dynamic_cast<const ItemPartChecksum*>(parts.begin()->get());
    return part ? find_value(checksum_types, part->checksum_type()) : nullptr;
}

}

std::optional<ChecksumComparison> compare_checksum(const VellumarkCommand& command, const MVItemsSet& selection,
                                                   std::u16string_view text, const ReadClipboard& read_clipboard)
{
    const ChecksumRow* row = only_checksum(command);
    if (!row || selection.items().size() != 1 || selection.items().front()->is_folder() || !is_checksum(text, *row))
        return std::nullopt;
    const std::optional<std::u16string> clipboard = read_clipboard();
    if (!clipboard)
        return std::nullopt;
    const std::u16string_view copied = first_checksum(*clipboard, *row);
    if (copied.empty())
        return std::nullopt;
    return ChecksumComparison{std::u16string(copied), std::u16string(text), to_utf16(row->display),
                              std::ranges::equal(copied, text, {}, to_lower, to_lower)};
}
