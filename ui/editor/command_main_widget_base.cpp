#include "ui/editor/command_main_widget_base.h"

CommandMainWidgetBase::CommandMainWidgetBase(CommandControllerBase& controller, QWidget* parent)
    : QWidget(parent), controller_(controller)
{}
