#include "engine/items/mv_item_folder.h"

#include "engine/items/delete_elsewhere.h"
#include "engine/items/long_path.h"
#include "platform/files.h"

#include <algorithm>
#include <utility>

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

/// What the read of a folder has found.
struct Reading {
    Entries entries;
    ChildMap children; ///< those entries and what was there before

    /// Whoever cancels a read doesn't wait until all that it has found is freed.
    struct Deleter {
        void operator()(Reading* reading) const
        {
            constexpr std::size_t many = 20'000; // some milliseconds
            if (reading->entries.size() < many)
                delete reading;
            else
                delete_elsewhere(reading);
        }
    };
};

void read_folder(const MVItemFolder& folder, Entries& entries, CancelPoint& cancel_point)
{
    const std::u16string path = folder.full_path();
    if (const auto server = server_alone(path); !server.empty()) {
        for (std::u16string& share : platform::server_shares(server))
            entries.push_back(make_item({{.is_folder = true}, std::move(share)}, &folder));
        return;
    }
    platform::for_each_entry(add_long_path_prefix(path),
                             [&](std::u16string name, const platform::FileAttributes& attributes) {
                                 cancel_point.step();
                                 entries.push_back(make_item({attributes, std::move(name)}, &folder));
                             });
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

void MVItemFolder::insert(const std::shared_ptr<MVItemBase>& item)
{
    if (children_.insert(item).is_folder() != item->is_folder())
        keep(children_.replace(item));
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
    const std::unique_ptr<Reading, Reading::Deleter> reading(new Reading);
    read_folder(*this, reading->entries, cancel_point);
    std::ranges::sort(reading->entries, [&](const auto& left, const auto& right) {
        cancel_point.step();
        return ChildMap::name_less(left->name(), right->name());
    });
    for (const auto& entry : reading->entries) {
        cancel_point.step();
        reading->children.insert(child_for(entry));
    }
    for (const auto& child : children_) {
        cancel_point.step();
        reading->children.insert(child);
    }
    std::swap(children_, reading->children);
}

/// The child that there is for an entry, brought up to date, or the entry itself.
std::shared_ptr<MVItemBase> MVItemFolder::child_for(const std::shared_ptr<MVItemBase>& entry) const
{
    std::shared_ptr<MVItemBase> child = children_.find(entry->name());
    if (!child)
        return entry;
    if (child->is_folder() != entry->is_folder()) {
        keep(child);
        return entry;
    }
    child->take_times_and_size(entry->info());
    return child;
}
