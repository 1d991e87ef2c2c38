#pragma once

#include "ui/sections/vk_section_widget.h"

class ExemplarItemProvider;
class ItemPartsContainerWidget;
class Presets;
class VKFileFilterWidget;

/// The text of each file, and of each folder as long as folders have none of their own.
class VKFilesToTextSection final : public VKSectionWidget
{
    Q_OBJECT

public:
    /// All three outlive the section.
    VKFilesToTextSection(CommandLists& lists, Presets& presets, ExemplarItemProvider& exemplar,
                         QWidget* parent = nullptr);

    QString section_title() const override { return tr("Files To Text"); }

signals:
    /// The user wants to edit the presets.
    void manage_presets_requested();

protected:
    void load() override;

private:
    VKFileFilterWidget* filter_ = nullptr;
    ItemPartsContainerWidget* parts_ = nullptr;
};
