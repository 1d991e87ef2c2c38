#include "ui/editor/editing_pane.h"

#include "ui/app_services.h"
#include "ui/sections/vk_additional_text_section.h"
#include "ui/sections/vk_context_menu_options_section.h"
#include "ui/sections/vk_files_to_text_section.h"
#include "ui/sections/vk_folders_to_text_section.h"
#include "ui/sections/vk_item_separator_section.h"
#include "ui/sections/vk_sort_options_section.h"

#include <QApplication>
#include <QResizeEvent>
#include <QScrollBar>
#include <QVBoxLayout>

EditingPane::EditingPane(AppServices& app, QWidget* parent) : QScrollArea(parent)
{
    auto* files = new VKFilesToTextSection(app.lists(), app.presets(), app.exemplar());
    connect(files, &VKFilesToTextSection::manage_presets_requested, this, [&app] { app.manage_presets(); });
    sections_ = {files,
                 new VKFoldersToTextSection(app.lists(), app.exemplar()),
                 new VKItemSeparatorSection(app.lists()),
                 new VKAdditionalTextSection(app.lists()),
                 new VKSortOptionsSection(app.lists()),
                 new VKContextMenuOptionsSection(app.lists())};
    setWidgetResizable(true);
    setAccessibleName(tr("Edit"));
    // Tab goes straight to what the pane holds, and scrolls it.
    setFocusPolicy(Qt::NoFocus);
    setWidget(make_content());
}

QWidget* EditingPane::make_content()
{
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    for (VKSectionWidget* section : sections_) {
        layout->addWidget(section);
        section->installEventFilter(this);
    }
    layout->addStretch();
    return content;
}

void EditingPane::set_command(const std::shared_ptr<VellumarkCommand>& command)
{
    command_ = command;
    for (VKSectionWidget* section : sections_)
        section->set_command(command);
}

void EditingPane::update_sections()
{
    if (command_)
        sections_.back()->set_command(command_);
}

int EditingPane::wanted_height() const
{
    return sections_.front()->sizeHint().height();
}

bool EditingPane::eventFilter(QObject* watched, QEvent* event)
{
    auto* section = qobject_cast<QWidget*>(watched);
    if (section && event->type() == QEvent::Resize) {
        const auto* resize = static_cast<QResizeEvent*>(event);
        const bool has_grown = resize->size().height() > resize->oldSize().height();
        // Once the scroll bar knows of it.
        if (has_grown && section->isAncestorOf(QApplication::focusWidget()))
            QMetaObject::invokeMethod(
                this, [this, section] { reveal(*section); }, Qt::QueuedConnection);
    }
    return QScrollArea::eventFilter(watched, event);
}

/// Shows the field that has the focus, and as much around it as there is room for.
void EditingPane::reveal(const QWidget& section)
{
    QWidget* area = QApplication::focusWidget();
    if (!section.isAncestorOf(area))
        return;
    while (area != &section && area->parentWidget()->height() <= viewport()->height())
        area = area->parentWidget();
    ensureWidgetVisible(area, 0, 0);
}
