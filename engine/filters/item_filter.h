#pragma once

#include "engine/text/enum_table.h"

#include <boost/json.hpp>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class NameExpression;

/// Decides by its name whether an item passes. One object serves one thread at a time; copies are independent.
class ItemFilter
{
public:
    enum class Mode : std::uint32_t { Extensions, Wildcard, Regex };
    enum class Action : std::uint32_t { Include, Exclude };

    ItemFilter() = default;
    /// Every key is optional; an unknown mode or action reads as the first.
    explicit ItemFilter(const boost::json::object& json);
    boost::json::object to_json() const;

    Mode filter_mode() const { return mode_; }

    Action filter_action() const { return action_; }

    /// In lower case while the mode is `Extensions`.
    const std::u16string& filter_pattern() const { return pattern_; }

    /// The pattern's extensions, without dots, in lower case; only in mode `Extensions`.
    const std::vector<std::u16string>& extensions() const { return extensions_; }

    void set_filter_mode(Mode mode);

    void set_filter_action(Action action) { action_ = action; }

    void set_filter_pattern(std::u16string pattern);

    bool matches(std::u16string_view name) const;

    /// True for an empty pattern; else whether the name matches, turned round by `Exclude`.
    bool passes(std::u16string_view name) const;

    bool is_pattern_valid() const;

    /// Those of the pattern that its mode forbids, each once, in the order of their first appearance. None of a
    /// regular expression.
    std::u16string invalid_characters() const;

    /// Where a regular expression goes wrong, in UTF-16 units from its begin. Empty when it is too large as a whole,
    /// for a valid one and in the other modes.
    std::optional<std::size_t> error_offset() const;

    /// Mode, action and pattern.
    bool operator==(const ItemFilter& other) const;

private:
    void update_derived();
    const NameExpression& expression() const;

    Mode mode_ = Mode::Extensions;
    Action action_ = Action::Include;
    std::u16string pattern_;
    std::vector<std::u16string> extensions_;
    /// Compiled at the first match, dropped when mode or pattern change.
    mutable std::shared_ptr<const NameExpression> expression_;
};

inline constexpr std::array<EnumRow<ItemFilter::Mode>, 3> filter_modes{{
    {ItemFilter::Mode::Extensions, "extensions"},
    {ItemFilter::Mode::Wildcard, "wildcard"},
    {ItemFilter::Mode::Regex, "regex"},
}};
static_assert(is_complete(filter_modes));

inline constexpr std::array<EnumRow<ItemFilter::Action>, 2> filter_actions{{
    {ItemFilter::Action::Include, "include"},
    {ItemFilter::Action::Exclude, "exclude"},
}};
static_assert(is_complete(filter_actions));
