#include "engine/parts/auto_number_part.h"

#include "engine/parts/text_run_context.h"
#include "engine/text/json_access.h"
#include "engine/text/number_grouping.h"
#include "platform/decimal_text.h"

#include <algorithm>

ItemPartAutoNumber::ItemPartAutoNumber(const boost::json::object& json)
    : start_(json_access::required_uint64(json, "start")), step_(json_access::required_uint64(json, "step")),
      add_leading_zeros_(json.contains("nDigits")), n_digits_(json_access::optional_uint32(json, "nDigits", 0)),
      add_thousands_separator_(json_access::optional_bool(json, "addThousandsSeparator", false))
{}

boost::json::object ItemPartAutoNumber::to_json() const
{
    boost::json::object json{{"start", start_}, {"step", step_}, {"addThousandsSeparator", add_thousands_separator_}};
    if (add_leading_zeros_)
        json["nDigits"] = n_digits_;
    return json;
}

std::u16string ItemPartAutoNumber::formatted(std::uint64_t number) const
{
    const std::u16string text =
        platform::decimal_text(number, add_leading_zeros_ ? std::min(n_digits_, most_digits) : 0);
    return add_thousands_separator_ ? group_digits(text) : text;
}

void ItemPartAutoNumber::append_text(TextRunContext& context, const MVItemBase&, int) const
{
    context.output.append(formatted(context.counter++ * step_ + start_));
}
