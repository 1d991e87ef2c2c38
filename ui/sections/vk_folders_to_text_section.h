#pragma once

#include "ui/sections/vk_section_widget.h"

class ExemplarItemProvider;
class ItemPartsContainerWidget;
class QCheckBox;
class QSpinBox;
class QVBoxLayout;
class VKFolderFilterWidget;

/// The text of each folder: one of its own, or that of files. In the latter case the files that lie in the folders
/// can take their place.
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
    void add_files_from_folders_state_changed(Qt::CheckState state);
    void limit_depth_state_changed(Qt::CheckState state);
    void max_folder_depth_changed(int value);

private:
    QWidget* make_own_template();
    QWidget* make_added_files();
    QWidget* make_depth_row();
    void connect_all();
    void place_filter();

    QCheckBox* same_as_files_ = nullptr;
    QWidget* own_template_ = nullptr;
    VKFolderFilterWidget* filter_ = nullptr; ///< in one of its two homes
    QVBoxLayout* own_home_ = nullptr;
    QVBoxLayout* added_home_ = nullptr;
    ItemPartsContainerWidget* parts_ = nullptr;
    QWidget* added_files_ = nullptr;
    QCheckBox* add_files_ = nullptr;
    QWidget* depth_row_ = nullptr;
    QCheckBox* limit_depth_ = nullptr;
    QSpinBox* depth_ = nullptr;
};
