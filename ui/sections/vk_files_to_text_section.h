#pragma once

#include "ui/sections/vk_section_widget.h"

class ExemplarItemProvider;
class ItemPartsContainerWidget;

/// The text of each file, and of each folder as long as folders have none of their own.
class VKFilesToTextSection final : public VKSectionWidget
{
    Q_OBJECT

public:
    /// `lists` and `exemplar` outlive the section.
    VKFilesToTextSection(CommandLists& lists, ExemplarItemProvider& exemplar, QWidget* parent = nullptr);

    QString section_title() const override { return tr("Files To Text"); }

protected:
    void load() override;

private:
    ItemPartsContainerWidget* parts_ = nullptr;
};
