#include "ui/lists/commands_selection_model.h"

#include <algorithm>

CommandsSelectionModel::CommandsSelectionModel(QAbstractItemModel* model, QObject* parent)
    : QItemSelectionModel(model, parent)
{}

std::vector<int> CommandsSelectionModel::selected_rows() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    std::ranges::sort(rows);
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}
