#include "store/commands_merge.h"

#include "engine/text/utf.h"
#include "store/three_way_merge.h"
#include "store/written_forms.h"

#include <set>
#include <string>

namespace {

/// The names that are in use.
class Names
{
public:
    void add(const std::u16string& name) { names_.insert(name); }

    /// " (2)", or the next number that is free, behind a name; empty for a name that is.
    std::u16string new_ending(const std::u16string& name)
    {
        if (name.empty())
            return {};
        for (int number = 2;; ++number) {
            std::u16string ending = u" (" + to_utf16(std::to_string(number)) + u")";
            if (names_.insert(name + ending).second)
                return ending;
        }
    }

private:
    std::set<std::u16string> names_;
};

/// A command with the form by which it is compared.
struct Compared {
    std::shared_ptr<MVCommandBase> command;
    std::string form;
};

struct CommandRules {
    static bool equal(const Compared& a, const Compared& b) { return a.form == b.form; }

    static bool same(const Compared& a, const Compared& b)
    {
        return a.command->type() == b.command->type() && a.command->name() == b.command->name();
    }

    Compared set_apart(const Compared& theirs)
    {
        auto command = theirs.command->clone();
        const std::u16string ending = names.new_ending(command->name());
        command->set_name(command->name() + ending);
        if (!command->name1().empty())
            command->set_name1(command->name1() + ending);
        return {std::move(command), theirs.form};
    }

    Names names;
};

struct PresetRules {
    static bool equal(const ExtensionsPreset& a, const ExtensionsPreset& b) { return a == b; }

    static bool same(const ExtensionsPreset& a, const ExtensionsPreset& b) { return a.uuid == b.uuid; }

    ExtensionsPreset set_apart(ExtensionsPreset theirs)
    {
        theirs.make_new_uuid();
        theirs.name += names.new_ending(theirs.name);
        return theirs;
    }

    Names names;
};

std::vector<Compared> compared(const CommandList& list)
{
    std::vector<Compared> result;
    result.reserve(list.size());
    for (const auto& command : list)
        result.push_back({command, written_forms::form_of(*command)});
    return result;
}

CommandList merge_lists(const CommandList& base, const CommandList& mine, const CommandList& theirs,
                        CommandRules& rules)
{
    const auto base_list = compared(base), my_list = compared(mine), their_list = compared(theirs);
    CommandList result;
    for (Compared& merged : ThreeWayMerge(base_list, my_list, their_list, rules).merged())
        result.push_back(std::move(merged.command));
    return result;
}

std::vector<ExtensionsPreset> merge_presets(const std::vector<ExtensionsPreset>& base,
                                            const std::vector<ExtensionsPreset>& mine,
                                            const std::vector<ExtensionsPreset>& theirs)
{
    PresetRules rules;
    for (const auto* side : {&mine, &theirs})
        for (const ExtensionsPreset& preset : *side)
            rules.names.add(preset.name);
    return ThreeWayMerge(base, mine, theirs, rules).merged();
}

}

StoredCommands merge_commands(const StoredCommands& base, const StoredCommands& mine, const StoredCommands& theirs)
{
    CommandRules rules;
    for (const CommandList* list : {&mine.menu, &mine.library, &theirs.menu, &theirs.library})
        for (const auto& command : *list)
            rules.names.add(command->name());
    return {.menu = merge_lists(base.menu, mine.menu, theirs.menu, rules),
            .library = merge_lists(base.library, mine.library, theirs.library, rules),
            .presets = merge_presets(base.presets, mine.presets, theirs.presets)};
}
