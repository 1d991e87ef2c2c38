#pragma once

#include "engine/text/enum_table.h"

#include <array>
#include <cstdint>

class MVItemsSet;

/// For which selections a command shows in the menu.
enum class ShowRule : std::uint32_t {
    AtLeastOneFile,
    AtLeastOneFolder,
    AtLeastOneLink,
    AtLeastOneItem,
    ExactlyOneFile,
    ExactlyOneFolder,
    ExactlyOneLink,
    ExactlyOneItem,
    MoreThanOneItem
};

inline constexpr std::array<EnumRow<ShowRule>, 9> show_rules{{
    {ShowRule::AtLeastOneFile, "atLeastOneFile"},
    {ShowRule::AtLeastOneFolder, "atLeastOneFolder"},
    {ShowRule::AtLeastOneLink, "atLeastOneLink"},
    {ShowRule::AtLeastOneItem, "atLeastOneItem"},
    {ShowRule::ExactlyOneFile, "exactlyOneFile"},
    {ShowRule::ExactlyOneFolder, "exactlyOneFolder"},
    {ShowRule::ExactlyOneLink, "exactlyOneLink"},
    {ShowRule::ExactlyOneItem, "exactlyOneItem"},
    {ShowRule::MoreThanOneItem, "moreThanOneItem"},
}};
static_assert(is_complete(show_rules));

/// Whether the selection is one that the rule asks for. False for a value outside the table.
bool holds(ShowRule rule, const MVItemsSet& selection);
