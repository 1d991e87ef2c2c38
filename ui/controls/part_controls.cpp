#include "ui/controls/part_controls.h"

#include "ui/controls/auto_number_controls_widget.h"
#include "ui/controls/checksum_controls_widget.h"
#include "ui/controls/date_controls_widget.h"
#include "ui/controls/folder_contents_controls_widget.h"
#include "ui/controls/name_controls_widget.h"
#include "ui/controls/path_controls_widget.h"
#include "ui/controls/property_controls_widget.h"
#include "ui/controls/size_controls_widget.h"
#include "ui/controls/text_controls_widget.h"

namespace {

ItemControlsBaseWidget* new_controls(ItemPartBase::Type type, TemplateEdits& edits, ExemplarItemProvider& exemplar,
                                     QWidget* parent)
{
    using enum ItemPartBase::Type;
    switch (type) {
    case Text: return new TextControlsWidget(edits, parent);
    case Name: return new NameControlsWidget(edits, parent);
    case Path: return new PathControlsWidget(edits, parent);
    case Size: return new SizeControlsWidget(edits, parent);
    case Date: return new DateControlsWidget(edits, parent);
    case Property: return new PropertyControlsWidget(edits, exemplar, parent);
    case AutoNumber: return new AutoNumberControlsWidget(edits, parent);
    case FolderFiles: return new FolderFilesControlsWidget(edits, parent);
    case FolderSubfolders: return new FolderSubfoldersControlsWidget(edits, parent);
    case Checksum: return new ChecksumControlsWidget(edits, parent);
    }
    return nullptr;
}

}

ItemControlsBaseWidget* make_part_controls(ItemPartBase::Type type, TemplateEdits& edits,
                                           ExemplarItemProvider& exemplar, QWidget* parent)
{
    ItemControlsBaseWidget* controls = new_controls(type, edits, exemplar, parent);
    if (controls)
        controls->add_delete_button();
    return controls;
}
