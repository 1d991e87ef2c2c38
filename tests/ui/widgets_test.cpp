#include "support/becomes.h"
#include "ui/widgets/disclosure_header.h"
#include "ui/widgets/disclosure_triangle.h"
#include "ui/widgets/expandable_container_widget.h"
#include "ui/widgets/grip_splitter.h"
#include "ui/widgets/grip_splitter_handle.h"
#include "ui/widgets/header_label.h"
#include "ui/widgets/title_painting.h"
#include "ui/widgets/variable_size_stacked_widget.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace {

/// A widget whose hint has the height that a test gives it.
class Content : public QWidget
{
public:
    explicit Content(int height) : height_(height) {}

    QSize sizeHint() const override { return {50, height_}; }

    void set_height(int height) { height_ = height; }

private:
    int height_;
};

TEST(HeightAnimation, EasesToTheHeightAndStopsThere)
{
    const HeightAnimation down{.from = 100, .to = 31, .start = 1000};
    const std::vector<std::pair<qint64, int>> cases{{1000, 100}, {1050, 96}, {1125, 66}, {1249, 31},
                                                    {1250, 31},  {9000, 31}, {999, 31}};
    for (const auto& [now, height] : cases)
        EXPECT_EQ(down.height_at(now), height) << now;
    EXPECT_FALSE(down.is_over(1249));
    EXPECT_TRUE(down.is_over(1250));
    EXPECT_TRUE(down.is_over(999));
}

TEST(ExpandableContainerWidget, RevealsItsContentInSteps)
{
    QWidget window;
    auto* container = new ExpandableContainerWidget;
    (new QVBoxLayout(&window))->addWidget(container);
    auto* content = new Content(40);
    container->set_content(content);
    window.show();
    const auto* timer = container->findChild<QTimer*>();
    ASSERT_TRUE(timer);
    EXPECT_EQ(container->sizeHint(), QSize(0, 40));

    container->animate_to_new_height();
    EXPECT_FALSE(timer->isActive());
    content->set_height(400);
    container->animate_to_new_height();
    EXPECT_EQ(content->height(), 400);
    EXPECT_EQ(container->sizeHint().height(), 40);
    ASSERT_TRUE(becomes([&] { return container->sizeHint().height() > 100; }));
    const int halfway = container->sizeHint().height();
    content->set_height(41);
    container->animate_to_new_height();
    EXPECT_EQ(container->sizeHint().height(), halfway);
    for (QDeadlineTimer deadline(1000); timer->isActive() && !deadline.hasExpired(); QTest::qWait(5)) {
        EXPECT_GE(container->sizeHint().height(), 41);
        EXPECT_LE(container->sizeHint().height(), halfway);
    }
    EXPECT_EQ(container->sizeHint().height(), 41);
    window.resize(333, 100);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_TRUE(becomes([&] { return content->size() == QSize(container->width(), 41); }));
}

TEST(Disclosure, AnswersToMouseAndKeyboard)
{
    DisclosureHeader header("View/Edit");
    DisclosureTriangle triangle;
    QSignalSpy toggled(&header, &DisclosureHeader::toggled);
    QSignalSpy clicked(&triangle, &DisclosureTriangle::clicked);
    for (QWidget* widget : {static_cast<QWidget*>(&header), static_cast<QWidget*>(&triangle)}) {
        EXPECT_TRUE(widget->focusPolicy() & Qt::TabFocus);
        QTest::mouseClick(widget, Qt::RightButton);
        QTest::keyClick(widget, Qt::Key_A);
        QTest::mouseClick(widget, Qt::LeftButton);
        QTest::keyClick(widget, Qt::Key_Space);
        QTest::keyClick(widget, Qt::Key_Return);
    }
    QString states;
    for (const QVariantList& arguments : toggled)
        states += arguments[0].toBool() ? "+" : "-";
    EXPECT_EQ(states, "+-+");
    EXPECT_EQ(clicked.count(), 3);
    EXPECT_FALSE(triangle.expanded());

    header.set_expanded(false);
    triangle.set_expanded(true);
    EXPECT_EQ(toggled.count() + clicked.count(), 6);
    EXPECT_TRUE(triangle.expanded());
}

