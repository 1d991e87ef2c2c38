#include "ui/preview/preview_generator.h"

#include "ui/text.h"

#include <new>
#include <system_error>
#include <utility>

namespace {

constexpr int progress_interval_ms = 100;

}

PreviewGenerator::PreviewGenerator(std::shared_ptr<const MVItemsSet> items, SelectionReaders& readers,
                                   QObject* parent)
    : QObject(parent), items_(std::move(items)), readers_(readers)
{
    progress_timer_.setInterval(progress_interval_ms);
    connect(&progress_timer_, &QTimer::timeout, this, &PreviewGenerator::pass_progress_on);
    connect(this, &PreviewGenerator::text_delivered, this, &PreviewGenerator::take_delivery, Qt::QueuedConnection);
    connect(this, &PreviewGenerator::worker_became_idle, this, &PreviewGenerator::pass_idle_on, Qt::QueuedConnection);
    readers_.add_reader(*this);
}

PreviewGenerator::~PreviewGenerator()
{
    // The selection changes after this returns at the earliest, and by then the worker is gone.
    readers_.remove_reader(*this);
}

void PreviewGenerator::set_command(std::shared_ptr<const VellumarkCommand> command)
{
    command_ = std::move(command);
    defer_updates_ = false;
    if (command_) {
        start_run();
        return;
    }
    ++request_counter_;
    cancel_run();
    finish({});
}

void PreviewGenerator::suspend()
{
    suspended_ = true;
    if (std::exchange(updating_, false))
        stop_reading();
}

void PreviewGenerator::resume()
{
    suspended_ = false;
    if (command_)
        start_run();
}

void PreviewGenerator::stop_reading()
{
    // A text that is on its way already was made of the old selection, too.
    ++request_counter_;
    cancel_run();
}

void PreviewGenerator::start_run()
{
    ++request_counter_;
    text_.clear();
    failure_.clear();
    if (suspended_) {
        cancel_run();
        return;
    }
    updating_ = true;
    emit text_updating();
    request_text();
}

void PreviewGenerator::request_text()
{
    if (readers_.is_selection_waiting()) {
        cancel_run();
        return;
    }
    if (!thread_)
        thread_ = std::make_unique<VellumarkThread>(*this, items_);
    try {
        progress_.restart([this] { thread_->request(command_.get(), request_counter_); });
        progress_timer_.start();
    } catch (const std::system_error& error) {
        finish({}, QString::fromLocal8Bit(error.what()));
    }
}

void PreviewGenerator::cancel_run()
{
    progress_timer_.stop();
    if (thread_)
        thread_->request(nullptr, 0);
}

void PreviewGenerator::text_report(std::u16string text, std::uint32_t request_id)
{
    Delivery delivery = std::exchange(failed_, {});
    if (delivery.request_id != request_id)
        delivery = {.text = {}, .failure = {}, .request_id = request_id};
    try {
        delivery.text = to_qstring(text);
    } catch (const std::bad_alloc& error) {
        delivery.failure = QString::fromLatin1(error.what());
    }
    {
        const std::lock_guard lock(delivery_mutex_);
        delivery_ = std::move(delivery);
    }
    emit text_delivered(QPrivateSignal());
}

void PreviewGenerator::failure_report(std::u16string_view words, std::uint32_t request_id)
{
    // Words that need no memory first, for the lack of it may be the failure.
    failed_ = {.text = {}, .failure = QStringLiteral("Out of memory"), .request_id = request_id};
    failed_.failure = to_qstring(words);
}

void PreviewGenerator::take_delivery()
{
    std::optional<Delivery> delivery;
    {
        const std::lock_guard lock(delivery_mutex_);
        delivery = std::exchange(delivery_, std::nullopt);
    }
    if (delivery && delivery->request_id == request_counter_)
        finish(delivery->text, delivery->failure);
}

void PreviewGenerator::finish(const QString& text, const QString& failure)
{
    updating_ = false;
    progress_timer_.stop();
    text_ = text;
    failure_ = failure;
    emit text_ready(text);
}

void PreviewGenerator::item_report(std::u16string_view text)
{
    progress_.set_item(*thread_, text);
}

void PreviewGenerator::status_report(std::u16string_view text)
{
    progress_.set_status(*thread_, text);
}

void PreviewGenerator::pass_progress_on()
{
    const auto [status, item] = progress_.newest();
    emit progress_changed(to_qstring(status), to_qstring(item));
}

void PreviewGenerator::worker_idle()
{
    emit worker_became_idle(QPrivateSignal());
}

void PreviewGenerator::pass_idle_on()
{
    if (!is_reading())
        readers_.reading_ended();
}
