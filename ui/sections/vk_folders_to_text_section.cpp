#include "ui/sections/vk_folders_to_text_section.h"

#include "ui/parts/item_parts_container_widget.h"
#include "ui/sections/undo_command_changes.h"

#include <QCheckBox>
#include <QFrame>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

using Type = ItemPartBase::Type;

const std::vector<Type> palette_types{
    Type::Text, Type::Name, Type::Path, Type::Date, Type::AutoNumber, Type::FolderFiles, Type::FolderSubfolders};

QFrame* horizontal_line()
{
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

}

VKFoldersToTextSection::VKFoldersToTextSection(CommandLists& lists, ExemplarItemProvider& exemplar, QWidget* parent)
    : VKSectionWidget(parent), lists_(lists), same_as_files_(new QCheckBox(tr("Same As Files"))),
      own_template_(new QWidget),
      parts_(new ItemPartsContainerWidget(palette_types, VellumarkCommand::Template::Folders, lists, exemplar))
{
    constexpr int around_line = 8;
    QVBoxLayout* layout = make_section_layout();
    layout->addWidget(same_as_files_);
    layout->addSpacing(around_line);
    layout->addWidget(horizontal_line());
    layout->addSpacing(around_line);
    layout->addWidget(own_template_);
    auto* own_layout = new QVBoxLayout(own_template_);
    own_layout->setContentsMargins(0, 0, 0, 0);
    own_layout->addWidget(parts_);
    take_content_height();
    connect(same_as_files_, &QCheckBox::stateChanged, this,
            [this](int state) { same_as_files_state_changed(static_cast<Qt::CheckState>(state)); });
    connect(parts_, &ItemPartsContainerWidget::controls_height_changed, this,
            &ExpandableContainerWidget::animate_to_new_height);
}

void VKFoldersToTextSection::same_as_files_state_changed(Qt::CheckState state)
{
    if (command())
        lists_.steps().stack().push(new UndoFoldersAsFilesChange(lists_, command(), state != Qt::Unchecked,
                                                                 tr("Change Folders Same As Files")));
}

void VKFoldersToTextSection::load()
{
    const bool is_same = command()->same_parts_for_folders();
    const QSignalBlocker blocker(same_as_files_);
    same_as_files_->setChecked(is_same);
    own_template_->setVisible(!is_same);
    parts_->show_command(command());
    QMetaObject::invokeMethod(this, &VKFoldersToTextSection::animate_to_new_height, Qt::QueuedConnection);
}
