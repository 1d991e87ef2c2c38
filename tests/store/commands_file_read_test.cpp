#include "store/json_file_reader.h"
#include "store_test.h"

#include <chrono>
#include <filesystem>

namespace json = boost::json;

namespace {

class CommandsFileRead : public StoreTest
{
protected:
    /// What reading a file gives, flat, or the text of the error.
    std::string read(std::string_view text) const
    {
        std::string result;
        const std::u16string path = folder.write("FILE", text);
        const std::string error = error_of([&] { result = flat(commands_file::read(path)); });
        return result.empty() ? error : result;
    }

    /// The same for a menu.
    std::string read_menu(const std::string& elements) const
    {
        return read(R"({"commandsLibrary":[],"extensionsPresets":[],"menuCommands":[)" + elements + "]}");
    }
};

std::string invalid_json(json::error reason)
{
    return "FILE: Invalid JSON (" + json::error_code(reason).message() + ")";
}

TEST_F(CommandsFileRead, UnusableFiles)
{
    EXPECT_EQ(error_of([&] { commands_file::read(folder.path("FILE")); }), "FILE: Missing File");
    folder.make_folder("FOLDER");
    EXPECT_EQ(error_of([&] { commands_file::read(folder.path("FOLDER")); }), "FOLDER: Read Error (Is a directory)");

    struct Row {
        std::string text, error;
    };

    const std::string not_object = "FILE: Invalid Data (Top-level JSON value is not an object.)";
    const std::vector<Row> rows{
        {"", invalid_json(json::error::incomplete)},
        {R"({"menuCommands":[)", invalid_json(json::error::incomplete)},
        {R"({"menuCommands":[]}})", invalid_json(json::error::extra_data)},
        {"\xEF\xBB\xBF{}", invalid_json(json::error::syntax)},
        {R"({"menuCommands":[],})", invalid_json(json::error::syntax)},
        {"{\"name\":\"\xFF\"}", invalid_json(json::error::syntax)},
        {R"({"name":"\uD800"})", invalid_json(json::error::syntax)},
        {R"({"number":1e9999999999})", invalid_json(json::error::exponent_overflow)},
        {R"({"menuCommands":)" + std::string(100'000, '['), invalid_json(json::error::too_deep)},
        {std::string(100'000, '[') + std::string(100'000, ']'), invalid_json(json::error::too_deep)},
        {"[]", not_object},
        {"null", not_object},
        {"{}", "JSON value missing: menuCommands"},
        {R"({"menuCommands":{}})", "JSON value not an array: menuCommands"},
        {R"({"menuCommands":null})", "JSON value not an array: menuCommands"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(read(row.text), row.error) << row.text.substr(0, 40);
}

TEST_F(CommandsFileRead, OneBadCommandSpoilsTheFile)
{
    struct Row {
        std::string element, error;
    };

    const json::value number = 1;
    const std::string not_string = error_of([&] { static_cast<void>(number.as_string()); });
    const std::string not_bool = error_of([&] { static_cast<void>(number.as_bool()); });
    const std::string not_exact = json::error_code(json::error::not_exact).message();
    const std::string not_number = json::error_code(json::error::not_number).message();
    const std::vector<Row> rows{
        {R"({})", "Missing key in JSON: commandType"},
        {R"({"commandType":"MultiRename"})", "Missing key in JSON: name"},
        {R"({"commandType":"Vellumark","name":""})", "Missing key in JSON: separator"},
        {R"({"commandType":"Vellumark","name":"A","separator":"","fileParts":[{}]})",
         "Missing key in JSON: item-type"},
        {R"({"commandType":1,"name":""})", not_string},
        {R"({"commandType":"Configure","name":null})", not_string},
        {R"({"commandType":"Configure","name":"","showInMenu":1})", not_bool},
        {command_json("A", R"(,"maxFolderDepth":1e99999)"), not_exact},
        {command_json("A", R"(,"maxFolderDepth":"1")"), not_number},
    };
    for (const Row& row : rows) {
        const std::string in_library = R"({"menuCommands":[],"extensionsPresets":[],"commandsLibrary":[)";
        for (const std::string& result :
             {read_menu(command_json("good") + "," + row.element), read(in_library + row.element + "]}")})
            EXPECT_EQ(result.substr(0, row.error.size()), row.error) << row.element;
    }
}

TEST_F(CommandsFileRead, LeavesOutWhatItDoesNotKnow)
{
    const std::string unknown = R"({"commandType":"Unknown"},{"commandType":""},{"commandType":"vellumark"})";
    EXPECT_EQ(read_menu("1,null,[],\"x\"," + unknown + "," + command_json("A")), "menu[A] library[] presets[]");
    EXPECT_EQ(read_menu(R"({"commandType":"Configure","name":"A","name":"B"})"), "menu[B] library[] presets[]");
    EXPECT_EQ(read_menu(command_json("A", R"(,"fileFilter":5,"sortOrder":"?","further":{"key":[1]})")),
              "menu[A] library[] presets[]");
    EXPECT_EQ(read(R"({"menuCommands":[],"menuCommands":[)" + command_json("last") + R"(],"commandsLibrary":7})"),
              "menu[last] library[] presets[]");
}

TEST_F(CommandsFileRead, FlagsAndMigration)
{
    const std::string hidden = R"(,"showInMenu":false)";
    const std::string four = R"({"menuCommands":[)" + command_json("A", hidden) + "," + command_json("B") + "," +
                             command_json("C", hidden) +
                             R"(,{"commandType":"Configure","name":"D","showInMenu":false}])";
    EXPECT_EQ(read(four + "}"), "menu[B, D hidden] library[A hidden, C hidden] presets[]");
    EXPECT_EQ(read(four + R"(,"commandsLibrary":[)" + command_json("L", R"(,"showInMenu":true)") + "]}"),
              "menu[A, B, C, D] library[L hidden] presets[]");
    EXPECT_EQ(read(four + R"(,"commandsLibrary":null})"), "menu[A, B, C, D] library[] presets[]");
}

TEST_F(CommandsFileRead, Presets)
{
    const auto read_with = [&](const std::string& presets) { return read(R"({"menuCommands":[])" + presets + "}"); };
    const std::string none = "menu[] library[] presets[]";
    EXPECT_EQ(read_with(""), none);
    folder.write(presets_file, "[" + preset_json("1", "Images", "JPG;png") + ",5]");
    EXPECT_EQ(read_with(""), "menu[] library[] presets[Images=jpg;png]");
    EXPECT_EQ(read_with(R"(,"extensionsPresets":[])"), none);
    EXPECT_EQ(read_with(R"(,"extensionsPresets":null)"), none);
    EXPECT_EQ(read_with(R"(,"extensionsPresets":[null,)" + preset_json("2", "Own", "Ä;.TXT") + "]"),
              "menu[] library[] presets[Own=Ä;.txt]");
    EXPECT_EQ(read_with(R"(,"extensionsPresets":[{}])"), "Missing key in JSON: uuid");
    EXPECT_EQ(read_with(R"(,"extensionsPresets":[{"uuid":""}])"), "Missing key in JSON: name");
    EXPECT_EQ(read_with(R"(,"extensionsPresets":[{"uuid":"","name":""}])"), "Missing key in JSON: extensions");
    folder.write(presets_file, "{}");
    EXPECT_EQ(read_with(""), none);
    folder.write(presets_file, "[");
    EXPECT_EQ(read_with(""), "app\\VKDefaultPresets.json: Invalid JSON (incomplete JSON)");
}

TEST_F(CommandsFileRead, LoadFallsBackToTheDefaultFile)
{
    const auto load = [&] {
        std::string result;
        const std::string error = error_of([&] { result = flat(commands_file::load()); });
        return result.empty() ? error : result;
    };
    const auto file = [](const std::string& menu, const std::string& library) {
        return R"({"menuCommands":[)" + menu + R"(],"commandsLibrary":[)" + library + R"(],"extensionsPresets":[]})";
    };
    EXPECT_EQ(load(), "app\\VKCmds.json: Missing File");
    folder.write(shipped_file, file(command_json("shipped"), command_json("more")));
    EXPECT_EQ(load(), "menu[shipped] library[more hidden] presets[]");

    struct Row {
        std::string menu, library, expected;
        OldFile old;
    };

    const Row rows[] = {
        {"", "", "menu[shipped] library[more hidden] presets[]", OldFile::Replaced},
        {"", command_json("own"), "menu[shipped] library[more hidden] presets[]", OldFile::Kept},
        {command_json("own"), "", "menu[own] library[] presets[]", OldFile::Replaced},
    };
    for (const Row& row : rows) {
        const std::string text = file(row.menu, row.library);
        folder.write(user_file, text);
        EXPECT_EQ(load(), row.expected);
        EXPECT_EQ(commands_file::load_user_file().old, row.old);
        EXPECT_EQ(commands_file::load_user_file().text, text);
    }
    EXPECT_EQ(flat(commands_file::load_defaults()), "menu[shipped] library[more hidden] presets[]");
    folder.write(user_file, "{}");
    EXPECT_EQ(load(), "JSON value missing: menuCommands");
}

TEST_F(CommandsFileRead, MuchRubbishIsReadInItsTime)
{
    std::string zeros = R"({"menuCommands":[0)";
    while (zeros.size() < 8'000'000)
        zeros += ",0";
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(read(zeros + R"(],"commandsLibrary":[]})"), "menu[] library[] presets[]");
    EXPECT_EQ(read(R"({"menuCommands":")" + std::string(20'000'000, 'x')), invalid_json(json::error::incomplete));
    EXPECT_EQ(read(std::string(40'000'000, '\0')), invalid_json(json::error::syntax));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
}

}
