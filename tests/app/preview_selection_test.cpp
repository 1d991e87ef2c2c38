#include "app/selection_intake.h"
#include "read_selection.h"
#include "support/preview_fixture.h"
#include "ui/text.h"

#include <random>

namespace {

/// An intake with a generator behind it, as the application joins them.
class PreviewSelectionTest : public testing::Test
{
protected:
    PreviewSelectionTest()
    {
        for (int i = 0; i < 20; ++i)
            paths_ += to_qstring(folder_.write("f" + std::to_string(i), std::string(5'000, 'x')));
        QObject::connect(&intake_, &SelectionIntake::selection_ready,
                         [this](int, const std::shared_ptr<NewSelection>& selection) {
                             EXPECT_FALSE(generator_ && generator_->is_reading());
                             items_->swap(selection->items);
                             refresh();
                         });
        renew_generator();
    }

    void renew_generator() { generator_ = std::make_unique<PreviewGenerator>(items_, intake_); }

    void refresh() { generator_->set_command(command_); }

    /// In the object that the generator has, its run perhaps at work.
    void edit_command(unsigned what)
    {
        if (!command_)
            return;
        command_->set_start_text(std::u16string(what % 100, u'<'));
        auto& parts = *command_->file_parts();
        if (parts.size() > 2)
            parts.remove(parts.begin());
        else
            parts.append(*names()->file_parts()->begin());
    }

    void do_something(unsigned what)
    {
        switch (what % 8) {
        case 0:
        case 1: intake_.take(-1, read_selection(paths_.mid(what % 7, 1 + what % 13))); return;
        case 2: command_ = nullptr; break;
        case 3: command_ = names(); break;
        case 4: command_ = checksums(); break;
        case 5: edit_command(what / 8); break;
        case 6: what % 3 == 0 ? generator_->suspend() : generator_->resume(); return;
        case 7: renew_generator(); return;
        }
        refresh();
    }

    bool settles_all()
    {
        return becomes([this] { return !intake_.is_selection_waiting(); }) && settles(*generator_);
    }

    TempFolder folder_;
    QStringList paths_;
    std::shared_ptr<MVItemsSet> items_ = std::make_shared<MVItemsSet>();
    SelectionIntake intake_;
    std::shared_ptr<VellumarkCommand> command_ = names();
    std::unique_ptr<PreviewGenerator> generator_;
};

}

TEST_F(PreviewSelectionTest, LastOfManySelectionsStopsTheRunAndIsShown)
{
    PreviewLog log(*generator_);
    command_ = checksums();
    intake_.take(0, read_selection({to_qstring(folder_.write_endless("endless"))}));
    EXPECT_TRUE(generator_->is_reading());
    EXPECT_FALSE(intake_.is_selection_waiting()) << "nobody was reading";
    command_ = names();
    for (int i = 0; i < 100; ++i)
        intake_.take(0, read_selection(paths_.mid(i % 18, 2)));
    EXPECT_TRUE(settles_all());
    std::string texts = log.text();
    std::erase(texts, '.');
    EXPECT_EQ(texts, "[f9,f10]");
}

TEST_F(PreviewSelectionTest, SurvivesAnythingAtAnyMoment)
{
    std::mt19937 random(5);
    for (int round = 0; round < 1000; ++round) {
        do_something(static_cast<unsigned>(random()));
        if (random() % 3 == 0)
            QTest::qWait(static_cast<int>(random() % 3));
        else
            QCoreApplication::processEvents();
    }
    generator_->resume();
    command_ = names();
    intake_.take(-1, read_selection(paths_.mid(4, 3)));
    EXPECT_TRUE(settles_all());
    EXPECT_EQ(generator_->text(), "f4,f5,f6");
}
