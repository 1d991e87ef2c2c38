#include "ui/controls/checksum_controls_widget.h"

#include "engine/parts/checksum_part.h"
#include "ui/controls/entry_texts.h"

ChecksumControlsWidget::ChecksumControlsWidget(TemplateEdits& edits, QWidget* parent)
    : ItemControlsBaseWidget(edits, parent)
{
    using Part = ItemPartChecksum;
    using Self = ChecksumControlsWidget;
    add_combo(tr("Checksum Type:"), entry_texts::checksum_types(),
              PartSetting{tr("Change Checksum Type"), MergeId::None, &Part::checksum_type, &Part::set_checksum_type,
                          &Self::checksum_type_changed});
    add_check(tr("Uppercase"), PartSetting{tr("Change Checksum Uppercase"), MergeId::None, &Part::uppercase,
                                           &Part::set_uppercase, &Self::uppercase_state_changed});
}
