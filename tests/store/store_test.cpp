#include "store_test.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

std::string flat(const CommandList& list)
{
    std::string text;
    for (const auto& command : list)
        text += (text.empty() ? "" : ", ") + to_utf8(command->name()) + (command->show_in_menu() ? "" : " hidden");
    return "[" + text + "]";
}

}

std::string StoreTest::content(std::string_view name) const
{
    std::ifstream file(folder.host(name), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

bool StoreTest::exists(std::string_view name) const
{
    return std::filesystem::exists(std::filesystem::symlink_status(folder.host(name)));
}

std::string command_json(std::string_view name, std::string_view more)
{
    return R"({"commandType":"Vellumark","name":")" + std::string(name) + R"(","separator":"","fileParts":[])" +
           std::string(more) + "}";
}

std::string preset_json(std::string_view uuid, std::string_view name, std::string_view extensions)
{
    return R"({"uuid":")" + std::string(uuid) + R"(","name":")" + std::string(name) + R"(","extensions":")" +
           std::string(extensions) + R"("})";
}

std::string flat(const StoredCommands& commands)
{
    std::string presets;
    for (const ExtensionsPreset& preset : commands.presets)
        presets += (presets.empty() ? "" : ", ") + to_utf8(preset.name + u"=" + preset.extensions());
    return "menu" + flat(commands.menu) + " library" + flat(commands.library) + " presets[" + presets + "]";
}
