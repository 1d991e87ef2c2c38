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

using Entries = std::vector<std::shared_ptr<MVItemBase>>;

Entries read_folder(const MVItemFolder& folder, CancelPoint& cancel_point)
{
    Entries entries;
    const std::u16string path = folder.full_path();
    if (const auto server = server_alone(path); !server.empty()) {
        for (std::u16string& share : platform::server_shares(server))
            entries.push_back(make_item({.name = std::move(share), .is_folder = true}, &folder));
        return entries;
    }
    platform::for_each_entry(add_long_path_prefix(path),
                             [&](std::u16string name, const platform::FileAttributes& attributes) {
                                 cancel_point.step();
                                 entries.push_back(make_item(MVItemInfo::of(std::move(name), attributes), &folder));
                             });
    return entries;
}

}

MVItemFolder::~MVItemFolder()
{
    std::vector<std::shared_ptr<MVItemBase>> released;
    children_.release_into(released);
    while (!released.empty()) {
        const std::shared_ptr<MVItemBase> item = std::move(released.back());
        released.pop_back();
        if (const MVItemFolder* folder = item->as_folder(); folder && item.use_count() == 1)
            folder->children_.release_into(released);
    }
}

void MVItemFolder::load_children(const CancelTest& cancelled) const
{
    if (children_loaded_)
        return;
    children_loaded_ = true;
    try {
        read_and_merge(cancelled);
    } catch (const Cancelled&) {
        children_loaded_ = false;
    } catch (...) {
        children_loaded_ = false;
        throw;
    }
}

void MVItemFolder::read_and_merge(const CancelTest& cancelled) const
{
    CancelPoint cancel_point(cancelled);
    Entries entries = read_folder(*this, cancel_point);
    // Stable, so that of several names with one key the first read stays and the last one's attributes count.
    std::ranges::stable_sort(entries, [&](const auto& left, const auto& right) {
        cancel_point.step();
        return ChildMap::key_less(left->name(), right->name());
    });
    for (const auto& entry : entries)
        if (MVItemBase& child = children_.insert(entry); &child != entry.get())
            child.take_times_and_size(entry->info());
}
