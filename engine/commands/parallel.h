#pragma once

#include <cstddef>
#include <functional>

/// How many threads a work of `work_size` units gets: the machine's, at most one a unit, at least one.
std::size_t thread_count(std::size_t work_size);

/// Runs `work(thread)` on `threads` threads at once, numbered from 0, the caller's among them, and returns when all
/// have ended. The first exception of any of them is thrown then.
void run_parallel(std::size_t threads, const std::function<void(std::size_t thread)>& work);
