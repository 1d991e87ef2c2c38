#include "engine/parts/checksum_part.h"

#include "engine/checksums/file_checksum.h"
#include "engine/items/mv_item_base.h"
#include "engine/parts/text_run_context.h"
#include "engine/text/json_access.h"

#include <stdexcept>

namespace {

/// The cached checksum, computed here when no one has done it before.
std::u16string checksum_of(const MVItemBase& item, ChecksumType type)
{
    std::u16string text = item.cached_checksum(type);
    if (!text.empty())
        return text;
    text = file_checksum(item.full_path(), type, {});
    if (!text.empty())
        item.store_checksum(type, text);
    return text;
}

}

ItemPartChecksum::ItemPartChecksum(const boost::json::object& json)
{
    const auto* row = find_json(checksum_types, json_access::required_string(json, "checksum-type"));
    if (!row)
        throw std::runtime_error("Unknown ItemPartChecksum::ChecksumType string");
    checksum_type_ = row->value;
    uppercase_ = json_access::optional_bool(json, "uppercase", false);
}

boost::json::object ItemPartChecksum::to_json() const
{
    const auto* row = find_value(checksum_types, checksum_type_);
    if (!row)
        throw std::runtime_error("Unknown ItemPartChecksum::ChecksumType value");
    return {{"checksum-type", row->json}, {"uppercase", uppercase_}};
}

void ItemPartChecksum::append_text(TextRunContext& context, const MVItemBase& item, int) const
{
    if (item.is_folder())
        return;
    const std::u16string text = checksum_of(item, checksum_type_);
    context.output.append(uppercase_ ? upper_case_hex(text) : text);
}
