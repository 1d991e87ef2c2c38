#pragma once

#include "engine/parts/item_part_base.h"

#include <string>
#include <tuple>

/// Writes a running number. Its index counts the calls of all such parts on one context, not the items.
class ItemPartAutoNumber final : public ItemPart<ItemPartAutoNumber, ItemPartBase::Type::AutoNumber>
{
public:
    /// A stored file can ask for more digits than fit into memory.
    static constexpr std::uint32_t most_digits = 10'000;

    ItemPartAutoNumber() = default;
    /// Throws std::runtime_error when "start" or "step" is missing. Leading zeros are on when "nDigits" is there.
    explicit ItemPartAutoNumber(const boost::json::object& json);

    std::uint64_t start() const { return start_; }

    void set_start(std::uint64_t start) { start_ = start; }

    std::uint64_t step() const { return step_; }

    void set_step(std::uint64_t step) { step_ = step; }

    bool add_leading_zeros() const { return add_leading_zeros_; }

    void set_add_leading_zeros(bool add) { add_leading_zeros_ = add; }

    /// Digits at the least while leading zeros are on, up to `most_digits`.
    std::uint32_t n_digits() const { return n_digits_; }

    void set_n_digits(std::uint32_t digits) { n_digits_ = digits; }

    bool add_thousands_separator() const { return add_thousands_separator_; }

    void set_add_thousands_separator(bool add) { add_thousands_separator_ = add; }

    /// A number in the part's format.
    std::u16string formatted(std::uint64_t number) const;

    boost::json::object to_json() const override;
    void append_text(TextRunContext& context, const MVItemBase& item, int level) const override;

    auto settings() const { return std::tie(start_, step_, add_leading_zeros_, n_digits_, add_thousands_separator_); }

private:
    std::uint64_t start_ = 0;
    std::uint64_t step_ = 1;
    bool add_leading_zeros_ = false;
    std::uint32_t n_digits_ = 4;
    bool add_thousands_separator_ = false;
};
