#include "vellumark_text/command_choice.h"

#include "common/printable.h"
#include "engine/text/utf.h"
#include "store/builtin_command_info.h"

#include <algorithm>
#include <stdexcept>

namespace {

std::shared_ptr<MVCommandBase> find_named(const StoredCommands& commands, const std::u16string& name)
{
    for (const CommandList* list : {&commands.menu, &commands.library}) {
        const auto found = std::ranges::find(*list, name, [](const auto& command) { return command->name(); });
        if (found != list->end())
            return *found;
    }
    return nullptr;
}

std::shared_ptr<MVCommandBase> wanted_command(const StoredCommands& commands, const Options& options)
{
    if (options.index) {
        if (*options.index >= commands.menu.size())
            throw UsageError("no command " + std::to_string(*options.index) + ": the menu has " +
                             std::to_string(commands.menu.size()));
        return commands.menu[*options.index];
    }
    if (options.command) {
        if (auto found = find_named(commands, to_utf16(*options.command)))
            return found;
        throw UsageError("no command is named '" + *options.command + "'");
    }
    const auto found =
        std::ranges::find(commands.menu, CommandType::Vellumark, [](const auto& command) { return command->type(); });
    if (found == commands.menu.end())
        throw std::runtime_error("the menu has no file-name command");
    return *found;
}

std::string shown_name(const MVCommandBase& command)
{
    return printable(command.name().empty() ? std::string(default_command_name(command.type()))
                                            : to_utf8(command.name()));
}

void append_list(std::string& text, std::string_view title, const CommandList& list)
{
    for (std::size_t index = 0; index < list.size(); ++index) {
        text.append(title).append("\t").append(std::to_string(index)).append("\t").append(shown_name(*list[index]));
        text += list[index]->type() == CommandType::Vellumark ? "\n" : "\tbuilt-in\n";
    }
}

}

std::shared_ptr<const VellumarkCommand> choose_command(const StoredCommands& commands, const Options& options)
{
    const auto command = wanted_command(commands, options);
    if (auto file_name_command = std::dynamic_pointer_cast<const VellumarkCommand>(command))
        return file_name_command;
    throw UsageError("'" + shown_name(*command) + "' is a built-in command, which makes no text");
}

std::string list_commands(const StoredCommands& commands)
{
    std::string text;
    append_list(text, "menu", commands.menu);
    append_list(text, "library", commands.library);
    return text;
}
