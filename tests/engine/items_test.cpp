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
    for (const auto* path : {u"C:\\", u"Q:\\", u"\\\\server", u"\\\\SERVER\\", u"\\\\server\\", u"c:\\"})
        EXPECT_EQ(error_of(path, set), "no error");
    ASSERT_EQ(set.items().size(), 6u);
    EXPECT_EQ(names(set.root()), "\\\\SERVER/ \\\\server/ C:/ Q:/ ");
    EXPECT_EQ(set.items()[2], set.items()[4]);
    EXPECT_EQ(set.items()[0], set.items()[5]) << "a drive's letter has no case";
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
    MVItemsSet set;
    set.add_path(folder.path("Dir/a.txt"));
    set.add_path(folder.path("Dir") + u"\\");
    EXPECT_EQ(set.items().size(), 1u);

    set.add_path(folder.path("Dir"));
    EXPECT_NE(set.items()[1].get(), set.items()[0]->parent()) << "the intermediate folder stays in the tree";
    folder_at(set, 1).load_children();
    EXPECT_EQ(names(folder_at(set, 1)), "a.txt b.txt ");
    EXPECT_EQ(names(*set.items()[0]->parent()), "a.txt ");

    set.add_path(folder.path("Dir/b.txt"));
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
    EXPECT_EQ(names(static_cast<const MVItemFolder&>(*set.root().children().find(u"C:"))), "no such folder/ ");
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
    EXPECT_EQ(parent->children().find(u"old.txt").get(), old_item);
    EXPECT_EQ(old_item->info().size, 10u);
    EXPECT_GT(parent->children().find(u"Sub")->info().modified, 0);
    EXPECT_FALSE(static_cast<const MVItemFolder&>(*parent->children().find(u"Sub")).children_loaded());
    folder.write("later");
    parent->load_children();
    EXPECT_EQ(parent->children().find(u"later"), nullptr) << "a folder is read once";
}

TEST(Names, ThatDifferInCaseAloneAreDifferentFiles)
{
    const TempFolder folder;
    for (const char* name : {"Data", "data/x", "Foo/x", "foo/y", "foo/Y", "foo/ya", "foo/x"})
        folder.write(name, name);
    const auto with_size = [](const MVItemBase& item) {
        return to_utf8(item.name()) + ":" + std::to_string(item.info().size) + " ";
    };
    MVItemsSet set;
    std::string selected;
    for (const char* name : {"Data", "data/x", "Foo/x", "foo/y", "foo"}) {
        set.add_path(folder.path(name));
        EXPECT_EQ(to_utf8(set.items().back()->full_path()), to_utf8(folder.path(name)));
        selected += with_size(*set.items().back());
    }
    EXPECT_EQ(selected, "Data:4 x:6 x:5 y:5 foo:0 ");
    folder_at(set, 4).load_children();
    std::string children;
    for (const auto& child : folder_at(set, 4).children())
        children += with_size(*child);
    EXPECT_EQ(children, "x:5 Y:5 y:5 ya:6 ");
    EXPECT_EQ(names(*set.items()[0]->parent()), "Data data/ Foo/ foo/ ");
}

TEST(Names, OfAFileThatHasBecomeAFolderOrTheReverseAreReadAnew)
{
    const TempFolder folder;
    folder.write("f");
    folder.write("d/x");
    MVItemsSet set;
    set.add_path(folder.path("f"));
    set.add_path(folder.path("d/x"));
    std::filesystem::remove(folder.host("f"));
    std::filesystem::remove_all(folder.host("d"));
    folder.write("f/y");
    folder.write("d", "a file now");
    EXPECT_EQ(error_of(folder.path("f/gone"), set), "Path subfolder is not a folder");
    set.add_path(folder.path("f/y"));
    const MVItemFolder& parent = *set.items()[0]->parent();
    EXPECT_EQ(names(parent), "d/ f/ ");
    parent.load_children();
    EXPECT_EQ(names(parent), "d f/ ");
    EXPECT_EQ(parent.children().find(u"d")->info().size, 10u);
    EXPECT_EQ(to_utf8(set.items()[1]->full_path()), to_utf8(folder.path("d/x"))) << "what was selected stays whole";
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
