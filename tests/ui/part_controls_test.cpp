#include "fake_app.h"
#include "support/becomes.h"
#include "support/preview_fixture.h"
#include "support/temp_folder.h"
#include "support/visible_labels.h"
#include "ui/controls/part_controls.h"
#include "ui/controls/property_controls_widget.h"
#include "ui/controls/property_table.h"
#include "ui/lists/commands_list_model.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <filesystem>

namespace {

/// What a control shows, in words.
std::string shown(const QWidget& control)
{
    if (const auto* combo = qobject_cast<const QComboBox*>(&control))
        return combo->currentText().toStdString();
    if (const auto* box = qobject_cast<const QCheckBox*>(&control))
        return box->isChecked() ? "on" : "off";
    if (const auto* line = qobject_cast<const QLineEdit*>(&control))
        return line->text().toStdString();
    return to_qstring(dynamic_cast<const VariableSizeTextEdit&>(control).stored_text()).toStdString();
}

/// As a user does it: picks the entry of this name, clicks, or types this text over the one that stands there.
void operate(QWidget& control, const QString& input)
{
    if (auto* combo = qobject_cast<QComboBox*>(&control)) {
        combo->showPopup();
        combo->view()->setCurrentIndex(combo->model()->index(combo->findText(input), 0));
        QTest::keyClick(combo->view(), Qt::Key_Return);
    } else if (qobject_cast<QCheckBox*>(&control)) {
        QTest::keyClick(&control, Qt::Key_Space);
    } else {
        control.setFocus();
        QTest::keySequence(&control, QKeySequence::SelectAll);
        QTest::keyClicks(&control, input);
    }
}

/// A command with one part, and its widget.
class PartControls : public testing::Test
{
protected:
    void open(const std::string& part)
    {
        app.menu.model().set_saved_commands({command_with(part)});
        app.menu.select_without_undo(0);
        edits.set_command(std::dynamic_pointer_cast<VellumarkCommand>(app.menu.command_at(0)));
        widget.reset(make_part_controls(edits.parts()->at(0)->type(), edits, app.exemplar(), nullptr));
        QObject::connect(&app.steps(), &UndoSteps::ended, widget.get(), &ItemControlsBaseWidget::refresh);
        widget->set_position(0);
        widget->show();
        widget->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(widget.get()));
    }

    /// By its accessible name, which check boxes have by their text; without a name the first one.
    template <typename Control = QWidget>
    Control& control(const QString& name = {}) const
    {
        for (auto* child : widget->findChildren<Control*>()) {
            const auto* box = qobject_cast<QCheckBox*>(child);
            const bool is_here = child->isVisible() && !qobject_cast<QLabel*>(child);
            if (is_here && (name.isEmpty() || name == (box ? box->text() : child->accessibleName())))
                return *child;
        }
        throw std::runtime_error("no control " + name.toStdString());
    }

    std::string part() const { return serialize(edits.parts()->at(0)->to_json()); }

    FakeApp app;
    TemplateEdits edits{app.lists(), VellumarkCommand::Template::Files};
    std::unique_ptr<ItemControlsBaseWidget> widget;
};

struct Case {
    const char *part, *control, *input, *step, *setting;
};

constexpr const char* name = R"("name","name-type":"ext-only","case-type":"UpperCase")";
constexpr const char* path =
    R"("path","path-type":"drive-only","limit-num-parents":true,"num-parents":7,"separator-text":"x")";
constexpr const char* date = R"("date","dateType":"created","dateFormat":"hour-24","addLeadingZeros":false)";
constexpr const char* size = R"("size","size-format":"bytes")";
constexpr const char* checksum = R"("checksum","checksum-type":"md5")";
constexpr const char* number = R"("auto-number","start":1,"step":1,"nDigits":4)";
constexpr const char* subfolders = R"("folder-subfolders")";
#define PROPERTY(type) R"("property","property-name":"System.Title","custom-format":true,"value-type":)" #type

