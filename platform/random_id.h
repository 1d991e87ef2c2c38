#pragma once

#include <array>
#include <cstdint>

namespace platform {

/// A random 128-bit identifier, version 4 of RFC 9562: fields in the order in which its text form shows them.
struct RandomId {
    std::uint32_t data1 = 0;
    std::uint16_t data2 = 0, data3 = 0;
    std::array<std::uint8_t, 8> data4{};
};

/// A new identifier from the system's random source. Throws std::system_error when there is none.
RandomId make_random_id();

}
