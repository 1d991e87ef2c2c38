#include "engine/parts/date_part.h"

#include "engine/items/mv_item_base.h"
#include "engine/parts/text_run_context.h"
#include "engine/text/json_access.h"
#include "platform/local_time.h"

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
    : date_type_(known_value(date_types, json_access::required_string(json, "dateType"),
                             "Unknown ItemPartDate::DateType string")),
      date_format_(known_value(date_formats, json_access::required_string(json, "dateFormat"),
                               "Unknown ItemPartDate::DateFormat string")),
      add_leading_zeros_(json_access::optional_bool(json, "addLeadingZeros", false))
{}

boost::json::object ItemPartDate::to_json() const
{
    const auto type = known_json(date_types, date_type_, "Unknown ItemPartDate::DateType value");
    const auto format = known_json(date_formats, date_format_, "Unknown ItemPartDate::DateFormat value");
    return {{"dateType", type}, {"dateFormat", format}, {"addLeadingZeros", add_leading_zeros_}};
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
