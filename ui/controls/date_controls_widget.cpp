#include "ui/controls/date_controls_widget.h"

#include "engine/parts/date_part.h"
#include "ui/controls/entry_texts.h"

DateControlsWidget::DateControlsWidget(TemplateEdits& edits, QWidget* parent) : ItemControlsBaseWidget(edits, parent)
{
    using Part = ItemPartDate;
    using Self = DateControlsWidget;
    add_combo(tr("Date Type:"), {tr("Last Modified Date"), tr("Created Date"), tr("Last Accessed Date")},
              PartSetting{tr("Change Date Type"), MergeId::None, &Part::date_type, &Part::set_date_type,
                          &Self::date_type_changed});
    add_combo(tr("Date Format:"), entry_texts::date_formats(),
              PartSetting{tr("Change Date Format"), MergeId::None, &Part::date_format, &Part::set_date_format,
                          &Self::date_format_changed});
    auto* zeros = add_check(tr("Add Leading Zeros to Make 2 Digits"),
                            PartSetting{tr("Change Date Leading Zeros"), MergeId::None, &Part::add_leading_zeros,
                                        &Part::set_add_leading_zeros, &Self::add_leading_zeros_changed});
    show_when(zeros, &Part::leading_zeros_apply);
}
