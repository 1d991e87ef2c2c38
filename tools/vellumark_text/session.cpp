#include "vellumark_text/session.h"

#include "engine/items/mv_item_exception.h"
#include "engine/text/utf.h"
#include "platform/known_folders.h"
#include "store/mv_config.h"
#include "vellumark_text/command_choice.h"
#include "vellumark_text/selection_paths.h"
#include "vellumark_text/status_line.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

namespace {

enum ExitStatus { success = 0, failure = 1, wrong_usage = 2 };

void complain(const std::string& message)
{
    std::fputs(("vellumark-text: " + message + "\n").c_str(), stderr);
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
        if (length < text.size() && (text[length - 1] & 0xFC00) == 0xD800)
            ++length;
        write_out(to_utf8(text.substr(0, length)));
        text.remove_prefix(length);
    }
    finish_output();
}

StoredCommands load_commands(const Options& options)
{
    MVConfigLive::install(platform::program_folder());
    if (options.commands_file)
        return commands_file::read(to_system_path(*options.commands_file, current_folder()));
    return commands_file::load();
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
        complain(error.what() + std::string("\nTry 'vellumark-text --help'."));
        return wrong_usage;
    } catch (const std::exception& error) {
        complain(error.what());
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
    const std::string folder = current_folder();
    bool all_added = true;
    for_each_path(options, [&](std::string_view path) {
        const auto refuse = [&](const std::string& reason) {
            complain("cannot select '" + std::string(path) + "': " + reason);
            all_added = false;
        };
        if (path.empty())
            return refuse("the path is empty");
        try {
            selection_.add_path(to_system_path(path, folder));
        } catch (const MVItemException& error) {
            refuse(error.what());
        } catch (const std::runtime_error&) {
            refuse("there is no such file or folder, or it can't be read");
        }
    });
    return all_added;
}
