#include "engine/commands/parallel.h"

#include <algorithm>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

std::size_t thread_count(std::size_t work_size)
{
    const std::size_t of_machine = std::thread::hardware_concurrency();
    return std::max<std::size_t>(std::min(of_machine, work_size), 1);
}

void run_parallel(std::size_t threads, const std::function<void(std::size_t)>& work)
{
    std::mutex mutex;
    std::exception_ptr first_failure;
    const auto guarded = [&](std::size_t thread) {
        try {
            work(thread);
        } catch (...) {
            const std::lock_guard lock(mutex);
            if (!first_failure)
                first_failure = std::current_exception();
        }
    };
    {
        std::vector<std::jthread> others;
        others.reserve(threads);
        for (std::size_t thread = 1; thread < threads; ++thread) {
            try {
                others.emplace_back(guarded, thread);
            } catch (const std::system_error&) {
                // The machine gives no more threads: those that run share the work.
                break;
            }
        }
        guarded(0);
    }
    if (first_failure)
        std::rethrow_exception(first_failure);
}
