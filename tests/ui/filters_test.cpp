#include "fake_app.h"
#include "ui/filters/filter_header_text.h"
#include "ui/filters/vk_file_filter_widget.h"
#include "ui/filters/vk_folder_filter_widget.h"
#include "ui/lists/commands_list_model.h"
#include "ui/presets/filter_presets_dialog.h"
#include "ui/presets/undo_presets_change.h"
#include "ui/text.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocumentFragment>

#include <sstream>

namespace {

ExtensionsPreset preset(const char16_t* uuid, const char16_t* name, std::u16string_view extensions)
{
    ExtensionsPreset made;
    made.uuid = uuid;
    made.name = name;
    made.set_extensions(extensions);
    return made;
}

/// A command with filters in their widgets, the presets "One" (a;b), "Two" (c) and "One" (d).
class Filters : public testing::Test
{
protected:
    Filters()
    {
        app.presets().set_both(
            {preset(u"1", u"One", u"a;b"), preset(u"2", u"Two", u"c"), preset(u"3", u"One", u"d")});
        page.resize(500, 600);
        file.setParent(&page);
        folder.setParent(&page);
        folder.move(0, 300);
        other.setParent(&page);
        QObject::connect(&app.steps(), &UndoSteps::ended, &page, [this] { show_current(); });
        open(R"({"name":"C","separator":"","fileParts":[]})");
        for (QWidget* child : page.findChildren<QWidget*>())
            if (child->accessibleName() == "Filter")
                QTest::keyClick(child, Qt::Key_Space);
    }

    void open(const std::string& json)
    {
        const auto first = std::make_shared<VellumarkCommand>(boost::json::parse(json).as_object());
        app.menu.model().set_saved_commands({first, std::make_shared<VellumarkCommand>(u"D")});
        app.menu.select_without_undo(0);
        show_current();
        page.show();
        page.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
    }

    void show_current()
    {
        const auto shown = std::dynamic_pointer_cast<VellumarkCommand>(app.menu.current_command());
        file.show_command(shown);
        folder.show_command(shown);
    }

    VellumarkCommand& command(int row = 0) { return dynamic_cast<VellumarkCommand&>(*app.menu.command_at(row)); }

    /// Such as "on wildcard exclude *.txt 1": the uuid last.
    std::string stored(int row = 0)
    {
        const auto fields = command_fields::file_filter(command(row));
        const auto json = fields.filter.to_json();
        return std::string(fields.is_enabled ? "on " : "off ") + json.at("filterMode").as_string().c_str() + " " +
               json.at("filterAction").as_string().c_str() + " " + json.at("filterPattern").as_string().c_str() +
               (fields.preset_uuid.empty() ? "" : " " + to_qstring(fields.preset_uuid).toStdString());
    }

    /// What is seen of the controls below the header.
    static std::string seen(const QWidget& widget)
    {
        std::string text;
        for (const auto* child : widget.findChildren<QWidget*>())
            if (!child->isVisibleTo(child->window()))
                continue;
            else if (const auto* combo = qobject_cast<const QComboBox*>(child))
                text += "<" + combo->currentText().toStdString() + "> ";
            else if (const auto* line = qobject_cast<const QLineEdit*>(child))
                text += "[" + line->text().toStdString() + (line->isEnabled() ? "] " : "]- ");
            else if (const auto* radio = qobject_cast<const QRadioButton*>(child); radio && radio->isChecked())
                text += radio->text().left(7).toStdString() + " ";
            else if (const auto* label = qobject_cast<const QLabel*>(child); label && !label->styleSheet().isEmpty())
                text += "!" + label->text().toStdString() + "! ";
        return text;
    }

    static QLineEdit& line(const QWidget& widget)
    {
        for (auto* child : widget.findChildren<QLineEdit*>())
            if (child->isVisible())
                return *child;
        throw std::runtime_error("no field");
    }

    static void choose(const QWidget& widget, const QString& name, const QString& entry)
    {
        for (auto* combo : widget.findChildren<QComboBox*>())
            if (combo->accessibleName() == name)
                combo->setCurrentIndex(combo->findText(entry));
    }

    /// "type X", "preset X", "write X" leaves X in the field, "typing X" stays in it; "exclude", "undo", "redo".
    void act(const std::string& what)
    {
        const QString verb = QString::fromStdString(what).section(' ', 0, 0);
        const QString rest = QString::fromStdString(what).section(' ', 1);
        if (verb == "type" || verb == "preset")
            choose(file, verb == "type" ? "Filter type" : "Preset:", rest);
        else if (verb == "undo")
            app.stack.undo();
        else if (verb == "redo")
            app.stack.redo();
        else if (verb == "exclude")
            file.findChildren<QRadioButton*>().back()->click();
        else {
            line(file).setFocus();
            QTest::keySequence(&line(file), QKeySequence::SelectAll);
            QTest::keyClicks(&line(file), rest);
            if (verb == "write")
                QTest::keyClick(&line(file), Qt::Key_Return);
        }
    }

