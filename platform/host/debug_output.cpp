#include "platform/debug_output.h"

#include "platform/host/write_all.h"

namespace platform {

void debug_output(std::string_view text)
{
    // Where nobody watches there is nobody to tell of it either.
    static_cast<void>(write_all(STDERR_FILENO, text));
}

}
