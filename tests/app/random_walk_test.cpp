#include "engine/items/mv_items_set.h"
#include "fields.h"
#include "store/commands_file.h"
#include "store/preset_followers.h"
#include "support/becomes.h"
#include "support/never_cancelled.h"
#include "ui/parts/item_parts_container_widget.h"
#include "ui/parts/item_parts_widget.h"
#include "ui/presets/undo_presets_change.h"
#include "ui/preview/preview_text_edit.h"
#include "walk_model.h"

#include <random>
#include <set>

namespace {

using Command = VellumarkCommand;

/// Edits, undo, redo, list operations and saves, each done to the window and to a plain model.
///
/// VELLUMARK_WALK=SEED:STEPS walks another way, for as long as one likes.
class RandomWalk : public Fields
{
protected:
    void start();
    void walk(unsigned seed, int steps);
    void move(bool back);
    bool edit(const Field& field, int value);
    void edit_presets();
    void save();
    void check();

    std::vector<Field> fields_;

private:
    int below(std::size_t limit) { return std::uniform_int_distribution(0, static_cast<int>(limit) - 1)(random_); }

    WalkSnapshot window() const
    {
        return {{app->menu_list().commands(), app->library_list().commands()}, app->presets().working(), {}, nullptr};
    }

    CommandList& list_in(WalkSnapshot& model) const
    {
        return model.lists[&app->active_list() == &app->library_list() ? 1 : 0];
    }

    std::string last_step() const { return app->undo_stack().undoText().toStdString(); }

    auto current() const { return app->active_list().current_command().get(); }

    bool is_command_shown() const { return dynamic_cast<const Command*>(current()) != nullptr; }

    void take_step();
    /// The current command of the model, which the step is to change.
    Command& follow(const std::string& step, bool joins = false);
    void edit_parts();
    void edit_list();
    void check_page() const;
    void check_preview() const;

    std::mt19937 random_;
    WalkModel model_;
};

void RandomWalk::start()
{
    reopen();
    open_filters();
    app->on_context_menu_selected(-1, {path_of("b.txt", "12"), path_of("a.jpg", "1")});
    ASSERT_TRUE(becomes([&] { return app->selected_items()->items().size() == 2; }));
    fields_ = fields();
    model_ = {{window().deep_copy()}, 0, window().deep_copy()};
}

void RandomWalk::walk(unsigned seed, int steps)
{
    random_.seed(seed);
    start();
    for (int step = 0; step < steps && !HasFailure(); ++step) {
        take_step();
        SCOPED_TRACE(testing::Message() << "seed " << seed << ", step " << step << ": " << model_.now().step);
        check();
        if (step % 8 == 0 && is_command_shown())
            check_preview();
    }
}

void RandomWalk::take_step()
{
    const int choice = below(100);
    if (choice < 15 && app->undo_stack().canUndo())
        move(true);
    else if (choice < 25 && app->undo_stack().canRedo())
        move(false);
    else if (choice < 33 || !is_command_shown())
        edit_list();
    else if (choice < 36)
        edit_presets();
    else if (choice < 43)
        edit_parts();
    else if (choice < 45)
        save();
    else
        edit(fields_[static_cast<std::size_t>(below(fields_.size()))], below(120));
}

void RandomWalk::move(bool back)
{
    back ? app->undo_stack().undo() : app->undo_stack().redo();
    model_.place += back ? -1 : 1;
}

Command& RandomWalk::follow(const std::string& step, bool joins)
{
    const auto row = static_cast<std::size_t>(app->active_list().current_index());
    return dynamic_cast<Command&>(*list_in(model_.follow(step, current(), joins)).at(row));
}

bool RandomWalk::edit(const Field& field, int value)
{
    const auto edited = field.edit(value);
    if (edited)
        field.set(follow(field.step, field.joins), *edited);
    return edited.has_value();
}

/// Adds a preset, or edits or deletes one that commands may follow.
void RandomWalk::edit_presets()
{
    Presets::List presets = app->presets().working();
    if (presets.size() < 2 || below(3) == 0)
        presets.emplace_back().make_new_uuid();
    else if (below(2) == 0)
        presets.erase(presets.begin() + below(presets.size()));
    else
        presets[0].set_extensions(presets[0].extensions() + u";txt");
    app->undo_stack().push(new UndoPresetsChange(app->lists(), app->presets(), presets, "Presets"));
    WalkSnapshot& model = model_.follow("Presets");
    model.presets = presets;
    for (CommandList& list : model.lists)
        preset_followers::update(list, presets);
}

/// Which parts there are after a key is another test's matter, but they have to come back with undo.
void RandomWalk::edit_parts()
{
    constexpr std::array keys{Qt::Key_Space, Qt::Key_Space, Qt::Key_Tab,   Qt::Key_Left,
                              Qt::Key_Right, Qt::Key_Home,  Qt::Key_Delete};
    const auto containers = app->findChildren<ItemPartsContainerWidget*>();
    const int at = below(2);
    ItemPartsWidget& row = containers[at]->parts_widget();
    if (!row.isVisibleTo(app.get()))
        return;
    row.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&row, keys[static_cast<std::size_t>(below(keys.size()))],
                    below(3) == 0 ? Qt::ControlModifier : Qt::NoModifier);
    const auto which = at == 0 ? Command::Template::Files : Command::Template::Folders;
    if (app->undo_stack().index() != model_.place)
        follow(last_step()).set_parts(which, std::make_shared<ItemPartsList>(*command().parts(which)));
}

