#include "app/selection_intake.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>

#include <atomic>
#include <thread>

namespace {

/// Reads `selection` on a thread, without a lock, until it is asked to stop, and on until it may.
class SlowReader final : public QObject, public SelectionReader
{
    Q_OBJECT

public:
    SlowReader(SelectionReaders& readers, const std::string& selection) : readers_(readers), selection_(selection)
    {
        // Of a posted functor the thread sanitizer sees the contents, but not how Qt hands it over.
        connect(
            this, &SlowReader::ended, this, [this] { readers_.reading_ended(); }, Qt::QueuedConnection);
        readers_.add_reader(*this);
    }

    ~SlowReader() override
    {
        stop_reading();
        let_end();
        if (thread_.joinable())
            thread_.join();
        readers_.remove_reader(*this);
    }

    void start()
    {
        if (thread_.joinable())
            thread_.join();
        stops_ = false;
        reads_ = true;
        thread_ = std::thread([this] {
            const std::string before = selection_;
            const auto is_changed = [&] { return selection_ != before; };
            while (!stops_)
                changed_ = changed_ || is_changed();
            while (!may_end_)
                changed_ = changed_ || is_changed();
            reads_ = false;
            emit ended();
        });
    }

    bool is_reading() const override { return reads_; }

    void stop_reading() override { stops_ = true; }

    /// From here on it ends as soon as it is asked to.
    void let_end() { may_end_ = true; }

    bool has_seen_a_change() const { return changed_; }

signals:
    void ended();

private:
    SelectionReaders& readers_;
    const std::string& selection_;
    std::atomic<bool> stops_ = false, may_end_ = false, reads_ = false, changed_ = false;
    std::thread thread_;
};

class SelectionIntakeTest : public testing::Test
{
protected:
    SelectionIntakeTest()
    {
        QObject::connect(&intake_, &SelectionIntake::selection_ready, [this](int index, const QStringList& paths) {
            EXPECT_FALSE(intake_.is_selection_waiting());
            selection_ = std::to_string(index) + ":" + paths.join(',').toStdString();
            history_ += selection_ + " ";
            if (after_change_)
                after_change_();
        });
    }

    bool settles()
    {
        return QTest::qWaitFor([this] { return !intake_.is_selection_waiting(); }, 60'000);
    }

    SelectionIntake intake_;
    std::string selection_, history_;
    std::function<void()> after_change_;
};

}

TEST_F(SelectionIntakeTest, NobodyReads)
{
    SlowReader reader(intake_, selection_);
    intake_.take(1, {"a", "b"});
    intake_.take(-1, {"c"});
    EXPECT_EQ(history_, "1:a,b -1:c ");
}

TEST_F(SelectionIntakeTest, NewestOneIsTakenWhenAllReadersHaveEnded)
{
    SlowReader first(intake_, selection_), second(intake_, selection_);
    first.start();
    intake_.take(3, {"a"});
    EXPECT_TRUE(intake_.is_selection_waiting());
    second.start();
    intake_.take(4, {"b"});
    intake_.take(-1, {"c"});
    QCoreApplication::processEvents();
    EXPECT_EQ(history_, "");
    first.let_end();
    second.let_end();
    EXPECT_TRUE(settles());
    EXPECT_EQ(history_, "-1:c ");
    EXPECT_FALSE(first.has_seen_a_change() || second.has_seen_a_change());
}

TEST_F(SelectionIntakeTest, ReaderThatIsStartedAgainAfterEachChange)
{
    SlowReader reader(intake_, selection_);
    reader.let_end();
    after_change_ = [&] { reader.start(); };
    for (int round = 0; round < 10; ++round) {
        for (int message = 0; message < 20; ++message)
            intake_.take(message, {QString::number(round)});
        EXPECT_TRUE(settles());
        EXPECT_EQ(selection_, "19:" + std::to_string(round));
    }
    EXPECT_FALSE(reader.has_seen_a_change());
}

TEST_F(SelectionIntakeTest, ReaderThatGoesHoldsNothingUp)
{
    {
        SlowReader reader(intake_, selection_);
        reader.start();
        intake_.take(0, {"a"});
        EXPECT_EQ(history_, "");
    }
    EXPECT_TRUE(settles());
    EXPECT_EQ(history_, "0:a ");
}

#include "selection_intake_test.moc"
