#pragma once

#include "ui/sections/vk_section_widget.h"

class CommandLists;
class ExemplarItemProvider;
class ItemPartsContainerWidget;
class QCheckBox;

/// The text of each folder: the files' one, or one of its own.
class VKFoldersToTextSection final : public VKSectionWidget
{
    Q_OBJECT

public:
    /// `lists` and `exemplar` outlive the section.
    VKFoldersToTextSection(CommandLists& lists, ExemplarItemProvider& exemplar, QWidget* parent = nullptr);

    QString section_title() const override { return tr("Folders To Text"); }

protected:
    void load() override;

private slots:
    void same_as_files_state_changed(Qt::CheckState state);

private:
    CommandLists& lists_;
    QCheckBox* same_as_files_ = nullptr;
    QWidget* own_template_ = nullptr;
    ItemPartsContainerWidget* parts_ = nullptr;
};
