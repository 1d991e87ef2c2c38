#include "ui/parts/item_parts_container_widget.h"

#include "ui/controls/item_controls_base_widget.h"
#include "ui/controls/part_controls.h"
#include "ui/parts/item_parts_widget.h"
#include "ui/widgets/variable_size_stacked_widget.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

ItemPartsContainerWidget::ItemPartsContainerWidget(const std::vector<ItemPartBase::Type>& palette,
                                                   VellumarkCommand::Template which, CommandLists& lists,
                                                   ExemplarItemProvider& exemplar, QWidget* parent)
    : QWidget(parent), edits_(lists, which), parts_(new ItemPartsWidget(palette, edits_)),
      scroll_area_(new QScrollArea), stack_(new VariableSizeStackedWidget)
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(scroll_area_);
    layout->addWidget(stack_);
    scroll_area_->setWidgetResizable(true);
    scroll_area_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    // The row itself is what Tab reaches.
    scroll_area_->setFocusPolicy(Qt::NoFocus);
    scroll_area_->setWidget(parts_);
    for (const ItemPartBase::Type type : palette)
        add_controls(type, exemplar);
    stack_->hide();
    connect(parts_, &ItemPartsWidget::selection_changed, this, &ItemPartsContainerWidget::selection_changed);
    // Once the widget has the size that its new chips need.
    connect(
        parts_, &ItemPartsWidget::reveal, this,
        [this](const QRect& area) {
            scroll_area_->ensureVisible(area.right(), area.center().y(), ChipMetrics::gap, 0);
            scroll_area_->ensureVisible(area.left(), area.center().y(), ChipMetrics::gap, 0);
        },
        Qt::QueuedConnection);
}

void ItemPartsContainerWidget::add_controls(ItemPartBase::Type type, ExemplarItemProvider& exemplar)
{
    ItemControlsBaseWidget* controls = make_part_controls(type, edits_, exemplar, stack_);
    stack_->add_page(controls);
    controls_.emplace(type, controls);
    connect(controls, &ItemControlsBaseWidget::resized, this, &ItemPartsContainerWidget::controls_resized);
    connect(controls, &ItemControlsBaseWidget::delete_requested, this,
            [this] { parts_->delete_part(parts_->selected_index()); });
}

void ItemPartsContainerWidget::show_command(const std::shared_ptr<VellumarkCommand>& command)
{
    const bool is_other = edits_.command() != command;
    edits_.set_command(command);
    if (is_other)
        parts_->set_parts(*edits_.parts());
    else
        parts_->sync_parts(*edits_.parts());
    if (shown_)
        shown_->refresh();
}

void ItemPartsContainerWidget::selection_changed()
{
    if (shown_)
        shown_->set_position(-1);
    show_controls();
    controls_resized();
}

void ItemPartsContainerWidget::show_controls()
{
    const int selected = parts_->selected_index();
    const auto part = selected < 0 ? nullptr : edits_.parts()->at(static_cast<std::size_t>(selected));
    const auto controls = part ? controls_.find(part->type()) : controls_.end();
    ItemControlsBaseWidget* shown = controls == controls_.end() ? nullptr : controls->second;
    // Who works in a control that goes is not to find himself elsewhere on the page.
    if (shown_ && shown_ != shown && shown_->isAncestorOf(focusWidget()))
        parts_->take_focus();
    shown_ = shown;
    if (shown_) {
        shown_->set_position(selected);
        stack_->setCurrentWidget(shown_);
    }
    stack_->setVisible(shown_ != nullptr);
}

void ItemPartsContainerWidget::controls_resized()
{
    stack_->updateGeometry();
    layout()->invalidate();
    adjustSize();
    updateGeometry();
    emit controls_height_changed();
}
