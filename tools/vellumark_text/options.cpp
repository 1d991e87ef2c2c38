#include "vellumark_text/options.h"

#include <limits>
#include <sstream>

namespace po = boost::program_options;

namespace {

po::options_description visible_options()
{
    po::options_description options("Options", 80);
    auto add = options.add_options();
    add("commands", po::value<std::string>()->value_name("FILE"),
        "take the commands from FILE instead of the application's own");
    add("index", po::value<std::string>()->value_name("N"), "run the N-th command of the menu, counted from 0");
    add("command", po::value<std::string>()->value_name("NAME"),
        "run the first command named NAME, in the menu, then in the library");
    add("list", "list the commands and exit");
    add_common_options(options);
    return options;
}

void check(const Options& options)
{
    if (options.index && options.command)
        throw UsageError("--index and --command exclude each other");
    check_common_options(options);
    if (options.list && (options.has_paths() || options.index || options.command))
        throw UsageError("--list takes neither paths nor a command");
    if (!options.list && !options.has_paths())
        throw UsageError("no paths given");
}

}

Options parse_options(int argc, const char* const* argv)
{
    try {
        const po::variables_map values = parse_command_line(argc, argv, visible_options());
        Options options{common_options(values), text_of(values, "commands"),
                        index_of(values, std::numeric_limits<std::size_t>::max()), text_of(values, "command"),
                        values.count("list") > 0};
        if (!options.help && !options.version)
            check(options);
        return options;
    } catch (const po::error& error) {
        throw UsageError(error.what());
    }
}

std::string help_text()
{
    std::ostringstream text;
    text << "Usage: vellumark-text [OPTION]... [--] PATH...\n"
            "Writes the text that a stored command makes of files and folders to standard output.\n\n"
         << visible_options()
         << "\nPATH is a path of this machine, or one in drive form (C:\\dir\\file) or server form\n"
            "(\\\\server\\share\\file). Without --index and --command the menu's first file-name\n"
            "command runs.\n\n"
            "Exit status: 0 when all went well, 1 when a path or the commands file could not be\n"
            "used, 2 for wrong usage, 130 when interrupted.\n";
    return text.str();
}
