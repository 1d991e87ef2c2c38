#include "sample_home.h"

#include "engine/items/mv_items_set.h"
#include "engine/text/utf.h"
#include "platform/paths.h"
#include "store/commands_file.h"
#include "store/gallery_file.h"
#include "store/json_file_reader.h"
#include "store/mv_config.h"
#include "support/never_cancelled.h"
#include "support/scoped_variable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <optional>
#include <set>

namespace json = boost::json;

namespace {

/// The files that ship, as the program reads them.
class Contents : public testing::Test
{
protected:
    Contents()
    {
        MVConfigLive::install(platform::from_host_path(RESOURCES_FOLDER));
        commands = commands_file::load_defaults();
        read_gallery(gallery);
    }

    ~Contents() override { MVConfig::set_global(nullptr); }

    static json::value file(FileKind kind) { return read_json_file(MVConfig::get_global().path(kind)); }

    /// Every file-name command that ships, under the heading for its text.
    std::vector<std::pair<std::string, std::shared_ptr<VellumarkCommand>>> texts_to_make() const
    {
        std::vector<std::pair<std::string, std::shared_ptr<VellumarkCommand>>> result;
        const auto add = [&](const std::string& place, const std::shared_ptr<MVCommandBase>& command,
                             const std::string& description) {
            const std::string names = to_utf8(command->name() + u" / " + command->display_name(true));
            if (auto makes_text = std::dynamic_pointer_cast<VellumarkCommand>(command))
                result.emplace_back("=== " + place + ": " + names + "\n" + description, std::move(makes_text));
        };
        for (const auto& command : commands.menu)
            add("Menu", command, "");
        for (const auto& command : commands.library)
            add("Library", command, "");
        for (const GalleryEntry& entry : gallery)
            add(to_utf8(entry.category), entry.command, to_utf8(entry.description) + "\n");
        return result;
    }

    /// One a command, each with its heading.
    std::vector<std::string> all_texts() const;

    StoredCommands commands;
    std::vector<GalleryEntry> gallery;

private:
    const ScopedVariable machine_{"XDG_CONFIG_DIRS", "/nonexistent"};
};

TEST_F(Contents, NothingInTheGalleryIsIgnored)
{
    // A key or value that is misspelt would be dropped or read as its default.
    const json::value value = file(FileKind::Gallery);
    const json::array& written = value.at("galleryCommands").as_array();
    ASSERT_EQ(written.size(), gallery.size());
    for (std::size_t i = 0; i < gallery.size(); ++i) {
        json::object read = gallery[i].command->to_json();
        read["category"] = to_utf8(gallery[i].category);
        read["description"] = to_utf8(gallery[i].description);
        EXPECT_EQ(serialize(read), serialize(written[i]));
    }
}

TEST_F(Contents, WordsAreComplete)
{
    std::set<std::u16string> names, categories;
    std::u16string category;
    for (const GalleryEntry& entry : gallery) {
        const std::string name = to_utf8(entry.command->name());
        EXPECT_TRUE(names.insert(entry.command->name()).second) << name << " stands twice";
        EXPECT_TRUE(entry.category == category || categories.insert(entry.category).second)
            << name << ": its category is not in one piece";
        category = entry.category;
        EXPECT_FALSE(category.empty()) << name;
        EXPECT_TRUE(entry.description.ends_with(u'.') && entry.description.find(u". ") == entry.description.npos)
            << name << ": the description is not one sentence";
    }
    EXPECT_GE(gallery.size(), 60u);
    EXPECT_GE(categories.size(), 8u);
}

TEST_F(Contents, PresetsAndTheFiltersThatFollowThem)
{
    std::vector<ExtensionsPreset> defaults;
    read_presets(file(FileKind::DefaultPresets).as_array(), defaults);
    EXPECT_EQ(commands.presets, defaults);
    std::set<std::u16string> uuids;
    for (const ExtensionsPreset& preset : defaults) {
        EXPECT_EQ(preset.uuid.size(), 36u);
        EXPECT_TRUE(uuids.insert(preset.uuid).second) << to_utf8(preset.name);
    }
    for (const auto& [heading, command] : texts_to_make()) {
        if (command->file_filter_preset_uuid().empty())
            continue;
        const auto preset = std::ranges::find(defaults, command->file_filter_preset_uuid(), &ExtensionsPreset::uuid);
        ASSERT_NE(preset, defaults.end()) << heading;
        EXPECT_EQ(command->file_filter().filter_pattern(), preset->extensions()) << heading;
    }
}

/// What the command makes of the first selection that the menu would show it for.
std::optional<std::string> text_of(const VellumarkCommand& command, const std::vector<MVItemsSet>& selections)
{
    const auto suits = [&command](const MVItemsSet& selection) { return command.is_shown_for(selection); };
    const auto selection = std::ranges::find_if(selections, suits);
    if (selection == selections.end())
        return std::nullopt;
    std::u16string text;
    NeverCancelled sink;
    command.generate_text(text, *selection, sink);
    return to_utf8(text);
}

std::vector<std::string> Contents::all_texts() const
{
    const SampleHome samples;
    std::vector<MVItemsSet> selections;
    for (const auto& paths : SampleHome::selections())
        selections.emplace_back(paths);
    std::vector<std::string> texts;
    for (const auto& [heading, command] : texts_to_make()) {
        const auto text = text_of(*command, selections);
        EXPECT_TRUE(text) << heading << " is shown for none of the selections";
        texts.push_back(heading + "\n" + text.value_or("") + "\n\n");
    }
    return texts;
}

TEST_F(Contents, TextsAreTheReviewedOnes)
{
    if (!HAS_ALL_METADATA)
        GTEST_SKIP() << "the reviewed texts have properties that this build doesn't read";
    const std::vector<std::string> texts = all_texts();
    if (std::getenv("VELLUMARK_WRITE_TEXTS")) {
        std::ofstream file(REVIEWED_TEXTS, std::ios::binary);
        std::ranges::copy(texts, std::ostream_iterator<std::string>(file));
        ASSERT_TRUE(file.flush());
        GTEST_SKIP() << "wrote " REVIEWED_TEXTS ", to be reviewed";
    }
    std::ifstream file(REVIEWED_TEXTS, std::ios::binary);
    const std::string reviewed(std::istreambuf_iterator<char>(file), {});
    std::size_t at = 0;
    for (const std::string& text : texts) {
        ASSERT_EQ(reviewed.substr(at, text.size()), text)
            << "When the new texts are right: VELLUMARK_WRITE_TEXTS=1 build/dev/bin/contents_tests";
        at += text.size();
    }
    EXPECT_EQ(reviewed.substr(at), "");
}

}
