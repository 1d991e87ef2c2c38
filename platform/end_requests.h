#pragma once

namespace platform {

/// From here on the process isn't ended at once by the system, the session or a terminal that asks it to end: a byte
/// comes in at the descriptor that is returned and that stays open. It is ended when it is still there twenty seconds
/// later, and at once by a second request of the same kind. The requests are SIGTERM, SIGINT and SIGHUP here; those
/// that the process was started to ignore stay ignored. -1 when there can be no descriptor, and then nothing has
/// changed. Once in a process.
int watch_end_requests();

}
