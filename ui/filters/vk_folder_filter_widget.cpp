#include "ui/filters/vk_folder_filter_widget.h"

VKFolderFilterWidget::VKFolderFilterWidget(CommandLists& lists, QWidget* parent)
    : VKFilterWidgetBase(lists, {Mode::Wildcard, Mode::Regex}, parent)
{
    add_pattern_rows({.include = tr("Include only matching folders"), .exclude = tr("Exclude matching folders")});
}

VKFolderFilterWidget::Fields VKFolderFilterWidget::read(const VellumarkCommand& command) const
{
    return command_fields::folder_filter(command);
}

QUndoCommand* VKFolderFilterWidget::make_step(CommandLists& lists, const std::shared_ptr<VellumarkCommand>& command,
                                              const Fields& fields, const QString& text) const
{
    return new UndoFolderFilterChange(lists, command, fields, text);
}
