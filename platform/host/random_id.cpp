#include "platform/random_id.h"

#include <sys/random.h>

#include <cerrno>
#include <system_error>

namespace platform {

RandomId make_random_id()
{
    RandomId id;
    static_assert(sizeof id == 16);
    // The kernel gives up to 256 bytes whole once it gives any; a signal can only interrupt the wait before that.
    while (getrandom(&id, sizeof id, 0) != static_cast<ssize_t>(sizeof id))
        if (errno != EINTR)
            throw std::system_error(errno, std::system_category(), "no random numbers");
    id.data3 = static_cast<std::uint16_t>((id.data3 & 0x0FFF) | 0x4000);
    id.data4[0] = static_cast<std::uint8_t>((id.data4[0] & 0x3F) | 0x80);
    return id;
}

}
