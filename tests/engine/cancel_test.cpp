#include "engine/commands/checksum_pool.h"
#include "engine/commands/folder_walk.h"
#include "engine/commands/parallel.h"
#include "engine_fixture.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <thread>

namespace {

const std::string checksums = "{'fileParts':[{'item-type':'checksum','checksum-type':'sha1'},{'item-type':'checksum',"
                              "'checksum-type':'crc32','uppercase':true}]}";

bool never()
{
    return false;
}

TEST(ForEachParallel, JoinsAllThreadsAndPassesTheFirstExceptionOn)
{
    std::atomic<int> begun = 0, ended = 0;
    const auto work = [&](std::size_t index, std::size_t) {
        ++begun;
        if (index == 1)
            throw std::runtime_error("from a worker");
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        ++ended;
    };
    EXPECT_EQ(error_of([&] { for_each_parallel(10'000, never, work); }), "from a worker");
    EXPECT_EQ(ended + 1, begun) << "every thread is joined first";
    EXPECT_LT(begun, 10'000) << "no work is begun that nobody will use";
}

TEST(ForEachParallel, DoesEachUnitOnceUnlessStopped)
{
    std::vector<std::atomic<int>> done(1000);
    const auto work = [&](std::size_t index, std::size_t thread) {
        EXPECT_LT(thread, thread_count(1000));
        ++done[index];
    };
    for_each_parallel(done.size(), never, work);
    EXPECT_TRUE(std::ranges::all_of(done, [](const auto& count) { return count == 1; }));
    for_each_parallel(
        done.size(), [] { return true; }, work);
    EXPECT_TRUE(std::ranges::all_of(done, [](const auto& count) { return count == 1; }));
    for_each_parallel(0, never, work);
    EXPECT_EQ(thread_count(1), 1u);
}

TEST(Workers, ExceptionsOfTheSinkLeaveTheRun)
{
    const TempFolder folder;
    for (int i = 0; i < 20; ++i)
        folder.write("top/" + std::to_string(i) + "/file", "x");
    const MVItemsSet set(folder.path("top"));
    RecordingSink sink;
    sink.stop = [&]() -> bool { throw std::runtime_error("no more"); };
    EXPECT_THROW(generated(make_command(checksums), set, sink), std::runtime_error);
    EXPECT_THROW(precache_folders(items_of(set), sink), std::runtime_error);
}

TEST(Checksums, AreComputedOnceAFileAndTypeWithoutRaces)
{
    const TempFolder folder;
    for (int i = 0; i < 40; ++i)
        folder.write("top/" + std::to_string(i % 4) + "/f" + std::to_string(i), std::to_string(i));
    MVItemsSet set(folder.path("top"));
    set.add_path(folder.path("top/1"));
    set.add_path(folder.path("top/1/f1"));
    RecordingSink sink;
    const auto tree = make_command("{'folderParts':[{'item-type':'folder-files'},{'item-type':'folder-subfolders'}],"
                                   "'fileParts':[{'item-type':'checksum','checksum-type':'md5'}]}");
    const std::string text = generated(tree, set, sink);
    EXPECT_EQ(sink.statuses, std::vector<std::string>{"Computing checksums..."});
    const auto hashed = [&] {
        return std::ranges::count_if(sink.items,
                                     [](const std::string& path) { return path[path.rfind("\\") + 1] == 'f'; });
    };
    EXPECT_EQ(hashed(), 40);
    EXPECT_EQ(generated(tree, set, sink), text);
    EXPECT_EQ(hashed(), 40) << "all cached";
}

TEST(Checksums, ACancelledRunKeepsWhatWasDone)
{
    const TempFolder folder;
    const std::size_t workers = thread_count(1000);
    std::vector<std::u16string> paths;
    for (std::size_t i = 0; i < 4 * workers; ++i)
        paths.push_back(folder.write("f" + std::to_string(i), std::string(200'000, 'x')));
    const MVItemsSet set(paths);
    RecordingSink sink;
    sink.stop = [&] {
        const std::lock_guard lock(sink.mutex);
        return sink.items.size() > workers;
    };
    precache_checksums(items_of(set), {ChecksumType::Sha1}, false, sink);
    const auto cached = std::ranges::count_if(
        set.items(), [](const auto& item) { return !item->cached_checksum(ChecksumType::Sha1).empty(); });
    EXPECT_GE(cached, 1);
    EXPECT_LE(cached, static_cast<std::ptrdiff_t>(workers)) << "a file that was cancelled has no checksum";
}

TEST(ExpandFiles, ReturnsWhatWasGatheredBeforeTheCancel)
{
    const TempFolder folder;
    for (const char* name : {"a/1", "a/2", "b/3", "b/4"})
        folder.write(name);
    const MVItemsSet set(std::vector{folder.path("a"), folder.path("b")});
    const std::vector<std::size_t> after_question{1, 2, 2, 3, 4, 4};
    for (std::size_t question = 0; question < after_question.size(); ++question) {
        RecordingSink sink;
        sink.stop = [&] { return sink.questions > static_cast<int>(question); };
        EXPECT_EQ(expand_files(set, 0, sink, nullptr).size(), after_question[question]) << question;
    }
}

TEST(LoadChildren, ACancelledReadCountsAsNotBegun)
{
    const TempFolder folder;
    for (int i = 0; i < 3000; ++i)
        folder.write("top/" + std::to_string(i));
    const MVItemsSet set(folder.path("top"));
    const auto& top = static_cast<const MVItemFolder&>(*set.items()[0]);
    const int questions_of_a_read = [&] {
        int asked = 0;
        const MVItemsSet other(folder.path("top"));
        static_cast<const MVItemFolder&>(*other.items()[0]).load_children([&] { return ++asked < 0; });
        return asked;
    }();
    EXPECT_GT(questions_of_a_read, 10) << "the sort asks as well";
    for (const int last : {1, 2, questions_of_a_read}) {
        int asked = 0;
        top.load_children([&] { return ++asked == last; });
        EXPECT_FALSE(top.children_loaded());
        EXPECT_TRUE(top.children().empty());
    }
    top.load_children();
    EXPECT_EQ(top.children().size(), 3000u);
}

TEST(GenerateText, ACancelledRunSortsFiltersAndStartsNoPart)
{
    const TempFolder folder;
    std::vector<std::u16string> paths;
    for (int i = 0; i < 2000; ++i)
        paths.push_back(folder.write(std::to_string(i * 7919 % 2000)));
    const MVItemsSet set(paths);
    for (const auto& [json, expected] :
         {std::pair{"{'sortOrder':'name'}", ""},
          {"{'fileFilterEnabled':true,'fileFilter':{'filterPattern':'x'}}", ""},
          {"{'startText':'<','endText':'>','fileParts':[{'item-type':'text','text':'1'}]}", "<>"}}) {
        RecordingSink sink;
        sink.stop = [] { return true; };
        EXPECT_EQ(generated(make_command(json), set, sink), expected);
        EXPECT_LT(sink.questions, 5);
    }
}

TEST(ReadAhead, ReadsNoFolderTwiceHoweverItIsSelected)
{
    const TempFolder folder;
    for (int i = 0; i < 30; ++i)
        folder.write("top/" + std::to_string(i) + "/sub/file");
    folder.make_link("top/up", ".");
    MVItemsSet set(folder.path("top"));
    set.add_path(folder.path("top/3"));
    set.add_path(folder.path("top/3/sub"));
    set.add_path(u"\\\\no-such-server");
    set.add_path(u"\\\\no-such-server");
    RecordingSink sink;
    precache_folders(items_of(set), sink);
    std::multiset<std::string> read(sink.items.begin(), sink.items.end());
    EXPECT_EQ(read.size(), 62u);
    for (const std::string& path : read)
        EXPECT_EQ(read.count(path), 1u) << path;
}

}
