#pragma once

#include "engine/parts/item_part_base.h"
#include "engine/text/case_type.h"

#include <string>
#include <tuple>

/// Writes an item's name, or a part of it, in a case style.
class ItemPartName final : public ItemPart<ItemPartName, ItemPartBase::Type::Name>
{
public:
    /// The name's extension is what follows its last dot, wherever that stands.
    enum class NameType : std::uint32_t { FullName, NameNoExt, ExtOnly, SelectorPart };

    ItemPartName() = default;
    /// Throws std::runtime_error when "name-type" is missing or unknown, or "selector-part-index" is missing for a
    /// selector part.
    explicit ItemPartName(const boost::json::object& json);

    NameType name_type() const { return name_type_; }

    void set_name_type(NameType type) { name_type_ = type; }

    /// Counts for `SelectorPart` only.
    std::int32_t selector_part_index() const { return selector_part_index_; }

    void set_selector_part_index(std::int32_t index) { selector_part_index_ = index; }

    CaseType case_type() const { return case_type_; }

    void set_case_type(CaseType type) { case_type_ = type; }

    boost::json::object to_json() const override;
    void append_text(TextRunContext& context, const MVItemBase& item, int level) const override;

    auto settings() const { return std::tie(name_type_, selector_part_index_, case_type_); }

private:
    std::u16string text_of(const MVItemBase& item) const;

    NameType name_type_ = NameType::FullName;
    std::int32_t selector_part_index_ = 0;
    CaseType case_type_ = CaseType::Unchanged;
};

inline constexpr std::array<EnumRow<ItemPartName::NameType>, 4> name_types{{
    {ItemPartName::NameType::FullName, "full-name"},
    {ItemPartName::NameType::NameNoExt, "name-no-ext"},
    {ItemPartName::NameType::ExtOnly, "ext-only"},
    {ItemPartName::NameType::SelectorPart, "selector-part"},
}};
static_assert(is_complete(name_types));
