#include "common/command_line.h"

#include <charconv>

namespace po = boost::program_options;

void add_common_options(po::options_description& options)
{
    auto add = options.add_options();
    add("paths-from", po::value<std::string>()->value_name("FILE"),
        "select the paths in FILE too, one a line; - is standard input");
    add("null,0", "the paths of --paths-from end in NUL, not in a line end");
    add("help,h", "show this help and exit");
    add("version", "show the version and exit");
}

po::variables_map parse_command_line(int argc, const char* const* argv, const po::options_description& visible)
{
    po::options_description all;
    all.add(visible);
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

CommonOptions common_options(const po::variables_map& values)
{
    CommonOptions options;
    if (values.count("path") > 0)
        options.paths = values["path"].as<std::vector<std::string>>();
    options.paths_from = text_of(values, "paths-from");
    options.nul_separated = values.count("null") > 0;
    options.help = values.count("help") > 0;
    options.version = values.count("version") > 0;
    return options;
}

void check_common_options(const CommonOptions& options)
{
    if (options.nul_separated && !options.paths_from)
        throw UsageError("-0 goes with --paths-from");
}

std::optional<std::string> text_of(const po::variables_map& values, const char* name)
{
    if (values.count(name) == 0)
        return std::nullopt;
    return values[name].as<std::string>();
}

std::optional<std::size_t> index_of(const po::variables_map& values, std::size_t largest)
{
    const auto text = text_of(values, "index");
    if (!text)
        return std::nullopt;
    std::size_t index = 0;
    const char* const end = text->data() + text->size();
    if (const auto [stop, error] = std::from_chars(text->data(), end, index);
        error != std::errc() || stop != end || index > largest)
        throw UsageError("--index takes a number from 0 on, not '" + *text + "'");
    return index;
}
