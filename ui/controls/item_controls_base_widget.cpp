#include "ui/controls/item_controls_base_widget.h"

#include "ui/widgets/field_manners.h"

#include <QFocusEvent>
#include <QFormLayout>
#include <QGridLayout>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <limits>
#include <utility>

ItemControlsBaseWidget::ItemControlsBaseWidget(TemplateEdits& edits, QWidget* parent)
    : QWidget(parent), edits_(edits), rows_(new QGridLayout(this))
{
    rows_->addLayout(begin_form(), 1, 0);
    rows_->setColumnStretch(0, 1);
}

QFormLayout* ItemControlsBaseWidget::begin_form()
{
    form_ = new QFormLayout;
    form_->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form_->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form_->setContentsMargins(0, 0, 0, 0);
    return form_;
}

void ItemControlsBaseWidget::set_position(int position)
{
    position_ = position;
    refresh();
}

void ItemControlsBaseWidget::add_delete_button()
{
    auto* button = new QPushButton(tr("Delete"));
    button->setAccessibleDescription(tr("Deletes the selected part"));
    // Return in a field must not press it.
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, &ItemControlsBaseWidget::delete_requested);
    rows_->addWidget(button, 1, 1, Qt::AlignBottom);
}

void ItemControlsBaseWidget::refresh()
{
    if (!changing_)
        show_part(nullptr);
}

std::shared_ptr<const ItemPartBase> ItemControlsBaseWidget::part() const
{
    return position_ < 0 ? nullptr : edits_.parts()->at(static_cast<std::size_t>(position_));
}

bool ItemControlsBaseWidget::push(const QWidget* cause, const std::shared_ptr<const ItemPartBase>& changed,
                                  const QString& text, MergeId merge_id)
{
    if (changed->equals(*part()))
        return false;
    {
        const QScopedValueRollback guard(changing_, true);
        edits_.change_part(static_cast<std::size_t>(position_), changed, text, merge_id);
    }
    show_part(cause);
    return true;
}

void ItemControlsBaseWidget::show_part(const QWidget* but)
{
    const auto shown = part();
    if (!shown)
        return;
    for (const Show& entry : shows_) {
        if (entry.control && entry.control == but)
            continue;
        const QSignalBlocker blocker(entry.control);
        entry.show(*shown);
    }
}

bool ItemControlsBaseWidget::event(QEvent* event)
{
    const bool known = QWidget::event(event);
    // By now the layout is up to date, which it isn't yet when a control grows or goes.
    if (event->type() == QEvent::LayoutRequest) {
        const int height = sizeHint().height();
        if (height != std::exchange(height_, height))
            emit resized();
    }
    return known;
}

bool ItemControlsBaseWidget::eventFilter(QObject* watched, QEvent* event)
{
    // A field that is left shows what the part has made of its text. Below its own menu it still is being edited.
    if (event->type() == QEvent::FocusOut && static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
        refresh();
    return QWidget::eventFilter(watched, event);
}

void ItemControlsBaseWidget::add_wide(QWidget* control)
{
    rows_->addWidget(control, 0, 0, 1, 2);
}

void ItemControlsBaseWidget::add_row(const QString& label, QWidget* control)
{
    if (label.isEmpty()) {
        form_->addRow(control);
    } else {
        form_->addRow(label, control);
        control->setAccessibleName(label);
    }
}

QComboBox* ItemControlsBaseWidget::new_combo(const QString& label, const QStringList& entries)
{
    auto* combo = new QComboBox;
    combo->addItems(entries);
    // The longest entry is cut short in a narrow window, rather than the button beside it.
    combo->setMinimumWidth(combo->minimumSizeHint().width() / 3);
    leave_wheel_to_page(*combo);
    add_row(label, combo);
    return combo;
}

QCheckBox* ItemControlsBaseWidget::new_check(const QString& text)
{
    auto* box = new QCheckBox(text);
    // Below the fields of the form, not below their labels.
    form_->addRow(QString(), box);
    return box;
}

void ItemControlsBaseWidget::add_line_row(const QString& label, QLineEdit* edit)
{
    edit->setMaxLength(std::numeric_limits<int>::max());
    edit->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    edit->installEventFilter(this);
    leave_undo_to_window(*edit);
    add_row(label, edit);
}

void ItemControlsBaseWidget::show_line(QLineEdit& edit, const QString& text)
{
    if (edit.text() == text)
        return;
    edit.setText(text);
    // The end of a long number would pass for all of it.
    if (!edit.hasFocus())
        edit.setCursorPosition(0);
}
