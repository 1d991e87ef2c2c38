#pragma once

#include <cstddef>
#include <string_view>

/// How other programs hand the application a selection: each message on its pipe is the UTF-8 text of one JSON
/// object.
namespace selection_protocol {

constexpr std::string_view pipe_name = "com.mirvanta.vellumark.api-1";

/// The largest message that is read, in bytes.
constexpr std::size_t largest_message = 8 << 20;

/// A row of the menu list, counted from 0.
constexpr std::string_view command_index_key = "commandIndex";
/// Full paths in drive or server form, an array of strings.
constexpr std::string_view paths_key = "paths";

}
