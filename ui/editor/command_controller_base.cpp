#include "ui/editor/command_controller_base.h"

CommandControllerBase::CommandControllerBase(AppServices& app, QObject* parent) : QObject(parent), app_(app) {}
