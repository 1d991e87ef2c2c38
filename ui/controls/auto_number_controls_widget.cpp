#include "ui/controls/auto_number_controls_widget.h"

#include "engine/parts/auto_number_part.h"

#include <limits>

AutoNumberControlsWidget::AutoNumberControlsWidget(TemplateEdits& edits, QWidget* parent)
    : ItemControlsBaseWidget(edits, parent)
{
    using Part = ItemPartAutoNumber;
    using Self = AutoNumberControlsWidget;
    constexpr int most = std::numeric_limits<std::int32_t>::max();
    add_number(tr("Start:"), {0, most},
               PartSetting{tr("Change Auto-number Start"), MergeId::NumberStart, &Part::start, &Part::set_start,
                           &Self::start_changed});
    add_number(tr("Step:"), {1, most},
               PartSetting{tr("Change Auto-number Step"), MergeId::NumberStep, &Part::step, &Part::set_step,
                           &Self::step_changed});
    add_check(tr("Add Leading Zeros"),
              PartSetting{tr("Change Autonumber Add Leading Zeros"), MergeId::None, &Part::add_leading_zeros,
                          &Part::set_add_leading_zeros, &Self::add_leading_zeros_state_changed});
    auto* digits = add_number(tr("Digits Length:"), {0, 20},
                              PartSetting{tr("Change Auto-number Digits Length"), MergeId::NumberDigits,
                                          &Part::n_digits, &Part::set_n_digits, &Self::ndigits_changed});
    enable_when(digits, &Part::add_leading_zeros);
    add_check(tr("Add Thousands Separator"),
              PartSetting{tr("Change Autonumber Add Thousands Separator"), MergeId::None,
                          &Part::add_thousands_separator, &Part::set_add_thousands_separator,
                          &Self::add_thousands_separator_state_changed});
}
