#include "engine/commands/vellumark_command.h"

#include "engine/commands/checksum_pool.h"
#include "engine/commands/folder_walk.h"
#include "engine/items/mv_items_set.h"
#include "engine/parts/checksum_part.h"
#include "engine/parts/item_progress_sink.h"
#include "engine/parts/text_run_context.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace {

/// What a command's templates need before the first part runs.
struct Needs {
    std::set<ChecksumType> checksums;
    bool folder_data = false;
};

void collect_needs(const ItemPartsList& parts, Needs& needs)
{
    for (const auto& part : parts) {
        if (part->type() == ItemPartBase::Type::Checksum)
            needs.checksums.insert(static_cast<const ItemPartChecksum&>(*part).checksum_type());
        else if (part->type() == ItemPartBase::Type::FolderFiles ||
                 part->type() == ItemPartBase::Type::FolderSubfolders)
            needs.folder_data = true;
    }
}

}

VellumarkCommand::Items VellumarkCommand::items_of(const MVItemsSet& selection, ItemProgressSink& sink) const
{
    Items items;
    if (selection.items().empty())
        return items;
    if (fields_.add_files_from_folders)
        items = expand_files(selection, fields_.limit_folder_depth ? fields_.max_folder_depth : 0, sink,
                             folder_filter_active() ? &fields_.folder_filter : nullptr);
    else
        std::ranges::transform(selection.items(), std::back_inserter(items),
                               [](const auto& item) { return item.get(); });
    build_item_list(items, sink);
    return items;
}

void VellumarkCommand::build_item_list(Items& items, ItemProgressSink& sink) const
{
    CancelPoint cancel_point([&sink] { return sink.is_cancelled(); });
    const auto remove = [&](bool folders) {
        std::erase_if(items, [&](const MVItemBase* item) {
            cancel_point.ask();
            return item->is_folder() == folders && !passes_filter(*item);
        });
    };
    if (file_filter_active())
        remove(false);
    if (fields_.same_parts_for_folders && folder_filter_active())
        remove(true);
    sort_items(items, fields_.sort_order, cancel_point);
}

void VellumarkCommand::read_ahead(const Items& items, ItemProgressSink& sink) const
{
    if (items.empty() || sink.is_cancelled())
        return;
    Needs needs;
    collect_needs(*fields_.file_parts, needs);
    if (!fields_.same_parts_for_folders)
        collect_needs(*fields_.folder_parts, needs);
    if (needs.folder_data && !sink.is_cancelled())
        precache_folders(items, sink);
    if (!needs.checksums.empty() && !sink.is_cancelled())
        precache_checksums(items, needs.checksums, needs.folder_data, sink);
}

const ItemPartsList& VellumarkCommand::parts_for(const MVItemBase& item) const
{
    return item.is_folder() && !fields_.same_parts_for_folders ? *fields_.folder_parts : *fields_.file_parts;
}

bool VellumarkCommand::append_item(TextRunContext& context, const MVItemBase& item, int level) const
{
    for (const auto& part : parts_for(item)) {
        part->append_text(context, item, level);
        if (context.sink->is_cancelled())
            return false;
    }
    return true;
}

std::u16string VellumarkCommand::text_of(const MVItemsSet& selection, ItemProgressSink& sink) const
{
    const Items items = items_of(selection, sink);
    read_ahead(items, sink);
    TextRunContext context{this, &sink};
    const bool uses_start_and_end = !fields_.no_start_end_text_if_one_item || items.size() > 1;
    if (uses_start_and_end)
        context.output.append(fields_.start_text);
    bool is_first = true;
    for (const MVItemBase* item : items) {
        if (sink.is_cancelled())
            break;
        if (!is_first)
            context.output.append(fields_.separator);
        is_first = false;
        if (!append_item(context, *item, 0))
            break;
    }
    if (uses_start_and_end)
        context.output.append(fields_.end_text);
    return context.output.take();
}

void VellumarkCommand::generate_text(std::u16string& text, const MVItemsSet& selection, ItemProgressSink& sink) const
{
    try {
        text = text_of(selection, sink);
    } catch (const Cancelled&) {
        text.clear();
    }
}
