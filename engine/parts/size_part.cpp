#include "engine/parts/size_part.h"

#include "engine/items/mv_item_base.h"
#include "engine/parts/text_run_context.h"
#include "engine/text/json_access.h"
#include "engine/text/number_grouping.h"
#include "platform/decimal_text.h"

#include <algorithm>
#include <bit>

namespace {

using SizeFormat = ItemPartSize::SizeFormat;

const SizeFormatRow& chosen_row(std::uint64_t bytes, SizeFormat format)
{
    if (format != SizeFormat::Auto)
        return row_or_first(size_formats, format);
    const int bits = static_cast<int>(std::bit_width(bytes));
    return size_formats[static_cast<std::size_t>(std::clamp((bits - 1) / 10, 0, 4))];
}

}

std::u16string size_text(std::uint64_t bytes, SizeFormat format, bool add_thousands_separator)
{
    const SizeFormatRow& row = chosen_row(bytes, format);
    const std::uint64_t remainder = bytes & ((std::uint64_t{1} << row.shift) - 1);
    std::u16string text = platform::decimal_text((bytes >> row.shift) + (remainder > 0 ? 1 : 0));
    if (add_thousands_separator)
        text = group_digits(text);
    if (format == SizeFormat::Auto)
        text += row.suffix;
    return text;
}

ItemPartSize::ItemPartSize(const boost::json::object& json)
    : size_format_(known_value(size_formats, json_access::required_string(json, "size-format"),
                               "Unknown ItemPartSize::SizeFormat string")),
      add_thousands_separator_(json_access::optional_bool(json, "add-thousands-separator", false))
{}

boost::json::object ItemPartSize::to_json() const
{
    const auto format = known_json(size_formats, size_format_, "Unknown ItemPartSize::SizeFormat value");
    return {{"size-format", format}, {"add-thousands-separator", add_thousands_separator_}};
}

void ItemPartSize::append_text(TextRunContext& context, const MVItemBase& item, int) const
{
    if (!item.is_folder())
        context.output.append(size_text(item.info().size, size_format_, add_thousands_separator_));
}
