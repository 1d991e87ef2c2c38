#include "ui/sections/vk_files_to_text_section.h"

#include "ui/filters/vk_file_filter_widget.h"
#include "ui/parts/item_parts_container_widget.h"

#include <QVBoxLayout>

namespace {

using Type = ItemPartBase::Type;

const std::vector<Type> palette_types{Type::Text, Type::Name,     Type::Path,       Type::Size,
                                      Type::Date, Type::Property, Type::AutoNumber, Type::Checksum};

}

VKFilesToTextSection::VKFilesToTextSection(CommandLists& lists, Presets& presets, ExemplarItemProvider& exemplar,
                                           QWidget* parent)
    : VKSectionWidget(lists, parent), filter_(new VKFileFilterWidget(lists, presets)),
      parts_(new ItemPartsContainerWidget(palette_types, VellumarkCommand::Template::Files, lists, exemplar))
{
    QVBoxLayout* layout = make_section_layout();
    layout->addWidget(filter_);
    layout->addWidget(parts_);
    take_content_height();
    connect(filter_, &VKFileFilterWidget::manage_presets_requested, this,
            &VKFilesToTextSection::manage_presets_requested);
    connect(filter_, &VKFilterWidgetBase::height_changed, this, &ExpandableContainerWidget::animate_to_new_height);
    connect(parts_, &ItemPartsContainerWidget::controls_height_changed, this,
            &ExpandableContainerWidget::animate_to_new_height);
}

void VKFilesToTextSection::load()
{
    parts_->show_command(command());
    filter_->show_command(command());
}
