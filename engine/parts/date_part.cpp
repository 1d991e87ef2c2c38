#include "engine/parts/date_part.h"

#include "engine/items/mv_item_base.h"
#include "engine/parts/text_run_context.h"
#include "engine/text/json_access.h"
#include "platform/local_time.h"

#include <stdexcept>

namespace {

std::int64_t time_of(const MVItemInfo& info, ItemPartDate::DateType type)
{
    switch (type) {
    case ItemPartDate::DateType::Modified: return info.modified;
    case ItemPartDate::DateType::Created: return info.created;
    case ItemPartDate::DateType::Accessed: return info.accessed;
    }
    return 0;
}

}

ItemPartDate::ItemPartDate(const boost::json::object& json)
{
    const auto* type = find_json(date_types, json_access::required_string(json, "dateType"));
    if (!type)
        throw std::runtime_error("Unknown ItemPartDate::DateType string");
    const auto* format = find_json(date_formats, json_access::required_string(json, "dateFormat"));
    if (!format)
        throw std::runtime_error("Unknown ItemPartDate::DateFormat string");
    date_type_ = type->value;
    date_format_ = format->value;
    add_leading_zeros_ = json_access::optional_bool(json, "addLeadingZeros", false);
}

boost::json::object ItemPartDate::to_json() const
{
    const auto* type = find_value(date_types, date_type_);
    if (!type)
        throw std::runtime_error("Unknown ItemPartDate::DateType value");
    const auto* format = find_value(date_formats, date_format_);
    if (!format)
        throw std::runtime_error("Unknown ItemPartDate::DateFormat value");
    return {{"dateType", type->json}, {"dateFormat", format->json}, {"addLeadingZeros", add_leading_zeros_}};
}

bool ItemPartDate::leading_zeros_apply(DateFormat format)
{
    return format == DateFormat::MonthDigits || format == DateFormat::DateDigits || format == DateFormat::Hour24 ||
           format == DateFormat::Hour12;
}

void ItemPartDate::append_text(TextRunContext& context, const MVItemBase& item, int) const
{
    const std::int64_t ticks = time_of(item.info(), date_type_);
    if (ticks == 0)
        return;
    if (const auto local = platform::to_local_time(ticks))
        context.output.append(format_date(*local, date_format_, add_leading_zeros_));
}
