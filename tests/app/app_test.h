#pragma once

#include "app/mirvanta_app.h"
#include "store_test.h"
#include "support/test_editor.h"
#include "ui/text.h"

#include <QPushButton>

#include <future>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>

/// The application's window, in folders and with settings of its own for each test.
class AppTest : public StoreTest
{
protected:
    AppTest();

    /// Waits until nobody reads or writes files any more, for a window waits for nobody.
    ~AppTest() override;

    /// Ships a default commands file of these, as `names` of file-name commands; "More" stands for the command that
    /// opens this program and "Extract" for another built-in one.
    void ship(std::string_view menu, std::string_view library = {}) const { write(shipped_file, menu, library); }

    void store(std::string_view menu, std::string_view library = {}) const { write(user_file, menu, library); }

    /// Writes the command run last.
    void run_last(std::string_view name, std::string_view more = {}) const;

    /// Writes a file to select; returns its path.
    QString path_of(std::string_view name, std::string_view content = {}) const
    {
        return to_qstring(folder.write(name, content));
    }

    /// Opens the window. The editor takes file-name commands.
    MirvantaApp& open(bool with_editor = true);
    /// Leaves out what was changed in the window but not saved.
    MirvantaApp& open_again();

    /// Null when the button isn't there to be seen.
    QPushButton* button(const QString& text) const;
    void press(const QString& text) const;
    void show_tab(int tab) const;

    static void select_rows(const CommandsListController& list, std::initializer_list<int> rows);

    /// Such as "menu[A, *B] library[*C']": * current, ' with unsaved changes, ~ from the last session; the list shown
    /// first. With "save" behind it when that button shows.
    std::string state() const;

    StoredFiles files; ///< for the next window
    std::unique_ptr<MirvantaApp> app;
    TestEditor* editor = nullptr;

private:
    void write(std::string_view file, std::string_view menu, std::string_view library) const;

    StoredFiles counted_files() const;

    std::shared_ptr<std::promise<void>> files_left_ = std::make_shared<std::promise<void>>();
    /// Shared with who may still call `files`.
    std::shared_ptr<void> file_users_{nullptr, [left = files_left_](void*) { left->set_value(); }};
    ScopedVariable runtime_{"XDG_RUNTIME_DIR", folder.host("run")};
};
