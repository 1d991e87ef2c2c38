#pragma once

#include "ui/controls/item_controls_base_widget.h"

/// Edits a part that writes a file's size. Main thread only.
class SizeControlsWidget final : public ItemControlsBaseWidget
{
    Q_OBJECT

public:
    explicit SizeControlsWidget(TemplateEdits& edits, QWidget* parent = nullptr);

signals:
    void size_format_changed();
    void add_thousands_separator_state_changed();
};
