#include "editing_page.h"
#include "engine/items/mv_items_set.h"
#include "engine/parts/item_progress_sink.h"
#include "store/commands_file.h"
#include "store/preset_followers.h"
#include "support/becomes.h"
#include "ui/parts/item_parts_container_widget.h"
#include "ui/parts/item_parts_widget.h"
#include "ui/presets/undo_presets_change.h"
#include "ui/preview/preview_text_edit.h"

#include <random>

namespace {

using Command = VellumarkCommand;

class NeverCancelled final : public ItemProgressSink
{
public:
    void report_item(std::u16string_view) override {}

    void report_status(std::u16string_view) override {}

    bool is_cancelled() override { return false; }
};

/// What was before or after a step, all of it by value.
struct Snapshot {
    std::array<CommandList, 2> lists;
    Presets::List presets;
    std::string step;                      ///< that led here
    const MVCommandBase* edited = nullptr; ///< by that step

    Snapshot deep_copy() const
    {
        Snapshot copy = *this;
        for (CommandList& list : copy.lists)
            for (auto& each : list)
                each = each->clone();
        return copy;
    }
};

bool are_equal(const CommandList& one, const CommandList& other)
{
    return std::ranges::equal(one, other, [](const auto& a, const auto& b) { return a->equals(*b); });
}

/// Edits, undo, redo, list operations and saves at random, each done to the window and to a plain model: snapshots
/// of all commands, and which of them is the present one.
///
/// VELLUMARK_WALK=SEED:STEPS walks another way, for as long as one likes.
class RandomWalk : public EditingPage
{
protected:
    void walk(unsigned seed, int steps);

private:
    using Edit = std::function<void(Command&)>;

    int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }

    CommandsListController& list(int at) const { return at == 0 ? app->menu_list() : app->library_list(); }

    int active() const { return &app->active_list() == &app->library_list() ? 1 : 0; }

    bool is_command_shown() const
    {
        return dynamic_cast<const Command*>(app->active_list().current_command().get()) != nullptr;
    }

    CommandList& follow(const std::string& step, const MVCommandBase* edited = nullptr)
    {
        history_.resize(now_ + 1);
        history_.push_back(history_[now_++].deep_copy());
        history_[now_].step = step;
        history_[now_].edited = edited;
        return history_[now_].lists[static_cast<std::size_t>(active())];
    }

    /// The window has been edited: so is the model. Key strokes in one text box are one step.
    void expect_edit(const std::string& step, const Edit& edit, bool joins = false)
    {
        const MVCommandBase* edited = app->active_list().current_command().get();
        if (!joins || history_[now_].step != step || history_[now_].edited != edited)
            follow(step, edited);
        else
            history_.resize(now_ + 1);
        auto& commands = history_[now_].lists[static_cast<std::size_t>(active())];
        edit(dynamic_cast<Command&>(*commands.at(static_cast<std::size_t>(app->active_list().current_index()))));
    }

    void take_step();
    void edit_text();
    void edit_box();
    void edit_choice();
    void edit_filter();
    void edit_presets();
    void edit_parts();
    void edit_list();
    void save();
    void check(bool with_preview);
    void check_page() const;
    void check_preview() const;

    std::mt19937 random_;
    std::vector<Snapshot> history_;
    std::size_t now_ = 0;
    Snapshot saved_;
};

void RandomWalk::walk(unsigned seed, int steps)
{
    random_.seed(seed);
    reopen();
    app->on_context_menu_selected(-1, {path_of("b.txt", "12"), path_of("a.jpg", "1")});
    ASSERT_TRUE(becomes([&] { return app->selected_items()->items().size() == 2; }));
    saved_ = Snapshot{{list(0).commands(), list(1).commands()}, app->presets().working(), {}, nullptr}.deep_copy();
    history_ = {saved_.deep_copy()};
    now_ = 0;
    for (int step = 0; step < steps && !HasFailure(); ++step) {
        take_step();
        SCOPED_TRACE(testing::Message() << "seed " << seed << ", step " << step << ": " << history_[now_].step);
        check(step % 8 == 0);
    }
}

void RandomWalk::take_step()
{
    QUndoStack& stack = app->undo_stack();
    const int choice = below(100);
    if (choice < 15 && stack.canUndo()) {
        stack.undo();
        --now_;
    } else if (choice < 25 && stack.canRedo()) {
        stack.redo();
        ++now_;
    } else if (choice < 33 || !is_command_shown()) {
        edit_list();
    } else if (choice < 45) {
        edit_text();
    } else if (choice < 70) {
        edit_box();
    } else if (choice < 80) {
        edit_choice();
    } else if (choice < 88) {
        edit_filter();
    } else if (choice < 91) {
        edit_presets();
    } else if (choice < 98) {
        edit_parts();
    } else {
        save();
    }
}

