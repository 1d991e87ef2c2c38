#pragma once

#include "ui/controls/item_controls_base_widget.h"

/// Edits a part that writes one of an item's times. Main thread only.
class DateControlsWidget final : public ItemControlsBaseWidget
{
    Q_OBJECT

public:
    explicit DateControlsWidget(TemplateEdits& edits, QWidget* parent = nullptr);

signals:
    void date_type_changed();
    void date_format_changed();
    void add_leading_zeros_changed();
};
