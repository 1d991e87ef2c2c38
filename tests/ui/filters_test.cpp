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
#include <QTest>

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
        open("");
        for (QWidget* child : page.findChildren<QWidget*>())
            if (child->accessibleName() == "Filter")
                QTest::keyClick(child, Qt::Key_Space);
    }

    /// Two commands, of which the first has these fields and shows.
    void open(const std::string& fields)
    {
        const auto json = boost::json::parse(R"({"name":"C","separator":"","fileParts":[])" + fields + "}");
        app.stack.clear();
        app.menu.model().set_saved_commands(
            {std::make_shared<VellumarkCommand>(json.as_object()), std::make_shared<VellumarkCommand>(u"D")});
        app.menu.select_without_undo(0);
        show_current();
        page.show();
        page.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
    }

    void show_current()
    {
        const auto shown = command(app.menu.current_index());
        file.show_command(shown);
        folder.show_command(shown);
    }

    std::shared_ptr<VellumarkCommand> command(int row = 0) const
    {
        return std::dynamic_pointer_cast<VellumarkCommand>(app.menu.command_at(row));
    }

    /// Such as "on wildcard exclude *.txt 1": the uuid last.
    std::string stored() const
    {
        const auto fields = command_fields::file_filter(*command());
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

    /// "type X", "preset X", "write X" leaves X in the field, "typing X" stays in it; "presets X" gives the first one
    /// other extensions, or deletes it.
    void act(const QString& what)
    {
        const QString verb = what.section(' ', 0, 0);
        const QString rest = what.section(' ', 1);
        if (verb == "type" || verb == "preset")
            choose(file, verb == "type" ? "Filter type" : "Preset:", rest);
        else if (verb == "exclude")
            file.findChildren<QRadioButton*>().back()->click();
        else if (verb == "key")
            QTest::keySequence(&line(file), QKeySequence::Undo);
        else if (verb == "leave")
            app.menu.select(1);
        else if (verb == "presets")
            change_presets(rest);
        else {
            line(file).setFocus();
            QTest::keySequence(&line(file), QKeySequence::SelectAll);
            QTest::keyClicks(&line(file), rest);
            if (verb == "write")
                QTest::keyClick(&line(file), Qt::Key_Return);
        }
        QCoreApplication::processEvents();
    }

    void change_presets(const QString& extensions)
    {
        Presets::List changed{preset(u"2", u"Two", u"c")};
        if (!extensions.isEmpty())
            changed.push_back(preset(u"1", u"<b>New", from_qstring(extensions)));
        app.stack.push(new UndoPresetsChange(app.lists(), app.presets(), changed, "Presets"));
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
        {"type Wildcard, typing *.a, presets", "on wildcard include ", "<Wildcard> [*.a] Include ", "Presets"},
        {"type Wildcard, typing *.a, key", "on wildcard include *.a", "<Wildcard> [*.a] Include ",
         "Change Filter Pattern"},
        {"type Wildcard, typing *.a, leave", "on wildcard include *.a", "<Wildcard> [*.a] Include ",
         "Change Filter Pattern"},
        {"type Extensions, preset One, presets x;y", "on extensions include x;y 1", "<Extensions> <<b>New> [x; y]- ",
         "Presets"},
        {"type Extensions, preset One, presets", "on extensions include a;b", "<Extensions> <Custom> [a; b] ",
         "Presets"},
    };
    for (const Case& c : cases) {
        open("");
        for (const QString& what : QString(c.acts).split(", "))
            act(what);
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
        {R"(,"fileFilterEnabled":true,"folderFilterEnabled":true)", "<Extensions> <Custom> [] ", "<None> "},
        {R"(,"fileFilterEnabled":true,"fileFilter":{"filterMode":"odd","filterPattern":"c","fileFilterPresetUuid":"9"},
            "folderFilterEnabled":true,"folderFilter":{"filterPattern":"x"})",
         "<Extensions> <Custom> [c] ", "<> "},
        {R"(,"fileFilterEnabled":true,"fileFilter":{"filterPattern":"c","fileFilterPresetUuid":"3"},
            "folderFilterEnabled":true,"folderFilter":{"filterMode":"regex","filterAction":"exclude"})",
         "<Extensions> <One> [d]- ", "<Regex> [] Exclude "},
        {R"(,"fileFilterEnabled":false,"fileFilter":{"filterMode":"wildcard","filterPattern":"c"})", "<None> ",
         "<None> "},
    };
    for (const Case& c : cases) {
        open(c.json);
        EXPECT_EQ(seen(file), c.seen) << c.json;
        EXPECT_EQ(seen(folder), c.folder) << c.json;
        EXPECT_EQ(app.stack.count(), 0) << c.json;
    }
    choose(file, "Filter type", "Wildcard");
    EXPECT_EQ(stored(), "on wildcard include c") << "what was off is there again";
}

TEST(FilterHeader, TellsTheFilterInOneLine)
{
    const std::pair<FilterSummary, const char*> cases[] = {
        {{}, "Filter"},
        {{"Regex", "a<b", false}, "Filter &mdash; <i>Regex</i>: <b>a&lt;b</b>"},
        {{"Regex", "(", true},
         "Filter &mdash; <i>Regex</i>: <b style=\"color:red\">(</b> &nbsp;<span "
         "style=\"color:red\"><b>Invalid</b></span>"},
    };
    for (const auto& [summary, html] : cases)
        EXPECT_EQ(filter_header_text(summary).toStdString(), html);
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
    const auto listed = [&] {
        std::string text;
        for (const ExtensionsPreset& one : dialog.presets())
            text += "[" + to_qstring(one.name + u"=" + one.extensions()).toStdString() + "]";
        for (const auto* button : dialog.findChildren<QPushButton*>())
            if (button->isEnabled() && (button->text().contains("Add") || button->text().contains("OK")))
                text += " " + button->text().remove('&').toStdString();
        return text;
    };
    EXPECT_EQ(listed(), "[One=a;b][=c] Add OK");
    dialog.add_preset();
    const std::tuple<std::vector<Qt::Key>, const char*, const char*> cases[] = {
        {{}, "New", "[One=a;b][=c][New=] OK"},
        {{Qt::Key_Return}, ".JPG; P*", "[One=a;b][=c][New=.jpg;p*] Add"},
        {{Qt::Key_Backspace, Qt::Key_Return}, "", "[One=a;b][=c][New=.jpg;p] Add OK"},
        {{Qt::Key_Tab, Qt::Key_Return}, "", "[One=a;b][=c] Add OK"},
        {{Qt::Key_Space, Qt::Key_Space}, "", " Add OK"},
        {{Qt::Key_Return}, "", "[=] OK"},
    };
    for (const auto& [keys, typed, expected] : cases) {
        for (const Qt::Key key : keys)
            QTest::keyClick(dialog.focusWidget(), key);
        QTest::keyClicks(dialog.focusWidget(), typed);
        EXPECT_EQ(listed(), expected);
    }
    EXPECT_TRUE(dialog.isVisible());
}

}
