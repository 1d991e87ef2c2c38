#include "engine/commands/show_rule.h"

#include "engine/items/mv_items_set.h"

bool holds(ShowRule rule, const MVItemsSet& selection)
{
    const bool one_item = selection.items().size() == 1;
    switch (rule) {
    case ShowRule::AtLeastOneFile: return selection.has_files();
    case ShowRule::AtLeastOneFolder: return selection.has_folders();
    case ShowRule::AtLeastOneLink: return selection.has_links();
    case ShowRule::AtLeastOneItem: return selection.has_files() || selection.has_folders();
    case ShowRule::ExactlyOneFile: return one_item && selection.has_files();
    case ShowRule::ExactlyOneFolder: return one_item && selection.has_folders();
    case ShowRule::ExactlyOneLink: return one_item && selection.has_links();
    case ShowRule::ExactlyOneItem: return one_item;
    case ShowRule::MoreThanOneItem: return selection.items().size() > 1;
    }
    return false;
}
