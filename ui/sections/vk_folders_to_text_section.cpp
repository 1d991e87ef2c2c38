#include "ui/sections/vk_folders_to_text_section.h"

#include "ui/filters/vk_folder_filter_widget.h"
#include "ui/parts/item_parts_container_widget.h"
#include "ui/sections/undo_command_changes.h"
#include "ui/widgets/field_manners.h"
#include "ui/widgets/horizontal_line.h"

#include <QCheckBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace {

using Type = ItemPartBase::Type;

const std::vector<Type> palette_types{
    Type::Text, Type::Name, Type::Path, Type::Date, Type::AutoNumber, Type::FolderFiles, Type::FolderSubfolders};

template <typename Layout>
Layout* bare_layout(QWidget* panel)
{
    auto* layout = new Layout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

}

VKFoldersToTextSection::VKFoldersToTextSection(CommandLists& lists, ExemplarItemProvider& exemplar, QWidget* parent)
    : VKSectionWidget(lists, parent), same_as_files_(new QCheckBox(tr("Same As Files"))),
      filter_(new VKFolderFilterWidget(lists)), own_home_(new QVBoxLayout), added_home_(new QVBoxLayout),
      parts_(new ItemPartsContainerWidget(palette_types, VellumarkCommand::Template::Folders, lists, exemplar))
{
    constexpr int around_line = 8;
    QVBoxLayout* layout = make_section_layout();
    layout->addWidget(same_as_files_);
    layout->addSpacing(around_line);
    layout->addWidget(make_horizontal_line());
    layout->addSpacing(around_line);
    layout->addWidget(own_template_ = make_own_template());
    layout->addWidget(added_files_ = make_added_files());
    take_content_height();
    connect_all();
}

QWidget* VKFoldersToTextSection::make_own_template()
{
    auto* panel = new QWidget;
    auto* layout = bare_layout<QVBoxLayout>(panel);
    layout->addLayout(own_home_);
    own_home_->addWidget(filter_);
    layout->addWidget(parts_);
    return panel;
}

QWidget* VKFoldersToTextSection::make_added_files()
{
    auto* panel = new QWidget;
    auto* layout = bare_layout<QVBoxLayout>(panel);
    layout->addWidget(add_files_ = new QCheckBox(tr("Add Files From Folders")));
    layout->addWidget(depth_row_ = make_depth_row());
    layout->addLayout(added_home_);
    panel->hide();
    panel->setEnabled(false);
    return panel;
}

QWidget* VKFoldersToTextSection::make_depth_row()
{
    auto* row = new QWidget;
    auto* layout = bare_layout<QHBoxLayout>(row);
    layout->addWidget(limit_depth_ = new QCheckBox(tr("Limit Folder Scan Depth: ")));
    depth_ = new QSpinBox;
    depth_->setMinimum(1);
    depth_->setAccessibleName(tr("Limit Folder Scan Depth: "));
    leave_wheel_to_page(*depth_);
    leave_undo_to_window(*depth_);
    layout->addWidget(depth_);
    layout->addStretch();
    row->setEnabled(false);
    return row;
}

void VKFoldersToTextSection::connect_all()
{
    const auto connect_box = [this](QCheckBox* box, void (VKFoldersToTextSection::*changed)(Qt::CheckState)) {
        connect(box, &QCheckBox::stateChanged, this,
                [this, changed](int state) { (this->*changed)(static_cast<Qt::CheckState>(state)); });
    };
    connect_box(same_as_files_, &VKFoldersToTextSection::same_as_files_state_changed);
    connect_box(add_files_, &VKFoldersToTextSection::add_files_from_folders_state_changed);
    connect_box(limit_depth_, &VKFoldersToTextSection::limit_depth_state_changed);
    connect(depth_, &QSpinBox::valueChanged, this, &VKFoldersToTextSection::max_folder_depth_changed);
    connect(filter_, &VKFilterWidgetBase::height_changed, this, &ExpandableContainerWidget::animate_to_new_height);
    connect(parts_, &ItemPartsContainerWidget::controls_height_changed, this,
            &ExpandableContainerWidget::animate_to_new_height);
}

void VKFoldersToTextSection::same_as_files_state_changed(Qt::CheckState state)
{
    push<UndoFoldersAsFilesChange>(state != Qt::Unchecked, tr("Change Folders Same As Files"));
}

void VKFoldersToTextSection::add_files_from_folders_state_changed(Qt::CheckState state)
{
    push<UndoAddFilesFromFoldersChange>(state != Qt::Unchecked, tr("Change Add Files From Folders"));
}

void VKFoldersToTextSection::limit_depth_state_changed(Qt::CheckState state)
{
    if (!is_at_work())
        return;
    const bool limit = state != Qt::Unchecked;
    const int depth = command()->max_folder_depth();
    push<UndoLimitFolderDepthChange>({limit, limit ? std::max(depth, 1) : depth}, tr("Change Limit Folder Depth"));
}

void VKFoldersToTextSection::max_folder_depth_changed(int value)
{
    push<UndoMaxFolderDepthChange>(value, tr("Change Maximum Folder Depth"));
}

/// The filter selects folders that have a text of their own, or those that files are looked for in.
void VKFoldersToTextSection::place_filter()
{
    const bool same = command()->same_parts_for_folders();
    QVBoxLayout* home = same ? added_home_ : own_home_;
    if (home->indexOf(filter_) < 0) {
        (same ? own_home_ : added_home_)->removeWidget(filter_);
        home->addWidget(filter_);
        put_into_tab_order(*filter_, same ? static_cast<QWidget&>(*depth_) : *same_as_files_);
    }
    filter_->setVisible(!same || command()->add_files_from_folders());
}

void VKFoldersToTextSection::load()
{
    const bool same = command()->same_parts_for_folders(), add = command()->add_files_from_folders();
    same_as_files_->setChecked(same);
    parts_->show_command(command());
    own_template_->setVisible(!same);
    added_files_->setVisible(same);
    added_files_->setEnabled(same);
    add_files_->setChecked(add);
    depth_row_->setEnabled(add);
    limit_depth_->setChecked(command()->limit_folder_depth());
    depth_->setValue(command()->max_folder_depth());
    place_filter();
    filter_->show_command(command());
}
