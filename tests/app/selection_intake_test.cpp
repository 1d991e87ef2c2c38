#include "app/selection_intake.h"
#include "app/selection_paths.h"
#include "engine/text/utf.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <functional>

namespace {

/// Reads from its start on until it is told that it has ended.
class Reader final : public SelectionReader
{
public:
    explicit Reader(SelectionReaders& readers) : readers_(readers) { readers_.add_reader(*this); }

    ~Reader() { readers_.remove_reader(*this); }

    bool is_reading() const override { return state_ != Ended; }

    void stop_reading() override { state_ = Stopping; }

    void start() { state_ = Reading; }

    void end()
    {
        EXPECT_EQ(state_, Stopping) << "nobody asked it";
        state_ = Ended;
        readers_.reading_ended();
    }

private:
    enum State { Ended, Reading, Stopping } state_ = Ended;

    SelectionReaders& readers_;
};

class SelectionIntakeTest : public testing::Test
{
protected:
    SelectionIntakeTest()
    {
        const auto note = [this](int index, const std::shared_ptr<NewSelection>& selection) {
            EXPECT_FALSE(intake_.is_selection_waiting());
            history_ += std::to_string(index) + ":";
            for (const auto& item : selection->items.items())
                history_ += to_utf8(item->name());
            history_ += " ";
            if (after_change_)
                after_change_();
        };
        QObject::connect(&intake_, &SelectionIntake::selection_ready, note);
    }

    /// A selection of files, each named by one letter, arrives.
    void take(int index, std::string_view names)
    {
        auto selection = std::make_shared<NewSelection>();
        for (const char name : names)
            selection->items.add_path(std::u16string(u"C:\\") + static_cast<char16_t>(name),
                                      platform::FileAttributes{});
        intake_.take(index, selection);
    }

    /// All that has been let through, once events are processed.
    const std::string& settled() const
    {
        QCoreApplication::processEvents();
        return history_;
    }

    SelectionIntake intake_;
    std::string history_;
    std::function<void()> after_change_;
};

}

TEST_F(SelectionIntakeTest, NewestOneIsTakenWhenAllReadersHaveEnded)
{
    Reader first(intake_), second(intake_);
    take(1, "ab");
    take(-1, "c");
    EXPECT_EQ(history_, "1:ab -1:c ") << "nobody reads";
    first.start();
    take(3, "a");
    EXPECT_TRUE(intake_.is_selection_waiting());
    second.start();
    take(4, "b");
    take(-1, "d");
    first.end();
    EXPECT_EQ(settled(), "1:ab -1:c ");
    second.end();
    EXPECT_EQ(history_, "1:ab -1:c ") << "not inside the reader's own call";
    EXPECT_EQ(settled(), "1:ab -1:c -1:d ");
}

TEST_F(SelectionIntakeTest, ReaderThatIsStartedAgainAfterEachChange)
{
    Reader reader(intake_);
    after_change_ = [&] { reader.start(); };
    take(0, "a");
    for (int round = 1; round <= 3; ++round) {
        history_.clear();
        for (int message = 0; message < 20; ++message)
            take(message, std::to_string(round));
        reader.end();
        EXPECT_EQ(settled(), "19:" + std::to_string(round) + " ");
    }
}

TEST_F(SelectionIntakeTest, ReaderThatGoesHoldsNothingUp)
{
    {
        Reader reader(intake_);
        reader.start();
        take(0, "a");
        EXPECT_EQ(settled(), "");
    }
    EXPECT_EQ(settled(), "0:a ");
}
