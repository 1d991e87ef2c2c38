#pragma once

#include <memory>

class ItemPartBaseDraw;
class ItemPartsWidget;

/// Tells screen readers of chips, which are no widgets: each has a name, a role, states, and the actions "press", and
/// for those of the row "delete". Has to run before the first such widget is asked; later calls do nothing more.
void install_accessible_chips();

/// The row has other chips, or the same in another order.
void announce_row(ItemPartsWidget& widget);

/// A chip tells something else of its part.
void announce_name(ItemPartBaseDraw& chip);

/// Another chip is selected; null for none.
void announce_selection(const std::shared_ptr<ItemPartBaseDraw>& before,
                        const std::shared_ptr<ItemPartBaseDraw>& now);

/// Keys go to another chip.
void announce_focus(ItemPartsWidget& widget);
