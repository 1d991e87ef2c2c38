#pragma once

#include <QByteArray>

#include <vector>

/// The rows in data of the toolkit's item list form; those before the fault when it is malformed.
std::vector<int> rows_of_item_list(QByteArray data);
