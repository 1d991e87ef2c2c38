#pragma once

#include "ui/parts/template_edits.h"

#include <QWidget>

#include <map>

class ExemplarItemProvider;
class ItemControlsBaseWidget;
class ItemPartsWidget;
class QScrollArea;
class VariableSizeStackedWidget;

/// Edits a template: its parts as chips, and below them the controls of the chip that is selected. Main thread only.
class ItemPartsContainerWidget final : public QWidget
{
    Q_OBJECT

public:
    /// `palette` are the types that can be added, in the order shown. `lists` and `exemplar` outlive the widget.
    ItemPartsContainerWidget(const std::vector<ItemPartBase::Type>& palette, VellumarkCommand::Template which,
                             CommandLists& lists, ExemplarItemProvider& exemplar, QWidget* parent = nullptr);

    /// Shows a command's template as it now is. The selected chip stays selected while the command is the same.
    void show_command(const std::shared_ptr<VellumarkCommand>& command);

    ItemPartsWidget& parts_widget() const { return *parts_; }

    /// Null while no chip is selected.
    ItemControlsBaseWidget* shown_controls() const { return shown_; }

signals:
    /// Another height is wanted.
    void controls_height_changed();

private slots:
    void selection_changed();
    void controls_resized();

private:
    void add_controls(ItemPartBase::Type type, ExemplarItemProvider& exemplar);
    void show_controls();

    TemplateEdits edits_;
    ItemPartsWidget* parts_ = nullptr;
    QScrollArea* scroll_area_ = nullptr;
    VariableSizeStackedWidget* stack_ = nullptr;
    std::map<ItemPartBase::Type, ItemControlsBaseWidget*> controls_;
    ItemControlsBaseWidget* shown_ = nullptr;
};
