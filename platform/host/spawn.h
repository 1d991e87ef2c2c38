#pragma once

#include <sys/types.h>

#include <string>

namespace platform {

/// How far away from its starter a new program stands.
enum class SpawnPlace {
    OwnGroup,  ///< out of reach of the interrupt key, in the starter's current folder
    OwnSession ///< without the starter's terminal, in the root folder
};

/// The descriptor under which a new program finds its socket.
constexpr int socket_of_spawned = 3;

/// Starts the program in `file`, a path of the host, without arguments. Its standard streams lead nowhere, no signal
/// is blocked or ignored, and of the caller's descriptors it has `socket` alone, or none when that is -1.
/// 0, and the process in `id`, else an error number of the system.
int spawn(pid_t& id, std::string file, SpawnPlace place, int socket = -1);

}
