#pragma once

#include "ui/controls/item_controls_base_widget.h"

/// Edits a part that expands folders. Main thread only.
class FolderContentsControlsWidget : public ItemControlsBaseWidget
{
    Q_OBJECT

signals:
    void indent_text_changed();
    void start_text_changed();
    void end_text_changed();
    void text_size_changed();

protected:
    FolderContentsControlsWidget(TemplateEdits& edits, QWidget* parent);
};

class FolderFilesControlsWidget final : public FolderContentsControlsWidget
{
    Q_OBJECT

public:
    explicit FolderFilesControlsWidget(TemplateEdits& edits, QWidget* parent = nullptr)
        : FolderContentsControlsWidget(edits, parent)
    {}
};

class FolderSubfoldersControlsWidget final : public FolderContentsControlsWidget
{
    Q_OBJECT

public:
    explicit FolderSubfoldersControlsWidget(TemplateEdits& edits, QWidget* parent = nullptr)
        : FolderContentsControlsWidget(edits, parent)
    {}
};
