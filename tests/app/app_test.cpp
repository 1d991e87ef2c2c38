#include "app_test.h"

#include "ui/lists/commands_list_controller.h"
#include "ui/lists/commands_list_model.h"
#include "ui/lists/commands_selection_model.h"
#include "ui/product.h"

#include <QCoreApplication>
#include <QSettings>
#include <QTabWidget>

#include <filesystem>

namespace {

std::string json_of(const QString& name)
{
    if (name == "More")
        return R"({"commandType":"Configure","name":"More"})";
    if (name == "Extract")
        return R"({"commandType":"ExtractFolder","name":"Extract"})";
    return command_json(name.toStdString());
}

std::string json_list(std::string_view names)
{
    QStringList list;
    for (const QString& name : QString::fromUtf8(names.data(), static_cast<qsizetype>(names.size())).split(", "))
        if (!name.isEmpty())
            list += QString::fromStdString(json_of(name));
    return "[" + list.join(',').toStdString() + "]";
}

std::string flat(const CommandsListController& list)
{
    std::string text;
    for (int row = 0; const auto& command : list.commands()) {
        text += row == 0 ? "" : ", ";
        text += row++ == list.current_index() ? "*" : "";
        text += to_utf8(command->name()) + (command->has_uncommitted_changes() ? "'" : "") +
                (command->from_previous_session() ? "~" : "");
    }
    return "[" + text + "]";
}

}

AppTest::AppTest()
{
    files.patience_at_start = std::chrono::minutes(1);
    namespace fs = std::filesystem;
    fs::create_directory(folder.host("run"));
    fs::permissions(folder.host("run"), fs::perms::owner_all);
    QCoreApplication::setOrganizationName(product::organisation);
    QCoreApplication::setApplicationName(product::application);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       QString::fromStdString(folder.host("settings")));
}

AppTest::~AppTest()
{
    app.reset();
    file_users_.reset();
    EXPECT_EQ(files_left_->get_future().wait_for(std::chrono::minutes(1)), std::future_status::ready);
}

StoredFiles AppTest::counted_files() const
{
    return {.load = [load = files.load, user = file_users_] { return load(); },
            .read = [read = files.read, user = file_users_] { return read(); },
            .save = [save = files.save, user = file_users_](const CommandsSaving& saving) { return save(saving); },
            .read_last = [read = files.read_last, user = file_users_] { return read(); },
            .patience_at_start = files.patience_at_start};
}

void AppTest::write(std::string_view file, std::string_view menu, std::string_view library) const
{
    folder.write(file, R"({"menuCommands":)" + json_list(menu) + R"(,"commandsLibrary":)" + json_list(library) +
                           R"(,"extensionsPresets":[]})");
}

void AppTest::run_last(std::string_view name, std::string_view more) const
{
    folder.write(last_file, command_json(name, more));
}

MirvantaApp& AppTest::open(bool with_editor)
{
    app = std::make_unique<MirvantaApp>(
        [&](AppServices& services) {
            std::vector<std::unique_ptr<CommandControllerBase>> editors;
            if (with_editor) {
                auto made = std::make_unique<TestEditor>(services);
                editor = made.get();
                editors.push_back(std::move(made));
            }
            return editors;
        },
        counted_files());
    app->show();
    return *app;
}

MirvantaApp& AppTest::open_again()
{
    app.reset();
    return open();
}

QPushButton* AppTest::button(const QString& text) const
{
    for (QPushButton* button : app->findChildren<QPushButton*>())
        if (button->text().remove('&') == text && button->isVisible())
            return button;
    return nullptr;
}

void AppTest::press(const QString& text) const
{
    QPushButton* found = button(text);
    ASSERT_TRUE(found) << text.toStdString();
    found->click();
}

void AppTest::show_tab(int tab) const
{
    app->findChild<QTabWidget*>()->setCurrentIndex(tab);
}

void AppTest::select_rows(const CommandsListController& list, std::initializer_list<int> rows)
{
    list.selection().clearSelection();
    for (const int row : rows)
        list.selection().select(list.model().index(row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

std::string AppTest::state() const
{
    const std::string menu = "menu" + flat(app->menu_list());
    const std::string library = "library" + flat(app->library_list());
    const bool menu_shows = app->findChild<QTabWidget*>()->currentIndex() == 0;
    EXPECT_EQ(menu_shows, &app->active_list() == &app->menu_list());
    return (menu_shows ? menu + " " + library : library + " " + menu) + (button("Save") ? " save" : "");
}
