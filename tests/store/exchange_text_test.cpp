#include "engine/commands/vellumark_command.h"
#include "store/commands_json.h"
#include "store/exchange_text.h"
#include "store_test.h"

#include <algorithm>

namespace {

using exchange_text::Place;

/// Such as "[A, B]", or "nothing".
std::string flat_names(const std::optional<CommandList>& commands)
{
    if (!commands)
        return "nothing";
    std::string text;
    for (const auto& command : *commands)
        text += (text.empty() ? "" : ", ") + to_utf8(command->name());
    return "[" + text + "]";
}

std::string exchange_json(const std::string& commands)
{
    return R"({"menuCommands":[)" + commands + "]}";
}

TEST(ExchangeText, CutsTheCommandsOutOfOtherWords)
{
    const std::string one = exchange_json(command_json("A")), deep(100'000, '[');

    struct Row {
        std::string text, read;
    };

    const std::vector<Row> rows{
        {one, "[A]"},
        {"Try this:\n\t" + one + "\nBye]", "[A]"},
        {"\xEF\xBB\xBF" + one, "[A]"},
        {"(:-] " + one, "[A]"},
        {one + " :-}", "nothing"},
        {":-{ " + one, "nothing"},
        {"[" + one + "]", "nothing"},
        {"[1] " + one, "nothing"},
        {exchange_json(""), "[]"},
        {exchange_json(R"(1,{"commandType":"FromTheFuture","name":"A"})"), "[]"},
        {exchange_json(R"({"commandType":"Configure","name":"C"},)" + command_json("\u00C4")), "[C, \u00C4]"},
        {R"({"menuCommands":[],"commandsLibrary":[)" + command_json("A") + "]}", "[]"},
        {exchange_json(command_json("A") + R"(,{"commandType":"Vellumark","name":"B"})"), "nothing"},
        {R"({"menuCommands":{}})", "nothing"},
        {"{}", "nothing"},
        {"", "nothing"},
        {"no commands", "nothing"},
        {"}{", "nothing"},
        {"{", "nothing"},
        {one.substr(0, one.size() - 2), "nothing"},
        {deep, "nothing"},
        {deep + std::string(deep.size(), ']'), "nothing"},
        {R"({"menuCommands":[{"commandType":"Vellumark","name":"\uD800"}]})", "nothing"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(flat_names(exchange_text::to_commands(row.text)), row.read) << row.text.substr(0, 80);
}

TEST(ExchangeText, IsACommandsFileWithTheMenuAlone)
{
    const auto commands =
        exchange_text::to_commands(exchange_json(command_json("\u00C4", R"(,"showInMenu":false,"startText":"<")") +
                                                 R"(,{"commandType":"Configure","name":"C"})"));
    ASSERT_EQ(flat_names(commands), "[\u00C4, C]");
    const std::string text = exchange_text::from_commands(*commands);
    EXPECT_EQ(flat(commands_json::from_json(
                  boost::json::parse(text.substr(0, text.size() - 1) + R"(,"extensionsPresets":[]})").as_object())),
              "menu[\u00C4, C] library[] presets[]");
    EXPECT_EQ(boost::json::parse(text).as_object().size(), 1u);
    EXPECT_EQ(text.find_first_of(" \n"), text.npos);
    const auto again = exchange_text::to_commands(text);
    ASSERT_EQ(again->size(), 2u);
    for (std::size_t i = 0; i < 2; ++i)
        EXPECT_TRUE((*again)[i]->equals(*(*commands)[i]));
    EXPECT_EQ(exchange_text::from_commands({}), exchange_json(""));
}

TEST(ExchangeText, Merges)
{
    struct Row {
        std::string list, imported;
        Place place;
        std::string merged;
    };

    const std::vector<Row> rows{
        {"AB", "CD", Place::Start, "[C, D, A, B]"},
        {"AB", "CD", Place::End, "[A, B, C, D]"},
        {"AB", "CD", Place::Replace, "[C, D]"},
        {"ABCA", "CA", Place::Start, "[C, A, B]"},
        {"ABCA", "CA", Place::End, "[B, C, A]"},
        {"AB", "AA", Place::Replace, "[A, A]"},
        {"AB", "AA", Place::End, "[B, A, A]"},
        {"", "A", Place::Start, "[A]"},
        {"A", "", Place::Replace, "[]"},
        {"A", "", Place::End, "[A]"},
    };
    const auto list_of = [](const std::string& names) {
        CommandList list;
        for (const char name : names)
            list.push_back(std::make_shared<VellumarkCommand>(std::u16string(1, char16_t(name))));
        return list;
    };
    for (const Row& row : rows) {
        CommandList list = list_of(row.list);
        const CommandList imported = list_of(row.imported);
        exchange_text::merge(list, imported, row.place);
        EXPECT_EQ(flat_names(list), row.merged) << row.list << " " << row.imported;
        for (const auto& command : imported)
            EXPECT_EQ(std::ranges::count(list, command), 1);
    }
    // One name with other contents is another command.
    CommandList list = list_of("A");
    static_cast<VellumarkCommand&>(*list[0]).set_separator(u"other");
    exchange_text::merge(list, list_of("A"), Place::End);
    EXPECT_EQ(flat_names(list), "[A, A]");
}

}
