#include "vellumark_text/session.h"

#include "common/selection.h"
#include "common/selection_paths.h"
#include "common/tool.h"
#include "engine/text/utf.h"
#include "platform/known_folders.h"
#include "platform/utf.h"
#include "store/commands_file.h"
#include "store/json_file_reader.h"
#include "store/mv_config.h"
#include "vellumark_text/command_choice.h"
#include "vellumark_text/status_line.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace {

const Tool tool("vellumark-text");

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
    return tool.run([&] {
        const Options options = parse_options(argc, argv);
        return tool.answered(options, help_text) ? exit_status::success : run_command(options);
    });
}

int Session::run_command(const Options& options)
{
    const StoredCommands commands = load_commands(options);
    if (options.list) {
        write_out(list_commands(commands));
        finish_output();
        return exit_status::success;
    }
    const auto command = choose_command(commands, options);
    const bool all_added = select_paths(selection_, options, tool);
    std::u16string text;
    {
        StatusLine status;
        command->generate_text(text, selection_, status);
    }
    write_text(text);
    return all_added ? exit_status::success : exit_status::failure;
}
