#include "engine/items/long_path.h"
#include "engine/items/mv_item_exception.h"
#include "engine_fixture.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <tuple>

namespace {

std::string names(const MVItemFolder& folder)
{
    std::string text;
    for (const auto& child : folder.children())
        text += to_utf8(child->name()) + (child->is_folder() ? "/ " : " ");
    return text;
}

std::string error_of(std::u16string_view path, MVItemsSet& set)
{
    return ::error_of([&] { set.add_path(path); });
}

const MVItemFolder& folder_at(const MVItemsSet& set, std::size_t index)
{
    return dynamic_cast<const MVItemFolder&>(*set.items().at(index));
}

TEST(AddPath, RefusesWhatIsNotAbsolute)
{
    for (const auto* path :
         {u"", u"C:", u"1:\\x", u"\\\\\\server\\x", u"C/x", u"/home/x", u"\\x\\y", u"\u00E9:\\x"}) {
        MVItemsSet set;
        EXPECT_EQ(error_of(path, set), "Path not absolute") << to_utf8(path);
        EXPECT_TRUE(set.root().children().empty());
    }
}

TEST(AddPath, SelectsTopLevelNodesWithoutALook)
{
    MVItemsSet set;
    for (const auto* path : {u"C:\\", u"Q:\\", u"\\\\server", u"\\\\SERVER\\"})
        EXPECT_EQ(error_of(path, set), "no error");
    ASSERT_EQ(set.items().size(), 4u);
    EXPECT_EQ(names(set.root()), "\\\\server/ C:/ Q:/ ");
    EXPECT_EQ(set.items()[2], set.items()[3]);
    EXPECT_EQ(to_utf8(set.items()[1]->full_path()), "Q:\\");
    EXPECT_EQ(set.items()[0]->drive_letter(), u"C");
    EXPECT_EQ(set.items()[2]->drive_letter(), u"");
    EXPECT_EQ(set.root().root_name(), u"");
}

TEST(AddPath, BuildsOneTreeAndKeepsWhatCameFirst)
{
    const TempFolder folder;
    folder.write("Dir/a.txt", "four");
    folder.write("Dir/b.txt");
    folder.make_folder("dir");
    MVItemsSet set;
    set.add_path(folder.path("Dir/a.txt"));
    set.add_path(folder.path("Dir") + u"\\");
    EXPECT_EQ(set.items().size(), 1u);

    set.add_path(folder.path("Dir"));
    EXPECT_NE(set.items()[1].get(), set.items()[0]->parent()) << "the intermediate folder stays in the tree";
    folder_at(set, 1).load_children();
    EXPECT_EQ(names(folder_at(set, 1)), "a.txt b.txt ");
    EXPECT_EQ(names(*set.items()[0]->parent()), "a.txt ");

    // The upper-case folder's name serves for both.
    EXPECT_EQ(error_of(folder.path("dir/a.txt"), set), "GetFileAttributesEx failed");
    set.add_path(folder.path("Dir/A.TXT").substr(0, folder.path("Dir/").size()) + u"b.txt");
    EXPECT_EQ(to_utf8(set.items()[2]->full_path()), to_utf8(folder.path("Dir/b.txt")));
    EXPECT_EQ(set.items()[0]->parent(), set.items()[2]->parent());

    set.add_path(folder.path("Dir/a.txt"));
    EXPECT_NE(set.items()[3], set.items()[0]);
    EXPECT_EQ(error_of(folder.path("Dir/a.txt/x/y"), set), "Path subfolder is not a folder");
    EXPECT_EQ(set.items().size(), 4u);
    set.reset();
    EXPECT_EQ(set.items().size(), 0u);
    EXPECT_FALSE(set.has_files());
    EXPECT_FALSE(set.root().children().empty());
}

TEST(AddPath, FailingPathsLeaveTheirFoldersAndTheExceptionNamesThePath)
{
    MVItemsSet set;
    EXPECT_EQ(error_of(u"C:\\no such folder\\deeper\\x", set), "GetFileAttributesEx failed");
    EXPECT_EQ(names(static_cast<const MVItemFolder&>(*set.root().children().find(u"c:"))), "no such folder/ ");
    try {
        set.add_path(u"nowhere");
        FAIL();
    } catch (const MVItemException& error) {
        EXPECT_EQ(error.path(), u"nowhere");
        EXPECT_EQ(error.reason(), MVItemError::PathNotAbsolute);
    }
}

TEST(AddPath, ReadsAttributesOfLinksAndFolders)
{
    const TempFolder folder;
    folder.write("file", "12345");
    folder.make_folder("sub");
    folder.make_link("to-file", "file");
    folder.make_link("to-folder", "sub");
    folder.make_link("dangling", "nowhere");
    MVItemsSet set;
    std::string text;
    for (const char* name : {"file", "sub", "to-file", "to-folder", "dangling"}) {
        set.add_path(folder.path(name));
        const MVItemInfo& info = set.items().back()->info();
        text += std::to_string(info.size) + (info.is_folder ? "d" : "") + (info.is_link ? "l" : "") + " ";
        EXPECT_GT(info.modified, 0);
    }
    EXPECT_EQ(text, "5 0d 0l 0dl 0l ");
    EXPECT_TRUE(set.has_files() && set.has_folders() && set.has_links());
}

TEST(AddPath, SurvivesAnyNumberOfComponents)
{
    std::u16string path = u"\\\\no-such-server\\";
    for (int i = 0; i < 1'000'000; ++i)
        path += u"a\\";
    MVItemsSet set(u"\\\\no-such-server");
    EXPECT_EQ(error_of(path + u"x", set), "GetFileAttributesEx failed");
    RecordingSink sink;
    EXPECT_EQ(generated(make_command("{'fileParts':[{'item-type':'checksum','checksum-type':'md5'},{'item-type':"
                                     "'folder-files'}]}"),
                        set, sink),
              "");
}

TEST(LoadChildren, MergesIntoWhatTheTreeHas)
{
    const TempFolder folder;
    folder.write("old.txt", "1");
    folder.write("Sub/deep.txt");
    MVItemsSet set;
    set.add_path(folder.path("old.txt"));
    set.add_path(folder.path("Sub/deep.txt"));
    const MVItemBase* old_item = set.items()[0].get();
    const auto* parent = old_item->parent();
    folder.write("old.txt", "now longer");
    folder.write("Zed");
    folder.write("alpha");
    parent->load_children();
    EXPECT_EQ(names(*parent), "alpha old.txt Sub/ Zed ");
    EXPECT_EQ(parent->children().find(u"OLD.TXT").get(), old_item);
    EXPECT_EQ(old_item->info().size, 10u);
    EXPECT_GT(parent->children().find(u"sub")->info().modified, 0);
    EXPECT_FALSE(static_cast<const MVItemFolder&>(*parent->children().find(u"sub")).children_loaded());
    folder.write("later");
    parent->load_children();
    EXPECT_EQ(parent->children().find(u"later"), nullptr) << "a folder is read once";
}

TEST(LoadChildren, NamesThatDifferInCaseAloneAreOneChild)
{
    const TempFolder folder;
    folder.write("both/Name", "1");
    folder.write("both/NAME", "22");
    std::vector<std::string> order;
    for (const auto& entry : std::filesystem::directory_iterator(folder.host("both")))
        order.push_back(entry.path().filename().string());
    MVItemsSet set(folder.path("both"));
    folder_at(set, 0).load_children();
    ASSERT_EQ(folder_at(set, 0).children().size(), 1u);
    const MVItemBase& child = **folder_at(set, 0).children().begin();
    EXPECT_EQ(to_utf8(child.name()), order.front());
    EXPECT_EQ(child.info().size, order.back() == "Name" ? 1u : 2u);
}

TEST(LoadChildren, VanishedFoldersAreEmpty)
{
    const TempFolder folder;
    folder.make_folder("gone");
    MVItemsSet set(folder.path("gone"));
    std::filesystem::remove(folder.host("gone"));
    folder_at(set, 0).load_children();
    EXPECT_TRUE(folder_at(set, 0).children_loaded());
    EXPECT_TRUE(folder_at(set, 0).children().empty());
}

TEST(LongPath, PrefixComesAndGoes)
{
    const std::vector<std::pair<std::u16string, std::u16string>> cases{
        {u"C:\\a", u"\\\\?\\C:\\a"}, {u"\\\\s\\x", u"\\\\?\\UNC\\s\\x"}, {u"", u"\\\\?\\"}};
    for (const auto& [plain, prefixed] : cases) {
        EXPECT_EQ(add_long_path_prefix(plain), prefixed);
        EXPECT_EQ(add_long_path_prefix(prefixed), prefixed);
        EXPECT_EQ(remove_long_path_prefix(prefixed), plain);
        EXPECT_EQ(remove_long_path_prefix(plain), plain);
    }
}

/// A chain of folders below the root of a set that never looks at the disk.
const MVItemBase& node_at(MVItemsSet& set, std::u16string path)
{
    const std::size_t cut = path.rfind(u'\\');
    set.add_path(path + (cut <= 2 || cut == path.size() - 1 ? u"" : u"\\x\\"));
    const MVItemFolder* node = &set.root();
    for (std::size_t at = 0; at < path.size();) {
        const std::size_t end = std::min(path.find(u'\\', at == 0 ? 2 : at), path.size());
        node = static_cast<const MVItemFolder*>(node->children().find(path.substr(at, end - at)).get());
        at = end + 1;
    }
    return *node;
}

TEST(PathAssembly, FollowsEveryOption)
{
    using Case = std::tuple<std::u16string, PathStyle, std::string>;
    const std::u16string file = u"C:\\a\\b\\f.txt", share = u"\\\\server\\share\\f.txt";
    const Case cases[]{
        {file, {}, R"(C:\a\b\f.txt)"},
        {file, {.separator = u"/"}, "C:/a/b/f.txt"},
        {file, {.separator = u" > "}, "C: > a > b > f.txt"},
        {file, {.max_parents = 1}, "f.txt"},
        {file, {.max_parents = 2}, R"(b\f.txt)"},
        {file, {.max_parents = 4}, R"(C:\a\b\f.txt)"},
        {file, {.max_parents = -1}, R"(C:\a\b\f.txt)"},
        {file, {.no_drive = true}, R"(\a\b\f.txt)"},
        {file, {.max_parents = 2, .no_drive = true}, R"(b\f.txt)"},
        {file, {.separator = u"\\\\", .no_drive = true}, R"(\\\\a\\b\\f.txt)"},
        {file, {.separator = u"aB", .case_type = CaseType::UpperCase}, "C:aBAaBBaBF.TXT"},
        {u"C:\\", {}, "C:\\"},
        {u"C:\\", {.separator = u"/"}, "C:/"},
        {u"C:\\", {.no_drive = true}, ""},
        {u"C:\\", {.max_parents = 1}, "C:\\"},
        {share, {}, R"(\\server\share\f.txt)"},
        {share, {.separator = u"/"}, "//server/share/f.txt"},
        {share, {.separator = u">"}, R"(\\server>share>f.txt)"},
        {share, {.separator = u"\\\\"}, R"(\\\\server\\share\\f.txt)"},
        {share, {.no_drive = true}, R"(\share\f.txt)"},
        {share, {.case_type = CaseType::CamelCase}, R"(server\share\fTxt)"},
    };
    for (const auto& [path, style, expected] : cases) {
        MVItemsSet set;
        std::u16string text = u"before ";
        node_at(set, path).append_path(text, style);
        EXPECT_EQ(to_utf8(text), "before " + expected);
    }
}

}
