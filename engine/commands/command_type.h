#pragma once

#include "engine/text/enum_table.h"

#include <array>
#include <cstdint>

/// What a stored command does. Only `Vellumark` commands make text.
enum class CommandType : std::uint32_t {
    Vellumark,
    MultiRename,
    PasteFilename,
    PasteFilenameNoExt,
    CopyFilenameAndDelete,
    ExtractFolder,
    DeleteEmptyFolders,
    Configure,
    Invalid ///< in no stored file
};

inline constexpr std::array<EnumRow<CommandType>, 8> command_types{{
    {CommandType::Vellumark, "Vellumark"},
    {CommandType::MultiRename, "MultiRename"},
    {CommandType::PasteFilename, "PasteFilename"},
    {CommandType::PasteFilenameNoExt, "PasteFilenameNoExt"},
    {CommandType::CopyFilenameAndDelete, "CopyFilenameAndDelete"},
    {CommandType::ExtractFolder, "ExtractFolder"},
    {CommandType::DeleteEmptyFolders, "DeleteEmptyFolders"},
    {CommandType::Configure, "Configure"},
}};
static_assert(is_complete(command_types));
