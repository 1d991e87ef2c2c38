#include "app/editors.h"
#include "app_test.h"
#include "engine/commands/vellumark_command.h"
#include "engine/items/mv_items_set.h"
#include "engine/parts/text_part.h"
#include "support/becomes.h"
#include "support/fake_clipboard.h"
#include "ui/controls/item_controls_base_widget.h"
#include "ui/parts/item_parts_container_widget.h"
#include "ui/parts/item_parts_widget.h"
#include "ui/preview/preview_text_edit.h"

#include <QAccessible>
#include <QMenu>
#include <QTest>
#include <QTextEdit>

namespace {

/// The window with a new command and its editing pane open.
class PartsEditor : public AppTest
{
protected:
    PartsEditor()
    {
        ship("One");
        app = std::make_unique<MirvantaApp>(editors_with(clipboard));
        app->show();
        press("New");
        app->current_editor()->set_expanded(true);
        container = app->findChild<ItemPartsContainerWidget*>();
        row = &container->parts_widget();
        row->setFocus(Qt::TabFocusReason);
    }

    /// The chips of the row as a screen reader tells them, "*" behind the selected one.
    std::string shown() const
    {
        std::string text;
        for (const ChipPointer& chip : row->board().row())
            text += "[" + chip->spoken_name().toStdString() + "]" + (chip == row->board().selected_chip() ? "*" : "");
        return text;
    }

    std::string unselected() const
    {
        std::string text = shown();
        std::erase(text, '*');
        return text;
    }

    const VellumarkCommand& command() const { return dynamic_cast<VellumarkCommand&>(*current()); }

    std::shared_ptr<MVCommandBase> current() const { return app->menu_list().current_command(); }

    QPoint middle(const ChipPointer& chip) const { return row->shown_rect(chip->rect()).center().toPoint(); }

    /// Lets chips arrive, so that a mouse meets them.
    void settle() const
    {
        EXPECT_TRUE(becomes([this] {
            return std::ranges::all_of(row->board().row(),
                                       [](const ChipPointer& chip) { return !chip->motion().is_moving(); });
        }));
    }

