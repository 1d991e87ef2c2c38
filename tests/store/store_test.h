#pragma once

#include "engine/text/utf.h"
#include "store/commands_file.h"
#include "store/mv_config.h"
#include "support/scoped_variable.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

/// Settings folders and an installed program of its own for each test.
class StoreTest : public testing::Test
{
protected:
    StoreTest() { MVConfigLive::install(folder.path("app")); }

    ~StoreTest() override { MVConfig::set_global(nullptr); }

    /// Calls `action` and returns the text of what it throws, with host-independent paths.
    template <typename Action>
    std::string error_of(const Action& action) const
    {
        try {
            action();
        } catch (const std::exception& error) {
            return shortened(error.what());
        }
        return "no error";
    }

    /// Without the temporary folder's part.
    std::string shortened(std::string text) const
    {
        const std::string prefix = to_utf8(folder.path()) + "\\";
        if (const auto at = text.find(prefix); at != text.npos)
            text.erase(at, prefix.size());
        return text;
    }

    std::string content(std::string_view name) const;
    bool exists(std::string_view name) const;

    static constexpr std::string_view user_file = "user/Mirvanta/Vellumark/VKCmds.json";
    static constexpr std::string_view last_file = "user/Mirvanta/Vellumark/LastCmd.json";
    static constexpr std::string_view machine_file = "machine/Mirvanta Software/Vellumark/VKCmds.json";
    static constexpr std::string_view shipped_file = "app/VKCmds.json";
    static constexpr std::string_view presets_file = "app/VKDefaultPresets.json";

    const TempFolder folder;

private:
    const ScopedVariable user_{"XDG_CONFIG_HOME", folder.host("user")};
    const ScopedVariable machine_{"XDG_CONFIG_DIRS", folder.host("machine")};
};

/// A file-name command's JSON, with further keys that begin with a comma.
std::string command_json(std::string_view name, std::string_view more = {});
/// A preset's JSON.
std::string preset_json(std::string_view uuid, std::string_view name, std::string_view extensions);
/// On one line, such as "menu[A, B hidden] library[C] presets[Images=jpg;png]".
std::string flat(const StoredCommands& commands);
