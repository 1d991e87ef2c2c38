#include "ui/sections/vk_sort_options_section.h"

#include "ui/sections/section_combo.h"
#include "ui/sections/undo_command_changes.h"

#include <QComboBox>
#include <QVBoxLayout>

VKSortOptionsSection::VKSortOptionsSection(CommandLists& lists, QWidget* parent)
    : VKSectionWidget(lists, parent),
      // In the order of the values.
      orders_(make_section_combo({tr("As Selected"), tr("By Name (A-Z)"), tr("By Name (Z-A)"),
                                  tr("By Size (smallest first)"), tr("By Size (largest first)"),
                                  tr("By Modified Date (oldest first)"), tr("By Modified Date (newest first)"),
                                  tr("By Path Length (shortest first)"), tr("By Path Length (longest first)")},
                                 tr("Sort Options")))
{
    Q_ASSERT(orders_->count() == std::ssize(sort_orders));
    make_section_layout()->addWidget(orders_, 0, Qt::AlignLeft);
    take_content_height();
    connect(orders_, &QComboBox::currentIndexChanged, this, &VKSortOptionsSection::sort_order_changed);
}

void VKSortOptionsSection::sort_order_changed(int index)
{
    const auto order = static_cast<Sort>(index);
    if (is_at_work() && order != command()->sort_order())
        push<UndoSortOrderChange>(order, tr("Change Sort Order"));
}

void VKSortOptionsSection::load()
{
    orders_->setCurrentIndex(static_cast<int>(command()->sort_order()));
}
