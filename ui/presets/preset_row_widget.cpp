#include "ui/presets/preset_row_widget.h"

#include "ui/filters/extensions_text.h"
#include "ui/filters/pattern_fault.h"
#include "ui/text.h"
#include "ui/widgets/field_manners.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <limits>

PresetRowWidget::PresetRowWidget(const ExtensionsPreset& preset, QWidget* parent)
    : QWidget(parent), uuid_(preset.uuid), name_(new QLineEdit), extensions_(new QLineEdit),
      delete_(new QPushButton(QString(QChar(0x00D7)))), error_(new QLabel)
{
    for (QLineEdit* line : {name_, extensions_})
        line->setMaxLength(std::numeric_limits<int>::max());
    name_->setPlaceholderText(tr("Preset name"));
    name_->setAccessibleName(tr("Preset name"));
    name_->setText(to_qstring(preset.name));
    name_->setCursorPosition(0);
    name_->installEventFilter(this);
    extensions_->setPlaceholderText(tr("e.g. jpg; png; gif"));
    extensions_->setText(shown_extensions(preset.extensions()));
    extensions_->setCursorPosition(0);
    delete_->setToolTip(tr("Delete preset"));
    delete_->setFixedWidth(delete_->sizeHint().height());
    error_->setTextFormat(Qt::PlainText);
    align_by_layout(*error_);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 4, 0, 4);
    layout->addWidget(name_, 0, 0);
    layout->addWidget(extensions_, 0, 1);
    layout->addWidget(delete_, 0, 2);
    layout->addWidget(error_, 1, 1, 1, 2);
    layout->setColumnStretch(0, 2);
    layout->setColumnStretch(1, 3);

    set_name_editable(false);
    name_controls();
    check();
    connect(name_, &QLineEdit::textChanged, this, &PresetRowWidget::name_controls);
    connect(name_, &QLineEdit::editingFinished, this, &PresetRowWidget::on_editing_finished);
    connect(name_, &QLineEdit::returnPressed, extensions_, qOverload<>(&QWidget::setFocus));
    connect(extensions_, &QLineEdit::textChanged, this, [this] {
        check();
        emit content_changed();
    });
    connect(delete_, &QPushButton::clicked, this, [this] { emit delete_requested(this); });
}

ExtensionsPreset PresetRowWidget::preset() const
{
    ExtensionsPreset preset;
    preset.uuid = uuid_;
    preset.name = from_qstring(name_->text().trimmed());
    preset.set_extensions(from_qstring(extensions_->text().remove(' ')));
    return preset;
}

bool PresetRowWidget::has_extensions() const
{
    return !extensions_->text().trimmed().isEmpty();
}

bool PresetRowWidget::has_fault() const
{
    return !error_->text().isEmpty();
}

void PresetRowWidget::edit_name()
{
    name_->setFocus();
    name_->selectAll();
}

bool PresetRowWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        set_name_editable(true);
    return QWidget::eventFilter(watched, event);
}

void PresetRowWidget::on_editing_finished()
{
    set_name_editable(false);
    emit content_changed();
}

void PresetRowWidget::set_name_editable(bool editable)
{
    name_->setReadOnly(!editable);
    name_->setFrame(editable);
    name_->setCursor(editable ? Qt::IBeamCursor : Qt::PointingHandCursor);
}

/// Screen readers tell by the name which preset a control is of.
void PresetRowWidget::name_controls()
{
    const QString name = name_->text().trimmed();
    extensions_->setAccessibleName(tr("Extensions of %1").arg(name));
    delete_->setAccessibleName(tr("Delete preset %1").arg(name));
}

void PresetRowWidget::check()
{
    const QString message = fault_of(ItemFilter::Mode::Extensions, extensions_->text()).message;
    if (!message.isEmpty() && error_->styleSheet().isEmpty())
        // Only where it is needed, for a style sheet takes time.
        error_->setStyleSheet(QStringLiteral("color: red; font-size: 10pt;"));
    error_->setText(message);
    error_->setVisible(!message.isEmpty());
    extensions_->setAccessibleDescription(message);
}
