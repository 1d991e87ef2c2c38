#pragma once

#include "ui/controls/item_controls_base_widget.h"

/// Edits a part that writes a running number. Main thread only.
class AutoNumberControlsWidget final : public ItemControlsBaseWidget
{
    Q_OBJECT

public:
    explicit AutoNumberControlsWidget(TemplateEdits& edits, QWidget* parent = nullptr);

signals:
    void start_changed();
    void step_changed();
    void ndigits_changed();
    void add_leading_zeros_state_changed();
    void add_thousands_separator_state_changed();
};
