#include "ui/widgets/variable_size_text_edit.h"
#include "ui/widgets/visible_whitespace.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QMimeData>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace {

/// A window with a box that shows whitespace, between two others.
class TextEditTest : public testing::Test
{
protected:
    TextEditTest()
    {
        auto* layout = new QVBoxLayout(&window);
        for (QWidget* widget : std::initializer_list<QWidget*>{before, edit, after})
            layout->addWidget(widget);
        edit->set_show_whitespace(true);
        before->setFocus();
        window.show();
        window.activateWindow();
        active = QTest::qWaitForWindowActive(&window);
    }

    QWidget window;
    QLineEdit* before = new QLineEdit;
    VariableSizeTextEdit* edit = new VariableSizeTextEdit;
    QLineEdit* after = new QLineEdit;
    bool active = false;
};

TEST(VisibleWhitespace, MarksBlanksTabsAndLineEnds)
{
    EXPECT_EQ(visible_whitespace("a b\tc\r\n\r"), QString::fromUtf16(u"a\u00B7b \u2192 c\u21B5"));
}

TEST_F(TextEditTest, GrowsWithItsTextWithinLimits)
{
    EXPECT_EQ(fitted_height(26.9), 30);
    EXPECT_EQ(fitted_height(28.9), 31);
    EXPECT_EQ(fitted_height(117), 120);
    EXPECT_EQ(fitted_height(5000), 120);

    QSignalSpy resized(edit, &VariableSizeTextEdit::size_changed);
    edit->set_stored_text(u"one");
    EXPECT_EQ(edit->minimumHeight(), 30);
    EXPECT_EQ(resized.count(), 0);
    edit->set_stored_text(u"one\ntwo\nthree");
    EXPECT_GT(edit->minimumHeight(), 40);
    EXPECT_EQ(edit->minimumHeight(), edit->maximumHeight());
    EXPECT_EQ(resized.count(), 1);
    edit->set_stored_text(std::u16string(50, u'\n'));
    EXPECT_EQ(edit->maximumHeight(), 120);
    EXPECT_EQ(resized.count(), 2);
}

TEST_F(TextEditTest, ShowsMarksUnlessItHasTheFocus)
{
    ASSERT_TRUE(active);
    QSignalSpy changed(edit, &QTextEdit::textChanged);
    const std::u16string text = u"a b\u00A0\t\nc";
    const QString marked = QString::fromUtf16(u"a\u00B7b\u00A0 \u2192 \u21B5\nc");
    const auto shown = [this] { return edit->document()->toRawText().replace(QChar::ParagraphSeparator, u'\n'); };
    edit->set_stored_text(text);
    EXPECT_EQ(shown(), marked);
    EXPECT_EQ(edit->stored_text(), text);

    edit->setFocus();
    EXPECT_EQ(shown().toStdU16String(), text);
    edit->moveCursor(QTextCursor::End);
    after->setFocus();
    EXPECT_EQ(shown(), marked);
    EXPECT_EQ(edit->stored_text(), text);
    EXPECT_EQ(changed.count(), 0);

    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_D);
    EXPECT_EQ(edit->stored_text(), text + u'd');
    EXPECT_EQ(changed.count(), 1);
    QFocusEvent below_a_menu(QEvent::FocusOut, Qt::PopupFocusReason);
    QApplication::sendEvent(edit, &below_a_menu);
    EXPECT_EQ(shown().toStdU16String(), text + u'd');

    edit->set_stored_text(u" ");
    EXPECT_FALSE(edit->hasFocus());
    EXPECT_EQ(shown(), QString(QChar(0xb7)));
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(TextEditTest, TakesDroppedTextIntoTheTextItself)
{
    edit->set_stored_text(u" ");
    QMimeData data;
    data.setText("x\ty");
    QDragEnterEvent enter(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(edit->viewport(), &enter);
    QDropEvent drop(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(edit->viewport(), &drop);
    EXPECT_EQ(edit->stored_text(), u"x\ty ");
}

TEST_F(TextEditTest, LeavesKeysToTheWindow)
{
    ASSERT_TRUE(active);
    const QShortcut undo(QKeySequence::Undo, &window);
    QSignalSpy undone(&undo, &QShortcut::activated);
    edit->set_stored_text(u"");
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_X);
    QTest::keyClick(edit, Qt::Key_Tab);
    QTest::keyClick(edit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(edit->stored_text(), u"x\t");
    EXPECT_EQ(undone.count(), 1);
    QTest::keyClick(edit, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_TRUE(after->hasFocus());
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(before->hasFocus());
}

}