void RandomWalk::edit_text()
{
    struct Row {
        const char *section, *name;
        Edit edit;
    };

    const Row rows[] = {
        {"Items Separator", "Items Separator", [](Command& model) { model.set_separator(model.separator() + u"x"); }},
        {"Additional Text", "At Start:", [](Command& model) { model.set_start_text(model.start_text() + u"x"); }},
        {"Additional Text", "At End:", [](Command& model) { model.set_end_text(model.end_text() + u"x"); }}};
    const Row& row = rows[below(3)];
    auto& box = control<VariableSizeTextEdit>(row.section, row.name);
    box.setFocus();
    box.moveCursor(QTextCursor::End);
    QTest::keyClick(&box, Qt::Key_X);
    expect_edit(row.name, row.edit, true);
}

void RandomWalk::edit_box()
{
    struct Row {
        const char *section, *text;
        Edit edit;
    };

    const char* folders = "Folders To Text";
    const Row rows[] = {
        {folders, "Same As Files",
         [](Command& model) { model.set_same_parts_for_folders(!model.same_parts_for_folders()); }},
        {folders, "Add Files From Folders",
         [](Command& model) { model.set_add_files_from_folders(!model.add_files_from_folders()); }},
        {folders, "Limit Folder Scan Depth: ",
         [](Command& model) { model.set_limit_folder_depth(!model.limit_folder_depth()); }},
        {"Additional Text", "Don't Add If Only One Item Selected",
         [](Command& model) { model.set_no_start_end_text_if_one_item(!model.no_start_end_text_if_one_item()); }},
        {"Context Menu Options", "Use Default Rules for Command Settings", [](Command& model) {
             const bool by_default = !model.show_using_default_rules();
             // What was shown stays: the default one when it stops to be followed.
             model.set_show(by_default, model.default_show_rule());
         }}};
    const Row& row = rows[below(5)];
    auto& box = control<QCheckBox>(row.section, row.text);
    if (!box.isVisibleTo(app.get()) || !box.isEnabled())
        return;
    box.click();
    expect_edit(row.text, row.edit);
}

void RandomWalk::edit_choice()
{
    if (below(2) == 0) {
        auto& orders = control<QComboBox>("Sort Options", "Sort Options");
        const int order = below(orders.count());
        if (order == orders.currentIndex())
            return;
        orders.setCurrentIndex(order);
        expect_edit("sort", [order](Command& model) { model.set_sort_order(static_cast<Sort>(order)); });
    } else {
        auto& depth = control<QSpinBox>("Folders To Text", "Limit Folder Scan Depth: ");
        const int value = 1 + below(99);
        if (!depth.isEnabled() || value == depth.value())
            return;
        depth.setValue(value);
        expect_edit("depth", [value](Command& model) { model.set_max_folder_depth(value); });
    }
}

/// What a filter's controls make of a command is another test's matter: here it has to come back with undo.
void RandomWalk::edit_filter()
{
    const bool of_files = below(2) == 0;
    const char* section = of_files ? "Files To Text" : "Folders To Text";
    const int steps = app->undo_stack().index();
    auto& line = control<QLineEdit>(section, "Pattern:");
    if (below(3) == 0 && line.isVisibleTo(app.get())) {
        line.setFocus();
        QTest::keyClicks(&line, "(a*.jpg");
        QTest::keyClick(&line, Qt::Key_Return);
    } else if (of_files && below(3) == 0) {
        auto& presets = control<QComboBox>(section, "Preset:");
        if (presets.isVisibleTo(app.get()))
            presets.setCurrentIndex(below(presets.count()));
    } else {
        auto& types = control<QComboBox>(section, "Filter type");
        types.setCurrentIndex(below(types.count()));
    }
    if (app->undo_stack().index() != steps)
        expect_edit("filter", [this](Command& model) {
            command_fields::set_file_filter(model, command_fields::file_filter(command()));
            command_fields::set_folder_filter(model, command_fields::folder_filter(command()));
        });
}

/// Adds a preset, or edits or deletes one that commands may follow.
void RandomWalk::edit_presets()
{
    Presets::List presets = app->presets().working();
    if (presets.empty() || below(3) == 0)
        presets.emplace_back().make_new_uuid();
    else if (below(2) == 0)
        presets.erase(presets.begin() + below(static_cast<int>(presets.size())));
    else
        presets[0].set_extensions(presets[0].extensions() + u";txt");
    app->undo_stack().push(new UndoPresetsChange(app->lists(), app->presets(), presets, "presets"));
    follow("presets");
    history_[now_].presets = presets;
    for (CommandList& list : history_[now_].lists)
        preset_followers::update(list, presets);
}

