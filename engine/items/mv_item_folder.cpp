#include "engine/items/mv_item_folder.h"

#include "engine/items/long_path.h"
#include "platform/files.h"

#include <algorithm>

namespace {

/// The server's name when the path is that of a server alone, else empty.
std::u16string_view server_alone(std::u16string_view path)
{
    if (!path.starts_with(u"\\\\"))
        return {};
    const std::u16string_view rest = path.substr(2);
    const std::size_t end = rest.find(u'\\');
    return end == rest.npos || end + 1 == rest.size() ? rest.substr(0, end) : std::u16string_view();
}

std::vector<std::shared_ptr<MVItemBase>> read_folder(const MVItemFolder& folder)
{
    std::vector<std::shared_ptr<MVItemBase>> read;
    const std::u16string path = folder.full_path();
    if (const auto server = server_alone(path); !server.empty()) {
        for (std::u16string& share : platform::server_shares(server))
            read.push_back(make_item({.name = std::move(share), .is_folder = true}, &folder));
        return read;
    }
    platform::for_each_entry(add_long_path_prefix(path),
                             [&](std::u16string name, const platform::FileAttributes& attributes) {
                                 read.push_back(make_item(MVItemInfo::of(std::move(name), attributes), &folder));
                             });
    return read;
}

}

MVItemFolder::~MVItemFolder()
{
    std::vector<std::shared_ptr<MVItemBase>> released;
    children_.release_into(released);
    while (!released.empty()) {
        const std::shared_ptr<MVItemBase> item = std::move(released.back());
        released.pop_back();
        if (item->is_folder() && item.use_count() == 1)
            static_cast<const MVItemFolder&>(*item).children_.release_into(released);
    }
}

void MVItemFolder::load_children() const
{
    if (children_loaded_)
        return;
    children_loaded_ = true;
    merge(read_folder(*this));
}

void MVItemFolder::merge(std::vector<std::shared_ptr<MVItemBase>> entries) const
{
    // Stable, so that of several names with one key the first read stays and the last one's attributes count.
    std::ranges::stable_sort(
        entries, [](const auto& left, const auto& right) { return ChildMap::key_less(left->name(), right->name()); });
    for (const auto& entry : entries)
        if (MVItemBase& child = children_.insert(entry); &child != entry.get())
            child.take_times_and_size(entry->info());
}
