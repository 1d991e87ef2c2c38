#include "store/written_forms.h"

#include <map>

namespace written_forms {

std::string form_of(const MVCommandBase& command)
{
    return serialize(command.to_json());
}

CommandList saved_forms(CommandList read, const CommandList& shown)
{
    std::multimap<std::string, std::shared_ptr<MVCommandBase>> by_form;
    for (const auto& command : shown)
        by_form.emplace(form_of(*command), command);
    for (auto& command : read) {
        const auto [same, end] = by_form.equal_range(form_of(*command));
        if (same == end)
            continue;
        command = same->second->clone();
        command->set_committed(nullptr);
        by_form.erase(same);
    }
    return read;
}

}
