#pragma once

#include "ui/controls/item_controls_base_widget.h"

/// Edits a part that writes a literal. Main thread only.
class TextControlsWidget final : public ItemControlsBaseWidget
{
    Q_OBJECT

public:
    explicit TextControlsWidget(TemplateEdits& edits, QWidget* parent = nullptr);

signals:
    void text_changed();
    void text_size_changed();
};
