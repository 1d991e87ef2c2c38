#include "editing_page.h"
#include "ui/editor/editing_pane.h"
#include "ui/widgets/disclosure_triangle.h"

#include <QAccessible>
#include <QScrollBar>
#include <QWheelEvent>

namespace {

class Pane : public EditingPage
{
protected:
    Pane()
    {
        app->resize(900, 1000);
        app->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(app.get()));
    }

    EditingPane& pane() const { return *app->findChild<EditingPane*>(); }

    /// What Tab comes to from the pane's first field on.
    std::vector<QWidget*> tab_order() const
    {
        auto& first = *app->findChild<DisclosureTriangle*>();
        first.setFocus(Qt::TabFocusReason);
        std::vector<QWidget*> fields;
        while (pane().isAncestorOf(app->focusWidget()) && fields.size() < 100) {
            fields.push_back(app->focusWidget());
            const bool types_tabs = qobject_cast<QTextEdit*>(app->focusWidget());
            QTest::keyClick(app->focusWidget(), Qt::Key_Tab, types_tabs ? Qt::ControlModifier : Qt::NoModifier);
        }
        return fields;
    }
};

TEST_F(Pane, TabFollowsThePage)
{
    for (DisclosureTriangle* each : app->findChildren<DisclosureTriangle*>())
        each->activate();
    control<QCheckBox>("Folders To Text", "Add Files From Folders").click();
    for (int twice = 0; twice < 2; ++twice) {
        control<QCheckBox>("Folders To Text", "Same As Files").click();
        QTest::qWait(300);
        int below = 0;
        const auto fields = tab_order();
        EXPECT_GT(fields.size(), 12U);
        for (QWidget* field : fields) {
            const int y = field->mapTo(pane().widget(), QPoint(0, field->height() / 2)).y();
            QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(field);
            EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << field->metaObject()->className();
            EXPECT_GE(y, below - 8) << spoken->text(QAccessible::Name).toStdString();
            below = y;
        }
    }
}

}
