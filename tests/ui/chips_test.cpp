#include "engine/parts/item_parts_list.h"
#include "ui/chips/chip_drag.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

/// Chips of 20 pixels in a row: from 4 to 24, 28 to 48, 52 to 72.
const std::vector<QRectF> three_chips = side_by_side({20, 20, 20}, 4, 36, 60);

TEST(ChipGeometry, FindsTheGapToDropInto)
{
    struct Row {
        double x;
        int dragged;
        DropTarget expected;
    };

    const Row rows[] = {
        {-100, -1, {0, 2}}, {13.9, -1, {0, 2}}, {14, -1, {1, 26}}, {37, -1, {1, 26}}, {500, -1, {3, 74}},
        {13, 0, {}},        {30, 0, {}},        {40, 0, {2, 50}},  {13, 2, {0, 2}},   {500, 2, {}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(drop_target(three_chips, row.x, row.dragged), row.expected) << row.x << " " << row.dragged;
    EXPECT_EQ(drop_target({}, 300, -1), (DropTarget{0, 2}));
}

TEST(ChipGeometry, MovesAroundItsCentre)
{
    ChipMotion motion;
    motion.set_rect({0, 0, 10, 20});
    EXPECT_FALSE(motion.animate_to({0, 0, 10, 20}, 1000));
    ASSERT_TRUE(motion.animate_to({100, 40, 21, 20}, 1000));
    EXPECT_EQ(motion.rect(), QRectF(0, 0, 10, 20)) << "it only begins";
    EXPECT_EQ(motion.goal(), QRectF(100, 40, 21, 20));
    EXPECT_TRUE(motion.advance(1100));
    EXPECT_EQ(motion.rect().size(), QSizeF(16, 20)) << "whole pixels";
    EXPECT_EQ(motion.rect().center(), QPointF(57.75, 30));
    motion.animate_to({200, 0, 10, 20}, 1150);
    motion.slide_in();
    motion.advance(1150);
    EXPECT_EQ(motion.rect(), QRectF(0, 0, 10, 20)) << "from the beginning of the row";
    EXPECT_FALSE(motion.advance(900)) << "a clock that was set back ends it";
    EXPECT_EQ(motion.rect(), QRectF(200, 0, 10, 20));
}

/// A capital is a name, another letter a text.
std::shared_ptr<ItemPartBase> part_of(char letter)
{
    if (letter < 'a')
        return std::make_shared<ItemPartName>();
    auto text = std::make_shared<ItemPartText>();
    text->set_text(std::u16string(1, static_cast<char16_t>(letter)));
    return text;
}

/// What becomes of chips for parts of these letters; a digit in `wanted` is the old chip's part itself.
std::string matched(const std::string& old, const std::string& wanted)
{
    std::vector<std::shared_ptr<ItemPartBase>> parts;
    PartsInOrder old_parts;
    PartsInOrder new_parts;
    for (const char letter : old)
        old_parts.push_back(parts.emplace_back(part_of(letter)).get());
    for (const char letter : wanted)
        new_parts.push_back(letter < 'A' ? old_parts.at(static_cast<std::size_t>(letter - '0'))
                                         : parts.emplace_back(part_of(letter)).get());
    std::string result;
    for (const int index : matched_chips(old_parts, new_parts))
        result += index < 0 ? "-" : std::to_string(index);
    return result;
}

TEST(ChipMatching, LetsAsFewChipsJumpAsPossible)
{
    struct Row {
        const char *old, *wanted, *expected;
    };

    const Row rows[] = {
        {"abc", "210", "210"}, // the same parts in another order
        {"abc", "abc", "012"}, // equal ones
        {"abc", "bcx", "120"}, // a run of equal ones; the last takes the text that is left
        {"a", "aa", "-0"},     // an equal one is found from the end
        {"aa", "a1", "01"},    // the same part before an equal one
        {"ab", "ba", "10"},    // one of two is equal in order, the other is of its type
        {"aNb", "Nx", "10"},   // types
        {"N", "a", "-"},       // nothing in common
        {"", "ab", "--"},      {"ab", "", ""},
    };
    for (const Row& row : rows)
        EXPECT_EQ(matched(row.old, row.wanted), row.expected) << row.old << " " << row.wanted;
}

std::size_t longest_run(const std::string& left, const std::string& right)
{
    if (left.empty() || right.empty())
        return 0;
    if (left.back() == right.back())
        return longest_run(left.substr(0, left.size() - 1), right.substr(0, right.size() - 1)) + 1;
    return std::max(longest_run(left.substr(0, left.size() - 1), right),
                    longest_run(left, right.substr(0, right.size() - 1)));
}

TEST(ChipMatching, KeepsALongestRunOfEqualParts)
{
    std::mt19937 random(1);
    const auto word = [&] {
        std::string letters(random() % 8, ' ');
        std::ranges::generate(letters, [&] { return "abc"[random() % 3]; });
        return letters;
    };
    for (int walk = 0; walk < 300; ++walk) {
        const std::string old = word();
        const std::string wanted = word();
        const std::string chips = matched(old, wanted);
        std::size_t equal = 0;
        for (std::size_t i = 0; i < wanted.size(); ++i)
            equal += chips[i] != '-' && old[static_cast<std::size_t>(chips[i] - '0')] == wanted[i];
        EXPECT_GE(equal, longest_run(old, wanted)) << old << " " << wanted;
    }
}

/// Drags at random, and what becomes of a plain list meanwhile.
class DragWalk : public testing::Test
{
protected:
    DragWalk()
    {
        QObject::connect(&board, &ChipBoard::edited,
                         [this](const QString& text) { told += text.toStdString() + ";"; });
    }

    QPointF middle(const Chips& chips, int index) const
    {
        return chips[static_cast<std::size_t>(index)]->rect().center();
    }

    /// In the middle of the gap before a chip.
    QPointF gap(int index) const
    {
        const bool is_end = index == static_cast<int>(row.size());
        const double x = is_end ? board.size_hint().width() + 50.0
                                : board.row()[static_cast<std::size_t>(index)]->rect().left() - 2;
        return {x, board.metrics().band_top() + 30.0};
    }

    void drag_chip(QPointF from, QPointF to)
    {
        drag.press(from);
        drag.drag((from + to) / 2);
        drag.drag(to);
    }

    void add_at(int index, bool by_click)
    {
        const QPointF from = middle(board.palette(), 1);
        if (by_click)
            drag.press(from);
        else
            drag_chip(from, gap(index));
        drag.release();
        const int place = by_click ? static_cast<int>(row.size()) : index;
        row.insert(row.begin() + place, board.row()[static_cast<std::size_t>(place)]->part());
        selected = place;
        expected += "Add Item Part;";
    }

    void move(int from, int to)
    {
        drag_chip(middle(board.row(), from), gap(to));
        drag.release();
        selected = from;
        if (to == from || to == from + 1)
            return;
        const auto part = row[static_cast<std::size_t>(from)];
        row.erase(row.begin() + from);
        selected = to > from ? to - 1 : to;
        row.insert(row.begin() + selected, part);
        expected += "Reorder Item Parts;";
    }

    void throw_out(int index, bool and_cancel)
    {
        drag_chip(middle(board.row(), index), {50, board.metrics().height() + 100.0});
        EXPECT_TRUE(board.row()[static_cast<std::size_t>(index)]->greyed());
        if (and_cancel) {
            drag.cancel();
            return;
        }
        drag.release();
        row.erase(row.begin() + index);
        selected = -1;
        expected += "Delete Item Part;";
    }

    void step()
    {
        const int size = static_cast<int>(row.size());
        const int any = size == 0 ? 0 : static_cast<int>(random() % row.size());
        const int any_gap = static_cast<int>(random() % (row.size() + 1));
        const auto act = random() % 10;
        if (size == 0 || act < 4)
            add_at(any_gap, act == 0);
        else if (act < 8)
            move(any, any_gap);
        else
            throw_out(any, act == 8);
        board.set_font({}, 80); // all are in place
    }

    std::mt19937 random{7};
    ChipBoard board{{ItemPartBase::Type::Text, ItemPartBase::Type::Name}, {}, 80};
    ChipDrag drag{board};
    std::vector<std::shared_ptr<ItemPartBase>> row;
    int selected = -1;
    std::string told, expected;
};

TEST_F(DragWalk, EndsAsAPlainListDoes)
{
    for (int i = 0; i < 500; ++i) {
        step();
        ASSERT_TRUE(std::ranges::equal(board.row(), row, {}, [](const ChipPointer& chip) { return chip->part(); }));
        ASSERT_EQ(board.selected_index(), selected);
        ASSERT_EQ(told, expected);
        ASSERT_EQ(drag.marker_x(), -1);
        ASSERT_TRUE(std::ranges::none_of(board.row(), &ItemPartBaseDraw::greyed));
    }
}

}
