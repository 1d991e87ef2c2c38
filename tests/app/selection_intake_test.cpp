#include "app/selection_intake.h"

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
        QObject::connect(&intake_, &SelectionIntake::selection_ready, [this](int index, const QStringList& paths) {
            EXPECT_FALSE(intake_.is_selection_waiting());
            history_ += std::to_string(index) + ":" + paths.join(',').toStdString() + " ";
            if (after_change_)
                after_change_();
        });
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
    intake_.take(1, {"a", "b"});
    intake_.take(-1, {"c"});
    EXPECT_EQ(history_, "1:a,b -1:c ") << "nobody reads";
    first.start();
    intake_.take(3, {"a"});
    EXPECT_TRUE(intake_.is_selection_waiting());
    second.start();
    intake_.take(4, {"b"});
    intake_.take(-1, {"d"});
    first.end();
    EXPECT_EQ(settled(), "1:a,b -1:c ");
    second.end();
    EXPECT_EQ(history_, "1:a,b -1:c ") << "not inside the reader's own call";
    EXPECT_EQ(settled(), "1:a,b -1:c -1:d ");
}

TEST_F(SelectionIntakeTest, ReaderThatIsStartedAgainAfterEachChange)
{
    Reader reader(intake_);
    after_change_ = [&] { reader.start(); };
    intake_.take(0, {"a"});
    for (int round = 1; round <= 3; ++round) {
        history_.clear();
        for (int message = 0; message < 20; ++message)
            intake_.take(message, {QString::number(round)});
        reader.end();
        EXPECT_EQ(settled(), "19:" + std::to_string(round) + " ");
    }
}

TEST_F(SelectionIntakeTest, ReaderThatGoesHoldsNothingUp)
{
    {
        Reader reader(intake_);
        reader.start();
        intake_.take(0, {"a"});
        EXPECT_EQ(settled(), "");
    }
    EXPECT_EQ(settled(), "0:a ");
}
