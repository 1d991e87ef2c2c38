#include "engine_fixture.h"

#include <gtest/gtest.h>

namespace {

const std::string name_part = "{'item-type':'name','name-type':'full-name'}";
const std::string files_below = "{'item-type':'folder-files','indentText':'  ','startText':'\\n'}";
const std::string folders_below = "{'item-type':'folder-subfolders','indentText':'  ','startText':'\\n'}";

TEST(GenerateText, PutsSeparatorsBetweenItemsWhateverTheyYield)
{
    const TempFolder folder;
    folder.write("a");
    folder.make_folder("b");
    folder.write("c", "xyz");
    const std::string sizes = "{'separator':',','startText':'[','endText':']','fileParts':[{'item-type':'size',"
                              "'size-format':'bytes'}]";
    EXPECT_EQ(text_of(sizes + "}", folder, {"a", "b", "c"}), "[0,,3]");
    EXPECT_EQ(text_of(sizes + ",'fileParts':[]}", folder, {"a", "b"}), "[,]");
    EXPECT_EQ(text_of(sizes + "}", folder, {}), "[]");
    const std::string plain_if_one = sizes + ",'noStartEndTextIfOneItem':true";
    EXPECT_EQ(text_of(plain_if_one + "}", folder, {"c"}), "3");
    EXPECT_EQ(text_of(plain_if_one + "}", folder, {"c", "c"}), "[3,3]");
    EXPECT_EQ(text_of(plain_if_one + "}", folder, {}), "");
    EXPECT_EQ(
        text_of(plain_if_one + ",'fileFilterEnabled':true,'fileFilter':{'filterPattern':'x'}}", folder, {"a", "c"}),
        "");
}

TEST(GenerateText, SortsByEveryOrder)
{
    const TempFolder folder;
    folder.write("b", "22");
    folder.write("Z", "22");
    folder.write("a", "1");
    folder.write("deep/er", "");
    folder.make_folder("m");
    folder.set_modified("b", 300);
    folder.set_modified("Z", 100);
    folder.set_modified("a", 200);
    folder.set_modified("deep/er", 200);
    folder.set_modified("m", -5);
    const std::vector<std::pair<std::string, std::string>> cases{
        {"as-selected", "b Z a er m"},  {"name", "Z a b er m"},        {"name-rev", "m er b a Z"},
        {"size", "er m a Z b"},         {"size-rev", "b Z a m er"},    {"mod-date", "m Z a er b"},
        {"mod-date-rev", "b er a Z m"}, {"path-length", "Z a b m er"}, {"path-length-rev", "er m b a Z"},
        {"unknown", "b Z a er m"}};
    for (const auto& [order, expected] : cases)
        EXPECT_EQ(text_of("{'separator':' ','sortOrder':'" + order + "'}", folder, {"b", "Z", "a", "deep/er", "m"}),
                  expected)
            << order;
}

TEST(GenerateText, FiltersFilesAndFoldersApart)
{
    const TempFolder folder;
    folder.write("a.txt");
    folder.write("b.jpg");
    folder.make_folder("c.txt");
    folder.make_folder("d");
    const auto filtered = [&](const std::string& more) {
        return text_of("{'separator':' '," + more + "}", folder, {"a.txt", "b.jpg", "c.txt", "d"});
    };
    const std::string files = "'fileFilterEnabled':true,'fileFilter':{'filterPattern':'jpg'";
    const std::string folders = "'folderFilterEnabled':true,'folderFilter':{'filterMode':'wildcard','filterPattern':"
                                "'?'";
    EXPECT_EQ(filtered(files + "}"), "b.jpg c.txt d");
    EXPECT_EQ(filtered(files + ",'filterAction':'exclude'}"), "a.txt c.txt d");
    EXPECT_EQ(filtered(folders + "}"), "a.txt b.jpg d");
    EXPECT_EQ(filtered(folders + "},'folderParts':[" + name_part + "]"), "a.txt b.jpg c.txt d");
    EXPECT_EQ(filtered("'fileFilterEnabled':true,'fileFilter':{'filterPattern':''}"), "a.txt b.jpg c.txt d");
    EXPECT_EQ(filtered("'fileFilter':{'filterPattern':'jpg'}"), "a.txt b.jpg c.txt d");
}

class Tree : public testing::Test
{
protected:
    Tree()
    {
        folder_.write("top/b.txt");
        folder_.write("top/A.txt");
        folder_.write("top/sub/c.txt");
        folder_.write("top/sub/skip/d.txt");
        folder_.write("top/sub/deeper/e.txt");
        folder_.make_folder("top/empty");
        folder_.make_link("top/up", "..");
        folder_.make_link("top/linked.txt", "b.txt");
        folder_.make_link("link", "top");
    }

