/// Saves a commands file, or loads it and tells what it holds. A test kills it in the middle.
///
///     save-commands save NAME     one command of that name, and presets that make the file large
///     save-commands load          prints the names of the menu's commands
///
/// The save proper stands between two calls of getppid, which a tracer recognises. An exception's text goes to
/// standard error, with exit status 1.

#include "engine/commands/vellumark_command.h"
#include "engine/text/utf.h"
#include "store/commands_file.h"
#include "store/mv_config.h"

#include <unistd.h>

#include <cstdio>
#include <string>
#include <string_view>

namespace {

void save(std::string_view name)
{
    std::vector<ExtensionsPreset> presets(1000);
    for (ExtensionsPreset& preset : presets) {
        preset.name = to_utf16(name);
        preset.set_extensions(std::u16string(100, u'x'));
    }
    const CommandList menu{std::make_shared<VellumarkCommand>(to_utf16(name))};
    getppid();
    commands_file::save(menu, {}, presets);
    getppid();
}

void load()
{
    for (const auto& command : commands_file::load().menu)
        std::puts(to_utf8(command->name()).c_str());
}

}

int main(int argc, char* argv[])
{
    try {
        MVConfigLive::install(u"C:\\nowhere");
        const std::string_view action = argc > 1 ? argv[1] : "";
        if (action == "save" && argc == 3)
            save(argv[2]);
        else if (action == "load" && argc == 2)
            load();
        else
            return 2;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