constexpr Case cases[] = {
    {name, "Type:", "Name Only (No Extension)", "Change Name Type", R"("name-type":"name-no-ext")"},
    {name, "Case:", "KEBAB-CASE-UPPER", "Change Name Case", R"("case-type":"KebabCaseUpper")"},
    {path, "Type:", "Link Target", "Change Path Type", R"("path-type":"link-target")"},
    {path, "Separator:", " / ", "Change Separator", R"("separator-text":" / ")"},
    {path, "Limit Number of Parent Folders", "", "Change Limit Parent Folders", R"("limit-num-parents":false)"},
    {path, "Maximum Number of Parent Folders: ", "123", "Change Number of Parent Folders", R"("num-parents":123)"},
    {path, "Case:", "camelCase", "Change Path Case", R"("case-type":"CamelCase")"},
    {date, "Date Type:", "Last Accessed Date", "Change Date Type", R"("dateType":"accessed")"},
    {date, "Date Format:", "Day of Week 1 (Monday) to 7 (Sunday)", "Change Date Format", R"("dateFormat":"day-1-7")"},
    {date, "Add Leading Zeros to Make 2 Digits", "", "Change Date Leading Zeros", R"("addLeadingZeros":true)"},
    {size, "Size Format:", "Auto", "Change Size Type", R"("size-format":"auto")"},
    {size, "Add Thousands Separator", "", "Change Size Add Thousands Separator", R"("add-thousands-separator":true)"},
    {checksum, "Checksum Type:", "CRC32", "Change Checksum Type", R"("checksum-type":"crc32")"},
    {checksum, "Uppercase", "", "Change Checksum Uppercase", R"("uppercase":true)"},
    {number, "Start:", "12", "Change Auto-number Start", R"("start":12)"},
    {number, "Step:", "2147483647", "Change Auto-number Step", R"("step":2147483647)"},
    {number, "Digits Length:", "20", "Change Auto-number Digits Length", R"("nDigits":20)"},
    {number, "Add Leading Zeros", "", "Change Autonumber Add Leading Zeros", R"("addThousandsSeparator":false})"},
    {number, "Add Thousands Separator", "", "Change Autonumber Add Thousands Separator",
     R"("addThousandsSeparator":true)"},
    {R"("text","text":"<b>x</b>")", "Enter text for this part", " a ", "Change Text", R"("text":" a ")"},
    {R"("folder-files")", "Indent:", "\t", "Change Folder Contents Indent Text", R"("indentText":"\t")"},
    {subfolders, "Add to Start:", "[", "Change Folder Contents Start Text", R"("startText":"[")"},
    {subfolders, "Add to End:", "]]", "Change Folder Contents End Text", R"("endText":"]]")"},
    {PROPERTY("numeric"), "Add Thousands Separator", "", "Change Thousands Separator", R"(separator":true)"},
    {PROPERTY("datetime"), "Date Format: ", "Month as MM", "Change Date Format", R"("date-format":"month-digits")"},
    {PROPERTY("datetime") R"(,"date-format":"hour-12")", "Add Leading Zeros to Make 2 Digits", "",
     "Change Leading Zeros", R"("add-leading-zeros":true)"},
    {PROPERTY("boolean"), "Boolean Format: ", "True / False", "Change Boolean Format", R"("true-false")"},
    {PROPERTY("string"), "Case: ", "Title Case", "Change Case Type", R"("case-type":"TitleCase")"},
    {PROPERTY("size"), "Size Format: ", "Kilobytes", "Change Size Format", R"("size-format":"kbytes")"},
    {PROPERTY("size"), "Add Thousands Separator", "", "Change Thousands Separator", R"(separator":true)"},
    {PROPERTY("duration"), "Round to Nearest Second", "", "Change Round to Seconds", R"("round-to-seconds":true)"},
    {PROPERTY("duration"), "Add Thousands Separator", "", "Change Thousands Separator", R"(separator":true)"},
};

TEST_F(PartControls, EachMakesOneStepThatCanBeTakenBack)
{
    for (const Case& one : cases) {
        SCOPED_TRACE(std::string(one.part) + one.control);
        open(std::string(R"({"item-type":)") + one.part + "}");
        QWidget& edited = control(one.control);
        const std::string part_before = part(), shown_before = shown(edited);
        const int steps = app.stack.index();
        operate(edited, one.input);
        const std::string part_after = part(), shown_after = shown(edited);
        EXPECT_NE(part_before.find(one.setting) == std::string::npos,
                  part_after.find(one.setting) == std::string::npos)
            << part_after;
        ASSERT_EQ(app.stack.index(), steps + 1);
        EXPECT_EQ(app.stack.undoText().toStdString(), one.step);
        app.stack.undo();
        EXPECT_EQ(part() + shown(edited), part_before + shown_before);
        app.stack.redo();
        EXPECT_EQ(part() + shown(edited), part_after + shown_after);
        widget->refresh();
        EXPECT_EQ(app.stack.count(), steps + 1);
    }
}

