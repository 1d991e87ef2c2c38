#include "store/mv_config.h"

#include "platform/files.h"
#include "platform/known_folders.h"

#include <stdexcept>

namespace {

constexpr std::u16string_view commands_name = u"VKCmds.json";

std::unique_ptr<MVConfig>& global()
{
    // Never destroyed: a thread that a disk holds up may still ask while the process ends.
    static auto& config = *new std::unique_ptr<MVConfig>;
    return config;
}

std::u16string joined(std::u16string_view folder, std::u16string_view name)
{
    return std::u16string(folder).append(name);
}

}

MVConfig::MVConfig(std::u16string install_folder) : install_folder_(std::move(install_folder))
{
    if (!install_folder_.empty() && !install_folder_.ends_with(u'\\'))
        install_folder_ += u'\\';
}

void MVConfig::set_global(std::unique_ptr<MVConfig> config)
{
    global() = std::move(config);
}

MVConfig& MVConfig::get_global()
{
    if (!global())
        throw std::runtime_error("MVConfig::set_global() has not been called, call MVConfigLive::install() or "
                                 "MVConfigTest::install()");
    return *global();
}

void MVConfigLive::install(std::u16string install_folder)
{
    set_global(std::unique_ptr<MVConfig>(new MVConfigLive(std::move(install_folder))));
}

std::u16string MVConfigLive::path(FileKind kind) const
{
    switch (kind) {
    case FileKind::UserCommands: return joined(user_data_folder(), commands_name);
    case FileKind::DefaultPresets: return joined(install_folder(), u"VKDefaultPresets.json");
    case FileKind::Gallery: return joined(install_folder(), u"VKGallery.json");
    case FileKind::DefaultCommands: break;
    }
    for (const std::u16string& folder : platform::machine_settings_folders()) {
        std::u16string path = joined(folder, u"\\Mirvanta Software\\Vellumark\\").append(commands_name);
        // A folder that may not be searched has nothing to offer.
        if (const auto file = platform::file_attributes(path); file && !file->is_folder)
            return path;
    }
    return joined(install_folder(), commands_name);
}

std::u16string user_data_folder()
{
    const auto folder = platform::user_settings_folder();
    if (!folder)
        throw std::runtime_error("SHGetKnownFolderPath() failed");
    return joined(*folder, u"\\Mirvanta\\Vellumark\\");
}

std::u16string last_command_path()
{
    return joined(user_data_folder(), u"LastCmd.json");
}
