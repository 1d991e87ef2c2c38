#include "vellumark_select/options.h"

#include <cstdint>
#include <limits>
#include <sstream>

namespace po = boost::program_options;

namespace {

/// The application takes the number for a signed one of 32 bits.
constexpr std::size_t largest_index = std::numeric_limits<std::int32_t>::max();

po::options_description visible_options()
{
    po::options_description options("Options", 80);
    options.add_options()("index", po::value<std::string>()->value_name("N"),
                          "show the N-th command of the menu, counted from 0");
    add_common_options(options);
    return options;
}

}

Options parse_options(int argc, const char* const* argv)
{
    try {
        const po::variables_map values = parse_command_line(argc, argv, visible_options());
        Options options{common_options(values), index_of(values, largest_index)};
        if (options.help || options.version)
            return options;
        check_common_options(options);
        if (!options.has_paths())
            throw UsageError("no paths given");
        return options;
    } catch (const po::error& error) {
        throw UsageError(error.what());
    }
}

std::string help_text()
{
    std::ostringstream text;
    text << "Usage: vellumark-select [OPTION]... [--] PATH...\n"
            "Makes files and folders the selection of Vellumark Configure, which is started when\n"
            "it doesn't run.\n\n"
         << visible_options()
         << "\nPATH is a path of this machine, or one in drive form (C:\\dir\\file) or server form\n"
            "(\\\\server\\share\\file).\n\n"
            "Exit status: 0 when all went well, 1 when a path could not be used or the\n"
            "application not be reached, 2 for wrong usage.\n";
    return text.str();
}
