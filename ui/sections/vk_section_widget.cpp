#include "ui/sections/vk_section_widget.h"

#include "engine/commands/vellumark_command.h"
#include "ui/colours.h"
#include "ui/widgets/scheme_change.h"
#include "ui/widgets/title_painting.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QVBoxLayout>

VKSectionWidget::VKSectionWidget(CommandLists& lists, QWidget* parent)
    : ExpandableContainerWidget(parent), lists_(lists)
{}

void VKSectionWidget::set_command(std::shared_ptr<VellumarkCommand> command)
{
    command_ = std::move(command);
    {
        const QScopedValueRollback guard(loading_, true);
        load();
    }
    // Once the layouts have taken in what shows now.
    QMetaObject::invokeMethod(this, &VKSectionWidget::animate_to_new_height, Qt::QueuedConnection);
}

void VKSectionWidget::text_edit_size_changed()
{
    content()->layout()->invalidate();
    take_content_height();
}

QVBoxLayout* VKSectionWidget::make_section_layout()
{
    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    layout->addSpacing(title_height);
    set_content(content);
    return layout;
}

void VKSectionWidget::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), colours::section_background());
    draw_section_title(painter, section_title());
}

void VKSectionWidget::changeEvent(QEvent* event)
{
    if (is_scheme_change(*event))
        update();
    ExpandableContainerWidget::changeEvent(event);
}
