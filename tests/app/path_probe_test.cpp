#include "app/path_probe.h"
#include "support/becomes.h"

#include <gtest/gtest.h>

#include <QTest>

#include <future>
#include <new>
#include <string>

namespace {

/// Looks that fail at broken paths, and never end at those on a server that is gone, until the test ends.
class PathProbeTest : public testing::Test
{
protected:
    PathProbeTest()
    {
        QObject::connect(probe_.get(), &PathProbe::answered, [this](int index, const QStringList& paths) {
            answers_ += std::to_string(index) + ":" + paths.join(',').toStdString() + " ";
        });
    }

    ~PathProbeTest() override { server_is_back_.set_value(); }

    bool answers(const std::string& expected)
    {
        return becomes([&] { return answers_ == expected; });
    }

    std::promise<void> server_is_back_;
    std::unique_ptr<PathProbe> probe_ =
        std::make_unique<PathProbe>([back = server_is_back_.get_future().share()](const QString& path) {
            if (path.startsWith("gone"))
                back.wait();
            else if (path.startsWith("broken"))
                throw std::bad_alloc();
        });
    std::string answers_;
};

}

TEST_F(PathProbeTest, NewestSelectionIsToldOnceAllItsPathsAnswered)
{
    probe_->start(1, {"a", "b"});
    EXPECT_EQ(answers_, "") << "the window goes on first";
    probe_->start(2, {"broken/c"});
    EXPECT_TRUE(answers("2:broken/c "));
    probe_->start(-1, {});
    EXPECT_TRUE(answers("2:broken/c -1: "));
}

TEST_F(PathProbeTest, SilentServerHoldsUpNothingButItsOwnSelection)
{
    probe_->start(1, {"broken/a", "gone/b"});
    probe_->start(2, {"gone/c"});
    QTest::qWait(20);
    EXPECT_EQ(answers_, "");
    probe_->start(3, {"d"});
    EXPECT_TRUE(answers("3:d "));
    probe_->start(4, {"gone/e"});
    probe_.reset();
    QTest::qWait(20);
    EXPECT_EQ(answers_, "3:d ");
}
