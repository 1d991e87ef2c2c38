#include "support/preview_fixture.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>

namespace {

/// A selection that waits as long as it is told to.
class Readers final : public SelectionReaders
{
public:
    void add_reader(SelectionReader& reader) override { reader_ = &reader; }

    void remove_reader(SelectionReader& reader) override { EXPECT_EQ(std::exchange(reader_, nullptr), &reader); }

    void reading_ended() override
    {
        EXPECT_FALSE(reader_->is_reading());
        ++ended;
    }

    bool is_selection_waiting() const override { return waits; }

    bool waits = false;
    int ended = 0;

private:
    SelectionReader* reader_ = nullptr;
};

class PreviewGeneratorTest : public testing::Test
{
protected:
    PreviewGeneratorTest()
        : items_(std::make_shared<MVItemsSet>(folder_.write_endless("endless"))),
          generator_(std::make_unique<PreviewGenerator>(items_, readers_)), log_(*generator_)
    {}

    /// A run that doesn't end by itself, and has come to its work.
    void start_endless_run()
    {
        QSignalSpy progress(generator_.get(), &PreviewGenerator::progress_changed);
        generator_->set_command(checksums());
        const auto has_begun = [&] { return !progress.isEmpty() && !progress.back()[1].toString().isEmpty(); };
        EXPECT_TRUE(becomes(has_begun));
    }

    /// Without its events, which would bring the text.
    bool has_made_text() const
    {
        for (const QDeadlineTimer deadline(60'000); generator_->is_reading() && !deadline.hasExpired();)
            QTest::qSleep(1);
        return !generator_->is_reading();
    }

    bool stops_reading()
    {
        return becomes([this] { return !generator_->is_reading(); });
    }

    TempFolder folder_;
    Readers readers_;
    std::shared_ptr<MVItemsSet> items_;
    std::unique_ptr<PreviewGenerator> generator_;
    PreviewLog log_;
};

}

TEST_F(PreviewGeneratorTest, BurstBringsOneText)
{
    start_endless_run();
    std::string updates = log_.text();
    generator_->begin_batch();
    EXPECT_TRUE(generator_->defer_updates());
    for (int i = 0; i < 100; ++i) {
        generator_->set_command(literal(std::to_string(i)));
        updates += "...";
    }
    EXPECT_TRUE(generator_->is_updating() && !generator_->defer_updates());
    EXPECT_TRUE(settles(*generator_));
    QTest::qWait(50);
    EXPECT_EQ(log_.text(), updates + "[99]");
    EXPECT_EQ(generator_->text(), "99");
}

TEST_F(PreviewGeneratorTest, TextThatIsOvertakenOnItsWayIsDropped)
{
    generator_->set_command(literal("old"));
    EXPECT_TRUE(has_made_text() && generator_->is_updating()) << "made, but not here yet";
    EXPECT_EQ(generator_->text(), "");
    generator_->set_command(literal("new"));
    EXPECT_TRUE(settles(*generator_));
    generator_->set_command(literal("gone"));
    EXPECT_TRUE(has_made_text());
    generator_->set_command(nullptr);
    QTest::qWait(50);
    EXPECT_EQ(log_.text(), "......[new]...[]");
    EXPECT_FALSE(generator_->is_updating());
}

TEST_F(PreviewGeneratorTest, NoCommandEmptiesTheTextDuringARun)
{
    start_endless_run();
    generator_->set_command(nullptr);
    EXPECT_EQ(log_.text(), "...[]");
    EXPECT_TRUE(stops_reading());
    generator_->set_command(names());
    EXPECT_TRUE(settles(*generator_));
    EXPECT_EQ(log_.text(), "...[]...[endless]");
}

TEST_F(PreviewGeneratorTest, StartsNothingWhileASelectionWaits)
{
    start_endless_run();
    readers_.waits = true;
    generator_->stop_reading();
    EXPECT_TRUE(generator_->is_reading()) << "the worker can't have noticed yet";
    generator_->set_command(names());
    EXPECT_TRUE(becomes([this] { return readers_.ended > 0; }));
    QTest::qWait(50);
    EXPECT_TRUE(!generator_->is_reading() && generator_->is_updating());
    EXPECT_EQ(log_.text(), "......");
    readers_.waits = false;
    items_->reset();
    items_->add_path(folder_.write("other"));
    generator_->set_command(names());
    EXPECT_TRUE(settles(*generator_));
    EXPECT_EQ(log_.text(), ".........[other]");
}

TEST_F(PreviewGeneratorTest, SuspendedItWorksNot)
{
    start_endless_run();
    generator_->suspend();
    EXPECT_FALSE(generator_->is_updating()) << "nobody is to wait";
    EXPECT_TRUE(stops_reading());
    generator_->set_command(names());
    QTest::qWait(50);
    EXPECT_FALSE(generator_->is_reading() || generator_->is_updating());
    generator_->resume();
    EXPECT_TRUE(settles(*generator_));
    EXPECT_EQ(log_.text(), "......[endless]");
    generator_->set_command(nullptr);
    generator_->resume();
    EXPECT_EQ(log_.text(), "......[endless][]");
}

TEST_F(PreviewGeneratorTest, ProgressComesSlowlyAndEndsWithTheRun)
{
    QSignalSpy progress(generator_.get(), &PreviewGenerator::progress_changed);
    start_endless_run();
    progress.clear();
    QElapsedTimer time;
    time.start();
    QTest::qWait(550);
    EXPECT_LE(progress.size(), time.elapsed() / 100 + 1);
    generator_->set_command(names());
    EXPECT_TRUE(settles(*generator_));
    progress.clear();
    QTest::qWait(150);
    EXPECT_TRUE(progress.isEmpty());
}
