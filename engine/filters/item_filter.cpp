#include "engine/filters/item_filter.h"

#include "engine/filters/extension_list.h"
#include "engine/filters/name_expression.h"
#include "engine/filters/wildcard.h"
#include "engine/text/json_access.h"
#include "engine/text/letters.h"
#include "engine/text/utf.h"

#include <stdexcept>

namespace json = boost::json;

namespace {

constexpr std::u16string_view never_in_extensions = u"\"*/:<>?|\\", never_in_wildcards = u"\"/:<>|\\";

std::u16string distinct_of(std::u16string_view pattern, std::u16string_view forbidden)
{
    std::u16string found;
    for (const char16_t unit : pattern)
        if ((unit < 32 || forbidden.find(unit) != forbidden.npos) && found.find(unit) == found.npos)
            found += unit;
    return found;
}

}

ItemFilter::ItemFilter(const json::object& object)
{
    if (const auto* row = find_json(filter_modes, json_access::optional_string(object, "filterMode")))
        mode_ = row->value;
    if (const auto* row = find_json(filter_actions, json_access::optional_string(object, "filterAction")))
        action_ = row->value;
    set_filter_pattern(json_access::optional_text(object, "filterPattern"));
}

json::object ItemFilter::to_json() const
{
    const auto* mode = find_value(filter_modes, mode_);
    const auto* action = find_value(filter_actions, action_);
    if (!mode || !action)
        throw std::runtime_error("Unknown ItemFilter value");
    return {{"filterMode", mode->json}, {"filterAction", action->json}, {"filterPattern", to_utf8(pattern_)}};
}

void ItemFilter::set_filter_mode(Mode mode)
{
    mode_ = mode;
    update_derived();
}

void ItemFilter::set_filter_pattern(std::u16string pattern)
{
    pattern_ = std::move(pattern);
    update_derived();
}

void ItemFilter::update_derived()
{
    expression_.reset();
    extensions_.clear();
    if (mode_ != Mode::Extensions)
        return;
    pattern_ = lower_cased(pattern_);
    extensions_ = parse_extensions(pattern_);
}

const NameExpression& ItemFilter::expression() const
{
    if (!expression_)
        expression_ = std::make_shared<const NameExpression>(pattern_);
    return *expression_;
}

bool ItemFilter::matches(std::u16string_view name) const
{
    switch (mode_) {
    case Mode::Extensions: return pattern_.empty() || has_extension_of(name, extensions_);
    case Mode::Wildcard: return matches_wildcard(pattern_, name);
    case Mode::Regex: return expression().is_found_in(name);
    }
    return false;
}

bool ItemFilter::passes(std::u16string_view name) const
{
    return pattern_.empty() || matches(name) == (action_ == Action::Include);
}

std::u16string ItemFilter::invalid_characters() const
{
    switch (mode_) {
    case Mode::Extensions: return distinct_of(pattern_, never_in_extensions);
    case Mode::Wildcard: return distinct_of(pattern_, never_in_wildcards);
    case Mode::Regex: break;
    }
    return {};
}

std::optional<std::size_t> ItemFilter::error_offset() const
{
    return mode_ == Mode::Regex && !pattern_.empty() ? expression().error_offset() : std::nullopt;
}

bool ItemFilter::is_pattern_valid() const
{
    return mode_ == Mode::Regex ? pattern_.empty() || expression().is_valid() : invalid_characters().empty();
}

bool ItemFilter::operator==(const ItemFilter& other) const
{
    return mode_ == other.mode_ && action_ == other.action_ && pattern_ == other.pattern_;
}
