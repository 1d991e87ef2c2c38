#include "common/selection.h"

#include "common/selection_paths.h"
#include "engine/items/mv_item_exception.h"

namespace {

/// Empty, or why the path could not be added.
std::string select(MVItemsSet& selection, const std::u16string& path)
{
    try {
        selection.add_path(path);
        return {};
    } catch (const MVItemException& error) {
        return error.what();
    } catch (const AttributesUnreadable&) {
        return reason_of_refusal(path);
    }
}

}

bool select_paths(MVItemsSet& selection, const CommonOptions& options, const Tool& tool,
                  const std::function<void(const std::u16string& path)>& entered)
{
    bool all_added = true;
    for_each_path(options, [&](std::string_view path) {
        const std::u16string system_path = path.empty() ? std::u16string() : to_system_path(path);
        const std::string reason = path.empty() ? "the path is empty" : select(selection, system_path);
        if (!reason.empty()) {
            tool.complain("cannot select '" + std::string(path) + "': " + reason);
            all_added = false;
        } else if (entered) {
            entered(system_path);
        }
    });
    return all_added;
}
