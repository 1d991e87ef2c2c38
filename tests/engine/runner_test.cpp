#include "engine/runner/vellumark_thread.h"
#include "engine/text/number_grouping.h"
#include "engine_fixture.h"

#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <thread>

namespace {

using namespace std::chrono_literals;

/// Keeps what it is told; `during` runs in each item report, `on_text` in each text.
class RecordingWatcher final : public VellumarkWatcher
{
public:
    void text_report(std::u16string text, std::uint32_t id) override
    {
        if (on_text)
            on_text(id);
        const std::lock_guard lock(mutex_);
        texts_.push_back(std::to_string(id) + ":" + to_utf8(text));
        changed_.notify_all();
    }

    void item_report(std::u16string_view) override
    {
        if (during)
            during();
    }

    void worker_idle() override
    {
        if (on_idle)
            on_idle();
    }

    void status_report(std::u16string_view text) override
    {
        const std::lock_guard lock(mutex_);
        statuses_.push_back(to_utf8(text));
    }

    void failure_report(std::u16string_view words, std::uint32_t id) override
    {
        const std::lock_guard lock(mutex_);
        texts_.push_back(std::to_string(id) + " failed:" + to_utf8(words));
    }

    /// All texts and failures, once there are so many.
    std::vector<std::string> texts(std::size_t count)
    {
        std::unique_lock lock(mutex_);
        changed_.wait_for(lock, 60s, [&] { return texts_.size() >= count; });
        return texts_;
    }

    std::vector<std::string> statuses()
    {
        const std::lock_guard lock(mutex_);
        return statuses_;
    }

    std::function<void()> during, on_idle;
    std::function<void(std::uint32_t)> on_text;

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<std::string> texts_, statuses_;
};

/// Whether it comes to be so within a minute.
bool becomes(const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + 60s;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(1ms);
    }
    return true;
}

/// Holds a run in its item report.
struct Gate {
    std::atomic<bool> reached = false, open = false;

    void hold()
    {
        reached = true;
        EXPECT_TRUE(becomes([this] { return open.load(); }));
    }

    bool is_reached() const
    {
        return becomes([this] { return reached.load(); });
    }
};

VellumarkCommand literal(const std::string& text)
{
    return make_command("{'fileParts':[{'item-type':'text','text':'" + text + "'}]}");
}

class Runner : public testing::Test
{
protected:
    Runner() : items_(std::make_shared<MVItemsSet>(folder_.write("f", "x"))) {}

    /// A command whose run reports an item, so that the watcher can hold it there.
    static VellumarkCommand hashing()
    {
        return make_command("{'fileParts':[{'item-type':'checksum','checksum-type':'crc32'}]}");
    }

    TempFolder folder_;
    std::shared_ptr<MVItemsSet> items_;
    RecordingWatcher watcher_;
};

using Texts = std::vector<std::string>;

TEST_F(Runner, OfABurstOnlyTheLastIsDelivered)
{
    Gate gate;
    watcher_.during = [&] { gate.hold(); };
    VellumarkThread thread(watcher_, items_);
    const VellumarkCommand blocked = hashing();
    thread.request(&blocked, 1);
    EXPECT_TRUE(gate.is_reached() && thread.is_running());
    for (std::uint32_t id = 2; id <= 11; ++id) {
        const VellumarkCommand command = literal("t" + std::to_string(id));
        thread.request(&command, id);
    }
    EXPECT_FALSE(thread.is_running());
    gate.open = true;
    EXPECT_EQ(watcher_.texts(1), Texts{"11:t11"});
    const VellumarkCommand again = literal("again");
    thread.request(&again, 12);
    EXPECT_EQ(watcher_.texts(2), (Texts{"11:t11", "12:again"}));
}

TEST_F(Runner, ANullRequestEndsTheRunWithoutAText)
{
    Gate gate;
    VellumarkThread* running = nullptr;
    watcher_.during = [&] {
        gate.reached = true;
        EXPECT_TRUE(becomes([&] { return running->is_cancelled(); }));
    };
    VellumarkThread thread(watcher_, items_);
    running = &thread;
    thread.request(nullptr, 0);
    EXPECT_FALSE(thread.is_running());
    const VellumarkCommand blocked = hashing(), next = literal("next");
    thread.request(&blocked, 1);
    EXPECT_TRUE(gate.is_reached());
    thread.request(nullptr, 2);
    thread.request(&next, 3);
    EXPECT_EQ(watcher_.texts(1), Texts{"3:next"});
}

