#pragma once

namespace platform {

/// Once, at the start: little memory, no core file, no written file. What goes beyond ends the program, and so does
/// a limit that can't be set.
void limit_resources();

/// Ends the program unless it is called again within the time that nobody waits for an answer any more. The platform
/// kills a program that is late, but perhaps the platform is gone itself.
void restart_alarm();
/// While the program waits for a request.
void stop_alarm();

}
