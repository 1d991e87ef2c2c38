#include "store/builtin_command_info.h"

#include "engine/items/mv_items_set.h"
#include "engine/text/tr_noop.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

constexpr std::array<BuiltinCommandInfo, 9> infos{{
    {CommandType::Vellumark, TR_NOOP("BuiltinCommandInfo", "Vellumark"),
     TR_NOOP("BuiltinCommandInfo", "Copy Filename"),
     TR_NOOP("BuiltinCommandInfo", "Copies just the names of each selected file or folder, one per line."),
     BuiltinShowRule::None, false},
    {CommandType::MultiRename, TR_NOOP("BuiltinCommandInfo", "Multi Rename"), "",
     TR_NOOP("BuiltinCommandInfo",
             "Brings up a dialog that lets you make simple changes to the names of all the selected files, such as "
             "changing all the text the filenames have in common."),
     BuiltinShowRule::SeveralItems, true},
    {CommandType::PasteFilename, TR_NOOP("BuiltinCommandInfo", "Paste Filename"), "",
     TR_NOOP("BuiltinCommandInfo", "Renames the selected file with the name from the clipboard."),
     BuiltinShowRule::OneItem, true},
    {CommandType::PasteFilenameNoExt, TR_NOOP("BuiltinCommandInfo", "Paste Filename (No Ext.)"), "",
     TR_NOOP("BuiltinCommandInfo",
             "Renames the selected file with the name from the clipboard but leaves the file extension unchanged."),
     BuiltinShowRule::OneItem, true},
    {CommandType::CopyFilenameAndDelete, TR_NOOP("BuiltinCommandInfo", "Copy Filename and Delete"), "",
     TR_NOOP(
         "BuiltinCommandInfo",
         "Copies the name of the selected file, then deletes it. This can be used to replace one file with "
         "another, by using <i>Copy Filename and Delete</i> on the file to replace, then <i>Paste Filename</i> on "
         "the replacement file."),
     BuiltinShowRule::OneFile, true},
    {CommandType::ExtractFolder, TR_NOOP("BuiltinCommandInfo", "Extract Folders"),
     TR_NOOP("BuiltinCommandInfo", "Extract Folder"),
     TR_NOOP("BuiltinCommandInfo",
             "Moves all the files and subfolders in the selected folder into the parent folder, then deletes the "
             "selected folder."),
     BuiltinShowRule::AFolder, false},
    {CommandType::DeleteEmptyFolders, TR_NOOP("BuiltinCommandInfo", "Delete Empty Folders"), "",
     TR_NOOP("BuiltinCommandInfo", "Scans the selected folder(s) and deletes any empty folders found."),
     BuiltinShowRule::AFolder, false},
    {CommandType::Configure, TR_NOOP("BuiltinCommandInfo", "More Commands..."), "",
     TR_NOOP(
         "BuiltinCommandInfo",
         "Opens this dialog where you can browse the command gallery, select from the stored commands, and adjust "
         "the options as required."),
     BuiltinShowRule::None, true},
    {CommandType::Invalid, TR_NOOP("BuiltinCommandInfo", "Invalid"), "",
     TR_NOOP("BuiltinCommandInfo", "Error: invalid command type."), BuiltinShowRule::None, false},
}};

static_assert(infos.size() == command_types.size() + 1, "every type has a row, the invalid one the last");

constexpr std::array<std::string_view, 5> rule_texts{
    "",
    TR_NOOP(
        "BuiltinCommandInfo",
        "Only shown if exactly one file is selected and the clipboard contains text that is valid for a filename."),
    TR_NOOP("BuiltinCommandInfo", "Only shown if a folder is selected."),
    TR_NOOP("BuiltinCommandInfo", "Only shown if exactly one file is selected."),
    TR_NOOP("BuiltinCommandInfo", "Only shown if more than one file is selected."),
};

/// Differs from the table's names where those speak of several items.
std::string_view own_name(CommandType type, std::string_view of_file_name_command)
{
    if (type == CommandType::Vellumark)
        return of_file_name_command;
    const BuiltinCommandInfo& info = builtin_command_info(type);
    return info.one_item_name.empty() ? info.name : info.one_item_name;
}

}

std::string_view BuiltinCommandInfo::show_rule_text() const
{
    return rule_texts[static_cast<std::size_t>(show_rule)];
}

const BuiltinCommandInfo& builtin_command_info(CommandType type)
{
    const auto found = std::ranges::find(infos, type, &BuiltinCommandInfo::type);
    return found == infos.end() ? infos.back() : *found;
}

std::vector<BuiltinCommandInfo> listed_builtin_commands()
{
    std::vector<BuiltinCommandInfo> listed;
    std::ranges::copy_if(infos, std::back_inserter(listed), &BuiltinCommandInfo::listed);
    return listed;
}

bool builtin_show_test(CommandType type, const MVItemsSet& selection)
{
    const std::size_t count = selection.items().size();
    switch (builtin_command_info(type).show_rule) {
    case BuiltinShowRule::None: return true;
    case BuiltinShowRule::OneItem: return count == 1;
    case BuiltinShowRule::AFolder: return selection.has_folders();
    case BuiltinShowRule::OneFile: return count == 1 && selection.has_files();
    case BuiltinShowRule::SeveralItems: return count > 1;
    }
    return false;
}

std::string_view default_command_name(CommandType type)
{
    return own_name(type, TR_NOOP("BuiltinCommandInfo", "Unnamed"));
}

std::string_view full_command_name(CommandType type)
{
    return own_name(type, TR_NOOP("BuiltinCommandInfo", "Vellumark Stored Command"));
}
