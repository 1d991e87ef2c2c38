#include "ui/controls/property_controls_widget.h"

#include "ui/controls/entry_texts.h"
#include "ui/controls/property_table.h"
#include "ui/preview/exemplar_item_provider.h"
#include "ui/widgets/variable_size_stacked_widget.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>

#include <utility>
#include <vector>

namespace {

using Part = ItemPartProperty;
using Self = PropertyControlsWidget;

constexpr int page_indent = 20;

Part::ValueType default_type(std::u16string_view property)
{
    return Part::default_value_type(property, platform::property_type(property));
}

/// The type that the part's own format is for. A part that never had one doesn't know it.
Part::ValueType format_type(const Part& part)
{
    const bool is_known = part.custom_format() || part.value_type() != Part::ValueType::Default;
    return is_known ? part.value_type() : default_type(part.property_name());
}

QString format_text(Part::ValueType type)
{
    const QString text = Self::tr("Customize %1 Format");
    switch (type) {
    case Part::ValueType::Numeric: return text.arg(Self::tr("Number"));
    case Part::ValueType::DateTime: return text.arg(Self::tr("Date"));
    case Part::ValueType::String: return text.arg(Self::tr("String"));
    case Part::ValueType::Boolean: return text.arg(Self::tr("Boolean"));
    case Part::ValueType::Size: return text.arg(Self::tr("Size"));
    case Part::ValueType::Duration: return text.arg(Self::tr("Duration"));
    case Part::ValueType::Default: break;
    }
    return Self::tr("Customize Format");
}

/// Says why the table is empty.
QString hint_for(const ExemplarItem* exemplar, const ExemplarProperties& properties)
{
    if (!exemplar)
        return Self::tr("Select a file to see its properties.");
    const QString name = to_qstring(exemplar->item().name());
    if (!properties.complete)
        return Self::tr("Reading the properties of %1...").arg(name);
    return properties.list.empty() ? Self::tr("The properties of %1 can't be read.").arg(name) : QString();
}

}

PropertyControlsWidget::PropertyControlsWidget(TemplateEdits& edits, ExemplarItemProvider& exemplar, QWidget* parent)
    : ItemControlsBaseWidget(edits, parent), exemplar_(exemplar), table_(new PropertyTable),
      hide_empty_(new QCheckBox(tr("Hide Empty Values"))), custom_format_(new QCheckBox(tr("Customize Format"))),
      pages_(new VariableSizeStackedWidget)
{
    add_wide(table_);
    add_boxes();
    add_pages();
    follow<Part>(nullptr, [this](const Part& part) { show_property(part); });
    connect(table_, &PropertyTable::chosen, this, &Self::choose_property);
    connect(&exemplar, &ExemplarItemProvider::exemplar_properties_read, this, &Self::fill_table);
    connect(&exemplar, &ExemplarItemProvider::exemplar_item_changed, this, [this] {
        fill_table();
        emit exemplar_item_changed();
    });
}

void PropertyControlsWidget::add_boxes()
{
    add_row({}, hide_empty_);
    add_row({}, custom_format_);
    custom_format_->setEnabled(false);
    connect(custom_format_, &QCheckBox::toggled, this, &Self::set_custom_format);
    connect(hide_empty_, &QCheckBox::toggled, this, [this] {
        fill_table();
        emit hide_empty_values_changed();
    });
}