TEST_F(PartControls, RunsOfTypingAreOneStepUntilSomethingElseIsChanged)
{
    open(std::string(R"({"item-type":)") + path + "}");
    auto& separator = control<QLineEdit>("Separator:");
    const int steps = app.stack.index();
    operate(separator, "abc");
    operate(control("Type:"), "Full Path");
    operate(separator, "def");
    EXPECT_EQ(app.stack.index(), steps + 3);
    QTest::keySequence(&separator, QKeySequence::Undo);
    EXPECT_EQ(separator.text(), "def") << "undo is the window's";
    QTest::keyClick(&separator, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&separator, Qt::Key_Delete);
    EXPECT_EQ(separator.text(), "");
    control("Type:").setFocus();
    EXPECT_EQ(separator.text(), "\\");
}

TEST_F(PartControls, ShowWhatTheyCouldNotSetAndRefuseToMakeMoreOfIt)
{
    open(R"({"item-type":"name","name-type":"selector-part","selector-part-index":2})");
    EXPECT_EQ(shown(control("Type:")), "");
    open(R"({"item-type":"auto-number","start":50000000000,"step":1,"nDigits":4})");
    auto& start = control<QLineEdit>("Start:");
    const int steps = app.stack.index();
    EXPECT_EQ(start.text(), "50000000000");
    start.setFocus();
    QTest::keyClicks(&start, "1-,");
    EXPECT_EQ(app.stack.index(), steps);
    control("Step:").setFocus();
    EXPECT_EQ(start.text(), "50000000000");
    operate(start, "21474836479");
    EXPECT_EQ(start.text(), "2147483647");
    operate(control("Digits Length:"), "21");
    EXPECT_EQ(shown(control("Digits Length:")), "2");
    operate(control("Step:"), "7");
    QTest::keyClick(&control("Step:"), Qt::Key_Backspace);
    EXPECT_EQ(part(), R"({"start":2147483647,"step":0,"addThousandsSeparator":false,"nDigits":2})");
    operate(control("Add Leading Zeros"), "");
    EXPECT_FALSE(control("Digits Length:").isEnabled());

    open(R"({"item-type":"path","path-type":"full-path","separator-text":")" + std::string(40'000, 'x') + "\"}");
    EXPECT_EQ(control<QLineEdit>("Separator:").text().size(), 40'000);
}

