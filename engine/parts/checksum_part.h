#pragma once

#include "engine/checksums/checksum_type.h"
#include "engine/parts/item_part_base.h"

#include <tuple>

/// Writes a file's checksum in hexadecimal digits; folders and files that can't be read contribute nothing.
class ItemPartChecksum final : public ItemPart<ItemPartChecksum, ItemPartBase::Type::Checksum>
{
public:
    using ChecksumType = ::ChecksumType;

    ItemPartChecksum() = default;
    /// Throws std::runtime_error when "checksum-type" is missing or unknown.
    explicit ItemPartChecksum(const boost::json::object& json);

    ChecksumType checksum_type() const { return checksum_type_; }

    void set_checksum_type(ChecksumType type) { checksum_type_ = type; }

    bool uppercase() const { return uppercase_; }

    void set_uppercase(bool uppercase) { uppercase_ = uppercase; }

    boost::json::object to_json() const override;
    void append_text(TextRunContext& context, const MVItemBase& item, int level) const override;

    auto settings() const { return std::tie(checksum_type_, uppercase_); }

private:
    ChecksumType checksum_type_ = ChecksumType::Md5;
    bool uppercase_ = false;
};
