#include "ui/sections/vk_context_menu_options_section.h"

#include "engine/text/tr_noop.h"
#include "ui/sections/section_combo.h"
#include "ui/sections/undo_command_changes.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace {

struct RuleRow {
    ShowRule rule;
    const char* label;
};

/// From any item to many, in the order shown.
constexpr auto rule_rows = std::to_array<RuleRow>({
    {ShowRule::AtLeastOneItem, TR_NOOP("VKContextMenuOptionsSection", "At Least One Item Selected")},
    {ShowRule::AtLeastOneFile, TR_NOOP("VKContextMenuOptionsSection", "At Least One File Selected")},
    {ShowRule::AtLeastOneFolder, TR_NOOP("VKContextMenuOptionsSection", "At Least One Folder Selected")},
    {ShowRule::AtLeastOneLink, TR_NOOP("VKContextMenuOptionsSection", "At Least One Link Selected")},
    {ShowRule::ExactlyOneItem, TR_NOOP("VKContextMenuOptionsSection", "Exactly One Item Selected")},
    {ShowRule::ExactlyOneFile, TR_NOOP("VKContextMenuOptionsSection", "Exactly One File Selected")},
    {ShowRule::ExactlyOneFolder, TR_NOOP("VKContextMenuOptionsSection", "Exactly One Folder Selected")},
    {ShowRule::ExactlyOneLink, TR_NOOP("VKContextMenuOptionsSection", "Exactly One Link Selected")},
    {ShowRule::MoreThanOneItem, TR_NOOP("VKContextMenuOptionsSection", "More Than One Item Selected")},
});
static_assert(rule_rows.size() == show_rules.size());

ShowRule rule_of_row(int row)
{
    const auto index = static_cast<std::size_t>(row);
    return index < rule_rows.size() ? rule_rows[index].rule : ShowRule::AtLeastOneItem;
}

/// The first row for a rule outside the table.
int row_of_rule(ShowRule rule)
{
    const auto found = std::ranges::find(rule_rows, rule, &RuleRow::rule);
    return found == rule_rows.end() ? 0 : static_cast<int>(found - rule_rows.begin());
}

}

VKContextMenuOptionsSection::VKContextMenuOptionsSection(CommandLists& lists, QWidget* parent)
    : VKSectionWidget(lists, parent), by_default_(new QCheckBox(tr("Use Default Rules for Command Settings")))
{
    const QString title = tr("Select when this command is shown in the context menu:");
    QStringList labels;
    for (const RuleRow& row : rule_rows)
        labels += tr(row.label);
    rules_ = make_section_combo(labels, title);

    constexpr int indent = 20;
    QVBoxLayout* layout = make_section_layout();
    auto* label = new QLabel(title);
    label->setWordWrap(true);
    layout->addWidget(label);
    layout->addWidget(by_default_);
    auto* row = new QHBoxLayout;
    row->addSpacing(indent);
    row->addWidget(rules_);
    row->addStretch();
    layout->addLayout(row);
    take_content_height();
    connect(by_default_, &QCheckBox::stateChanged, this,
            [this](int state) { default_rules_changed(static_cast<Qt::CheckState>(state)); });
    connect(rules_, &QComboBox::currentIndexChanged, this, &VKContextMenuOptionsSection::show_rule_changed);
}

void VKContextMenuOptionsSection::default_rules_changed(Qt::CheckState /*state*/)
{
    push_rule(tr("Change Show Using Default Rules"));
}

void VKContextMenuOptionsSection::show_rule_changed(int /*index*/)
{
    push_rule(tr("Change Show Rule"));
}

void VKContextMenuOptionsSection::push_rule(const QString& text)
{
    if (!is_at_work())
        return;
    const bool is_default = by_default_->isChecked();
    push<UndoContextMenuOptions>(
        {is_default, is_default ? command()->default_show_rule() : rule_of_row(rules_->currentIndex())}, text);
}

void VKContextMenuOptionsSection::load()
{
    const bool is_default = command()->show_using_default_rules();
    by_default_->setChecked(is_default);
    rules_->setCurrentIndex(row_of_rule(is_default ? command()->default_show_rule() : command()->show_rule()));
    rules_->setEnabled(!is_default);
}
