#pragma once

#include <memory>
#include <system_error>
#include <thread>
#include <utility>

/// Deletes on a thread of its own what owns so many items that it takes long; here where there can be no thread.
template <typename Owner>
void delete_elsewhere(Owner* owner)
{
    std::unique_ptr<Owner> owned(owner);
    try {
        std::thread([owned = std::move(owned)] {}).detach();
    } catch (const std::system_error&) {
        // It has been deleted with the function that the thread was to run.
    }
}
