#include "app/mirvanta_app.h"

#include "app/list_edits.h"
#include "app/main_app_ui.h"
#include "app/message_boxes.h"
#include "app/selection_paths.h"
#include "app/window_parts.h"
#include "engine/commands/vellumark_command.h"
#include "ui/dialogs/about_dlg.h"
#include "ui/editor/command_controller_base.h"
#include "ui/editor/command_main_widget_base.h"
#include "ui/lists/commands_list_model.h"
#include "ui/product.h"

#include <QDebug>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QPainter>
#include <QSettings>
#include <QUrl>
#include <QVBoxLayout>
