#include "common/selection.h"
#include "common/tool.h"
#include "engine/items/selection_protocol.h"
#include "vellumark_select/hand_over.h"
#include "vellumark_select/options.h"
#include "vellumark_select/selection_json.h"

#include <stdexcept>
#include <string>

namespace {

using selection_protocol::largest_message;

int run(const Tool& tool, int argc, const char* const* argv)
{
    const Options options = parse_options(argc, argv);
    if (tool.answered(options, help_text))
        return exit_status::success;
    SelectionJson selection(options.index);
    MVItemsSet items;
    const bool all_added =
        select_paths(items, options, tool, [&](const std::u16string& path) { selection.add(path); });
    if (selection.is_empty())
        return all_added ? exit_status::success : exit_status::failure;
    const std::string message = selection.text();
    if (message.size() > largest_message)
        throw std::runtime_error("the selection is too large: " + std::to_string(message.size()) +
                                 " bytes, where the application reads " + std::to_string(largest_message));
    hand_over(message);
    return all_added ? exit_status::success : exit_status::failure;
}

}

int main(int argc, char* argv[])
{
    const Tool tool("vellumark-select");
    return tool.run([&] { return run(tool, argc, argv); });
}
