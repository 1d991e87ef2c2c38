#include "ui/filters/vk_filter_widget_base.h"

#include "ui/colours.h"
#include "ui/filters/extensions_text.h"
#include "ui/filters/filter_header_text.h"
#include "ui/filters/hover_toggle_row.h"
#include "ui/text.h"
#include "ui/widgets/field_manners.h"
#include "ui/widgets/scheme_change.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPaintEvent>
#include <QPainter>
#include <QRadioButton>
#include <QScopedValueRollback>

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <utility>

namespace {

/// In the header; of a longer one the window would show no more.
constexpr qsizetype longest_value = 300;

QString shortened(const QString& value)
{
    if (value.size() <= longest_value)
        return value;
    const bool splits_character = value[longest_value].isLowSurrogate();
    return value.left(longest_value - (splits_character ? 1 : 0)) + QChar(0x2026);
}

QString type_text(ItemFilter::Mode mode)
{
    switch (mode) {
    case ItemFilter::Mode::Extensions: return VKFilterWidgetBase::tr("Extensions");
    case ItemFilter::Mode::Wildcard: return VKFilterWidgetBase::tr("Wildcard");
    case ItemFilter::Mode::Regex: return VKFilterWidgetBase::tr("Regex");
    }
    return {};
}

QString shown_pattern(const ItemFilter& filter)
{
    const std::u16string& pattern = filter.filter_pattern();
    return filter.filter_mode() == ItemFilter::Mode::Extensions ? shown_extensions(pattern) : to_qstring(pattern);
}

}

VKFilterWidgetBase::VKFilterWidgetBase(CommandLists& lists, std::vector<Mode> modes, QWidget* parent)
    : QWidget(parent), lists_(lists), modes_(std::move(modes)), header_(new HoverToggleRow), body_(new QWidget),
      form_(new QFormLayout(body_)), type_(new QComboBox), pattern_(new QLineEdit), error_(new QLabel),
      include_(new QRadioButton), exclude_(new QRadioButton)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->setSpacing(0);
    layout->addWidget(header_);
    layout->addWidget(body_);
    form_->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form_->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    body_->hide();
    add_type_row();
    header_->set_text(filter_header_text({}));
    connect(header_, &HoverToggleRow::clicked, this, &VKFilterWidgetBase::toggle);
}

void VKFilterWidgetBase::add_type_row()
{
    type_->addItem(tr("None"));
    for (const Mode mode : modes_)
        type_->addItem(type_text(mode));
    type_->setAccessibleName(tr("Filter type"));
    leave_wheel_to_page(*type_);
    auto* row = new QHBoxLayout;
    row->addWidget(type_);
    row->addStretch();
    form_->addRow(row);
    connect(type_, &QComboBox::currentIndexChanged, this, &VKFilterWidgetBase::change_type);
}

void VKFilterWidgetBase::add_pattern_rows(const ActionTexts& texts)
{
    pattern_->setAccessibleName(tr("Pattern:"));
    join_line(*pattern_);
    form_->addRow(tr("Pattern:"), pattern_);
    error_->setTextFormat(Qt::PlainText);
    align_by_layout(*error_);
    error_->setStyleSheet(QStringLiteral("color: red; font-size: 10pt;"));
    // A long one is cut off rather than makes the window wider.
    error_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    form_->addRow(QString(), error_);
    include_->setText(texts.include);
    exclude_->setText(texts.exclude);
    include_->setChecked(true);
    form_->addRow(QString(), include_);
    form_->addRow(QString(), exclude_);
    connect(exclude_, &QRadioButton::toggled, this, &VKFilterWidgetBase::change_action);
    show_rows({});
    show_fault();
}

void VKFilterWidgetBase::join_line(QLineEdit& line)
{
    line.setMaxLength(std::numeric_limits<int>::max());
    leave_undo_to_window(line);
    line.installEventFilter(this);
    connect(&line, &QLineEdit::returnPressed, &line, &QWidget::clearFocus);
    connect(&line, &QLineEdit::editingFinished, this, &VKFilterWidgetBase::finish_edit);
    connect(&line, &QLineEdit::textChanged, this, [this, &line] {
        if (updating_)
            return;
        check();
        // A screen reader may type without giving it the focus.
        if (!line.hasFocus())
            finish_edit();
    });
}

