#include "platform/host/properties/media_messages.h"

#include <sys/socket.h>
#include <sys/uio.h>

#include <cerrno>
#include <cstring>

namespace platform {

namespace {

constexpr std::size_t longest_request = 16 << 10;

/// A message with one piece of text and room for one descriptor.
struct Envelope {
    alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))] = {};
    iovec text{};
    msghdr header{};

    Envelope(char* data, std::size_t size) : text{data, size}
    {
        header.msg_iov = &text;
        header.msg_iovlen = 1;
        header.msg_control = control;
        header.msg_controllen = sizeof control;
    }

    Envelope(const Envelope&) = delete;
    Envelope& operator=(const Envelope&) = delete;
};

template <typename Call>
ssize_t uninterrupted(Call call)
{
    for (;;)
        if (const ssize_t result = call(); result >= 0 || errno != EINTR)
            return result;
}

Descriptor taken_descriptor(msghdr& header)
{
    const cmsghdr* const entry = CMSG_FIRSTHDR(&header);
    if (!entry || entry->cmsg_level != SOL_SOCKET || entry->cmsg_type != SCM_RIGHTS ||
        entry->cmsg_len != CMSG_LEN(sizeof(int)))
        return {};
    int descriptor = -1;
    std::memcpy(&descriptor, CMSG_DATA(entry), sizeof descriptor);
    return Descriptor(descriptor);
}

}

bool send_media_request(int socket, int file, std::string_view fields)
{
    std::string text(fields);
    Envelope envelope(text.data(), text.size());
    cmsghdr* const entry = CMSG_FIRSTHDR(&envelope.header);
    entry->cmsg_level = SOL_SOCKET;
    entry->cmsg_type = SCM_RIGHTS;
    entry->cmsg_len = CMSG_LEN(sizeof file);
    std::memcpy(CMSG_DATA(entry), &file, sizeof file);
    // An idle program has taken its last request, so there is room.
    return uninterrupted([&] { return sendmsg(socket, &envelope.header, MSG_NOSIGNAL | MSG_DONTWAIT); }) >= 0;
}

std::optional<MediaRequest> receive_media_request(int socket)
{
    std::string text(longest_request, '\0');
    Envelope envelope(text.data(), text.size());
    const ssize_t count = uninterrupted([&] { return recvmsg(socket, &envelope.header, MSG_CMSG_CLOEXEC); });
    if (count <= 0)
        return {};
    text.resize(static_cast<std::size_t>(count));
    MediaRequest request{taken_descriptor(envelope.header), std::move(text)};
    const bool is_whole = (envelope.header.msg_flags & (MSG_TRUNC | MSG_CTRUNC)) == 0;
    return request.file && is_whole ? std::optional(std::move(request)) : std::nullopt;
}

bool send_media_answer(int socket, std::string_view message)
{
    return uninterrupted([&] { return send(socket, message.data(), message.size(), MSG_NOSIGNAL); }) >= 0;
}

}
