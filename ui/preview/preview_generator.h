#pragma once

#include "engine/commands/vellumark_command.h"
#include "engine/runner/vellumark_thread.h"
#include "ui/preview/run_progress.h"
#include "ui/selection_reader.h"
#include "ui/suspendable.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>

/// Makes the text of one command for the selection, in the background, and anew at each change of the command. Only
/// the last of several requests brings a text. Main thread only, but for what the worker calls.
class PreviewGenerator final : public QObject, public SelectionReader, public Suspendable, public VellumarkWatcher
{
    Q_OBJECT

public:
    /// Starts nothing. `readers` keeps `items` from changing under a run and outlives the generator.
    PreviewGenerator(std::shared_ptr<const MVItemsSet> items, SelectionReaders& readers, QObject* parent = nullptr);
    /// Cancels the run in progress and waits for its end.
    ~PreviewGenerator() override;

    /// Starts a run for the command as it is now and ends a batch. Without one the text is empty at once. While a
    /// selection waits, the command is only remembered: the refresh that follows the new selection sets it again.
    void set_command(std::shared_ptr<const VellumarkCommand> command);

    /// Whether the command's text is still to come; not while suspended, for no one makes it then.
    bool is_updating() const { return updating_; }

    /// The finished text; empty while it is made, and when that failed.
    const QString& text() const { return text_; }

    /// Why there is no text; empty where nothing failed.
    const QString& failure() const { return failure_; }

    /// Several changes follow; whoever ends the batch sets the command then.
    void begin_batch() { defer_updates_ = true; }

    bool defer_updates() const { return defer_updates_; }

    bool is_suspended() const { return suspended_; }

    /// Cancels the run in progress and starts no other one.
    void suspend() override;
    /// Starts a run for the command, if there is one: what the text was made of may have changed.
    void resume() override;

    bool is_reading() const override { return thread_ && !thread_->is_idle(); }

    void stop_reading() override;

signals:
    /// The text is out of date; another one is being made.
    void text_updating();
    /// The text of the command that was set last, empty with a `failure`.
    void text_ready(const QString& text);
    /// What the run is doing and the path that it is at, ten times a second at most; either may be empty.
    void progress_changed(const QString& status, const QString& item);

    void text_delivered(QPrivateSignal);
    void worker_became_idle(QPrivateSignal);

private:
    struct Delivery {
        QString text, failure;
        std::uint32_t request_id = 0;
    };

    void text_report(std::u16string text, std::uint32_t request_id) override;
    void item_report(std::u16string_view text) override;
    void status_report(std::u16string_view text) override;
    void failure_report(std::u16string_view words, std::uint32_t request_id) override;
    void worker_idle() override;

    void start_run();
    void request_text();
    void cancel_run();
    void take_delivery();
    void finish(const QString& text, const QString& failure = {});
    void pass_progress_on();
    void pass_idle_on();

    const std::shared_ptr<const MVItemsSet> items_;
    SelectionReaders& readers_;
    std::shared_ptr<const VellumarkCommand> command_;
    QString text_, failure_;
    bool defer_updates_ = false;
    bool updating_ = false;
    bool suspended_ = false;
    std::uint32_t request_counter_ = 0;
    RunProgress progress_;
    QTimer progress_timer_;
    std::mutex delivery_mutex_;
    std::optional<Delivery> delivery_;        ///< by the worker, not yet taken
    Delivery failed_;                         ///< the worker's: what it has to tell with the text to come
    std::unique_ptr<VellumarkThread> thread_; ///< last, for its worker uses the others until it is joined
};
