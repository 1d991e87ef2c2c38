#pragma once

#include "engine/items/mv_items_set.h"

#include <QStringList>

/// Makes `paths`, in drive or server form, the selection. A path that can't be added goes to the debug log and is
/// left out.
void enter_selection(MVItemsSet& selection, const QStringList& paths);
