#include "engine/parts/folder_contents_part.h"

#include "engine/commands/vellumark_command.h"
#include "engine/items/mv_item_folder.h"
#include "engine/parts/item_progress_sink.h"
#include "engine/parts/text_run_context.h"
#include "engine/text/json_access.h"
#include "engine/text/utf.h"

ItemPartFolderContents::ItemPartFolderContents(const boost::json::object& json)
    : indent_text_(json_access::optional_text(json, "indentText")),
      start_text_(json_access::optional_text(json, "startText")),
      end_text_(json_access::optional_text(json, "endText"))
{}

boost::json::object ItemPartFolderContents::to_json() const
{
    return {
        {"indentText", to_utf8(indent_text_)}, {"startText", to_utf8(start_text_)}, {"endText", to_utf8(end_text_)}};
}

void ItemPartFolderContents::append_text(TextRunContext& context, const MVItemBase& item, int level) const
{
    const MVItemFolder* folder = item.as_folder();
    if (!folder || (level >= 1 && item.is_link()) || level + 1 > max_folder_level || !context.command)
        return;
    context.sink->report_item(item.full_path());
    folder->load_children([&context] { return context.sink->is_cancelled(); });
    TextRunContext nested{context.command, context.sink,
                          TextOutput(context.output, {start_text_, indent_text_, end_text_})};
    append_children(nested, *folder, level + 1);
    nested.output.close();
}

bool ItemPartFolderContents::visits(const MVItemBase& child, const VellumarkCommand& command) const
{
    if (child.is_folder() != (content_kind() == ContentKind::Folders))
        return false;
    return command.passes_filter(child);
}

void ItemPartFolderContents::append_children(TextRunContext& context, const MVItemFolder& folder, int level) const
{
    for (const auto& child : folder.children()) {
        if (!visits(*child, *context.command))
            continue;
        if (!context.output.empty())
            context.output.append(context.command->separator());
        if (!context.command->append_item(context, *child, level))
            return;
    }
}
