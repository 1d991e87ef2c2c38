#include "app/path_probe.h"
#include "app/selection_paths.h"
#include "engine/text/utf.h"
#include "support/becomes.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QTest>

#include <atomic>
#include <future>
#include <new>
#include <string>
#include <thread>

namespace {

/// Looks that fail at broken paths, and don't end at those on a server that is gone until it is back, at the latest
/// when the test ends. Any other file has seven bytes.
class PathProbeTest : public testing::Test
{
protected:
    PathProbeTest()
    {
        const auto note = [this](int index, const std::shared_ptr<NewSelection>& selection) {
            answers_ += std::to_string(index) + ":";
            for (const auto& item : selection->items.items())
                answers_ += to_utf8(item->name()) + std::to_string(item->info().size);
            answers_ += selection->silent == 0 ? " " : "-" + std::to_string(selection->silent) + " ";
            newest_ = selection;
        };
        QObject::connect(probe_.get(), &PathProbe::answered, note);
    }

    ~PathProbeTest() override { bring_server_back(); }

    void bring_server_back()
    {
        if (!std::exchange(server_is_back_, true))
            back_.set_value();
    }

    bool answers(const std::string& expected)
    {
        return becomes([&] { return answers_ == expected; });
    }

    static constexpr std::chrono::milliseconds slow_look{30};
    std::promise<void> back_;
    bool server_is_back_ = false;
    std::shared_ptr<std::atomic<int>> silent_looks_ = std::make_shared<std::atomic<int>>(0);
    std::unique_ptr<PathProbe> probe_ = std::make_unique<PathProbe>(
        [back = back_.get_future().share(), looks = silent_looks_](const QString& path) {
            if (path.contains("gone")) {
                ++*looks;
                back.wait();
            } else if (path.contains("slow")) {
                std::this_thread::sleep_for(slow_look);
            } else if (path.contains("broken")) {
                throw std::bad_alloc();
            }
            return std::optional(platform::FileAttributes{.size = 7});
        },
        std::chrono::seconds(1));
    std::string answers_;
    std::shared_ptr<NewSelection> newest_;
};

}

TEST_F(PathProbeTest, NewestSelectionIsToldOnceAllItsPathsAnswered)
{
    probe_->start(1, {"C:\\a", "C:\\b"});
    EXPECT_EQ(answers_, "") << "the window goes on first";
    probe_->start(2, {"C:\\broken\\c", "C:\\d", "e"});
    EXPECT_TRUE(answers("2:d7 "));
    probe_->start(-1, {});
    EXPECT_TRUE(answers("2:d7 -1: "));
    probe_->start(3, {"C:\\gone\\a"});
    probe_->start(4, {"C:\\b"});
    EXPECT_TRUE(answers("2:d7 -1: 4:b7 "));
    probe_->start(5, {"C:\\gone\\b"});
    probe_.reset();
    QTest::qWait(20);
    EXPECT_EQ(answers_, "2:d7 -1: 4:b7 ");
}

TEST_F(PathProbeTest, SilentPathsAreTakenByTheirNamesAndAskedOnce)
{
    const QStringList paths{"C:\\gone\\a", "C:\\b", "C:\\gone\\c", "C:\\gone\\a\\x"};
    probe_->start(1, paths);
    EXPECT_TRUE(answers("1:a0b7c0x0-3 "));
    probe_->start(2, paths + paths);
    EXPECT_TRUE(answers("1:a0b7c0x0-3 2:a0b7c0x0a0b7c0x0-6 "));
    EXPECT_EQ(*silent_looks_, 3);
    answers_.clear();
    probe_->start(3, paths);
    bring_server_back();
    EXPECT_TRUE(answers("3:a7b7c7x7 "));
}

TEST_F(PathProbeTest, SlowPathsAreAskedSideBySide)
{
    constexpr int count = 200;
    QStringList paths;
    for (int i = 0; i < count; ++i)
        paths += QString("C:\\slow\\%1").arg(i);
    const QDeadlineTimer one_by_one(count * slow_look);
    probe_->start(1, paths);
    EXPECT_TRUE(becomes([&] { return newest_ != nullptr; }));
    EXPECT_EQ(newest_->silent, 0u);
    EXPECT_FALSE(one_by_one.hasExpired());
}

TEST_F(PathProbeTest, ThousandsOfSilentPathsLeaveTheOthersTheirTurn)
{
    QStringList paths;
    for (int i = 0; i < 6000; ++i)
        paths += QString("C:\\%1\\%2").arg(i / 1000 % 2 == 0 ? "gone" : "there").arg(i);
    probe_->start(1, paths);
    EXPECT_TRUE(becomes([&] { return !answers_.empty(); }));
    EXPECT_EQ(newest_->silent, 3000u);
    EXPECT_EQ(newest_->items.items().size(), 6000u);
    for (int i = 0; i < 100; ++i)
        probe_->start(i, {QString("C:\\gone\\%1").arg(10'000 + i)});
    probe_->start(7, {"C:\\there"});
    answers_.clear();
    EXPECT_TRUE(answers("7:there7 "));
    EXPECT_LE(*silent_looks_, 32);
}
