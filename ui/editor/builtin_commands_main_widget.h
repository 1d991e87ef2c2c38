#pragma once

#include "engine/commands/command_type.h"
#include "ui/editor/command_main_widget_base.h"

class QLabel;

/// The page of a built-in command: what it does and when it shows.
class BuiltinCommandsMainWidget final : public CommandMainWidgetBase
{
    Q_OBJECT

public:
    BuiltinCommandsMainWidget(CommandControllerBase& controller, QWidget* parent);

    void show_description(CommandType type);

private:
    QLabel* hint_ = nullptr; ///< while no command is shown
    QLabel* description_ = nullptr;
};
