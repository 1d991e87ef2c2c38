#pragma once

#include <string_view>

namespace platform {

/// False when a Vorbis comment header in these bytes claims to hold more comments than the bytes behind it could.
/// MediaInfo would count to the claimed number, for minutes. The header is found by what stands before it in Ogg
/// and Matroska files.
bool has_honest_comments(std::string_view bytes);

}
