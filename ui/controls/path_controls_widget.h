#pragma once

#include "ui/controls/item_controls_base_widget.h"

/// Edits a part that writes an item's path. Main thread only.
class PathControlsWidget final : public ItemControlsBaseWidget
{
    Q_OBJECT

public:
    explicit PathControlsWidget(TemplateEdits& edits, QWidget* parent = nullptr);

signals:
    void path_type_changed();
    void separator_text_changed();
    void limit_num_parent_folders_changed();
    void num_parent_folders_changed();
    void case_type_changed();
};
