#include "editing_page.h"
#include "store/commands_file.h"
#include "support/becomes.h"
#include "ui/sections/undo_command_changes.h"

namespace {

using Command = VellumarkCommand;

ItemFilter filter(ItemFilter::Mode mode, const char16_t* pattern,
                  ItemFilter::Action action = ItemFilter::Action::Include)
{
    ItemFilter made;
    made.set_filter_mode(mode);
    made.set_filter_pattern(pattern);
    made.set_filter_action(action);
    return made;
}

struct Field {
    const char* step;
    std::function<void()> edit;
    std::function<void(Command&)> set; ///< the same in the model
};

class Fields : public EditingPage
{
protected:
    Field check(const char* section, const char* text, const char* step, void (*set)(Command&)) const
    {
        return {step, [=, this] { control<QCheckBox>(section, text).click(); }, set};
    }

    Field choose(const char* section, const char* name, const char* entry, const char* step,
                 void (*set)(Command&)) const
    {
        return {step, [=, this] { control<QComboBox>(section, name).setCurrentText(entry); }, set};
    }

    /// Of two keys, so that the second has to join the first.
    Field text(const char* section, const char* name, const char* step, void (*set)(Command&)) const
    {
        return {step,
                [=, this] {
                    auto& box = control<VariableSizeTextEdit>(section, name);
                    box.setFocus();
                    QTest::keyClick(&box, Qt::Key_Tab);
                    QTest::keyClick(&box, Qt::Key_Return);
                },
                set};
    }

    std::vector<Field> fields() const;
};

std::vector<Field> Fields::fields() const
{
    const char* const folders = "Folders To Text";
    const char* const menu = "Context Menu Options";
    const char* const rules = "Select when this command is shown in the context menu:";
    const char* const file_text = "Files To Text";
    return {
        choose(file_text, "Filter type", "Wildcard", "Change Filter Type",
               [](Command& model) {
                   command_fields::set_file_filter(model, {true, filter(ItemFilter::Mode::Wildcard, u""), {}});
               }),
        {"Change Filter Pattern", [=, this] { commit(file_text, "Pattern:", "*.j?g"); },
         [](Command& model) { model.set_file_filter(filter(ItemFilter::Mode::Wildcard, u"*.j?g")); }},
        {"Change Filter Action", [=, this] { control<QRadioButton>(file_text, "Exclude matching files").click(); },
         [](Command& model) {
             model.set_file_filter(filter(ItemFilter::Mode::Wildcard, u"*.j?g", ItemFilter::Action::Exclude));
         }},
        choose(file_text, "Filter type", "Extensions", "Change Filter Type",
               [](Command& model) { model.set_file_filter({}); }),
        choose(file_text, "Preset:", "Images", "Change Filter Preset",
               [](Command& model) {
                   model.set_file_filter(filter(ItemFilter::Mode::Extensions, u"jpg;png"));
                   model.set_file_filter_preset_uuid(u"1");
               }),
        choose(folders, "Filter type", "Regex", "Change Filter Type",
               [](Command& model) {
                   command_fields::set_folder_filter(model, {true, filter(ItemFilter::Mode::Regex, u"")});
               }),
        {"Change Filter Pattern", [=, this] { commit(folders, "Pattern:", "^a"); },
         [](Command& model) { model.set_folder_filter(filter(ItemFilter::Mode::Regex, u"^a")); }},
        text("Items Separator", "Items Separator", "Change Separator Text",
             [](Command& model) { model.set_separator(u"\t\n"); }),
        text("Additional Text", "At Start:", "Change Start Text",
             [](Command& model) { model.set_start_text(u"\t\n"); }),
        text("Additional Text", "At End:", "Change End Text", [](Command& model) { model.set_end_text(u"\t\n"); }),
        check("Additional Text", "Don't Add If Only One Item Selected",
              "Change State of \"Don't add start & end text if only one item selected\" Flag",
              [](Command& model) { model.set_no_start_end_text_if_one_item(true); }),
        choose("Sort Options", "Sort Options", "By Path Length (longest first)", "Change Sort Order",
               [](Command& model) { model.set_sort_order(Sort::PathLengthRev); }),
        check(folders, "Add Files From Folders", "Change Add Files From Folders",
              [](Command& model) { model.set_add_files_from_folders(true); }),
        check(folders, "Limit Folder Scan Depth: ", "Change Limit Folder Depth",
              [](Command& model) { model.set_limit_folder_depth(true); }),
        {"Change Maximum Folder Depth",
         [this] { control<QSpinBox>("Folders To Text", "Limit Folder Scan Depth: ").setValue(1000); },
         [](Command& model) { model.set_max_folder_depth(99); }},
        check(menu, "Use Default Rules for Command Settings", "Change Show Using Default Rules",
              [](Command& model) { model.set_show(false, ShowRule::AtLeastOneFolder); }),
        choose(menu, rules, "More Than One Item Selected", "Change Show Rule",
               [](Command& model) { model.set_show(false, ShowRule::MoreThanOneItem); }),
        check(folders, "Same As Files", "Change Folders Same As Files",
              [](Command& model) { model.set_same_parts_for_folders(false); }),
    };
}

TEST_F(Fields, EachIsOneStepThatIsSavedAndTakenBack)
{
    ExtensionsPreset images(boost::json::object{{"uuid", "1"}, {"name", "Images"}, {"extensions", "jpg;png"}});
    app->presets().set_both({images});
    QUndoStack& stack = app->undo_stack();
    Command model(command());
    ASSERT_EQ(model.max_folder_depth(), 0) << "a limit has to raise it";
    for (const Field& field : fields()) {
        const Command before(model);
        const int steps = stack.index();
        field.edit();
        field.set(model);
        EXPECT_TRUE(command().equals(model)) << field.step;
        EXPECT_EQ(stack.undoText(), field.step);
        ASSERT_EQ(stack.index(), steps + 1) << field.step;
        EXPECT_TRUE(command().has_uncommitted_changes()) << field.step;
        stack.undo();
        EXPECT_TRUE(command().equals(before)) << field.step;
        stack.redo();
        EXPECT_EQ(stack.count(), steps + 1) << field.step << ": showing it is no edit";
        EXPECT_EQ(command().to_json(), model.to_json()) << field.step;
        press("Save");
        EXPECT_EQ(commands_file::load().menu.at(0)->to_json(), model.to_json()) << field.step;
        EXPECT_FALSE(button("Save")) << field.step;
    }
}

TEST_F(Fields, WhatIsTypedBelongsToTheCommandBefore)
{
    control<QComboBox>("Files To Text", "Filter type").setCurrentText("Wildcard");
    auto& field = control<QLineEdit>("Files To Text", "Pattern:");
    field.setFocus();
    QTest::keyClicks(&field, "*.a");
    app->on_context_menu_selected(1, {path_of("a.txt")});
    EXPECT_TRUE(becomes([&] { return app->menu_list().current_index() == 1; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(state(), "menu[One', *More] library[*Two] save");
    EXPECT_EQ(dynamic_cast<Command&>(*app->menu_list().command_at(0)).file_filter().filter_pattern(), u"*.a");
}

}
