#pragma once

#include "ui/sections/vk_section_widget.h"

class QCheckBox;
class QGridLayout;
class VariableSizeTextEdit;

/// The texts before the first and behind the last item.
class VKAdditionalTextSection final : public VKSectionWidget
{
    Q_OBJECT

public:
    explicit VKAdditionalTextSection(CommandLists& lists, QWidget* parent = nullptr);

    QString section_title() const override { return tr("Additional Text"); }

protected:
    void load() override;

private slots:
    void start_text_changed();
    void end_text_changed();
    void no_additional_text_if_one_item_changed(Qt::CheckState state);

private:
    VariableSizeTextEdit* add_text(QGridLayout& grid, const QString& label,
                                   void (VKAdditionalTextSection::*changed)());

    VariableSizeTextEdit* start_ = nullptr;
    VariableSizeTextEdit* end_ = nullptr;
    QCheckBox* not_if_one_item_ = nullptr;
};