void VKFilterWidgetBase::show_command(const std::shared_ptr<VellumarkCommand>& command)
{
    const bool is_other = command != command_;
    if (is_other)
        leave_command();
    command_ = command;
    const Fields fields = read(*command);
    if (is_other || fields != shown_)
        load(fields, is_other);
}

void VKFilterWidgetBase::reload()
{
    load(read(*command_), false);
}

void VKFilterWidgetBase::load(const Fields& fields, bool is_other)
{
    const QScopedValueRollback guard(updating_, true);
    const std::optional<Mode> mode = mode_of(fields);
    const bool keeps_typing = !is_other && mode == mode_ && is_typing();
    if (is_other)
        texts_ = {};
    shown_ = fields;
    mode_ = mode;
    // What a filter that is off still has is what its type begins with.
    if (mode || !fields.filter.filter_pattern().empty())
        set_text_of(fields.filter.filter_mode(), shown_pattern(fields.filter));
    take(fields, is_other);
    // Extensions have no action, so that their filter says nothing of the other types' one.
    if (is_other || (mode && *mode != Mode::Extensions))
        (fields.filter.filter_action() == ItemFilter::Action::Exclude ? exclude_ : include_)->setChecked(true);
    type_->setCurrentIndex(mode ? row_of(*mode) : 0);
    show_rows(mode);
    show_line(keeps_typing);
    check();
    update_header();
}

void VKFilterWidgetBase::show_line(bool keeps_typing)
{
    if (!mode_)
        return;
    QLineEdit& line = line_of(*mode_);
    if (keeps_typing || line.text() == text_of(*mode_))
        return;
    line.setText(text_of(*mode_));
    if (!line.hasFocus())
        line.setCursorPosition(0);
}

void VKFilterWidgetBase::show_rows(std::optional<Mode> mode)
{
    const bool has_pattern = mode && *mode != Mode::Extensions;
    for (QWidget* field : std::initializer_list<QWidget*>{pattern_, include_, exclude_})
        form_->setRowVisible(field, has_pattern);
    pattern_->setPlaceholderText(mode == Mode::Regex ? tr("e.g. \\.(jpe?g|png|gif)$") : tr("e.g. *.txt"));
}

void VKFilterWidgetBase::check()
{
    fault_ = mode_ ? fault_of(*mode_, line_of(*mode_).text()) : PatternFault();
    error_->setText(fault_.message);
    error_->setToolTip(fault_.place);
    if (mode_)
        line_of(*mode_).setAccessibleDescription(fault_.description());
    show_fault();
}

void VKFilterWidgetBase::show_fault()
{
    const bool shows = mode_ && !fault_.message.isEmpty() && !line_of(*mode_).hasFocus();
    form_->setRowVisible(error_, shows);
}

void VKFilterWidgetBase::update_header()
{
    FilterSummary summary;
    if (mode_ && body_->isHidden()) {
        summary.label = type_->currentText();
        summary.value = shortened(value_of(shown_));
        summary.is_invalid = !shown_.filter.is_pattern_valid();
    }
    header_->set_text(filter_header_text(summary));
}

void VKFilterWidgetBase::toggle()
{
    body_->setVisible(body_->isHidden());
    header_->set_expanded(!body_->isHidden());
    update_header();
}

QString VKFilterWidgetBase::value_of(const Fields& fields) const
{
    return to_qstring(fields.filter.filter_pattern());
}

/// The type whose field holds a pattern that isn't taken over yet.
std::optional<ItemFilter::Mode> VKFilterWidgetBase::pending() const
{
    return mode_ && line_of(*mode_).text() != text_of(*mode_) ? mode_ : std::nullopt;
}

bool VKFilterWidgetBase::is_typing() const
{
    const std::optional<Mode> mode = pending();
    return mode && line_of(*mode).hasFocus();
}

