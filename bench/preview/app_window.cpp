#include "preview/app_window.h"

#include "app/editors.h"
#include "engine/commands/vellumark_command.h"
#include "platform/known_folders.h"
#include "preview/loop_watch.h"
#include "store/commands_file.h"
#include "store/mv_config.h"
#include "ui/editor/vellumark_controller.h"
#include "ui/text.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSettings>

namespace {

constexpr std::size_t commands = 200;

void store_commands(std::string_view first)
{
    MVConfigLive::install(platform::program_folder());
    const StoredCommands defaults = commands_file::load_defaults();
    CommandList menu;
    menu.push_back(std::make_shared<VellumarkCommand>(boost::json::parse(first).as_object()));
    while (menu.size() < commands)
        menu.push_back(defaults.menu[menu.size() % defaults.menu.size()]->clone());
    commands_saving::write({.text = commands_saving::text_of({menu, {}, defaults.presets})});
}

}

AppWindow::AppWindow(std::string_view command)
{
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, folder_.path().toLocal8Bit());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder_.path());
    store_commands(command);
    app_ = std::make_unique<MirvantaApp>(editors_with(clipboard_));
    app_->resize(1000, 700);
    app_->show();
    app_->menu_list().select(0);
    paints_ = std::make_unique<PaintWatch>(*edit().viewport());
}

void AppWindow::select(const std::vector<std::u16string>& paths)
{
    QStringList list;
    for (const std::u16string& path : paths)
        list += to_qstring(path);
    select(list);
}

void AppWindow::select(const QStringList& paths)
{
    app_->on_context_menu_selected(-1, paths);
    run_until([&] { return app_->selected_items()->items().size() == static_cast<std::size_t>(paths.size()); });
    wait_for_text();
    run_until([&] { return !edit().is_filling(); });
}

void AppWindow::type(const std::u16string& separator)
{
    dynamic_cast<VellumarkCommand&>(*app_->menu_list().current_command()).set_separator(separator);
    dynamic_cast<VellumarkController&>(*app_->current_editor()).update_after_curr_command_changed();
}

void AppWindow::press(QWidget& widget, Qt::Key key, const QString& text)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &event);
}

void AppWindow::wait_for_text()
{
    run_until([this] { return !edit().text().isEmpty(); });
    paints_->wait();
}
