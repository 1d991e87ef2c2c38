#pragma once

#include <cstddef>
#include <functional>

/// How many threads a work of `work_size` units gets: the machine's, at most one a unit, at least one.
std::size_t thread_count(std::size_t work_size);

/// Calls `work(index, thread)` for each index below `work_size`, on `thread_count(work_size)` threads numbered from
/// 0, the caller's among them. Each thread takes the next index when it is done with one; before that it asks `stop`
/// and ends when told so. Returns when all threads have ended. When one throws, the others take no further index, and
/// the first exception is thrown here.
void for_each_parallel(std::size_t work_size, const std::function<bool()>& stop,
                       const std::function<void(std::size_t index, std::size_t thread)>& work);
