#include "vellumark_text/options.h"

#include <boost/program_options.hpp>

#include <charconv>
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
    add("paths-from", po::value<std::string>()->value_name("FILE"),
        "select the paths in FILE too, one a line; - is standard input");
    add("null,0", "the paths of --paths-from end in NUL, not in a line end");
    add("help,h", "show this help and exit");
    add("version", "show the version and exit");
    return options;
}

po::variables_map parsed(int argc, const char* const* argv)
{
    po::options_description all = visible_options();
    all.add_options()("path", po::value<std::vector<std::string>>());
    po::positional_options_description positional;
    positional.add("path", -1);
    po::variables_map values;
    po::store(po::command_line_parser(argc, argv)
                  .options(all)
                  .positional(positional)
                  .style(po::command_line_style::unix_style & ~po::command_line_style::allow_guessing)
                  .run(),
              values);
    return values;
}

std::optional<std::string> text_of(const po::variables_map& values, const char* name)
{
    if (values.count(name) == 0)
        return std::nullopt;
    return values[name].as<std::string>();
}

std::optional<std::size_t> index_of(const po::variables_map& values)
{
    const auto text = text_of(values, "index");
    if (!text)
        return std::nullopt;
    std::size_t index = 0;
    const char* const end = text->data() + text->size();
    if (const auto [stop, error] = std::from_chars(text->data(), end, index); error != std::errc() || stop != end)
        throw UsageError("--index takes a number from 0 on, not '" + *text + "'");
    return index;
}

void check(const Options& options)
{
    if (options.index && options.command)
        throw UsageError("--index and --command exclude each other");
    if (options.nul_separated && !options.paths_from)
        throw UsageError("-0 goes with --paths-from");
    const bool has_paths = !options.paths.empty() || options.paths_from;
    if (options.list && (has_paths || options.index || options.command))
        throw UsageError("--list takes neither paths nor a command");
    if (!options.list && !has_paths)
        throw UsageError("no paths given");
}

}

Options parse_options(int argc, const char* const* argv)
{
    try {
        const po::variables_map values = parsed(argc, argv);
        Options options;
        options.commands_file = text_of(values, "commands");
        options.index = index_of(values);
        options.command = text_of(values, "command");
        options.paths_from = text_of(values, "paths-from");
        options.nul_separated = values.count("null") > 0;
        options.list = values.count("list") > 0;
        options.help = values.count("help") > 0;
        options.version = values.count("version") > 0;
        if (values.count("path") > 0)
            options.paths = values["path"].as<std::vector<std::string>>();
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
