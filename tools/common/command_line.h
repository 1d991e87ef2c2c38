#pragma once

#include <boost/program_options.hpp>

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

/// A command line that can't be understood; the words say why.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// What all the programs understand. Texts are bytes as the shell gave them.
struct CommonOptions {
    std::vector<std::string> paths;
    std::optional<std::string> paths_from; ///< a file, or "-" for standard input
    bool nul_separated = false;
    bool help = false, version = false;

    bool has_paths() const { return !paths.empty() || paths_from; }
};

/// Declares the common options but the paths themselves, as the help shows them last.
void add_common_options(boost::program_options::options_description& options);

/// Parses a command line of these options and of paths. Throws boost::program_options::error.
boost::program_options::variables_map parse_command_line(int argc, const char* const* argv,
                                                         const boost::program_options::options_description& visible);

CommonOptions common_options(const boost::program_options::variables_map& values);

/// Throws UsageError when the common options don't go together.
void check_common_options(const CommonOptions& options);

/// An option's value; empty when it isn't given.
std::optional<std::string> text_of(const boost::program_options::variables_map& values, const char* name);

/// The value of "--index", from 0 to `largest`; empty when it isn't given. Throws UsageError for another.
std::optional<std::size_t> index_of(const boost::program_options::variables_map& values, std::size_t largest);
