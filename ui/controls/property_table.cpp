#include "ui/controls/property_table.h"

#include "ui/preview/elided_label.h"

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSet>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>
#include <tuple>

namespace {

constexpr int rows_in_view = 8;
constexpr int room_around_text = 6;

bool stands_before(const ExemplarProperty& one, const ExemplarProperty& other)
{
    return std::tie(one.display_name, one.canonical_name) < std::tie(other.display_name, other.canonical_name);
}

/// Writes each text in its own direction, at the side where the layout's lines begin: "3.14 KB" stays that among
/// right-to-left texts.
class OwnDirectionDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const auto own = option->text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
        if (option->direction == own)
            return;
        option->direction = own;
        option->displayAlignment = Qt::AlignVCenter | Qt::AlignRight; // mirrored for a text from right to left
    }
};

}

PropertyTable::PropertyTable(QWidget* parent) : QTableWidget(0, ColumnCount, parent), hint_(new ElidedLabel)
{
    setHorizontalHeaderLabels({tr("Property"), tr("Example Item Value")});
    setAccessibleName(tr("Property"));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setItemDelegate(new OwnDirectionDelegate(this));
    setVerticalScrollMode(ScrollPerItem);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setStyleSheet(QStringLiteral("QTableWidget::item:selected{ background-color: #ace8f9; color: black; } "
                                 "QTableWidget{ outline: 0; }"));
    horizontalHeader()->setStyleSheet(QStringLiteral("QHeaderView::section{ font-weight: bold; }"));
    horizontalHeader()->setSectionResizeMode(NameColumn, QHeaderView::ResizeToContents);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + room_around_text);

    hint_->setAlignment(Qt::AlignCenter);
    (new QVBoxLayout(viewport()))->addWidget(hint_);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &PropertyTable::tell_choice);
}

void PropertyTable::fill(std::vector<ExemplarProperty> properties)
{
    std::ranges::sort(properties, stands_before);
    QSet<QString> names;
    for (const ExemplarProperty& property : properties)
        names.insert(property.canonical_name);

    const QScopedValueRollback guard(quiet_, true);
    // Otherwise a neighbour is chosen in place of a row that goes.
    setSelectionMode(NoSelection);
    const bool scrolled = verticalScrollBar()->value() > 0;
    const QPersistentModelIndex top = indexAt({0, 0});
    for (int row = rowCount() - 1; row >= 0; --row)
        if (!names.contains(name_at(row)))
            removeRow(row);
    for (std::size_t i = 0; i < properties.size(); ++i)
        put_row(static_cast<int>(i), properties[i]);
    setSelectionMode(SingleSelection);
    // The scroll bar doesn't know the new rows before that.
    executeDelayedItemsLayout();
    if (scrolled && top.isValid())
        scrollTo(top, PositionAtTop);
    show_hint();
}

/// The rows before it are in place already, and those behind it are in their order.
void PropertyTable::put_row(int row, const ExemplarProperty& property)
{
    if (row >= rowCount() || name_at(row) != property.canonical_name) {
        insertRow(row);
        auto* name = new QTableWidgetItem(property.display_name);
        name->setData(Qt::UserRole, property.canonical_name);
        setItem(row, NameColumn, name);
        setItem(row, ValueColumn, new QTableWidgetItem);
    }
    item(row, ValueColumn)->setText(property.value_text);
}

QString PropertyTable::name_at(int row) const
{
    return item(row, NameColumn)->data(Qt::UserRole).toString();
}

void PropertyTable::set_hint(const QString& hint)
{
    hint_->set_text(hint);
    show_hint();
}

void PropertyTable::show_hint()
{
    hint_->setVisible(rowCount() == 0);
}

bool PropertyTable::choose(const QString& canonical_name)
{
    const QScopedValueRollback guard(quiet_, true);
    for (int row = 0; row < rowCount(); ++row)
        if (name_at(row) == canonical_name) {
            if (selectionModel()->selectedRows().size() != 1 || !selectionModel()->isRowSelected(row))
                setCurrentCell(row, NameColumn);
            return true;
        }
    clearSelection();
    return false;
}

void PropertyTable::tell_choice(const QItemSelection& selected)
{
    if (quiet_)
        return;
    const QString name = selected.isEmpty() ? QString() : name_at(selected.front().top());
    // A screen reader adds its row to the one that is chosen again when it clears the choice.
    choose(name);
    emit chosen(name);
}

QSize PropertyTable::sizeHint() const
{
    const int rows = rows_in_view * verticalHeader()->defaultSectionSize();
    return {QTableWidget::sizeHint().width(), horizontalHeader()->sizeHint().height() + rows + 2 * frameWidth()};
}

void PropertyTable::changeEvent(QEvent* event)
{
    QTableWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange)
        return;
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + room_around_text);
    updateGeometry();
}
