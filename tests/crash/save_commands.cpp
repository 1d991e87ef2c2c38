/// Saves a commands file, or loads it and tells what it holds. A test kills it in the middle.
///
///     save-commands save NAME     one command of that name, and presets that make the file large
///     save-commands keep NAME     the same; the old file is kept
///     save-commands load          prints the names of the menu's commands
///     save-commands save-last NAME, save-commands load-last
///                                 the same with one command as the last one run
///
/// The save proper stands between two calls of getppid, which a tracer recognises. An exception's text goes to
/// standard error, with exit status 1.

#include "engine/commands/vellumark_command.h"
#include "engine/text/utf.h"
#include "store/commands_file.h"
#include "store/last_command.h"
#include "store/mv_config.h"

#include <unistd.h>

#include <cstdio>
#include <string>
#include <string_view>

namespace {

void save(std::string_view name, OldFile old)
{
    std::vector<ExtensionsPreset> presets(1000);
    for (ExtensionsPreset& preset : presets) {
        preset.name = to_utf16(name);
        preset.set_extensions(std::u16string(100, u'x'));
    }
    const CommandList menu{std::make_shared<VellumarkCommand>(to_utf16(name))};
    getppid();
    commands_saving::write({.text = commands_saving::text_of({menu, {}, presets}), .old = old});
    getppid();
}

void load()
{
    for (const auto& command : commands_file::load().menu)
        std::puts(to_utf8(command->name()).c_str());
}

void save_last(std::string_view name)
{
    VellumarkCommand command(to_utf16(name));
    command.set_separator(std::u16string(100'000, u'x'));
    getppid();
    write_last_command(command);
    getppid();
}

void load_last()
{
    if (const auto command = read_last_command())
        std::puts(to_utf8(command->name()).c_str());
}

}

int main(int argc, char* argv[])
{
    try {
        MVConfigLive::install(u"C:\\nowhere");
        const std::string_view action = argc > 1 ? argv[1] : "";
        if (action == "save-last" && argc == 3)
            save_last(argv[2]);
        else if (argc == 3)
            save(argv[2], action == "keep" ? OldFile::Kept : OldFile::Replaced);
        else if (action == "load-last")
            load_last();
        else if (action == "load")
            load();
        else
            return 2;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