void PropertyControlsWidget::add_pages()
{
    auto* indented = new QHBoxLayout;
    indented->addSpacing(page_indent);
    indented->addWidget(pages_);
    pages_->hide();
    form()->addRow(indented);

    add_page();
    add_thousands_box(&Self::thousands_separator_changed);
    add_page();
    add_combo(tr("Date Format: "), entry_texts::date_formats(),
              PartSetting{tr("Change Date Format"), MergeId::None, &Part::date_format, &Part::set_date_format,
                          &Self::date_format_changed});
    QCheckBox* zeros = add_check(tr("Add Leading Zeros to Make 2 Digits"),
                                 PartSetting{tr("Change Leading Zeros"), MergeId::None, &Part::add_leading_zeros,
                                             &Part::set_add_leading_zeros, &Self::leading_zeros_changed});
    follow<Part>(nullptr, [zeros](const Part& part) {
        zeros->setVisible(ItemPartDate::leading_zeros_apply(part.date_format()));
    });
    add_page();
    add_combo(tr("Case: "), entry_texts::case_types(),
              PartSetting{tr("Change Case Type"), MergeId::None, &Part::case_type, &Part::set_case_type,
                          &Self::case_type_changed});
    add_page();
    add_combo(tr("Boolean Format: "), {tr("Yes / No"), tr("True / False"), tr("1 / 0")},
              PartSetting{tr("Change Boolean Format"), MergeId::None, &Part::boolean_format,
                          &Part::set_boolean_format, &Self::boolean_format_changed});
    add_page();
    add_combo(tr("Size Format: "), entry_texts::size_formats(),
              PartSetting{tr("Change Size Format"), MergeId::None, &Part::size_format, &Part::set_size_format,
                          &Self::size_format_changed});
    add_thousands_box(&Self::size_thousands_separator_changed);
    add_page();
    add_check(tr("Round to Nearest Second"),
              PartSetting{tr("Change Round to Seconds"), MergeId::None, &Part::round_to_seconds,
                          &Part::set_round_to_seconds, &Self::round_to_seconds_changed});
    add_thousands_box(&Self::duration_thousands_separator_changed);
}

void PropertyControlsWidget::add_page()
{
    auto* page = new QWidget;
    page->setLayout(begin_form());
    pages_->add_page(page);
}

void PropertyControlsWidget::add_thousands_box(void (PropertyControlsWidget::*changed)())
{
    add_check(tr("Add Thousands Separator"),
              PartSetting{tr("Change Thousands Separator"), MergeId::None, &Part::add_thousands_separator,
                          &Part::set_add_thousands_separator, changed});
}

void PropertyControlsWidget::showEvent(QShowEvent* event)
{
    ItemControlsBaseWidget::showEvent(event);
    fill_table();
}

void PropertyControlsWidget::fill_table()
{
    if (!isVisible())
        return;
    ExemplarItem* exemplar = exemplar_.exemplar().get();
    ExemplarProperties properties = exemplar ? exemplar->properties() : ExemplarProperties();
    table_->set_hint(hint_for(exemplar, properties));
    if (hide_empty_->isChecked())
        std::erase_if(properties.list, [](const ExemplarProperty& one) { return one.value_text.isEmpty(); });
    table_->fill(std::move(properties.list));
    refresh();
}

void PropertyControlsWidget::show_property(const ItemPartProperty& part)
{
    const bool is_chosen = table_->choose(to_qstring(part.property_name()));
    const bool can_customize = default_type(part.property_name()) != Part::ValueType::Default;
    const Part::ValueType type = format_type(part);
    const QSignalBlocker blocker(custom_format_);
    custom_format_->setEnabled(is_chosen && can_customize);
    custom_format_->setChecked(can_customize && part.custom_format());
    custom_format_->setText(format_text(type));
    pages_->setCurrentIndex(static_cast<int>(type) - 1);
    pages_->setVisible(custom_format_->isChecked() && type != Part::ValueType::Default);
}

void PropertyControlsWidget::choose_property(const QString& canonical_name)
{
    const std::u16string name = from_qstring(canonical_name);
    const auto set = [&](Part& part) {
        if (name.empty() || name == part.property_name())
            return;
        part.set_property_name(name);
        part.set_value_type(default_type(name));
    };
    if (change<Part>(nullptr, tr("Change Property"), MergeId::None, set))
        emit type_changed();
    else
        refresh();
}

void PropertyControlsWidget::set_custom_format(bool custom)
{
    const auto set = [custom](Part& part) {
        part.set_value_type(format_type(part));
        part.set_custom_format(custom);
    };
    if (change<Part>(nullptr, tr("Change Custom Format"), MergeId::None, set))
        emit custom_format_changed();
}
