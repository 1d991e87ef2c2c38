#include "engine/items/mv_item_exception.h"
#include "engine/items/mv_items_set.h"
#include "fuzz_input.h"

namespace {

/// Every absolute path of the host has a form of its own.
void check_host_path(std::string path)
{
    std::erase(path, '\0');
    path.insert(path.begin(), '/');
    require(platform::to_host_path(platform::from_host_path(path)) == path, "a host path comes back");
    const std::string absolute = platform::absolute_host_path(path, "/current");
    require(absolute.starts_with('/') && platform::absolute_host_path(absolute, "/other") == absolute,
            "an absolute path stays");
}

void check_selection(const std::u16string& path)
{
    MVItemsSet set;
    for (int i = 0; i < 2; ++i) {
        const std::size_t before = set.items().size();
        try {
            set.add_path(path);
            if (set.items().size() > before)
                require(!set.items().back()->name().empty(), "an item has a name");
        } catch (const MVItemException&) {
            require(set.items().size() == before, "a refused path selects nothing");
        } catch (const AttributesUnreadable&) {
            require(set.items().size() == before, "a missing path selects nothing");
        }
    }
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const FuzzInput input(data, size);
    check_host_path(std::string(input.rest()));
    platform::to_host_path(input.text());
    check_selection(input.text());
    check_selection(u"C:\\" + input.text());
    check_selection(u"\\\\" + input.text());
    return 0;
}
