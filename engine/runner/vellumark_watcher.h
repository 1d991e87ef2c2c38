#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Whoever wants the texts of a VellumarkThread. Outlives the thread object. What an operation throws is dropped,
/// with the report or text that it was given.
class VellumarkWatcher
{
public:
    virtual ~VellumarkWatcher() = default;

    /// The text of the request with this id, which has not been overtaken so far. Called on the worker thread. May
    /// make a new request.
    virtual void text_report(std::u16string text, std::uint32_t request_id) = 0;

    /// The path of the item being worked on; from any of a run's threads, several at once.
    virtual void item_report(std::u16string_view) {}

    /// What a run is doing; from its threads.
    virtual void status_report(std::u16string_view) {}

    /// The run of the request with this id has failed, in the words of its exception, which were a status report
    /// before; an empty text comes next. Called on the worker thread.
    virtual void failure_report(std::u16string_view /*words*/, std::uint32_t /*request_id*/) {}

    /// The worker has stopped reading the selection and is idle; a request may have made it busy again before this
    /// is told. Called on the worker thread, which then ends. May ask the thread object how things are, but makes no
    /// request. Not told when the thread object goes.
    virtual void worker_idle() {}
};
