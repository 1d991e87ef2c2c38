#include "child_processes.h"
#include "platform/host/program_file.h"
#include "platform/host/properties/media_readers.h"
#include "platform/properties.h"
#include "raw_content.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>

#include <atomic>
#include <thread>

using namespace std::chrono_literals;
using platform::MediaReaders;

namespace {

const std::string sample = SAMPLES_FOLDER "/Films/Test Card.mp4";

std::string real_program()
{
    return platform::host_program_folder() + "/vellumark-media-reader";
}

/// For what should take two seconds, on a machine that does much else; what hangs takes a minute.
constexpr std::chrono::milliseconds generous = 20s;

/// "64" for the sample, "-" without an answer.
std::string width(MediaReaders& readers, const std::string& host_path = sample)
{
    const platform::Descriptor file(open(host_path.c_str(), O_RDONLY | O_CLOEXEC));
    const auto texts = readers.ask(file.get(), std::string_view("General;Title\0Video;Width\0Video;None\0", 36));
    const auto text = texts.find("Video;Width");
    return text == texts.end() ? "-" : text->second;
}

template <typename Action>
std::chrono::milliseconds time_of(Action action)
{
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start);
}

void signal_children(int number)
{
    for (const auto& child : child_processes())
        kill(child.id, number);
}

TEST(MediaReaders, OneProgramReadsFileAfterFile)
{
    {
        MediaReaders readers(real_program());
        EXPECT_EQ(child_processes().size(), 0U);
        EXPECT_EQ(width(readers), "64");
        const auto first = child_processes();
        ASSERT_EQ(first.size(), 1U);
        EXPECT_EQ(width(readers, FILMS_FOLDER "/silent.mkv"), "32");
        EXPECT_EQ(width(readers, SAMPLES_FOLDER "/stations.json"), "-");
        ASSERT_EQ(child_processes().size(), 1U);
        EXPECT_EQ(child_processes()[0].id, first[0].id);
        const auto link = [&first](const char* name) {
            return std::filesystem::read_symlink("/proc/" + std::to_string(first[0].id) + "/fd/" + name).string();
        };
        EXPECT_EQ(link("0") + link("1") + link("2"), "/dev/null/dev/null/dev/null");
        EXPECT_TRUE(link("3").starts_with("socket:"));
        // It closes the film after it has answered.
        const std::filesystem::path open_files("/proc/" + std::to_string(first[0].id) + "/fd");
        const auto count = [&open_files] {
            const std::filesystem::directory_iterator files(open_files);
            return std::distance(begin(files), end(files));
        };
        for (const auto end = std::chrono::steady_clock::now() + 10s; std::chrono::steady_clock::now() < end;)
            if (count() == 4)
                break;
        EXPECT_EQ(count(), 4);
    }
    EXPECT_EQ(child_processes().size(), 0U);
}

/// Programs that do nothing of what they should.
TEST(MediaReaders, WithoutAnAnswerThereAreNoTexts)
{
    const TempFolder folder;
    const auto script = [&folder](const char* name, const std::string& commands) {
        folder.write(name, "#!/bin/sh\n" + commands + "\n");
        std::filesystem::permissions(folder.host(name), std::filesystem::perms::owner_all);
        return folder.host(name);
    };

    struct Row {
        std::string program;
        std::chrono::milliseconds least, most;
    };

    const Row rows[] = {
        {folder.host("missing"), 0ms, generous},
        {folder.host(), 0ms, generous},
        {"/bin/true", 0ms, generous},
        {script("nonsense", "printf nonsense >&3; exec sleep 60"), 0ms, generous},
        {script("dies", R"(printf 'Video;Width\000640' >&3)"), 0ms, generous},
        {script("endless", R"(while :; do printf 'Video;Width\000640' >&3; done)"), 0ms, generous},
        {script("silent", "exec sleep 60"), 1990ms, generous},
        {script("stops", R"(printf 'Video;Width\000640' >&3; exec sleep 60)"), 1990ms, generous},
    };
    for (const auto& row : rows) {
        MediaReaders readers(row.program);
        const auto time = time_of([&] { EXPECT_EQ(width(readers), "-") << row.program; });
        EXPECT_GE(time, row.least) << row.program;
        EXPECT_LE(time, row.most) << row.program;
        EXPECT_EQ(child_processes().size(), 0U) << row.program;
    }
}

TEST(MediaReaders, LostProgramsAreReplaced)
{
    MediaReaders readers(real_program());
    EXPECT_EQ(width(readers), "64");
    signal_children(SIGKILL);
    EXPECT_EQ(width(readers), "64") << "killed while idle";

    signal_children(SIGSTOP);
    {
        const std::jthread killer([] {
            std::this_thread::sleep_for(200ms);
            signal_children(SIGKILL);
        });
        EXPECT_EQ(width(readers), "64") << "killed in the middle of a file";
    }

    signal_children(SIGSTOP);
    EXPECT_LE(time_of([&] { EXPECT_EQ(width(readers), "-"); }), generous);
    EXPECT_EQ(child_processes().size(), 0U);
    EXPECT_EQ(width(readers), "64") << "after one that hung";
}

/// The number of entries in an edit list, for which MediaInfo reserves memory: gigabytes, for seconds.
TEST(MediaReaders, FilmThatFillsMemory)
{
    const TempFolder folder;
    std::string film = content_of(sample);
    const std::size_t second = film.find("elst", film.find("elst") + 1);
    ASSERT_NE(second, film.npos);
    film.replace(second + 8, 4, "\x7F\xFF\xFF\xFF");
    platform::FileProperties damaged(folder.write("damaged.mp4", film));
    EXPECT_LE(time_of([&] { EXPECT_FALSE(damaged.value(u"System.Video.FrameWidth")); }), generous);

    MediaReaders readers(real_program());
    EXPECT_EQ(width(readers), "64");
    EXPECT_EQ(width(readers, folder.host("damaged.mp4")), "-");
    EXPECT_EQ(width(readers), "64");
    EXPECT_LT(peak_megabytes(), 512);
}

/// A program whose platform was killed is nobody's: it must end by itself.
TEST(MediaReaders, ProgramsEndWithTheirPlatform)
{
    ASSERT_EQ(prctl(PR_SET_CHILD_SUBREAPER, 1), 0);
    const pid_t platform_process = fork();
    if (platform_process == 0) {
        MediaReaders readers(real_program());
        _exit(width(readers) == "64" ? 0 : 1);
    }
    int status = -1;
    waitpid(platform_process, &status, 0);
    EXPECT_EQ(status, 0);
    const auto deadline = std::chrono::steady_clock::now() + 5s;
    bool is_gone = false;
    while (!is_gone && std::chrono::steady_clock::now() < deadline) {
        is_gone = waitpid(-1, &status, WNOHANG) != 0;
        std::this_thread::sleep_for(5ms);
    }
    EXPECT_TRUE(is_gone);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(child_processes().size(), 0U);
}

TEST(MediaReaders, HungProgramsDelayNobodyElse)
{
    MediaReaders readers(real_program());
    EXPECT_EQ(width(readers), "64");
    signal_children(SIGSTOP);
    std::string hung;
    std::atomic<bool> is_answered = false;
    std::jthread waiting([&] {
        hung = width(readers);
        is_answered = true;
    });
    std::this_thread::sleep_for(100ms);
    EXPECT_EQ(width(readers), "64");
    EXPECT_FALSE(is_answered) << "it waited for the one that hung";
    waiting.join();
    EXPECT_EQ(hung, "-");
}

}
