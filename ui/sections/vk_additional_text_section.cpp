#include "ui/sections/vk_additional_text_section.h"

#include "ui/sections/undo_command_changes.h"
#include "ui/widgets/variable_size_text_edit.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

VKAdditionalTextSection::VKAdditionalTextSection(CommandLists& lists, QWidget* parent)
    : VKSectionWidget(lists, parent)
{
    auto* grid = new QGridLayout;
    make_section_layout()->addLayout(grid);
    start_ = add_text(*grid, tr("At Start:"), &VKAdditionalTextSection::start_text_changed);
    end_ = add_text(*grid, tr("At End:"), &VKAdditionalTextSection::end_text_changed);
    not_if_one_item_ = new QCheckBox(tr("Don't Add If Only One Item Selected"));
    grid->addWidget(not_if_one_item_, 2, 0, 1, 2);
    take_content_height();
    connect(not_if_one_item_, &QCheckBox::stateChanged, this,
            [this](int state) { no_additional_text_if_one_item_changed(static_cast<Qt::CheckState>(state)); });
}

VariableSizeTextEdit* VKAdditionalTextSection::add_text(QGridLayout& grid, const QString& label,
                                                        void (VKAdditionalTextSection::*changed)())
{
    auto* edit = new VariableSizeTextEdit;
    edit->set_show_whitespace(true);
    edit->setAccessibleName(label);
    auto* name = new QLabel(label);
    name->setBuddy(edit);
    const int row = start_ ? 1 : 0;
    grid.addWidget(name, row, 0, Qt::AlignRight);
    grid.addWidget(edit, row, 1);
    connect(edit, &QTextEdit::textChanged, this, changed);
    connect(edit, &VariableSizeTextEdit::size_changed, this, &VKAdditionalTextSection::text_edit_size_changed);
    return edit;
}

void VKAdditionalTextSection::start_text_changed()
{
    std::u16string text = start_->stored_text();
    if (is_at_work() && text != command()->start_text())
        push<UndoAdditionalTextChange<AdditionalText::Start>>(std::move(text), tr("Change Start Text"));
}

void VKAdditionalTextSection::end_text_changed()
{
    std::u16string text = end_->stored_text();
    if (is_at_work() && text != command()->end_text())
        push<UndoAdditionalTextChange<AdditionalText::End>>(std::move(text), tr("Change End Text"));
}

void VKAdditionalTextSection::no_additional_text_if_one_item_changed(Qt::CheckState state)
{
    const bool none = state == Qt::Checked;
    if (is_at_work() && none != command()->no_start_end_text_if_one_item())
        push<UndoNoStartEndTextIfOneItemChange>(
            none, tr("Change State of \"Don't add start & end text if only one item selected\" Flag"));
}

void VKAdditionalTextSection::load()
{
    start_->follow_text(command()->start_text());
    end_->follow_text(command()->end_text());
    not_if_one_item_->setChecked(command()->no_start_end_text_if_one_item());
}
