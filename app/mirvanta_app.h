#pragma once

#include "app/command_editors.h"
#include "app/selection_source.h"
#include "app/stored_files.h"
#include "app/stored_flow.h"
#include "app/stored_state.h"
#include "ui/app_services.h"
#include "ui/lists/command_lists.h"
#include "ui/presets/presets.h"
#include "ui/preview/exemplar_item_provider.h"
#include "ui/selection_services.h"

#include <QDialog>

#include <memory>

class MainAppUi;
class ToolRow;

/// The program's window and all that it works on: the stored commands, the undo stack, the selection. Main thread
/// only.
class MirvantaApp final : public QDialog, public AppServices, public SelectionServices
{
    Q_OBJECT

public:
    /// Loads the stored commands, which come later when a disk takes its time, and starts to listen for selections;
    /// that a commands file can't be used is told to the user once events are processed. Without editors no command
    /// has a page.
    explicit MirvantaApp(const MakeEditors& make_editors = {}, StoredFiles files = {});
    ~MirvantaApp() override;

    CommandsListController& menu_list() { return lists_.menu(); }

    CommandsListController& library_list() { return lists_.library(); }

    CommandsListController& active_list() { return lists_.active(); }

    QUndoStack& undo_stack() { return steps_.stack(); }

    SelectionServices& selection() override { return *this; }

    CommandLists& lists() override { return lists_; }

    UndoSteps& steps() override { return steps_; }

    Presets& presets() override { return presets_; }

    ExemplarItemProvider& exemplar() override { return exemplar_; }

    std::shared_ptr<const MVItemsSet> selected_items() const override { return selected_items_; }

    SelectionReaders& selection_readers() override { return source_.readers(); }

    bool is_selection_coming() const override { return source_.is_selection_coming(); }

    CommandControllerBase* current_editor() override { return editors_.current(); }

    void duplicate_command() override;
    void reset_stored_commands() override;

    void manage_presets() override { on_filters(); }

    void close_with_accept() override;

    /// However the dialog is left, the window's state is kept.
    void done(int result) override;

    /// Stores the window's state, as for its end.
    void keep_state();

public slots:
    /// Saves what the user wants saved and runs the current command; the dialog then closes if nothing speaks
    /// against.
    void on_ok();
    /// Closes the dialog. Nothing is saved, nothing is asked.
    void on_cancel();
    void on_help();
    /// Lets the user edit the presets; what comes of it is one step of undo.
    void on_filters();
    /// A selection has come: shows the window, tells the current editor, and takes the selection once its paths have
    /// answered or had their time and nobody reads the old one. `command_index` is a row of the menu list, negative
    /// for none.
    void on_context_menu_selected(int command_index, const QStringList& paths);
    /// The current command's fields changed.
    void current_command_index_changed();
    /// The active list has another current command: finds its editor and shows its page. While steps of undo are
    /// running this waits for their end.
    void current_command_changed();
    void duplicate_command_btn_pressed();
    void new_command_btn_pressed();
    void delete_command_btn_pressed();
    /// True when the commands file was written. Whatever speaks against is shown to the user.
    bool save_commands_list();
    /// What Ctrl+S does: as `save_commands_list`, but nothing when there is nothing to save.
    void save_key_pressed();
    void on_about();
    void active_tab_changed(int tab_index);
    void move_commands_to_other_list();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void connect_all();
    void lay_out();
    void show_active_list();
    /// False when an editor shows it already.
    bool show_current_command();
    void take_presets(const Presets::List& base, const Presets::List& edited);
    void step_ended(const WrittenCommands& written);
    /// While steps of undo are running this waits for their end, for it takes a look at every command.
    void refresh_save_and_delete();
    void show_save_and_delete();
    void select_loaded(bool usable, const std::shared_ptr<VellumarkCommand>& last);
    void take_selection(int command_index, const std::shared_ptr<NewSelection>& selection);

    std::shared_ptr<MVItemsSet> selected_items_;
    UndoSteps steps_;
    CommandLists lists_;
    Presets presets_;
    StoredState stored_;
    StoredFlow stored_flow_;
    int awaited_row_ = -1; ///< of the menu list: asked for with a selection before the list was loaded
    ExemplarItemProvider exemplar_;
    SelectionSource source_;
    CommandEditors editors_;
    bool ok_holds_ = false; ///< since OK was pressed, no selection and no other command has come in
    ToolRow* tool_row_;     ///< made before `ui_`, so that it comes first in the tab order
    // Goes first: its widgets use all of the above.
    std::unique_ptr<MainAppUi> ui_;
};
