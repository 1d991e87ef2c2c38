#include "app_test.h"
#include "box_answer.h"
#include "support/becomes.h"

#include <QTest>
#include <QTimer>

#include <stdexcept>

namespace {

/// Fails whenever it is painted.
class Unpaintable final : public QPushButton
{
    void paintEvent(QPaintEvent*) override { throw std::runtime_error("no paint"); }
};

TEST_F(AppTest, ExceptionsAreToldAndEndNothing)
{
    const auto with = [](const std::string& text) {
        return BoxAnswer::box("An unexpected error has occurred.\n" + text, "OK");
    };
    const BoxAnswer boxes({"OK"});
    std::string expected = with("no paint");
    const auto is_told = [&] { return becomes([&] { return boxes.seen() == expected; }); };

    Unpaintable button;
    QObject::connect(&button, &QPushButton::clicked, [] { throw std::runtime_error("no click"); });
    button.show();
    EXPECT_TRUE(is_told()) << boxes.seen();
    // Painted anew behind its box, it fails anew: the user has been told. Who clicks again wants to hear of it again.
    for (int click = 0; click < 2; ++click) {
        QTest::mouseClick(&button, Qt::LeftButton);
        expected += with("no click");
        EXPECT_TRUE(is_told()) << boxes.seen();
    }
    for (int time = 0; time < 2; ++time)
        QTimer::singleShot(0, &button, [] { throw 7; });
    expected += with("The reason is unknown.");
    EXPECT_TRUE(is_told()) << boxes.seen();
    bool is_later = false;
    QTimer::singleShot(0, &button, [&] { is_later = true; });
    EXPECT_TRUE(becomes([&] { return is_later; }));
    EXPECT_EQ(boxes.seen(), expected);
}

}
