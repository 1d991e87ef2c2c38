#include "ui/controls/text_controls_widget.h"

#include "engine/parts/text_part.h"

TextControlsWidget::TextControlsWidget(TemplateEdits& edits, QWidget* parent) : ItemControlsBaseWidget(edits, parent)
{
    using Part = ItemPartText;
    using Self = TextControlsWidget;
    auto* edit = add_text(
        {}, PartSetting{tr("Change Text"), MergeId::Text, &Part::text, &Part::set_text, &Self::text_changed});
    edit->setPlaceholderText(tr("Enter text for this part"));
    edit->setAccessibleName(edit->placeholderText());
    connect(this, &Self::resized, this, &Self::text_size_changed);
}
