#include "platform/host/media_reader_program/limits.h"
#include "platform/host/media_reader_program/media_streams.h"
#include "platform/host/properties/media_messages.h"

namespace {

constexpr int socket_to_platform = 3;

/// False when the platform is gone.
bool answer(const platform::MediaRequest& request)
{
    const platform::MediaStreams streams(request.file.get());
    std::string_view rest = streams.is_known() ? request.fields : std::string_view();
    while (!rest.empty()) {
        const std::string name(rest.substr(0, rest.find('\0')));
        rest.remove_prefix(std::min(name.size() + 1, rest.size()));
        const std::string text = streams.field(name);
        const std::string message = (name + '\0').append(text);
        if (!text.empty() && !platform::send_media_answer(socket_to_platform, message))
            return false;
    }
    return platform::send_media_answer(socket_to_platform, platform::end_of_media_answers);
}

}

/// Reads films for the platform, file after file, until the other end of its socket is closed. It is lost with the
/// first file that MediaInfo fails at in any way; whoever started it starts another.
int main()
{
    platform::limit_resources();
    for (;;) {
        const auto request = platform::receive_media_request(socket_to_platform);
        if (!request)
            break;
        platform::restart_alarm();
        if (!answer(*request))
            break;
        platform::stop_alarm();
    }
}
