#include "app/command_editors.h"

#include "app/main_app_ui.h"
#include "ui/editor/command_controller_base.h"
#include "ui/editor/command_main_widget_base.h"

#include <QSettings>

#include <algorithm>
#include <utility>

CommandEditors::CommandEditors(QObject* parent) : QObject(parent) {}

CommandEditors::~CommandEditors() = default;

void CommandEditors::add(EditorList editors, MainAppUi& ui)
{
    editors_ = std::move(editors);
    for (const auto& editor : editors_) {
        connect(editor.get(), &CommandControllerBase::current_command_changed, this,
                &CommandEditors::current_command_changed);
        ui.add_editor(*editor);
    }
    QSettings settings;
    for (const auto& editor : editors_)
        editor->main_widget()->restore_settings(settings);
}

bool CommandEditors::set_current_command(const std::shared_ptr<MVCommandBase>& command)
{
    if (current_ && command == command_)
        return false;
    const auto takes = [&command](const auto& editor) { return editor->set_current_command(command); };
    const auto editor = std::ranges::find_if(editors_, takes);
    current_ = editor == editors_.end() ? nullptr : editor->get();
    command_ = command;
    return true;
}

void CommandEditors::refresh() const
{
    if (current_)
        current_->refresh();
}

bool CommandEditors::run_current_command() const
{
    return !current_ || current_->run_current_command();
}