    TempFolder folder_;
};

TEST_F(Tree, FilesOfFoldersTakeTheFoldersPlace)
{
    const std::string expand = "{'separator':' ','addFilesFromFolders':true";
    EXPECT_EQ(text_of(expand + "}", folder_, {"top", "top/b.txt"}), "A.txt b.txt linked.txt c.txt e.txt d.txt b.txt");
    EXPECT_EQ(text_of(expand + "}", folder_, {"link"}), "A.txt b.txt linked.txt c.txt e.txt d.txt");
    EXPECT_EQ(text_of(expand + ",'limitFolderDepth':true,'maxFolderDepth':1}", folder_, {"top"}),
              "A.txt b.txt linked.txt");
    EXPECT_EQ(text_of(expand + ",'limitFolderDepth':true,'maxFolderDepth':2}", folder_, {"top"}),
              "A.txt b.txt linked.txt c.txt");
    EXPECT_EQ(text_of(expand + ",'maxFolderDepth':1}", folder_, {"top/sub", "top/empty"}), "c.txt e.txt d.txt");
    EXPECT_EQ(text_of(expand + ",'folderFilterEnabled':true,'folderFilter':{'filterMode':'regex','filterAction':"
                               "'exclude','filterPattern':'^(skip|top)$'}}",
                      folder_, {"top"}),
              "A.txt b.txt linked.txt c.txt e.txt");
}

TEST_F(Tree, FolderPartsNestAndIndent)
{
    const std::string tree = "{'folderParts':[" + name_part + "," + folders_below + "," + files_below + "]";
    EXPECT_EQ(text_of(tree + "}", folder_, {"top"}), "top\n"
                                                     "  empty\n"
                                                     "  sub\n"
                                                     "    deeper\n"
                                                     "      e.txt\n"
                                                     "    skip\n"
                                                     "      d.txt\n"
                                                     "    c.txt\n"
                                                     "  up\n"
                                                     "  A.txt\n"
                                                     "  b.txt\n"
                                                     "  linked.txt");
    EXPECT_EQ(text_of(tree + ",'fileFilterEnabled':true,'fileFilter':{'filterMode':'wildcard','filterPattern':'c*'},"
                             "'folderFilterEnabled':true,'folderFilter':{'filterPattern':'x','filterAction':"
                             "'exclude'}}",
                      folder_, {"top/sub", "top/empty"}),
              "sub\n  deeper\n  skip\n  c.txt\nempty");
    EXPECT_EQ(text_of("{'folderParts':[" + files_below + "]}", folder_, {"link"}),
              "\n  A.txt\n  b.txt\n  linked.txt");
    EXPECT_EQ(text_of("{'fileParts':[" + name_part + "," + files_below + "]}", folder_, {"top/sub", "top/b.txt"}),
              "sub\n  c.txt\nb.txt");
}

TEST_F(Tree, IndentsStopAtALastLineFeedAndEmptyContentsLeaveNothing)
{
    const auto contents = [&](const std::string& frame, const std::string& part) {
        return text_of("{'separator':'','folderParts':[{'item-type':'folder-files'," + frame + "}],'fileParts':[" +
                           part + "]}",
                       folder_, {"top", "top/empty"});
    };
    const std::string line = "{'item-type':'text','text':'a\\nb\\n'}";
    EXPECT_EQ(contents("'indentText':'  '", line), "  a\n  b\n  a\n  b\n  a\n  b\n");
    EXPECT_EQ(contents("'indentText':'  ','startText':'<','endText':'>'", line), "<  a\n  b\n  a\n  b\n  a\n  b\n>");
    EXPECT_EQ(contents("'indentText':'  ','startText':'<','endText':'>'", "{'item-type':'text','text':''}"), "");
    EXPECT_EQ(contents("'indentText':'>'", "{'item-type':'text','text':'\\n'}"), ">\n>\n>\n");
    EXPECT_EQ(text_of("{'separator':';','folderParts':[{'item-type':'folder-subfolders','indentText':'1','startText':"
                      "'(','endText':')'},{'item-type':'folder-files','indentText':'2'}],'fileParts':[{'item-type':"
                      "'text','text':'x\\n'}]}",
                      folder_, {"top/sub"}),
              "(12x\n1;2x\n)2x\n")
        << "a line feed at an inner end is indented by the outer level alone";
}

TEST_F(Tree, IndentsOfSeveralLinesAreIndentedThemselves)
{
    EXPECT_EQ(text_of("{'separator':',','folderParts':[{'item-type':'folder-subfolders','indentText':'1\\n'},"
                      "{'item-type':'folder-files','indentText':'2\\n3'}]}",
                      folder_, {"top/sub"}),
              "1\n2\n1\n3e.txt,2\n1\n3d.txt2\n3c.txt");
}

TEST_F(Tree, NumbersRestartInEachFolder)
{
    EXPECT_EQ(text_of("{'folderParts':[" + std::string("{'item-type':'auto-number','start':1,'step':1},") +
                          name_part + "," + files_below +
                          "],'fileParts':[{'item-type':'auto-number','start':1,'step':1},"
                          "{'item-type':'auto-number','start':1,'step':1}]}",
                      folder_, {"top/sub", "top/b.txt", "top"}),
              "1sub\n  12\n23\n4top\n  12\n  34\n  56");
}

TEST_F(Tree, ReadsEachFolderOnceForAllRunsOfASelection)
{
    MVItemsSet set(folder_.path("top"));
    RecordingSink sink;
    const auto tree = make_command("{'folderParts':[" + name_part + "," + folders_below + "," + files_below + "]}");
    const std::string first = generated(tree, set, sink);
    folder_.write("top/new.txt");
    EXPECT_EQ(generated(tree, set, sink), first);
    set.reset();
    set.add_path(folder_.path("top"));
    EXPECT_NE(generated(tree, set, sink).find("new.txt"), std::string::npos);
}

TEST(GenerateText, StopsAtTheDeepestLevel)
{
    const TempFolder folder;
    // In two steps: the standard library refuses to make so many folders at once.
    std::string chain = "d";
    for (int level = 1; level < 1100; ++level) {
        chain += "/d";
        if (level % 500 == 0 || level == 1099)
            folder.make_folder(chain);
    }
    const std::string counted = text_of("{'separator':'','fileParts':[{'item-type':'text','text':'x'},{'item-type':"
                                        "'folder-subfolders'}]}",
                                        folder, {"d"});
    EXPECT_EQ(counted, std::string(1025, 'x'));
}

}
