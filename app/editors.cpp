#include "app/editors.h"

#include "ui/editor/builtin_commands_controller.h"
#include "ui/editor/vellumark_controller.h"

MakeEditors editors_with(platform::Clipboard& clipboard)
{
    return [&clipboard](AppServices& app) {
        EditorList editors;
        editors.push_back(std::make_unique<VellumarkController>(app, clipboard));
        editors.push_back(std::make_unique<BuiltinCommandsController>(app));
        return editors;
    };
}
