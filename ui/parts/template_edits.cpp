#include "ui/parts/template_edits.h"

#include "ui/lists/command_lists.h"
#include "ui/parts/undo_items_list_change.h"

std::shared_ptr<ItemPartsList> TemplateEdits::parts() const
{
    return command_ ? command_->parts(which_) : std::make_shared<ItemPartsList>();
}

void TemplateEdits::change_list(const ItemPartsList& parts, const QString& text)
{
    if (command_)
        lists_.steps().stack().push(new UndoItemsListChange(lists_, command_, which_, parts, text));
}

void TemplateEdits::change_part(std::size_t position, std::shared_ptr<const ItemPartBase> to, const QString& text,
                                MergeId merge_id)
{
    const auto part = parts()->at(position);
    if (!part || part->equals(*to))
        return;
    lists_.steps().stack().push(
        new UndoItemPartChange(lists_, command_, {which_, position}, {part->clone(), std::move(to), text, merge_id}));
}
