#pragma once

#include "engine/parts/item_part_base.h"

#include <string>
#include <tuple>

/// Writes a literal, of one line or several.
class ItemPartText final : public ItemPart<ItemPartText, ItemPartBase::Type::Text>
{
public:
    ItemPartText() = default;
    /// Throws std::runtime_error when "text" is missing.
    explicit ItemPartText(const boost::json::object& json);

    const std::u16string& text() const { return text_; }

    void set_text(std::u16string text) { text_ = std::move(text); }

    boost::json::object to_json() const override;
    void append_text(TextRunContext& context, const MVItemBase& item, int level) const override;

    auto settings() const { return std::tie(text_); }

private:
    std::u16string text_;
};
