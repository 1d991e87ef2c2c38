#pragma once

#include "ui/sections/vk_section_widget.h"

class QCheckBox;
class QComboBox;

/// For which selections the menu shows the command.
class VKContextMenuOptionsSection final : public VKSectionWidget
{
    Q_OBJECT

public:
    explicit VKContextMenuOptionsSection(CommandLists& lists, QWidget* parent = nullptr);

    QString section_title() const override { return tr("Context Menu Options"); }

protected:
    void load() override;

private slots:
    void default_rules_changed(Qt::CheckState state);
    void show_rule_changed(int index);

private:
    void push_rule(const QString& text);

    QCheckBox* by_default_ = nullptr;
    QComboBox* rules_ = nullptr;
};
