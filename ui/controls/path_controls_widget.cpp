#include "ui/controls/path_controls_widget.h"

#include "engine/parts/path_part.h"
#include "ui/controls/entry_texts.h"

PathControlsWidget::PathControlsWidget(TemplateEdits& edits, QWidget* parent) : ItemControlsBaseWidget(edits, parent)
{
    using Part = ItemPartPath;
    using Self = PathControlsWidget;
    add_combo(tr("Type:"),
              {tr("Full Path"), tr("Path to Parent Folder Only"), tr("Path Without Drive"), tr("Drive Only"),
               tr("Drive Letter Only"), tr("Link Target")},
              PartSetting{tr("Change Path Type"), MergeId::None, &Part::path_type, &Part::set_path_type,
                          &Self::path_type_changed});
    add_line(tr("Separator:"), PartSetting{tr("Change Separator"), MergeId::PathSeparator, &Part::separator_text,
                                           &Part::set_separator_text, &Self::separator_text_changed});
    add_check(tr("Limit Number of Parent Folders"),
              PartSetting{tr("Change Limit Parent Folders"), MergeId::None, &Part::limit_num_parents,
                          &Part::set_limit_num_parents, &Self::limit_num_parent_folders_changed});
    auto* number =
        add_number(tr("Maximum Number of Parent Folders: "), {1, 1000},
                   PartSetting{tr("Change Number of Parent Folders"), MergeId::PathParents, &Part::num_parents,
                               &Part::set_num_parents, &Self::num_parent_folders_changed});
    enable_when(number, &Part::limit_num_parents);
    add_combo(tr("Case:"), entry_texts::case_types(),
              PartSetting{tr("Change Path Case"), MergeId::None, &Part::case_type, &Part::set_case_type,
                          &Self::case_type_changed});
}
