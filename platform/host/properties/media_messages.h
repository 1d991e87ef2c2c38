#pragma once

#include "platform/host/descriptor.h"

#include <optional>
#include <string>
#include <string_view>

/// What goes over the socket between the platform and the program that reads films. The socket keeps messages apart.
///
/// A request holds the names of the wanted fields, each with U+0000 behind it, and the open file: the program opens
/// nothing by itself. A name is the stream and MediaInfo's name of the field, "Video;Width". For each field that the
/// file has there is an answer with the name, U+0000 and the UTF-8 text; the last answer is a full stop.
namespace platform {

constexpr std::size_t longest_media_message = 128 << 10;
constexpr std::string_view end_of_media_answers = ".";

struct MediaRequest {
    Descriptor file;
    std::string fields;
};

/// False when the other side is gone.
bool send_media_request(int socket, int file, std::string_view fields);

/// Waits for a request. Empty when the other side is gone or says something else.
std::optional<MediaRequest> receive_media_request(int socket);

/// Waits until there is room. False when the other side is gone.
bool send_media_answer(int socket, std::string_view message);

}
