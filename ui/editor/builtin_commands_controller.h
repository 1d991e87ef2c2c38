#pragma once

#include "ui/editor/command_controller_base.h"

class BuiltinCommandsMainWidget;
class MVCommandBuiltin;

/// The editor of built-in commands, which have nothing to edit: it says what they do. Main thread only.
class BuiltinCommandsController final : public CommandControllerBase
{
    Q_OBJECT

public:
    using CommandControllerBase::CommandControllerBase;

    CommandMainWidgetBase* create_main_widget(QWidget* parent) override;
    bool set_current_command(const std::shared_ptr<MVCommandBase>& command) override;

private:
    std::shared_ptr<MVCommandBuiltin> current_command_;
    BuiltinCommandsMainWidget* page_ = nullptr;
};
