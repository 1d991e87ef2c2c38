#include "ui/filters/vk_file_filter_widget.h"

#include "ui/filters/extensions_text.h"
#include "ui/presets/presets.h"
#include "ui/text.h"
#include "ui/widgets/field_manners.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

VKFileFilterWidget::VKFileFilterWidget(CommandLists& lists, Presets& presets, QWidget* parent)
    : VKFilterWidgetBase(lists, {Mode::Extensions, Mode::Wildcard, Mode::Regex}, parent), presets_(presets),
      preset_row_(new QWidget), preset_(new QComboBox), manage_(new QPushButton(tr("Manage Presets"))),
      extensions_(new QLineEdit)
{
    add_preset_row();
    extensions_->setAccessibleName(tr("Extensions:"));
    extensions_->setPlaceholderText(tr("e.g. jpg; png; gif"));
    join_line(*extensions_);
    form()->addRow(tr("Extensions:"), extensions_);
    add_pattern_rows({.include = tr("Include only matching files"), .exclude = tr("Exclude matching files")});
    fill_presets();
    connect(&presets, &Presets::changed, this, &VKFileFilterWidget::presets_changed);
}

void VKFileFilterWidget::add_preset_row()
{
    constexpr int shortest_name = 2;
    auto* label = new QLabel(tr("Preset:"));
    label->setBuddy(preset_);
    preset_->setAccessibleName(tr("Preset:"));
    // Its width doesn't hang on the names, so that nobody has to measure them.
    preset_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    preset_->setMinimumContentsLength(shortest_name);
    preset_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    leave_wheel_to_page(*preset_);
    manage_->setAutoDefault(false);
    // It is whole in the narrowest window as well.
    manage_->setStyleSheet(QStringLiteral("padding: 6px 8px;"));
    auto* row = new QHBoxLayout(preset_row_);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(preset_, 1);
    row->addWidget(manage_);
    form()->addRow(label, preset_row_);
    connect(preset_, &QComboBox::currentIndexChanged, this, &VKFileFilterWidget::choose_preset);
    connect(manage_, &QPushButton::clicked, this, &VKFileFilterWidget::manage_presets_requested);
}

void VKFileFilterWidget::fill_presets()
{
    std::vector<std::u16string> names;
    names.reserve(presets_.working().size());
    for (const ExtensionsPreset& one : presets_.working())
        names.push_back(one.name);
    if (names == names_ && preset_->count() != 0)
        return;
    const QSignalBlocker blocker(preset_);
    preset_->clear();
    QStringList entries;
    for (const std::u16string& name : names)
        entries += to_qstring(name);
    preset_->addItems(entries);
    preset_->addItem(tr("Custom"));
    names_ = std::move(names);
}

void VKFileFilterWidget::presets_changed()
{
    fill_presets();
    if (has_command())
        reload();
}

const ExtensionsPreset* VKFileFilterWidget::preset() const
{
    const Presets::List& all = presets_.working();
    const auto found = std::ranges::find(all, preset_uuid_, &ExtensionsPreset::uuid);
    return preset_uuid_.empty() || found == all.end() ? nullptr : &*found;
}

void VKFileFilterWidget::choose_preset(int index)
{
    if (!has_command() || index < 0)
        return;
    finish_edit();
    const auto place = static_cast<std::size_t>(index);
    const Presets::List& all = presets_.working();
    preset_uuid_ = place < all.size() ? all[place].uuid : std::u16string();
    push(make_fields(Mode::Extensions), tr("Change Filter Preset"));
}

VKFileFilterWidget::Fields VKFileFilterWidget::make_fields(Mode mode) const
{
    Fields fields = VKFilterWidgetBase::make_fields(mode);
    if (const ExtensionsPreset* followed = mode == Mode::Extensions ? preset() : nullptr) {
        fields.filter.set_filter_pattern(followed->extensions());
        fields.preset_uuid = followed->uuid;
    }
    return fields;
}

void VKFileFilterWidget::take(const Fields& fields, bool is_other)
{
    const bool has_extensions =
        fields.filter.filter_mode() == Mode::Extensions && (fields.is_enabled || !fields.preset_uuid.empty());
    if (is_other || has_extensions)
        preset_uuid_ = has_extensions ? fields.preset_uuid : std::u16string();
    const ExtensionsPreset* followed = preset();
    if (followed)
        set_text_of(Mode::Extensions, shown_extensions(followed->extensions()));
    const QSignalBlocker blocker(preset_);
    preset_->setCurrentIndex(followed ? static_cast<int>(followed - presets_.working().data())
                                      : preset_->count() - 1);
    extensions_->setEnabled(!followed);
}

QLineEdit& VKFileFilterWidget::line_of(Mode mode) const
{
    return mode == Mode::Extensions ? *extensions_ : VKFilterWidgetBase::line_of(mode);
}

QString VKFileFilterWidget::value_of(const Fields& fields) const
{
    const bool follows = fields.filter.filter_mode() == Mode::Extensions && preset();
    return follows ? to_qstring(preset()->name) : VKFilterWidgetBase::value_of(fields);
}

void VKFileFilterWidget::show_rows(std::optional<Mode> mode)
{
    VKFilterWidgetBase::show_rows(mode);
    const bool has_extensions = mode == Mode::Extensions;
    form()->setRowVisible(preset_row_, has_extensions);
    form()->setRowVisible(extensions_, has_extensions);
}

VKFileFilterWidget::Fields VKFileFilterWidget::read(const VellumarkCommand& command) const
{
    return command_fields::file_filter(command);
}

QUndoCommand* VKFileFilterWidget::make_step(CommandLists& lists, const std::shared_ptr<VellumarkCommand>& command,
                                            const Fields& fields, const QString& text) const
{
    return new UndoFileFilterChange(lists, command, fields, text);
}
