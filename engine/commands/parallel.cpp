#include "engine/commands/parallel.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace {

/// The first exception of several threads.
class Failure
{
public:
    void keep_current()
    {
        const std::lock_guard lock(mutex_);
        if (!first_)
            first_ = std::current_exception();
        happened_ = true;
    }

    bool happened() const { return happened_; }

    void rethrow_if_any() const
    {
        if (first_)
            std::rethrow_exception(first_);
    }

private:
    std::mutex mutex_;
    std::exception_ptr first_;
    std::atomic<bool> happened_ = false;
};

}

std::size_t thread_count(std::size_t work_size)
{
    const std::size_t of_machine = std::thread::hardware_concurrency();
    return std::max<std::size_t>(std::min(of_machine, work_size), 1);
}

void for_each_parallel(std::size_t work_size, const std::function<bool()>& stop,
                       const std::function<void(std::size_t, std::size_t)>& work)
{
    std::atomic<std::uint64_t> next = 0;
    Failure failure;
    const auto run = [&](std::size_t thread) {
        try {
            while (!failure.happened() && !stop()) {
                const std::uint64_t index = next.fetch_add(1);
                if (index >= work_size)
                    return;
                work(index, thread);
            }
        } catch (...) {
            failure.keep_current();
        }
    };
    {
        std::vector<std::jthread> others;
        for (std::size_t thread = 1; thread < thread_count(work_size); ++thread) {
            try {
                others.emplace_back(run, thread);
            } catch (const std::system_error&) {
                // The machine gives no more threads: those that run share the work.
                break;
            } catch (...) {
                failure.keep_current();
                break;
            }
        }
        run(0);
    }
    failure.rethrow_if_any();
}
