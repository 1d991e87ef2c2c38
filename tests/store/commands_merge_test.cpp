#include "engine/commands/vellumark_command.h"
#include "engine/text/utf.h"
#include "store/commands_merge.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>

namespace {

/// From words such as "A1": a command called A with the contents 1.
CommandList commands(const std::string& words)
{
    CommandList list;
    std::istringstream stream(words);
    for (std::string word; stream >> word;) {
        auto command = std::make_shared<VellumarkCommand>(to_utf16(word.substr(0, 1)));
        command->set_separator(to_utf16(word.substr(1)));
        list.push_back(std::move(command));
    }
    return list;
}

std::string flat(const CommandList& list)
{
    std::string text;
    for (const auto& command : list)
        text += (text.empty() ? "" : " ") + to_utf8(command->name()) +
                to_utf8(dynamic_cast<const VellumarkCommand&>(*command).separator());
    return text;
}

/// From words as above: a preset with the name for its identity, too.
std::vector<ExtensionsPreset> presets(const std::string& words)
{
    std::vector<ExtensionsPreset> list;
    std::istringstream stream(words);
    for (std::string word; stream >> word;) {
        ExtensionsPreset& preset = list.emplace_back();
        preset.uuid = preset.name = to_utf16(word.substr(0, 1));
        preset.set_extensions(to_utf16(word.substr(1)));
    }
    return list;
}

std::string flat(const std::vector<ExtensionsPreset>& list)
{
    std::string text;
    for (const ExtensionsPreset& preset : list)
        text += (text.empty() ? "" : " ") + to_utf8(preset.name + preset.extensions());
    return text;
}

TEST(CommandsMerge, Cases)
{
    struct Row {
        std::string base, mine, theirs, expected;
    };

    const Row rows[] = {
        {"A1 B1", "A1 B1", "A1 B1", "A1 B1"},
        {"A1 B1", "A2 B1", "A1 B2", "A2 B2"},
        {"A1 B1", "A2 B1", "A3 B1", "A2 A (2)3 B1"},
        {"A1 B1", "A2 B1", "A2 B1", "A2 B1"},
        {"A1 B1 C1", "A1 C1", "A1 B2 C1", "A1 B2 C1"},
        {"A1 B1 C1", "A1 B2 C1", "A1 C1", "A1 B2 C1"},
        {"A1 B1 C1", "A1 C1", "B1 C1", "C1"},
        {"A1 B1", "B1 A1", "A1 X1 Y1 B1", "B1 A1 X1 Y1"},
        {"A1", "A1 X1", "Y1 A1 X1", "Y1 A1 X1"},
        {"A1", "A1 X1", "A1 X2", "A1 X (2)2 X1"},
        {"", "A1 B1", "B1 C1", "A1 B1 C1"},
    };
    for (const Row& row : rows) {
        const StoredCommands base{commands(row.base), commands("L1"), presets(row.base)};
        const StoredCommands mine{commands(row.mine), commands("L1"), presets(row.mine)};
        const StoredCommands theirs{commands(row.theirs), commands("L2"), presets(row.theirs)};
        const StoredCommands merged = merge_commands(base, mine, theirs);
        EXPECT_EQ(flat(merged.menu), row.expected);
        EXPECT_EQ(flat(merged.library), "L2");
        EXPECT_EQ(flat(merged.presets), row.expected);
        for (const ExtensionsPreset& preset : merged.presets)
            EXPECT_EQ(std::ranges::count(merged.presets, preset.uuid, &ExtensionsPreset::uuid), 1);
    }
}

/// Two sides that add, change, delete and reorder at random. Every form of a command has contents of its own.
class RandomSides
{
public:
    explicit RandomSides(unsigned seed) : random_(seed) {}

    std::vector<std::string> fresh(std::size_t most)
    {
        std::vector<std::string> words(below(most + 1));
        std::ranges::generate(words, [this] { return new_word(); });
        return words;
    }

    void change(std::vector<std::string>& words)
    {
        for (std::size_t step = below(6); step > 0; --step) {
            const std::size_t at = below(words.size() + 1), kind = below(5);
            if (kind == 0 || at == words.size())
                words.insert(words.begin() + static_cast<std::ptrdiff_t>(at), new_word());
            else if (kind == 1)
                words.erase(words.begin() + static_cast<std::ptrdiff_t>(at));
            else if (kind == 2)
                std::swap(words[at], words[below(words.size())]);
            else
                words[at] = kind == 3 ? new_word() : words[at].substr(0, 1) + new_word().substr(1);
        }
    }

    /// Both sides come to the same.
    void add_to_both(std::vector<std::string>& one, std::vector<std::string>& other)
    {
        const std::string word = new_word();
        for (auto* words : {&one, &other})
            words->insert(words->begin() + static_cast<std::ptrdiff_t>(below(words->size() + 1)), word);
    }

    std::size_t below(std::size_t end) { return random_() % end; }

private:
    std::string new_word() { return std::string(1, "ABC"[below(3)]) + std::to_string(++contents_); }

    std::mt19937 random_;
    int contents_ = 100;
};

std::string joined(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words)
        text += word + " ";
    return text;
}

/// A form's contents, whatever its name has become.
std::string contents_of(const std::string& word)
{
    return word.substr(word.size() - 3);
}

TEST(CommandsMerge, RandomWalkLosesNothing)
{
    for (unsigned seed = 0; seed < 1000; ++seed) {
        RandomSides sides(seed);
        const auto base = sides.fresh(6);
        auto mine = base, theirs = base;
        sides.change(mine);
        sides.change(theirs);
        if (sides.below(3) == 0)
            sides.add_to_both(mine, theirs);
        const auto merged_with = [&](const auto& left, const auto& right) {
            std::vector<std::string> contents;
            for (const auto& command :
                 merge_commands({commands(joined(base)), {}, {}}, {commands(joined(left)), {}, {}},
                                {commands(joined(right)), {}, {}})
                     .menu)
                contents.push_back(to_utf8(dynamic_cast<const VellumarkCommand&>(*command).separator()));
            return contents;
        };
        const auto merged = merged_with(mine, theirs);
        const auto count = [](const auto& words, const std::string& word) {
            return std::ranges::count(words, contents_of(word), contents_of);
        };
        for (const auto& words : {base, mine, theirs})
            for (const std::string& word : words) {
                const bool in_base = count(base, word) != 0;
                const bool stays = in_base ? count(mine, word) && count(theirs, word) : true;
                EXPECT_EQ(count(merged, word), stays ? 1 : 0) << seed << " " << word;
            }
        // Mine in its order, but for what the other side deleted or has changed.
        std::vector<std::string> kept, in_order;
        for (const std::string& word : mine)
            if (count(merged, word))
                kept.push_back(contents_of(word));
        for (const std::string& word : merged)
            if (count(mine, word))
                in_order.push_back(word);
        EXPECT_EQ(in_order, kept) << seed;
        const auto only_theirs = merged_with(base, theirs);
        EXPECT_EQ(only_theirs.size(), theirs.size()) << seed;
        EXPECT_EQ(merged_with(mine, base).size(), mine.size()) << seed;
    }
}

}
