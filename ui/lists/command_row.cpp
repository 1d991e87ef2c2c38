#include "ui/lists/command_row.h"

#include "engine/commands/mv_command_base.h"
#include "store/builtin_command_info.h"
#include "ui/colours.h"
#include "ui/text.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CommandsListModel)
};

QString translated(std::string_view text)
{
    return QCoreApplication::translate("BuiltinCommandInfo", std::string(text).c_str());
}

bool is_file_name_command(const MVCommandBase& command)
{
    return command.type() == CommandType::Vellumark;
}

}

namespace command_row {

QString shown_name(const MVCommandBase& command)
{
    const QString name =
        command.name().empty() ? translated(default_command_name(command.type())) : to_qstring(command.name());
    return command.from_previous_session() ? Texts::tr("%1 (uncommitted changes)").arg(name) : name;
}

QString kind(const MVCommandBase& command)
{
    const QString name = translated(full_command_name(command.type()));
    return is_file_name_command(command) ? name : Texts::tr("Built-in Command: %1").arg(name);
}

QString mark_reason(const MVCommandBase& command)
{
    if (!command.has_uncommitted_changes())
        return {};
    return command.from_previous_session() ? Texts::tr("This command has changes from a previous session")
                                           : Texts::tr("This command has unsaved changes");
}

QString spoken_name(const MVCommandBase& command, bool shown)
{
    QStringList words{shown_name(command)};
    if (command.has_uncommitted_changes() && !command.from_previous_session())
        words << Texts::tr("unsaved changes");
    if (!shown)
        words << Texts::tr("not shown for this selection");
    return words.join(Texts::tr(", ", "between a command's name and its states, spoken"));
}

QColor colour(const MVCommandBase& command, bool shown)
{
    if (!is_file_name_command(command))
        return shown ? colours::builtin_command_shown() : colours::builtin_command_not_shown();
    if (!shown)
        return colours::file_name_command_not_shown();
    return command.name().empty() ? colours::file_name_command_shown_nameless() : colours::file_name_command_shown();
}

}
