#include "store/commands_saving.h"

#include "platform/files.h"
#include "store/commands_json.h"
#include "store/json_file_reader.h"
#include "store/kept_file.h"
#include "store/mv_config.h"
#include "store/preset_followers.h"

#include <algorithm>
#include <stdexcept>

namespace {

/// What can't be read is nothing that the saver knows.
bool is_known(const std::u16string& path, const std::vector<std::string>& texts)
{
    if (!platform::exists(path))
        return true;
    std::string error;
    const auto text = platform::read_file(path, error);
    return text && std::ranges::find(texts, *text) != texts.end();
}

}

namespace commands_saving {

std::string text_of(const StoredCommands& commands)
{
    return serialize(
        commands_json::to_json({preset_followers::updated(commands.menu, commands.presets),
                                preset_followers::updated(commands.library, commands.presets), commands.presets}));
}

bool write(const CommandsSaving& saving)
{
    const std::u16string path = MVConfig::get_global().path(FileKind::UserCommands);
    create_parent_directories(path);
    std::optional<KeptFile> kept;
    const auto confirm = [&] {
        if (saving.known && !is_known(path, *saving.known))
            return false;
        if (saving.is_wanted && !saving.is_wanted())
            return false;
        if (saving.old == OldFile::Kept)
            kept.emplace(path);
        return true;
    };
    switch (platform::replace_content(path, saving.text, confirm)) {
    case platform::Replacement::Done: break;
    case platform::Replacement::Declined: return false;
    case platform::Replacement::NotWritten: throw std::runtime_error("Failed to write commands to temporary file.");
    case platform::Replacement::NotReplaced: throw std::runtime_error("Failed to replace commands file.");
    }
    if (kept)
        kept->keep();
    return true;
}

}
