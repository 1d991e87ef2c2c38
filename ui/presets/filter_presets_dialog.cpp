#include "ui/presets/filter_presets_dialog.h"

#include "ui/presets/preset_row_widget.h"
#include "ui/widgets/horizontal_line.h"

#include <QDialogButtonBox>
#include <QFrame>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr QSize least_size(500, 300);

}

FilterPresetsDialog::FilterPresetsDialog(const Presets::List& presets, QWidget* parent)
    : QDialog(parent), area_(new QScrollArea), rows_(new QVBoxLayout), add_(new QPushButton(tr("Add"))),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setWindowTitle(tr("Manage Filter Presets"));
    setMinimumSize(least_size);
    auto* content = new QWidget;
    // The application's style sheet takes no notice of a palette. One for all rows, for each takes time.
    content->setStyleSheet(QStringLiteral("QLineEdit:read-only { background: transparent; }"));
    auto* content_layout = new QVBoxLayout(content);
    content_layout->addLayout(rows_);
    content_layout->addStretch();
    for (const ExtensionsPreset& preset : presets)
        add_row(preset);
    area_->setWidget(content);
    area_->setWidgetResizable(true);
    area_->setAccessibleName(tr("Presets"));
    // Tab goes straight to the rows, and scrolls.
    area_->setFocusPolicy(Qt::NoFocus);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(area_, 1);
    layout->addWidget(add_, 0, Qt::AlignLeft);
    layout->addWidget(buttons_);
    check_rows();
    connect(add_, &QPushButton::clicked, this, &FilterPresetsDialog::add_preset);
    connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

FilterPresetsDialog::~FilterPresetsDialog()
{
    // Here, for a field that loses the focus has the rows checked.
    hide();
}

Presets::List FilterPresetsDialog::presets() const
{
    Presets::List presets;
    for (const PresetRowWidget* row : rows())
        presets.push_back(row->preset());
    return presets;
}

void FilterPresetsDialog::add_preset()
{
    ExtensionsPreset preset;
    preset.make_new_uuid();
    PresetRowWidget* row = add_row(preset);
    // It was made last, and Tab follows the rows.
    setTabOrder(row->last_field(), add_);
    setTabOrder(add_, buttons_->button(QDialogButtonBox::Ok));
    setTabOrder(buttons_->button(QDialogButtonBox::Ok), buttons_->button(QDialogButtonBox::Cancel));
    row->edit_name();
    check_rows();
    // Once the row has its place.
    QMetaObject::invokeMethod(
        this, [this] { area_->verticalScrollBar()->setValue(area_->verticalScrollBar()->maximum()); },
        Qt::QueuedConnection);
}

PresetRowWidget* FilterPresetsDialog::add_row(const ExtensionsPreset& preset)
{
    if (rows_->count() != 0)
        rows_->addWidget(make_horizontal_line());
    auto* row = new PresetRowWidget(preset);
    rows_->addWidget(row);
    row->show();
    connect(row, &PresetRowWidget::delete_requested, this, &FilterPresetsDialog::delete_row);
    connect(row, &PresetRowWidget::content_changed, this, &FilterPresetsDialog::check_rows);
    return row;
}

void FilterPresetsDialog::delete_row(PresetRowWidget* row)
{
    const int place = rows_->indexOf(row);
    // The line before it, and for the first row the one behind it.
    if (const QLayoutItem* line = rows_->itemAt(place == 0 ? 1 : place - 1))
        delete line->widget();
    rows_->removeWidget(row);
    row->hide();
    row->deleteLater();
    check_rows();
    const auto left = rows();
    const auto next = std::min(static_cast<std::size_t>(place + 1) / 2, left.size() - 1);
    (left.empty() ? add_ : left[next]->last_field())->setFocus();
}

std::vector<PresetRowWidget*> FilterPresetsDialog::rows() const
{
    std::vector<PresetRowWidget*> rows;
    for (int place = 0; const QLayoutItem* item = rows_->itemAt(place); place += 2)
        rows.push_back(qobject_cast<PresetRowWidget*>(item->widget()));
    return rows;
}

void FilterPresetsDialog::check_rows()
{
    const auto all = rows();
    add_->setEnabled(std::ranges::all_of(all, &PresetRowWidget::has_extensions));
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(std::ranges::none_of(all, &PresetRowWidget::has_fault));
}

void FilterPresetsDialog::keyPressEvent(QKeyEvent* event)
{
    // In a field they would press "OK".
    const bool is_return = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!is_return || !qobject_cast<const QLineEdit*>(focusWidget()))
        QDialog::keyPressEvent(event);
}
