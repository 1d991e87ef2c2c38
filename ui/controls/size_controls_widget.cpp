#include "ui/controls/size_controls_widget.h"

#include "engine/parts/size_part.h"
#include "ui/controls/entry_texts.h"

SizeControlsWidget::SizeControlsWidget(TemplateEdits& edits, QWidget* parent) : ItemControlsBaseWidget(edits, parent)
{
    using Part = ItemPartSize;
    using Self = SizeControlsWidget;
    add_combo(tr("Size Format:"), entry_texts::size_formats(),
              PartSetting{tr("Change Size Type"), MergeId::None, &Part::size_format, &Part::set_size_format,
                          &Self::size_format_changed});
    add_check(tr("Add Thousands Separator"),
              PartSetting{tr("Change Size Add Thousands Separator"), MergeId::None, &Part::add_thousands_separator,
                          &Part::set_add_thousands_separator, &Self::add_thousands_separator_state_changed});
}
