#include "common/tool.h"

#include "common/printable.h"

#include <boost/system/system_error.hpp>
#include <product_version.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <new>

int Tool::run(const std::function<int()>& work) const
{
    try {
        return work();
    } catch (const UsageError& error) {
        complain(error.what());
        std::fputs(("Try '" + name_ + " --help'.\n").c_str(), stderr);
        return exit_status::wrong_usage;
    } catch (const std::exception& error) {
        complain(words_of(error));
        return exit_status::failure;
    }
}

void Tool::complain(const std::string& message) const
{
    std::fputs((name_ + ": " + printable(message) + "\n").c_str(), stderr);
}

bool Tool::answered(const CommonOptions& options, const std::function<std::string()>& help) const
{
    if (!options.help && !options.version)
        return false;
    write_out(options.help ? help() : name_ + " " + product_version + "\n");
    finish_output();
    return true;
}

void write_out(std::string_view bytes)
{
    if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) != bytes.size())
        throw std::runtime_error(std::string("standard output: ") + std::strerror(errno));
}

void finish_output()
{
    if (std::fflush(stdout) != 0)
        throw std::runtime_error(std::string("standard output: ") + std::strerror(errno));
}

/// The library's own text would end in places of its source code.
std::string words_of(const std::exception& error)
{
    if (const auto* system = dynamic_cast<const boost::system::system_error*>(&error))
        return system->code().message();
    if (dynamic_cast<const std::bad_alloc*>(&error))
        return "out of memory";
    return error.what();
}