void VKFilterWidgetBase::finish_edit()
{
    // The field may be hidden, and so be left, by what follows from a step.
    if (lists_.steps().is_running()) {
        leave_command();
        return;
    }
    const std::optional<Mode> mode = pending();
    if (updating_ || !command_ || !mode)
        return;
    set_text_of(*mode, line_of(*mode).text());
    push(make_fields(*mode), tr("Change Filter Pattern"));
}

void VKFilterWidgetBase::leave_command()
{
    const std::optional<Mode> mode = pending();
    if (!command_ || !mode)
        return;
    set_text_of(*mode, line_of(*mode).text());
    push_later(make_fields(*mode), tr("Change Filter Pattern"));
}

/// The row was changed behind a field that is being edited. A step can't be pushed while another one is running.
void VKFilterWidgetBase::push_later(const Fields& fields, const QString& text)
{
    QMetaObject::invokeMethod(
        this,
        [this, command = command_, fields, text] {
            const bool is_there = lists_.menu().row_of(*command) >= 0 || lists_.library().row_of(*command) >= 0;
            if (is_there && read(*command) != fields)
                lists_.steps().stack().push(make_step(lists_, command, fields, text));
        },
        Qt::QueuedConnection);
}

void VKFilterWidgetBase::push(const Fields& fields, const QString& text)
{
    if (fields != read(*command_))
        lists_.steps().stack().push(make_step(lists_, command_, fields, text));
    reload();
}

VKFilterWidgetBase::Fields VKFilterWidgetBase::make_fields(Mode mode) const
{
    Fields fields{true, {}};
    const QString& text = text_of(mode);
    fields.filter.set_filter_mode(mode);
    fields.filter.set_filter_pattern(mode == Mode::Extensions ? bare_extensions(text) : from_qstring(text));
    if (mode != Mode::Extensions && exclude_->isChecked())
        fields.filter.set_filter_action(ItemFilter::Action::Exclude);
    return fields;
}

int VKFilterWidgetBase::row_of(Mode mode) const
{
    const auto found = std::ranges::find(modes_, mode);
    return found == modes_.end() ? -1 : static_cast<int>(found - modes_.begin()) + 1;
}

/// A type that can't be chosen here shows as no type at all, unless the filter does nothing.
std::optional<ItemFilter::Mode> VKFilterWidgetBase::mode_of(const Fields& fields) const
{
    const Mode mode = fields.filter.filter_mode();
    const bool shows = fields.is_enabled && (row_of(mode) >= 0 || !fields.filter.filter_pattern().empty());
    return shows ? std::optional(mode) : std::nullopt;
}

void VKFilterWidgetBase::change_type(int row)
{
    if (updating_ || !command_ || row < 0)
        return;
    finish_edit();
    push(row == 0 ? Fields() : make_fields(modes_[static_cast<std::size_t>(row - 1)]), tr("Change Filter Type"));
}

void VKFilterWidgetBase::change_action(bool excludes)
{
    if (updating_ || !command_ || !mode_)
        return;
    finish_edit();
    Fields fields = make_fields(*mode_);
    fields.filter.set_filter_action(excludes ? ItemFilter::Action::Exclude : ItemFilter::Action::Include);
    push(fields, tr("Change Filter Action"));
}

bool VKFilterWidgetBase::event(QEvent* event)
{
    const bool known = QWidget::event(event);
    // By now the layout is up to date, which it isn't yet when a row comes or goes.
    if (event->type() == QEvent::LayoutRequest) {
        const int height = sizeHint().height();
        if (height != std::exchange(height_, height))
            emit height_changed();
    }
    return known;
}

bool VKFilterWidgetBase::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        show_fault();
    // What is being typed is the first that undo takes back.
    else if (is_undo_or_redo(*event))
        finish_edit();
    return QWidget::eventFilter(watched, event);
}

void VKFilterWidgetBase::paintEvent(QPaintEvent* event)
{
    QPainter(this).fillRect(event->rect(), colours::filter_panel_background());
}

void VKFilterWidgetBase::changeEvent(QEvent* event)
{
    if (is_scheme_change(*event))
        update();
    QWidget::changeEvent(event);
}