    FakeApp app;
    QWidget page;
    QLineEdit other;
    VKFileFilterWidget file{app.lists(), app.presets()};
    VKFolderFilterWidget folder{app.lists()};
};

TEST_F(Filters, WriteWhatTheUserDoesAndShowWhatIsStored)
{
    struct Case {
        const char *acts, *stored, *seen, *step;
    };

    const Case cases[] = {
        {"type Wildcard, write *.txt, type Regex, write x, type Wildcard", "on wildcard include *.txt",
         "<Wildcard> [*.txt] Include ", "Change Filter Type"},
        {"type Wildcard, write a:b|c:", "on wildcard include a:b|c:",
         "<Wildcard> [a:b|c:] !Invalid filename characters: :|! Include ", "Change Filter Pattern"},
        {"type Extensions, write a/b", "on extensions include a/b",
         "<Extensions> <Custom> [a/b] !Invalid characters for extensions: /! ", "Change Filter Pattern"},
        {"type Regex, write (", "on regex include (", "<Regex> [(] !Invalid regex! Include ",
         "Change Filter Pattern"},
        {"type Regex, typing (", "on regex include ", "<Regex> [(] Include ", "Change Filter Type"},
        {"type Extensions, write .JPG; ..png;;", "on extensions include jpg;png", "<Extensions> <Custom> [jpg; png] ",
         "Change Filter Pattern"},
        {"type Extensions, preset One, preset Custom", "on extensions include a;b", "<Extensions> <Custom> [a; b] ",
         "Change Filter Preset"},
        {"type Extensions, preset One, type Regex, type Extensions", "on extensions include a;b 1",
         "<Extensions> <One> [a; b]- ", "Change Filter Type"},
        {"type Wildcard, exclude, type None", "off extensions include ", "<None> ", "Change Filter Type"},
        {"type Wildcard, exclude, type Extensions, type Regex", "on regex exclude ", "<Regex> [] Exclude ",
         "Change Filter Type"},
        {"type Wildcard, write x, undo, undo, redo, redo", "on wildcard include x", "<Wildcard> [x] Include ",
         "Change Filter Pattern"},
    };
    for (const Case& c : cases) {
        app.stack.clear();
        open(R"({"name":"C","separator":"","fileParts":[]})");
        const QStringList acts = QString(c.acts).split(", ");
        for (const QString& what : acts)
            act(what.toStdString());
        EXPECT_EQ(stored(), c.stored) << c.acts;
        EXPECT_EQ(seen(file), c.seen) << c.acts;
        EXPECT_EQ(app.stack.undoText().toStdString(), c.step) << c.acts;
        other.setFocus();
        while (app.stack.canUndo())
            app.stack.undo();
        EXPECT_EQ(stored(), "off extensions include ") << c.acts;
        EXPECT_EQ(seen(file), "<None> ") << c.acts;
    }
}

TEST_F(Filters, ShowWhateverIsStored)
{
    struct Case {
        const char *json, *seen, *folder;
    };

    const Case cases[] = {
        {R"("fileFilterEnabled":true,"folderFilterEnabled":true)", "<Extensions> <Custom> [] ", "<None> "},
        {R"("fileFilterEnabled":true,"fileFilter":{"filterMode":"odd","filterPattern":"c","fileFilterPresetUuid":"9"},
            "folderFilterEnabled":true,"folderFilter":{"filterPattern":"x"})",
         "<Extensions> <Custom> [c] ", "<> "},
        {R"("fileFilterEnabled":true,"fileFilter":{"filterPattern":"c","fileFilterPresetUuid":"3"},
            "folderFilterEnabled":true,"folderFilter":{"filterMode":"regex","filterAction":"exclude"})",
         "<Extensions> <One> [d]- ", "<Regex> [] Exclude "},
        {R"("fileFilterEnabled":false,"fileFilter":{"filterMode":"wildcard","filterPattern":"c"})", "<None> ",
         "<None> "},
    };
    for (const Case& c : cases) {
        open(std::string(R"({"name":"C","separator":"","fileParts":[],)") + c.json + "}");
        EXPECT_EQ(seen(file), c.seen) << c.json;
        EXPECT_EQ(seen(folder), c.folder) << c.json;
        EXPECT_EQ(app.stack.count(), 0) << c.json;
    }
    choose(file, "Filter type", "Wildcard");
    EXPECT_EQ(stored(), "on wildcard include c") << "what was off is there again";
}

