#pragma once

#include "ui/sections/vk_section_widget.h"

class VariableSizeTextEdit;

/// The text between two items.
class VKItemSeparatorSection final : public VKSectionWidget
{
    Q_OBJECT

public:
    explicit VKItemSeparatorSection(CommandLists& lists, QWidget* parent = nullptr);

    QString section_title() const override { return tr("Items Separator"); }

protected:
    void load() override;

private slots:
    void text_changed();

private:
    VariableSizeTextEdit* edit_ = nullptr;
};
