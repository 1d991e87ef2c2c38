#pragma once

#include "engine/parts/property_part.h"
#include "ui/controls/item_controls_base_widget.h"

class ExemplarItemProvider;
class PropertyTable;
class VariableSizeStackedWidget;

/// Edits a part that writes a property: a table of the sample item's properties, and the format of the chosen one's
/// values. The sample item is asked for its properties only while the widget is visible. Main thread only.
class PropertyControlsWidget final : public ItemControlsBaseWidget
{
    Q_OBJECT

public:
    /// `exemplar` outlives the widget.
    PropertyControlsWidget(TemplateEdits& edits, ExemplarItemProvider& exemplar, QWidget* parent = nullptr);

signals:
    void type_changed();
    void hide_empty_values_changed();
    void exemplar_item_changed();
    void custom_format_changed();
    void thousands_separator_changed();
    void date_format_changed();
    void leading_zeros_changed();
    void boolean_format_changed();
    void case_type_changed();
    void size_format_changed();
    void size_thousands_separator_changed();
    void round_to_seconds_changed();
    void duration_thousands_separator_changed();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void add_boxes();
    void add_pages();
    void add_page();
    void add_thousands_box(void (PropertyControlsWidget::*changed)());
    void fill_table();
    void show_property(const ItemPartProperty& part);
    void choose_property(const QString& canonical_name);
    void set_custom_format(bool custom);

    ExemplarItemProvider& exemplar_;
    PropertyTable* table_;
    QCheckBox* hide_empty_;
    QCheckBox* custom_format_;
    VariableSizeStackedWidget* pages_; ///< one a value type but "default", in their order
};
