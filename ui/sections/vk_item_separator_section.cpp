#include "ui/sections/vk_item_separator_section.h"

#include "ui/sections/undo_command_changes.h"
#include "ui/widgets/variable_size_text_edit.h"

#include <QVBoxLayout>

VKItemSeparatorSection::VKItemSeparatorSection(CommandLists& lists, QWidget* parent)
    : VKSectionWidget(lists, parent), edit_(new VariableSizeTextEdit)
{
    edit_->set_show_whitespace(true);
    edit_->setAccessibleName(tr("Items Separator"));
    make_section_layout()->addWidget(edit_);
    take_content_height();
    connect(edit_, &QTextEdit::textChanged, this, &VKItemSeparatorSection::text_changed);
    connect(edit_, &VariableSizeTextEdit::size_changed, this, &VKItemSeparatorSection::text_edit_size_changed);
}

void VKItemSeparatorSection::text_changed()
{
    std::u16string text = edit_->stored_text();
    if (is_at_work() && text != command()->separator())
        push<UndoItemSeparatorChange>(std::move(text), tr("Change Separator Text"));
}

void VKItemSeparatorSection::load()
{
    edit_->follow_text(command()->separator());
}
