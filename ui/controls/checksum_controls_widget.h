#pragma once

#include "ui/controls/item_controls_base_widget.h"

/// Edits a part that writes a checksum. Main thread only.
class ChecksumControlsWidget final : public ItemControlsBaseWidget
{
    Q_OBJECT

public:
    explicit ChecksumControlsWidget(TemplateEdits& edits, QWidget* parent = nullptr);

signals:
    void checksum_type_changed();
    void uppercase_state_changed();
};
