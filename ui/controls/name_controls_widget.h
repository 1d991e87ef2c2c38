#pragma once

#include "ui/controls/item_controls_base_widget.h"

/// Edits a part that writes an item's name. Main thread only.
class NameControlsWidget final : public ItemControlsBaseWidget
{
    Q_OBJECT

public:
    explicit NameControlsWidget(TemplateEdits& edits, QWidget* parent = nullptr);

signals:
    void name_type_changed();
    void case_type_changed();
};