TEST_F(Runner, IsIdleOnlyWhenACancelledRunHasReallyEnded)
{
    Gate gate;
    std::atomic<int> told = 0;
    watcher_.during = [&] { gate.hold(); };
    VellumarkThread thread(watcher_, items_);
    watcher_.on_idle = [&] {
        std::this_thread::sleep_for(20ms); // the next request comes meanwhile
        told += thread.is_idle() && !thread.is_running() ? 1 : 100;
        throw std::runtime_error("from the slot");
    };
    EXPECT_TRUE(thread.is_idle());
    const VellumarkCommand blocked = hashing();
    for (int runs = 0; runs < 2; ++runs) {
        gate.reached = gate.open = false;
        thread.request(&blocked, 1);
        EXPECT_TRUE(gate.is_reached());
        thread.request(nullptr, 0);
        std::this_thread::sleep_for(5ms);
        EXPECT_FALSE(thread.is_running() || thread.is_idle());
        gate.open = true;
        EXPECT_TRUE(becomes([&] { return thread.is_idle(); }));
    }
    EXPECT_TRUE(becomes([&] { return told >= 2; }));
    EXPECT_EQ(told, 2);
}

TEST_F(Runner, AFailedRunIsToldAndAnswered)
{
    watcher_.during = [] { throw std::runtime_error("no luck"); };
    VellumarkThread thread(watcher_, items_);
    const VellumarkCommand command = hashing();
    thread.request(&command, 7);
    EXPECT_EQ(watcher_.texts(2), (Texts{"7 failed:no luck", "7:"}));
    EXPECT_EQ(watcher_.statuses().back(), "no luck");
}

TEST_F(Runner, AWatcherThatThrowsEndsNothing)
{
    watcher_.on_text = [](std::uint32_t id) {
        if (id == 1)
            throw std::runtime_error("from the slot");
    };
    VellumarkThread thread(watcher_, items_);
    const VellumarkCommand command = literal("x");
    thread.request(&command, 1);
    EXPECT_TRUE(becomes([&] { return !thread.is_running(); }));
    thread.request(&command, 2);
    EXPECT_EQ(watcher_.texts(1), Texts{"2:x"});
}

TEST_F(Runner, DestructionStopsALongChecksum)
{
    folder_.write_endless("f");
    Gate gate;
    gate.open = true;
    watcher_.during = [&] { gate.hold(); };
    auto thread = std::make_unique<VellumarkThread>(watcher_, items_);
    const VellumarkCommand command = hashing();
    thread->request(&command, 1);
    EXPECT_TRUE(gate.is_reached());
    const auto started = std::chrono::steady_clock::now();
    thread.reset();
    EXPECT_LT(std::chrono::steady_clock::now() - started, 60s);
    EXPECT_TRUE(watcher_.texts(0).empty());
}

TEST_F(Runner, SurvivesRequestsAtAnyMoment)
{
    std::atomic<std::uint32_t> last_text = 0;
    VellumarkThread* from_slot = nullptr;
    const VellumarkCommand text = literal("x"), sum = hashing();
    watcher_.on_text = [&](std::uint32_t id) {
        last_text = id;
        if (id % 3 == 0)
            from_slot->request(&text, id + 1'000'000);
    };
    for (int round = 0; round < 20; ++round) {
        VellumarkThread thread(watcher_, items_);
        from_slot = &thread;
        for (std::uint32_t id = 1; id <= 100; ++id) {
            thread.request(id % 7 == 0 ? nullptr : id % 2 == 0 ? &text : &sum, id);
            if (id % 5 == 0)
                std::this_thread::sleep_for(std::chrono::microseconds(id * 3));
        }
        thread.request(&text, 200);
        EXPECT_TRUE(becomes([&] { return last_text >= 200; }));
        last_text = 0;
    }
}

}
