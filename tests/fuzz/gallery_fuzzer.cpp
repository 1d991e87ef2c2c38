#include "fuzz_input.h"
#include "store/gallery_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto value = FuzzInput(data, size).json();
    if (!value || !value->is_object())
        return 0;
    std::vector<GalleryEntry> entries;
    const auto append = [&] {
        append_gallery_entries(value->get_object(), entries);
        return true;
    };
    const bool whole = accepted(append).has_value();
    for (const GalleryEntry& entry : entries)
        require(entry.command && entry.command->clone()->equals(*entry.command), "what was read is whole");
    if (whole)
        require(entries.size() == value->get_object().at("galleryCommands").get_array().size(), "nothing is skipped");
    return 0;
}
