#pragma once

#include "ui/sections/vk_section_widget.h"

class QComboBox;

/// The order of the items.
class VKSortOptionsSection final : public VKSectionWidget
{
    Q_OBJECT

public:
    explicit VKSortOptionsSection(CommandLists& lists, QWidget* parent = nullptr);

    QString section_title() const override { return tr("Sort Options"); }

protected:
    void load() override;

private slots:
    void sort_order_changed(int index);

private:
    QComboBox* orders_ = nullptr;
};
