#include "engine/runner/vellumark_thread.h"

#include "engine/text/utf.h"

#include <exception>
#include <string>
#include <utility>

namespace {

const std::string unknown_failure = "Unknown error";

}

VellumarkThread::VellumarkThread(VellumarkWatcher& watcher, std::shared_ptr<const MVItemsSet> items)
    : watcher_(watcher), items_(std::move(items))
{}

VellumarkThread::~VellumarkThread()
{
    {
        const std::lock_guard lock(mutex_);
        state_ = State::Stopping;
    }
    if (thread_.joinable())
        thread_.join();
}

void VellumarkThread::request(const VellumarkCommand* command, std::uint32_t id)
{
    // Copied here, for the caller may change the command as soon as this returns.
    auto copy = command ? std::make_unique<const VellumarkCommand>(*command) : nullptr;
    std::unique_lock lock(mutex_);
    pending_command_ = std::move(copy);
    pending_request_id_ = id;
    if (state_ == State::Running)
        state_ = State::Restart;
    if (state_ != State::Idle || !pending_command_)
        return;
    try {
        join_finished(lock);
        thread_ = std::thread(&VellumarkThread::work, this);
    } catch (...) {
        pending_command_.reset();
        throw;
    }
    state_ = State::Running;
}

void VellumarkThread::join_finished(std::unique_lock<std::mutex>& lock)
{
    std::thread finished = std::move(thread_);
    lock.unlock();
    if (finished.get_id() == std::this_thread::get_id())
        finished.detach();
    else if (finished.joinable())
        finished.join();
    lock.lock();
}

bool VellumarkThread::is_running() const
{
    const std::lock_guard lock(mutex_);
    return state_ == State::Running;
}

void VellumarkThread::work()
{
    while (take_request())
        run();
    tell_idle();
}

bool VellumarkThread::take_request()
{
    const std::lock_guard lock(mutex_);
    if (!pending_command_ || state_ == State::Stopping) {
        if (state_ != State::Stopping)
            state_ = State::Idle;
        return false;
    }
    working_command_ = std::move(pending_command_);
    request_id_ = pending_request_id_;
    state_ = State::Running;
    return true;
}

void VellumarkThread::run()
{
    try {
        deliver(made_text());
    } catch (...) {
        // Thrown by the watcher itself, who can't be told of it.
    }
}

std::u16string VellumarkThread::made_text()
{
    std::u16string text;
    std::string failure;
    try {
        working_command_->generate_text(text, *items_, *this);
        return text;
    } catch (const std::exception& error) {
        failure = error.what();
    } catch (...) {
        failure = unknown_failure;
    }
    if (!is_cancelled())
        tell_failure(failure);
    return {};
}

void VellumarkThread::tell_failure(const std::string& words)
{
    try {
        const std::u16string text = to_utf16(words.empty() ? unknown_failure : words);
        watcher_.status_report(text);
        watcher_.failure_report(text, request_id_);
    } catch (...) {
        // Thrown by the watcher itself; the text that answers the request has to come all the same.
    }
}

void VellumarkThread::deliver(std::u16string text)
{
    if (!is_cancelled())
        watcher_.text_report(std::move(text), request_id_);
}

void VellumarkThread::tell_idle()
{
    // Another request joins this thread before it starts its own, so the watcher is told in order.
    if (state_ == State::Stopping)
        return;
    try {
        watcher_.worker_idle();
    } catch (...) {
        // Thrown by the watcher itself, who can't be told of it.
    }
}
