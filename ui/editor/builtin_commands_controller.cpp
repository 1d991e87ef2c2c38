#include "ui/editor/builtin_commands_controller.h"

#include "store/mv_command_builtin.h"
#include "ui/editor/builtin_commands_main_widget.h"

CommandMainWidgetBase* BuiltinCommandsController::create_main_widget(QWidget* parent)
{
    page_ = new BuiltinCommandsMainWidget(*this, parent);
    set_main_widget(page_);
    return page_;
}

bool BuiltinCommandsController::set_current_command(const std::shared_ptr<MVCommandBase>& command)
{
    current_command_ = std::dynamic_pointer_cast<MVCommandBuiltin>(command);
    if (current_command_)
        page_->show_description(current_command_->type());
    return current_command_ != nullptr;
}
