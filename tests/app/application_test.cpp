#include "app_test.h"
#include "box_answer.h"
#include "support/becomes.h"

#include <QTest>
#include <QTimer>

#include <stdexcept>

namespace {

/// Fails whenever it is painted, and at every key: by itself, for Qt leaks what it holds while a click's slot throws.
class Unusable final : public QWidget
{
    void paintEvent(QPaintEvent*) override { throw std::runtime_error("no paint"); }

    void keyPressEvent(QKeyEvent*) override { throw std::runtime_error("no key"); }
};

TEST_F(AppTest, ExceptionsAreToldAndEndNothing)
{
    const auto with = [](const std::string& text) {
        return BoxAnswer::box("An unexpected error has occurred.\n" + text, "OK");
    };
    const BoxAnswer boxes({"OK"});
    std::string expected = with("no paint");
    const auto is_told = [&] { return becomes([&] { return boxes.seen() == expected; }); };

    Unusable widget;
    widget.show();
    EXPECT_TRUE(is_told()) << boxes.seen();
    // Painted anew behind its box, it fails anew: the user has been told. Who types again wants to hear of it again.
    for (int key = 0; key < 2; ++key) {
        QTest::keyClick(&widget, Qt::Key_Space);
        expected += with("no key");
        EXPECT_TRUE(is_told()) << boxes.seen();
    }
    for (int time = 0; time < 2; ++time)
        QTimer::singleShot(0, &widget, [] { throw 7; });
    expected += with("The reason is unknown.");
    EXPECT_TRUE(is_told()) << boxes.seen();
    bool is_later = false;
    QTimer::singleShot(0, &widget, [&] { is_later = true; });
    EXPECT_TRUE(becomes([&] { return is_later; }));
    EXPECT_EQ(boxes.seen(), expected);
}

}
