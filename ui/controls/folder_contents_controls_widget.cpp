#include "ui/controls/folder_contents_controls_widget.h"

#include "engine/parts/folder_contents_part.h"

FolderContentsControlsWidget::FolderContentsControlsWidget(TemplateEdits& edits, QWidget* parent)
    : ItemControlsBaseWidget(edits, parent)
{
    using Part = ItemPartFolderContents;
    using Self = FolderContentsControlsWidget;
    add_text(tr("Indent:"), PartSetting{tr("Change Folder Contents Indent Text"), MergeId::FolderIndent,
                                        &Part::indent_text, &Part::set_indent_text, &Self::indent_text_changed});
    add_text(tr("Add to Start:"), PartSetting{tr("Change Folder Contents Start Text"), MergeId::FolderStart,
                                              &Part::start_text, &Part::set_start_text, &Self::start_text_changed});
    add_text(tr("Add to End:"), PartSetting{tr("Change Folder Contents End Text"), MergeId::FolderEnd,
                                            &Part::end_text, &Part::set_end_text, &Self::end_text_changed});
    connect(this, &Self::resized, this, &Self::text_size_changed);
}