void RandomWalk::edit_list()
{
    CommandsListController& shown = app->active_list();
    const int row = shown.current_index();
    const bool can_edit = is_command_shown() && shown.selected_count() == 1;
    switch (below(6)) {
    case 0:
        if (shown.commands().size() < 5) {
            press("New");
            CommandList& list = list_in(model_.follow("New Command"));
            list.insert(list.begin() + row + 1, std::make_shared<Command>());
        }
        break;
    case 1:
        if (can_edit && shown.commands().size() > 1) {
            press("Delete");
            CommandList& list = list_in(model_.follow("Delete Command"));
            list.erase(list.begin() + row);
        }
        break;
    case 2:
        if (const std::u16string name(1 + model_.history.size() % 9, u'n'); can_edit && name != current()->name()) {
            shown.rename(row, name, {});
            follow("Rename Stored Command").set_name(name);
        }
        break;
    case 3: show_tab(below(2)); break;
    default:
        if (const int other = below(shown.commands().size()); other != row) {
            shown.select(other);
            model_.follow("Select Stored Command");
        }
    }
}

void RandomWalk::save()
{
    if (!button("Save"))
        return;
    press("Save");
    model_.saved = model_.now().deep_copy();
    const StoredCommands stored = commands_file::load();
    EXPECT_TRUE(stored.presets == model_.saved.presets);
    const auto same = [](const auto& a, const auto& b) { return a->to_json() == b->to_json(); };
    EXPECT_TRUE(std::ranges::equal(stored.menu, model_.saved.lists[0], same)) << "the file";
    EXPECT_TRUE(std::ranges::equal(stored.library, model_.saved.lists[1], same)) << "the file";
}

void RandomWalk::check()
{
    EXPECT_EQ(app->undo_stack().index(), model_.place);
    EXPECT_EQ(last_step(), model_.now().step);
    EXPECT_TRUE(window().equals(model_.now()));
    EXPECT_EQ(button("Save") == nullptr, model_.now().equals(model_.saved));
    if (is_command_shown())
        check_page();
}

void RandomWalk::check_page() const
{
    for (const Field& field : fields_)
        EXPECT_TRUE(field.shows(command())) << "shown: " << field.step;
    const auto containers = app->findChildren<ItemPartsContainerWidget*>();
    EXPECT_EQ(containers[0]->parts_widget().board().row().size(), command().file_parts()->size());
    EXPECT_EQ(containers[1]->parts_widget().board().row().size(), command().folder_parts()->size());
}

void RandomWalk::check_preview() const
{
    NeverCancelled sink;
    std::u16string text;
    command().generate_text(text, *app->selected_items(), sink);
    const auto& preview = *app->findChild<PreviewTextEdit*>();
    EXPECT_TRUE(becomes([&] { return units_of(preview.text()) == text; })) << preview.text().toStdString();
}

TEST_F(RandomWalk, EachFieldIsOneStepThatIsSavedAndTakenBack)
{
    start();
    edit_presets();
    edit_presets();
    std::set<const Field*> edited;
    for (const int value : {14, 1})
        for (const Field& field : fields_) {
            SCOPED_TRACE(field.step);
            if (!edit(field, value))
                continue;
            edited.insert(&field);
            check();
            for (const bool back : {true, false}) {
                move(back);
                check();
            }
            save();
            check();
        }
    EXPECT_EQ(edited.size(), fields_.size());
}

TEST_F(RandomWalk, WindowAndModelAgree)
{
    unsigned seed = 0;
    int steps = 0;
    if (const char* asked = std::getenv("VELLUMARK_WALK"); asked && std::sscanf(asked, "%u:%d", &seed, &steps) == 2)
        walk(seed, steps);
    else
        for (const unsigned each : {1U, 2U})
            walk(each, 1000);
}

}
