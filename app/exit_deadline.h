#pragma once

#include <chrono>

/// Ends the process with `status` when it is still there after `patience`: what the program does last is wait for its
/// background work, which a disk that no longer answers would make endless. To be called when nothing remains to be
/// kept. Where there can be no thread for it, nothing happens.
void end_process_within(std::chrono::milliseconds patience, int status);
