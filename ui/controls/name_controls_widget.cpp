#include "ui/controls/name_controls_widget.h"

#include "engine/parts/name_part.h"
#include "ui/controls/entry_texts.h"

NameControlsWidget::NameControlsWidget(TemplateEdits& edits, QWidget* parent) : ItemControlsBaseWidget(edits, parent)
{
    using Part = ItemPartName;
    using Self = NameControlsWidget;
    add_combo(tr("Type:"), {tr("Name and Extension"), tr("Name Only (No Extension)"), tr("Extension Only")},
              PartSetting{tr("Change Name Type"), MergeId::None, &Part::name_type, &Part::set_name_type,
                          &Self::name_type_changed});
    add_combo(tr("Case:"), entry_texts::case_types(),
              PartSetting{tr("Change Name Case"), MergeId::None, &Part::case_type, &Part::set_case_type,
                          &Self::case_type_changed});
}