TEST(Disclosure, TellsScreenReadersWhatItIs)
{
    DisclosureHeader header("View/Edit");
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&header);
    ASSERT_TRUE(accessible);
    EXPECT_EQ(accessible->role(), QAccessible::Button);
    EXPECT_EQ(accessible->text(QAccessible::Name), "View/Edit");
    EXPECT_TRUE(accessible->state().expandable && accessible->state().collapsed);
    accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(header.expanded() && accessible->state().expanded && !accessible->state().collapsed);

    const HeaderLabel label("Preview");
    QAccessibleInterface* title = QAccessible::queryAccessibleInterface(const_cast<HeaderLabel*>(&label));
    EXPECT_EQ(title->text(QAccessible::Name), "Preview");
    EXPECT_EQ(title->role(), QAccessible::Heading);
}

TEST(Triangle, PointsWhereItShould)
{
    EXPECT_TRUE(disclosure_triangle({9, 14}, 10, false).containsPoint({12, 14}, Qt::OddEvenFill));
    EXPECT_FALSE(disclosure_triangle({9, 14}, 10, false).containsPoint({9, 18}, Qt::OddEvenFill));
    EXPECT_TRUE(disclosure_triangle({9, 14}, 10, true).containsPoint({9, 17}, Qt::OddEvenFill));
    EXPECT_FALSE(disclosure_triangle({9, 14}, 10, true).containsPoint({13, 14}, Qt::OddEvenFill));
}

TEST(SectionTitle, StaysInTheRoomForIt)
{
    QImage image(200, 60, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    draw_section_title(painter, "Gy\u00C4pj|");
    painter.end();
    const QImage text_rows = image.copy(4, 4, 196, title_height - 4);
    QImage blank(image.size(), image.format());
    blank.fill(Qt::white);
    EXPECT_NE(text_rows, blank.copy(4, 4, 196, title_height - 4));
    EXPECT_EQ(image.copy(0, title_height, 200, 60 - title_height),
              blank.copy(0, title_height, 200, 60 - title_height));
}

TEST(GripSplitter, MovesByKeyboard)
{
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        GripSplitter splitter(orientation);
        splitter.addWidget(new QWidget);
        splitter.addWidget(new QWidget);
        splitter.resize(207, 207);
        splitter.show();
        splitter.setSizes({100, 100});
        ASSERT_TRUE(dynamic_cast<GripSplitterHandle*>(splitter.handle(1)));
        EXPECT_EQ(splitter.handleWidth(), 7);
        const bool horizontal = orientation == Qt::Horizontal;
        QTest::keyClick(splitter.handle(1), horizontal ? Qt::Key_Right : Qt::Key_Down);
        EXPECT_EQ(splitter.sizes(), (QList<int>{110, 90}));
        QTest::keyClick(splitter.handle(1), horizontal ? Qt::Key_Down : Qt::Key_Right);
        QTest::keyClick(splitter.handle(1), horizontal ? Qt::Key_Left : Qt::Key_Up);
        EXPECT_EQ(splitter.sizes(), (QList<int>{100, 100}));
        const QPointF first = grip_dots({7, 101}, Qt::Horizontal)[0];
        EXPECT_EQ(first, QPointF(3.5, 45.5));
        EXPECT_EQ(grip_dots({101, 7}, Qt::Vertical)[2], QPointF(55.5, 3.5));
    }
}

TEST(StackedWidget, IsAsHighAsThePageThatShows)
{
    VariableSizeStackedWidget stack;
    EXPECT_EQ(stack.current_index(), -1);
    stack.setCurrentIndex(0);
    auto* small = new Content(20);
    auto* large = new Content(90);
    EXPECT_EQ(stack.add_page(small), 0);
    EXPECT_EQ(stack.add_page(large), 1);
    stack.show();
    const auto shown = [&] {
        return QStringLiteral("%1%2 %3")
            .arg(small->isVisible())
            .arg(large->isVisible())
            .arg(stack.sizeHint().height());
    };
    EXPECT_EQ(shown(), "10 20");
    stack.setCurrentIndex(2);
    stack.setCurrentIndex(-1);
    EXPECT_EQ(shown(), "10 20");
    stack.setCurrentWidget(large);
    EXPECT_EQ(shown(), "01 90");
    stack.setCurrentWidget(&stack);
    EXPECT_EQ(stack.current_widget(), large);
    EXPECT_EQ(stack.index_of(&stack), -1);
}

}