void RandomWalk::edit_parts()
{
    const auto containers = app->findChildren<ItemPartsContainerWidget*>();
    const int at = below(static_cast<int>(containers.size()));
    ItemPartsWidget& row = containers[at]->parts_widget();
    if (!row.isVisibleTo(app.get()))
        return;
    const auto which = at == 0 ? Command::Template::Files : Command::Template::Folders;
    const int steps = app->undo_stack().index();
    const auto before = app->undo_stack().undoText();
    row.setFocus(Qt::TabFocusReason);
    const std::vector<Qt::Key> keys{Qt::Key_Space, Qt::Key_Space, Qt::Key_Tab,   Qt::Key_Left,
                                    Qt::Key_Right, Qt::Key_Home,  Qt::Key_Delete};
    QTest::keyClick(&row, keys[static_cast<std::size_t>(below(static_cast<int>(keys.size())))],
                    below(3) == 0 ? Qt::ControlModifier : Qt::NoModifier);
    if (app->undo_stack().index() == steps)
        return;
    // Which parts there are now is another test's matter, but they have to come back with undo.
    expect_edit("parts", [&](Command& model) {
        model.set_parts(which, std::make_shared<ItemPartsList>(*command().parts(which)));
    });
}

void RandomWalk::edit_list()
{
    CommandsListController& shown = app->active_list();
    const int row = shown.current_index();
    const auto place = row + 1;
    switch (below(6)) {
    case 0:
        if (shown.commands().size() > 4)
            return;
        press("New");
        follow("new").insert(history_[now_].lists[static_cast<std::size_t>(active())].begin() + place,
                             std::make_shared<Command>());
        break;
    case 1:
        if (shown.selected_count() != 1 || shown.commands().size() < 2 || !is_command_shown())
            return;
        press("Delete");
        follow("delete").erase(history_[now_].lists[static_cast<std::size_t>(active())].begin() + row);
        break;
    case 2:
        if (!is_command_shown() || shown.selected_count() != 1)
            return;
        shown.rename(row, u"N" + std::u16string(static_cast<std::size_t>(1 + now_ % 9), u'n'), {});
        if (app->undo_stack().index() != static_cast<int>(now_))
            follow("rename").at(static_cast<std::size_t>(row))->set_name(shown.current_command()->name());
        break;
    case 3: show_tab(below(2)); break;
    default: {
        const int other = below(static_cast<int>(shown.commands().size()));
        shown.select(other);
        if (other != row)
            follow("select");
    }
    }
}

void RandomWalk::save()
{
    if (!button("Save"))
        return;
    press("Save");
    saved_ = history_[now_].deep_copy();
    const StoredCommands stored = commands_file::load();
    EXPECT_TRUE(stored.presets == saved_.presets);
    const std::array<const CommandList*, 2> written{&stored.menu, &stored.library};
    for (const std::size_t at : {0U, 1U})
        EXPECT_TRUE(std::ranges::equal(*written[at], saved_.lists[at], [](const auto& a, const auto& b) {
            return a->to_json() == b->to_json();
        })) << "the file";
}

void RandomWalk::check(bool with_preview)
{
    EXPECT_EQ(app->undo_stack().index(), static_cast<int>(now_));
    const Snapshot& model = history_[now_];
    EXPECT_TRUE(app->presets().working() == model.presets);
    bool is_saved = model.presets == saved_.presets;
    for (const int at : {0, 1}) {
        const auto index = static_cast<std::size_t>(at);
        EXPECT_TRUE(are_equal(list(at).commands(), model.lists[index])) << "list " << at;
        is_saved = is_saved && are_equal(model.lists[index], saved_.lists[index]);
    }
    EXPECT_EQ(button("Save") == nullptr, is_saved);
    if (!is_command_shown())
        return;
    check_page();
    if (with_preview)
        check_preview();
}

void RandomWalk::check_page() const
{
    const Command& shown = command();
    const char* folders = "Folders To Text";
    EXPECT_EQ(control<VariableSizeTextEdit>("Items Separator", "Items Separator").stored_text(), shown.separator());
    EXPECT_EQ(control<VariableSizeTextEdit>("Additional Text", "At Start:").stored_text(), shown.start_text());
    EXPECT_EQ(control<VariableSizeTextEdit>("Additional Text", "At End:").stored_text(), shown.end_text());
    EXPECT_EQ(control<QCheckBox>(folders, "Same As Files").isChecked(), shown.same_parts_for_folders());
    EXPECT_EQ(control<QCheckBox>(folders, "Add Files From Folders").isChecked(), shown.add_files_from_folders());
    EXPECT_EQ(control<QSpinBox>(folders, "Limit Folder Scan Depth: ").value(),
              std::clamp(shown.max_folder_depth(), 1, 99));
    EXPECT_EQ(control<QComboBox>("Sort Options", "Sort Options").currentIndex(),
              static_cast<int>(shown.sort_order()));
    for (ItemPartsContainerWidget* each : app->findChildren<ItemPartsContainerWidget*>())
        EXPECT_EQ(each->parts_widget().board().row().size(),
                  (each == app->findChild<ItemPartsContainerWidget*>() ? shown.file_parts() : shown.folder_parts())
                      ->size());
}

void RandomWalk::check_preview() const
{
    NeverCancelled sink;
    std::u16string text;
    command().generate_text(text, *app->selected_items(), sink);
    const auto& preview = *app->findChild<PreviewTextEdit*>();
    EXPECT_TRUE(becomes([&] { return units_of(preview.text()) == text; })) << preview.text().toStdString();
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
