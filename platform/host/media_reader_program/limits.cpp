#include "platform/host/media_reader_program/limits.h"

#include <sys/resource.h>
#include <unistd.h>

namespace platform {

namespace {

void limit(__rlimit_resource resource, rlim_t most)
{
    const rlimit value{most, most};
    if (setrlimit(resource, &value) != 0)
        _exit(1);
}

}

void limit_resources()
{
    // An honest film of any size takes some 20 MB, the libraries' addresses included 45 MB.
    constexpr rlim_t most_memory = 256 << 20;
    limit(RLIMIT_AS, most_memory);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_FSIZE, 0);
}

void restart_alarm()
{
    constexpr unsigned seconds = 4;
    alarm(seconds);
}

void stop_alarm()
{
    alarm(0);
}

}
