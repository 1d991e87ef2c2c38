#pragma once

#include "engine/parts/item_part_base.h"

#include <string>
#include <tuple>

/// Writes the size of a file; folders contribute nothing.
class ItemPartSize final : public ItemPart<ItemPartSize, ItemPartBase::Type::Size>
{
public:
    enum class SizeFormat : std::uint32_t { Bytes, KBytes, MBytes, GBytes, TBytes, Auto };

    ItemPartSize() = default;
    /// Throws std::runtime_error when "size-format" is missing or unknown.
    explicit ItemPartSize(const boost::json::object& json);

    SizeFormat size_format() const { return size_format_; }

    void set_size_format(SizeFormat format) { size_format_ = format; }

    bool add_thousands_separator() const { return add_thousands_separator_; }

    void set_add_thousands_separator(bool add) { add_thousands_separator_ = add; }

    boost::json::object to_json() const override;
    void append_text(TextRunContext& context, const MVItemBase& item, int level) const override;

    auto settings() const { return std::tie(size_format_, add_thousands_separator_); }

private:
    SizeFormat size_format_ = SizeFormat::Bytes;
    bool add_thousands_separator_ = false;
};

struct SizeFormatRow {
    ItemPartSize::SizeFormat value;
    std::string_view json;
    unsigned shift;             ///< the unit is 2^shift bytes
    std::u16string_view suffix; ///< for a number whose unit "auto" has chosen
};

inline constexpr std::array<SizeFormatRow, 6> size_formats{{
    {ItemPartSize::SizeFormat::Bytes, "bytes", 0, u"B"},
    {ItemPartSize::SizeFormat::KBytes, "kbytes", 10, u"K"},
    {ItemPartSize::SizeFormat::MBytes, "mbytes", 20, u"M"},
    {ItemPartSize::SizeFormat::GBytes, "gbytes", 30, u"G"},
    {ItemPartSize::SizeFormat::TBytes, "tbytes", 40, u"T"},
    {ItemPartSize::SizeFormat::Auto, "auto", 0, u""},
}};
static_assert(is_complete(size_formats));

/// A number of bytes in a unit, rounded up; `Auto` takes the largest unit that the number reaches (bytes below 1024)
/// and puts its letter behind the number.
std::u16string size_text(std::uint64_t bytes, ItemPartSize::SizeFormat format, bool add_thousands_separator);