TEST_F(Filters, WhatIsTypedGoesToItsCommandOnce)
{
    act("type Wildcard");
    act("typing *.a");
    app.lists().steps().stack().push(new UndoItemSeparatorChange(
        app.lists(), std::dynamic_pointer_cast<VellumarkCommand>(app.menu.command_at(0)), u"-", {}));
    EXPECT_EQ(seen(file), "<Wildcard> [*.a] Include ") << "a change beside it leaves it alone";
    QTest::keySequence(&line(file), QKeySequence::Undo);
    EXPECT_EQ(stored(), "on wildcard include *.a") << "for undo, which the window has, to take back";
    act("typing *.b");
    app.menu.select(1);
    EXPECT_EQ(seen(file), "<None> ");
    QCoreApplication::processEvents();
    EXPECT_EQ(stored(0) + ", " + stored(1), "on wildcard include *.b, off extensions include ");
}

TEST_F(Filters, PresetsReachTheFilterAndComeBack)
{
    act("type Extensions");
    act("preset One");
    Presets::List changed{preset(u"2", u"Two", u"c"), preset(u"1", u"<b>New", u"x;y")};
    const auto push = [&] {
        app.stack.push(new UndoPresetsChange(app.lists(), app.presets(), changed, "Change"));
        return stored() + " " + seen(file);
    };
    EXPECT_EQ(push(), "on extensions include x;y 1 <Extensions> <<b>New> [x; y]- ");
    changed.pop_back();
    EXPECT_EQ(push(), "on extensions include x;y <Extensions> <Custom> [x; y] ");
    app.stack.undo();
    app.stack.undo();
    EXPECT_EQ(stored() + " " + seen(file), "on extensions include a;b 1 <Extensions> <One> [a; b]- ");
}

TEST(FilterHeader, TellsTheFilterInOneLine)
{
    const std::tuple<FilterSummary, const char*, const char*> cases[] = {
        {{}, "Filter", "Filter"},
        {{"Regex", "a<b", false}, "Filter &mdash; <i>Regex</i>: <b>a&lt;b</b>", "Filter \u2014 Regex: a<b"},
        {{"Regex", "(", true},
         "Filter &mdash; <i>Regex</i>: <b style=\"color:red\">(</b> &nbsp;<span "
         "style=\"color:red\"><b>Invalid</b></span>",
         "Filter \u2014 Regex: ( Invalid"},
    };
    for (const auto& [summary, html, plain] : cases) {
        EXPECT_EQ(filter_header_text(summary).toStdString(), html);
        EXPECT_EQ(QTextDocumentFragment::fromHtml(html).toPlainText().simplified().toStdString(), plain);
    }
    EXPECT_EQ(fault_of(ItemFilter::Mode::Regex, "ab(").place.toStdString(), "At character 3");
    EXPECT_EQ(fault_of(ItemFilter::Mode::Wildcard, "a\nb").message.toStdString(),
              "Invalid filename characters: \u240A");
}

TEST(FilterPresetsDialog, EditsACopyByKeyboard)
{
    FilterPresetsDialog dialog({preset(u"1", u" One ", u"a;b"), preset(u"2", u"", u"c")});
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    const auto enabled = [&](const char* name) {
        for (const auto* button : dialog.findChildren<QPushButton*>())
            if (button->text().remove('&') == name)
                return button->isEnabled();
        return false;
    };
    const auto listed = [&] {
        std::string text;
        for (const ExtensionsPreset& one : dialog.presets())
            text += "[" + to_qstring(one.name + u"=" + one.extensions()).toStdString() + "]";
        return text + (enabled("Add") ? " Add" : "") + (enabled("OK") ? " OK" : "");
    };
    const auto type = [&](const QString& text) { QTest::keyClicks(dialog.focusWidget(), text); };
    const auto press = [&](Qt::Key key) { QTest::keyClick(dialog.focusWidget(), key); };
    EXPECT_EQ(listed(), "[One=a;b][=c] Add OK");
    dialog.add_preset();
    type("New");
    EXPECT_EQ(listed(), "[One=a;b][=c][New=] OK");
    press(Qt::Key_Return);
    type(".JPG; P*");
    EXPECT_EQ(listed(), "[One=a;b][=c][New=.jpg;p*] Add");
    press(Qt::Key_Backspace);
    press(Qt::Key_Return);
    EXPECT_EQ(listed(), "[One=a;b][=c][New=.jpg;p] Add OK");
    EXPECT_TRUE(dialog.isVisible());
    press(Qt::Key_Tab);
    EXPECT_EQ(dialog.focusWidget()->accessibleName(), "Delete preset New");
    press(Qt::Key_Return);
    EXPECT_EQ(dialog.focusWidget()->accessibleName(), "Delete preset ");
    press(Qt::Key_Space);
    press(Qt::Key_Space);
    EXPECT_EQ(listed(), " Add OK");
    press(Qt::Key_Return);
    EXPECT_EQ(listed(), "[=] OK");
}

}
