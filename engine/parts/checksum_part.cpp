#include "engine/parts/checksum_part.h"

#include "engine/checksums/file_checksum.h"
#include "engine/items/mv_item_base.h"
#include "engine/parts/text_run_context.h"
#include "engine/text/json_access.h"

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
    : checksum_type_(known_value(checksum_types, json_access::required_string(json, "checksum-type"),
                                 "Unknown ItemPartChecksum::ChecksumType string")),
      uppercase_(json_access::optional_bool(json, "uppercase", false))
{}

boost::json::object ItemPartChecksum::to_json() const
{
    const auto type = known_json(checksum_types, checksum_type_, "Unknown ItemPartChecksum::ChecksumType value");
    return {{"checksum-type", type}, {"uppercase", uppercase_}};
}

void ItemPartChecksum::append_text(TextRunContext& context, const MVItemBase& item, int) const
{
    if (item.is_folder())
        return;
    const std::u16string text = checksum_of(item, checksum_type_);
    context.output.append(uppercase_ ? upper_case_hex(text) : text);
}
