#pragma once

#include <QItemSelectionModel>

#include <vector>

/// The selected rows of a list.
class CommandsSelectionModel final : public QItemSelectionModel
{
    Q_OBJECT

public:
    explicit CommandsSelectionModel(QAbstractItemModel* model, QObject* parent = nullptr);

    /// In ascending order, each once.
    std::vector<int> selected_rows() const;
};