TEST_F(PartControls, AskForTheirHeightAndForDeletion)
{
    open(std::string(R"({"item-type":)") + date + "}");
    QSignalSpy resized(widget.get(), &ItemControlsBaseWidget::resized);
    QSignalSpy deleted(widget.get(), &ItemControlsBaseWidget::delete_requested);
    const int height = widget->sizeHint().height();
    operate(control("Date Format:"), "AM/PM");
    EXPECT_TRUE(becomes([&] { return resized.size() == 1; }));
    EXPECT_LT(widget->sizeHint().height(), height);
    control("Date Format:").setFocus();
    QTest::keyClick(widget->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(widget->focusWidget(), &control<QPushButton>());
    control<QPushButton>().click();
    EXPECT_EQ(deleted.size(), 1);

    auto& combo = control<QComboBox>("Date Type:");
    QWheelEvent wheel({5, 5}, combo.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    control("Date Format:").setFocus();
    QApplication::sendEvent(&combo, &wheel);
    EXPECT_EQ(combo.currentText(), "Created Date");
    EXPECT_FALSE(wheel.isAccepted());
}

/// The names, values and marks of the rows.
std::string rows(const PropertyTable& table)
{
    std::string text;
    for (int row = 0; row < table.rowCount(); ++row) {
        text += table.selectionModel()->isRowSelected(row) ? ">" : row == table.currentRow() ? "?" : "";
        text += table.item(row, 0)->text().toStdString() + "=" + table.item(row, 1)->text().toStdString() + " ";
    }
    return text;
}

TEST(PropertyTable, KeepsItsPlaceWhileRowsAndValuesCome)
{
    PropertyTable table;
    QSignalSpy chosen(&table, &PropertyTable::chosen);
    table.fill({{"s.b", "b", ""}, {"s.a", "a", ""}, {"s.A", "A", ""}});
    EXPECT_TRUE(table.choose("s.a"));
    table.fill({{"s.c", "c", "<b>3</b>"}, {"s.b", "b", "2"}, {"s.a", "a", ""}, {"s.0", "0", "0"}});
    EXPECT_EQ(rows(table), "0=0 >a= b=2 c=<b>3</b> ");
    table.fill({{"s.c", "c", ""}, {"s.b", "b", ""}});
    EXPECT_EQ(rows(table).find('>'), std::string::npos) << "no other row takes its place";
    EXPECT_FALSE(table.choose("s.a"));
    EXPECT_EQ(chosen.size(), 0);

    std::vector<ExemplarProperty> many(100);
    for (std::size_t i = 0; i < many.size(); ++i)
        many[i].canonical_name = many[i].display_name = QString::number(1000 + 2 * i);
    table.fill(many);
    table.show();
    table.resize(300, table.sizeHint().height());
    table.verticalScrollBar()->setValue(50);
    const QString top = table.itemAt(1, 1)->text();
    many.push_back({"1001", "1001", ""});
    table.fill(many);
    EXPECT_EQ(table.itemAt(1, 1)->text(), top);
    EXPECT_EQ(table.verticalScrollBar()->value(), 51);
}

class PropertyControls : public PartControls
{
protected:
    void set_exemplar(const std::u16string& file)
    {
        items = std::make_unique<MVItemsSet>(std::vector{file});
        app.exemplar().set_item(items->items()[0]);
    }

    void settle()
    {
        widget->hide();
        EXPECT_TRUE(becomes([&] { return app.exemplar().exemplar()->properties().complete; }));
        widget->show();
    }

    std::string custom() const
    {
        const auto& box = *widget->findChildren<QCheckBox*>()[1];
        return box.text().toStdString() + (box.isEnabled() ? " enabled " : " ") + shown(box);
    }

    void click(const QString& property) const
    {
        auto& table = control<PropertyTable>();
        auto* cell = table.findItems(property, Qt::MatchExactly).at(0);
        table.scrollToItem(cell);
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualItemRect(cell).center());
    }

    const TempFolder folder;
    std::unique_ptr<MVItemsSet> items;
};

TEST_F(PropertyControls, ChooseAPropertyOfTheSampleAndItsFormat)
{
    open(R"({"item-type":"property","property-name":"System.Size"})");
    EXPECT_EQ(visible_labels(*widget), "Select a file to see its properties.");
    EXPECT_EQ(custom(), "Customize Size Format off");
    set_exemplar(folder.write("<b>x<b>", "abc"));
    EXPECT_TRUE(becomes([&] { return rows(control<PropertyTable>()).find(">Size=3 bytes") != std::string::npos; }));
    const int steps = app.stack.index();
    EXPECT_NE(rows(control<PropertyTable>()).find("Filename=<b>x<b>"), std::string::npos);
    click("Size");
    EXPECT_EQ(app.stack.index(), steps);
    QTest::keyClick(&control<QCheckBox>("Customize Size Format"), Qt::Key_Space);
    EXPECT_EQ(part(), R"({"property-name":"System.Size","custom-format":true,"value-type":"size",)"
                      R"("size-format":"bytes","add-thousands-separator":false})");
    EXPECT_EQ(app.stack.undoText(), "Change Custom Format");
    EXPECT_TRUE(control("Size Format: ").isVisible());
    click("Date modified");
    EXPECT_EQ(app.stack.undoText(), "Change Property");
    EXPECT_EQ(custom(), "Customize Date Format enabled on");
    EXPECT_THROW(control("Size Format: "), std::runtime_error);
    app.stack.undo();
    EXPECT_EQ(custom(), "Customize Size Format enabled on");
    EXPECT_NE(rows(control<PropertyTable>()).find(">Size"), std::string::npos);
    EXPECT_EQ(app.stack.index(), steps + 1);
}

TEST_F(PropertyControls, KeepAPropertyThatHasNoRow)
{
    const std::string stored = R"({"property-name":"System.Nonsense","custom-format":true,"value-type":"numeric",)"
                               R"("add-thousands-separator":false})";
    open(R"({"item-type":"property",)" + stored.substr(1));
    const int steps = app.stack.index();
    widget->hide();
    set_exemplar(folder.write("gone"));
    std::filesystem::remove(folder.host("gone"));
    widget->show();
    settle();
    EXPECT_EQ(visible_labels(*widget), "The properties of gone can't be read.");
    set_exemplar(folder.write("file.txt", "abc"));
    settle();
    EXPECT_EQ(custom(), "Customize Number Format off");
    auto& hide = control<QCheckBox>("Hide Empty Values");
    hide.setChecked(true);
    EXPECT_EQ(rows(control<PropertyTable>()).find("= "), std::string::npos) << rows(control<PropertyTable>());
    hide.setChecked(false);
    EXPECT_EQ(part(), stored);
    EXPECT_EQ(app.stack.index(), steps);
}

}
