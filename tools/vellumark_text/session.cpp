#include "vellumark_text/session.h"

#include "engine/items/mv_item_exception.h"
#include "engine/text/utf.h"
#include "platform/known_folders.h"
#include "platform/utf.h"
#include "store/json_file_reader.h"
#include "store/mv_config.h"
#include "vellumark_text/command_choice.h"
#include "vellumark_text/printable.h"
#include "vellumark_text/selection_paths.h"
#include "vellumark_text/status_line.h"

#include <boost/system/system_error.hpp>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <new>
#include <stdexcept>
#include <string>

namespace {

enum ExitStatus { success = 0, failure = 1, wrong_usage = 2 };

void complain(const std::string& message)
{
    std::fputs(("vellumark-text: " + printable(message) + "\n").c_str(), stderr);
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

/// In slices, so that a long text is not held a second time.
void write_text(std::u16string_view text)
{
    constexpr std::size_t slice = 1 << 16;
    while (!text.empty()) {
        std::size_t length = std::min(slice, text.size());
        if (length < text.size() && platform::is_high_surrogate(text[length - 1]))
            ++length;
        write_out(to_utf8(text.substr(0, length)));
        text.remove_prefix(length);
    }
    finish_output();
}

/// A commands file that can't be used is named in the error, by the reader or here.
StoredCommands load_commands(const Options& options)
{
    MVConfigLive::install(platform::program_folder());
    try {
        if (options.commands_file)
            return commands_file::read(to_system_path(*options.commands_file), JsonSource::AnyFile);
        return commands_file::load();
    } catch (const JsonFileReaderException&) {
        throw;
    } catch (const std::exception& error) {
        throw std::runtime_error(options.commands_file.value_or("the stored commands") + ": " + words_of(error));
    }
}

}

int Session::run(int argc, const char* const* argv)
{
    try {
        const Options options = parse_options(argc, argv);
        if (options.help || options.version) {
            write_out(options.help ? help_text() : "vellumark-text " VELLUMARK_VERSION "\n");
            finish_output();
            return success;
        }
        return run_command(options);
    } catch (const UsageError& error) {
        complain(error.what());
        std::fputs("Try 'vellumark-text --help'.\n", stderr);
        return wrong_usage;
    } catch (const std::exception& error) {
        complain(words_of(error));
        return failure;
    }
}

int Session::run_command(const Options& options)
{
    const StoredCommands commands = load_commands(options);
    if (options.list) {
        write_out(list_commands(commands));
        finish_output();
        return success;
    }
    const auto command = choose_command(commands, options);
    const bool all_added = select_paths(options);
    std::u16string text;
    {
        StatusLine status;
        command->generate_text(text, selection_, status);
    }
    write_text(text);
    return all_added ? success : failure;
}

bool Session::select_paths(const Options& options)
{
    bool all_added = true;
    for_each_path(options, [&](std::string_view path) {
        const std::string reason = select(path);
        if (reason.empty())
            return;
        complain("cannot select '" + std::string(path) + "': " + reason);
        all_added = false;
    });
    return all_added;
}

std::string Session::select(std::string_view path)
{
    if (path.empty())
        return "the path is empty";
    const std::u16string system_path = to_system_path(path);
    try {
        selection_.add_path(system_path);
        return {};
    } catch (const MVItemException& error) {
        return error.what();
    } catch (const AttributesUnreadable&) {
        return reason_of_refusal(system_path);
    }
}
