#include "engine/commands/folder_walk.h"

#include "engine/commands/parallel.h"
#include "engine/filters/item_filter.h"
#include "engine/items/mv_items_set.h"
#include "engine/parts/item_progress_sink.h"

#include <algorithm>
#include <functional>

namespace {

using Items = std::vector<const MVItemBase*>;
using Folders = std::vector<const MVItemFolder*>;

class Expansion
{
public:
    Expansion(std::int32_t max_depth, ItemProgressSink& sink, const ItemFilter* folder_filter)
        : max_depth_(max_depth), sink_(sink), folder_filter_(folder_filter)
    {}

    void add(const MVItemBase& item)
    {
        if (const MVItemFolder* folder = item.as_folder())
            add_files_below(*folder, 1);
        else
            files_.push_back(&item);
    }

    Items take() { return std::move(files_); }

private:
    /// False when the sink cancelled.
    bool add_files_below(const MVItemFolder& folder, int level)
    {
        if (!folder.children_loaded()) {
            sink_.report_item(folder.full_path());
            folder.load_children([this] { return sink_.is_cancelled(); });
        }
        for (const auto& child : folder.children()) {
            if (const MVItemFolder* subfolder = child->as_folder()) {
                if (child->is_link() || (enters_below(level) && !passes(*child)))
                    continue;
                if (enters_below(level) && !add_files_below(*subfolder, level + 1))
                    return false;
            } else {
                files_.push_back(child.get());
            }
            if (sink_.is_cancelled())
                return false;
        }
        return true;
    }

    bool enters_below(int level) const { return (max_depth_ == 0 || level < max_depth_) && level < max_folder_level; }

    bool passes(const MVItemBase& folder) const { return !folder_filter_ || folder_filter_->passes(folder.name()); }

    std::int32_t max_depth_;
    ItemProgressSink& sink_;
    const ItemFilter* folder_filter_;
    Items files_;
};

/// Leaves the folders that have yet to be read, each once. A drive selected twice is one node, and a selected folder
/// can be found below another one as well; two threads must never read the same.
void keep_unread(Folders& folders, CancelPoint& cancel_point)
{
    std::erase_if(folders, [&](const MVItemFolder* folder) {
        cancel_point.step();
        return folder->children_loaded();
    });
    std::ranges::sort(folders, [&](const MVItemFolder* left, const MVItemFolder* right) {
        cancel_point.step();
        return std::less<>()(left, right);
    });
    const auto repeated = std::ranges::unique(folders, [&](const MVItemFolder* left, const MVItemFolder* right) {
        cancel_point.step();
        return left == right;
    });
    folders.erase(repeated.begin(), repeated.end());
}

/// Reads the folders on a pool of threads and returns the unread folders found in them.
Folders read_level(const Folders& folders, ItemProgressSink& sink)
{
    const auto cancelled = [&] { return sink.is_cancelled(); };
    std::vector<Folders> found(thread_count(folders.size()));
    const auto read = [&](std::size_t index, std::size_t thread) {
        const MVItemFolder& folder = *folders[index];
        sink.report_item(folder.full_path());
        folder.load_children(cancelled);
        for (const auto& child : folder.children())
            if (const MVItemFolder* subfolder = child->as_folder(); subfolder && !child->is_link())
                found[thread].push_back(subfolder);
    };
    for_each_parallel(folders.size(), cancelled, read);
    Folders next_level;
    for (const Folders& of_thread : found)
        next_level.insert(next_level.end(), of_thread.begin(), of_thread.end());
    return next_level;
}

}

Items expand_files(const MVItemsSet& selection, std::int32_t max_depth, ItemProgressSink& sink,
                   const ItemFilter* folder_filter)
{
    Expansion expansion(max_depth, sink, folder_filter);
    for (const auto& item : selection.items()) {
        expansion.add(*item);
        if (sink.is_cancelled())
            break;
    }
    return expansion.take();
}

void precache_folders(std::span<const MVItemBase* const> items, ItemProgressSink& sink)
{
    CancelPoint cancel_point([&] { return sink.is_cancelled(); });
    Folders folders;
    for (const MVItemBase* item : items) {
        cancel_point.step();
        if (const MVItemFolder* folder = item->as_folder())
            folders.push_back(folder);
    }
    for (int pass = 0; pass < max_folder_level; ++pass) {
        keep_unread(folders, cancel_point);
        if (folders.empty() || sink.is_cancelled())
            return;
        folders = read_level(folders, sink);
    }
}