    void take(const ChipPointer& chip, const QPoint& to) const
    {
        settle();
        QTest::mousePress(row, Qt::LeftButton, {}, middle(chip));
        QMouseEvent move(QEvent::MouseMove, to, row->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(row, &move);
    }

    FakeClipboard clipboard;
    ItemPartsContainerWidget* container = nullptr;
    ItemPartsWidget* row = nullptr;
};

TEST_F(PartsEditor, KeysDoAllThatTheMouseDoes)
{
    struct Row {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        const char* expected;
        const char* step; ///< null for none
    };

    constexpr const char* two = "[Text][Name, Name]*";
    const Row rows[] = {
        {Qt::Key_Space, {}, "[Text]*", "Add Item Part"},
        {Qt::Key_Right, {}, "[Text]*", nullptr},
        {Qt::Key_Return, {}, two, "Add Item Part"},
        {Qt::Key_Tab, {}, two, nullptr},
        {Qt::Key_Left, Qt::ControlModifier, "[Name, Name]*[Text]", "Reorder Item Parts"},
        {Qt::Key_Left, Qt::ControlModifier, "[Name, Name]*[Text]", nullptr},
        {Qt::Key_Right, Qt::ControlModifier, two, "Reorder Item Parts"},
        {Qt::Key_Home, {}, "[Text]*[Name, Name]", nullptr},
        {Qt::Key_End, {}, two, nullptr},
        {Qt::Key_Left, {}, "[Text]*[Name, Name]", nullptr},
        {Qt::Key_Delete, {}, "[Name, Name]", "Delete Item Part"},
        {Qt::Key_Right, {}, "[Name, Name]*", nullptr},
        {Qt::Key_Backspace, {}, "", "Delete Item Part"},
        {Qt::Key_End, {}, "", nullptr},
        {Qt::Key_Space, {}, "[Checksum, MD5]*", "Add Item Part"}, // the palette has the keys of an empty row
        {Qt::Key_Delete, {}, "[Checksum, MD5]*", nullptr},
    };
    QUndoStack& stack = app->steps().stack();
    std::vector<std::string> states{unselected()};
    for (const Row& each : rows) {
        const int steps = stack.index();
        QTest::keyClick(row, each.key, each.modifiers);
        EXPECT_EQ(shown(), each.expected) << each.key;
        EXPECT_EQ(stack.index(), steps + (each.step ? 1 : 0)) << each.key;
        if (!each.step)
            continue;
        EXPECT_EQ(stack.undoText().toStdString(), each.step);
        states.push_back(unselected());
    }
    for (std::size_t state = states.size() - 1; state-- > 0;) {
        stack.undo();
        EXPECT_EQ(unselected(), states[state]);
    }
    for (std::size_t state = 1; state < states.size(); ++state) {
        stack.redo();
        EXPECT_EQ(unselected(), states[state]);
    }
}

TEST_F(PartsEditor, ArrowsAndPlacesAreMirroredFromRightToLeft)
{
    app->setLayoutDirection(Qt::RightToLeft);
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(row, Qt::Key_Space);
    settle();
    EXPECT_GT(middle(row->board().row()[0]).x(), middle(row->board().row()[1]).x());
    QTest::keyClick(row, Qt::Key_Tab);
    QTest::keyClick(row, Qt::Key_Right);
    EXPECT_EQ(shown(), "[Text]*[Text]");
    QTest::mouseClick(row, Qt::LeftButton, {}, middle(row->board().row()[1]));
    EXPECT_EQ(shown(), "[Text][Text]*");
}

TEST_F(PartsEditor, ClicksAddAndSelectWhateverMoves)
{
    const ChipPointer name = row->board().palette()[1];
    const QPoint place = middle(name);
    for (int click = 0; click < 3; ++click)
        QTest::mouseClick(row, Qt::LeftButton, {}, place);
    EXPECT_EQ(shown(), "[Name, Name][Name, Name][Name, Name]*");
    QTest::keyClick(row, Qt::Key_Left, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(shown(), "[Name, Name][Name, Name]*[Name, Name]");
    settle();
    QTest::mouseClick(row, Qt::LeftButton, {}, QPoint(row->width() - 1, middle(row->board().row()[0]).y()));
    QTest::keyClick(row, Qt::Key_Control);
    QTest::keyClick(row, Qt::Key_Backspace, Qt::AltModifier);
    QTest::keyClick(row, Qt::Key_Delete);
    EXPECT_EQ(shown(), "[Name, Name][Name, Name][Name, Name]") << "nothing shows which one would go";
}

TEST_F(PartsEditor, TabFollowsThePage)
{
    QTest::keyClick(row, Qt::Key_Space);
    QTest::keyClick(row, Qt::Key_Tab);
    QTest::keyClick(row, Qt::Key_Tab);
    ASSERT_EQ(app->focusWidget(), container->shown_controls()->findChild<QTextEdit*>());
    QTest::keyClick(app->focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    auto* remove = qobject_cast<QPushButton*>(app->focusWidget());
    ASSERT_TRUE(remove && container->isAncestorOf(remove));
    remove->click();
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(app->focusWidget(), row);
}

TEST_F(PartsEditor, ADragSurvivesWhateverHappensMeanwhile)
{
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(row, Qt::Key_Space);
    const std::string before = shown();
    const int steps = app->steps().stack().index();
    const QPoint outside(20, 200);
    const ChipPointer first = row->board().row()[0];

    take(first, outside);
    EXPECT_TRUE(first->greyed());
    for (const bool is_repeated : {false, true}) {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, {}, {}, is_repeated);
        QCoreApplication::sendEvent(row, &escape);
        EXPECT_TRUE(app->isVisible());
    }
    QTest::mouseRelease(row, Qt::LeftButton, {}, outside);
    EXPECT_EQ(shown(), before);

    take(first, outside);
    const QRectF in_hand = first->rect();
    app->on_context_menu_selected(-1, {path_of("a.txt")});
    EXPECT_TRUE(becomes([&] { return app->selected_items()->items().size() == 1; }));
    QTest::keyClick(row, Qt::Key_Tab);
    EXPECT_TRUE(row->hasFocus());
    QTest::qWait(ChipMotion::duration / 2);
    EXPECT_EQ(first->rect(), in_hand) << "a selection changes no part";
    EXPECT_TRUE(first->greyed());
    app->steps().stack().undo();
    QTest::mouseRelease(row, Qt::LeftButton, {}, outside);
    EXPECT_EQ(shown(), "[Text]") << "undo ends the drag";
    EXPECT_EQ(app->steps().stack().index(), steps - 1);

    take(row->board().row()[0], outside);
    app->menu_list().select(0);
    QTest::mouseRelease(row, Qt::LeftButton, {}, outside);
    EXPECT_EQ(app->steps().stack().undoText(), "Select Stored Command");
}

TEST_F(PartsEditor, UndoShowsTheCommandThatItChanges)
{
    QTest::keyClick(row, Qt::Key_Space);
    const auto edited = current();
    TemplateEdits edits(app->lists(), VellumarkCommand::Template::Files);
    edits.set_command(std::dynamic_pointer_cast<VellumarkCommand>(edited));
    const auto text = std::make_shared<ItemPartText>();
    text->set_text(u"<b>x</b> \U0001F600");
    edits.change_part(0, text, "Change Text", MergeId::Text);
    EXPECT_EQ(shown(), "[Text, <b>x</b> \U0001F600]*");
    edits.change_part(7, text, "Change Text", MergeId::Text);
    app->menu_list().select_without_undo(0);
    app->current_command_changed();
    EXPECT_EQ(row->selected_index(), -1);
    app->steps().stack().undo();
    EXPECT_EQ(current(), edited);
    EXPECT_EQ(shown(), "[Text]");
}

/// What a step wrote into parts that two lists share must not come back with a list.
TEST_F(PartsEditor, AListComesBackWithTheSettingsThatItHad)
{
    QUndoStack& stack = app->steps().stack();
    QTest::keyClick(row, Qt::Key_Space);
    const auto wanted = command().to_json();
    TemplateEdits edits(app->lists(), VellumarkCommand::Template::Files);
    edits.set_command(std::dynamic_pointer_cast<VellumarkCommand>(current()));
    const auto text = std::make_shared<ItemPartText>();
    text->set_text(u"x");
    edits.change_part(0, text, "Change Text", MergeId::Text);
    app->menu_list().discard(app->menu_list().current_index());
    while (stack.undoText() != "New Command")
        stack.undo();
    stack.redo();
    EXPECT_EQ(command().to_json(), wanted);
}

TEST_F(PartsEditor, ScreenReadersMeetTheChips)
{
    QTest::keyClick(row, Qt::Key_Space);
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(row);
    ASSERT_EQ(list->childCount(), 9);
    QAccessibleInterface* name = list->child(1);
    EXPECT_EQ(name->text(QAccessible::Name), "Add Name");
    EXPECT_EQ(name->role(), QAccessible::Button);
    name->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(shown(), "[Text][Name, Name]*");
    QAccessibleInterface* text = list->child(8);
    EXPECT_EQ(list->indexOfChild(text), 8);
    EXPECT_FALSE(text->state().selected);
    settle();
    EXPECT_TRUE(text->rect().contains(row->mapToGlobal(middle(row->board().row()[0]))));
    EXPECT_EQ(list->childAt(text->rect().x(), text->rect().y()), text);
    text->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(text->state().selected);
    text->actionInterface()->doAction("Delete");
    EXPECT_EQ(shown(), "[Name, Name]");
    EXPECT_EQ(list->childCount(), 9);
}

}
