#include "store/builtin_command_info.h"

#include "engine/items/mv_items_set.h"
#include "engine/text/tr_noop.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

#define TEXT(text) TR_NOOP("BuiltinCommandInfo", text)

constexpr std::array<BuiltinCommandInfo, 9> infos{{
    {CommandType::Vellumark, TEXT("Vellumark"), TEXT("Copy Filename"),
     TEXT("Copies just the names of each selected file or folder, one per line."), BuiltinShowRule::None, false},
    {CommandType::MultiRename, TEXT("Multi Rename"), "",
     TEXT("Brings up a dialog that lets you make simple changes to the names of all the selected files, such as "
          "changing all the text the filenames have in common."),
     BuiltinShowRule::SeveralItems, true},
    {CommandType::PasteFilename, TEXT("Paste Filename"), "",
     TEXT("Renames the selected file with the name from the clipboard."), BuiltinShowRule::OneItem, true},
    {CommandType::PasteFilenameNoExt, TEXT("Paste Filename (No Ext.)"), "",
     TEXT("Renames the selected file with the name from the clipboard but leaves the file extension unchanged."),
     BuiltinShowRule::OneItem, true},
    {CommandType::CopyFilenameAndDelete, TEXT("Copy Filename and Delete"), "",
     TEXT("Copies the name of the selected file, then deletes it. This can be used to replace one file with "
          "another, by using <i>Copy Filename and Delete</i> on the file to replace, then <i>Paste Filename</i> on "
          "the replacement file."),
     BuiltinShowRule::OneFile, true},
    {CommandType::ExtractFolder, TEXT("Extract Folders"), TEXT("Extract Folder"),
     TEXT("Moves all the files and subfolders in the selected folder into the parent folder, then deletes the "
          "selected folder."),
     BuiltinShowRule::AFolder, false},
    {CommandType::DeleteEmptyFolders, TEXT("Delete Empty Folders"), "",
     TEXT("Scans the selected folder(s) and deletes any empty folders found."), BuiltinShowRule::AFolder, false},
    {CommandType::Configure, TEXT("More Commands..."), "",
     TEXT("Opens this dialog where you can browse the command gallery, select from the stored commands, and adjust "
          "the options as required."),
     BuiltinShowRule::None, true},
    {CommandType::Invalid, TEXT("Invalid"), "", TEXT("Error: invalid command type."), BuiltinShowRule::None, false},
}};

constexpr std::array<std::string_view, 5> rule_texts{
    "",
    TEXT("Only shown if exactly one file is selected and the clipboard contains text that is valid for a filename."),
    TEXT("Only shown if a folder is selected."),
    TEXT("Only shown if exactly one file is selected."),
    TEXT("Only shown if more than one file is selected."),
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
    return own_name(type, TEXT("Unnamed"));
}

std::string_view full_command_name(CommandType type)
{
    return own_name(type, TEXT("Vellumark Stored Command"));
}
