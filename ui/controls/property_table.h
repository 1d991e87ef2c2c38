#pragma once

#include "ui/preview/exemplar_item.h"

#include <QTableWidget>

#include <vector>

class ElidedLabel;

/// The properties of a sample item, a row each, one of which can be chosen. As high as a few rows; more scroll. Main
/// thread only.
class PropertyTable final : public QTableWidget
{
    Q_OBJECT

public:
    explicit PropertyTable(QWidget* parent = nullptr);

    /// Has these rows, by their display names in the order of the code units. Rows that stay keep being chosen or
    /// current, and the view stays where it is; a row that goes leaves none chosen. Emits nothing.
    void fill(std::vector<ExemplarProperty> properties);

    /// What stands in place of the rows as long as there are none.
    void set_hint(const QString& hint);

    /// Chooses the property's row; without such a row none is chosen. Emits nothing. Whether there is one.
    bool choose(const QString& canonical_name);

    QSize sizeHint() const override;

signals:
    /// The user chose a row, or undid the choice: then the name is empty.
    void chosen(const QString& canonical_name);

protected:
    void changeEvent(QEvent* event) override;

private:
    enum Column { NameColumn, ValueColumn, ColumnCount };

    QString name_at(int row) const;
    void put_row(int row, const ExemplarProperty& property);
    void show_hint();
    void tell_choice(const QItemSelection& selected);

    ElidedLabel* hint_;
    bool quiet_ = false; ///< what changes now isn't the user's doing
};
