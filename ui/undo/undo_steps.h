#pragma once

#include <QObject>
#include <QUndoStack>

#include <functional>
#include <memory>
#include <vector>

class MVCommandBase;

/// Commands, each once.
using WrittenCommands = std::vector<std::shared_ptr<MVCommandBase>>;

/// The steps that the user can take back, and the one place that knows when one of them is done. Main thread only.
///
/// Whoever calls the stack: from a step's first change on the steps are running, and `ended` comes once when it is
/// over, for a macro once for all of its steps. What follows from a change, such as a new preview, waits for that.
class UndoSteps final : public QObject
{
    Q_OBJECT

public:
    explicit UndoSteps(QObject* parent = nullptr);
    ~UndoSteps() override;

    QUndoStack& stack() { return stack_; }

    /// Also while `ended` is told.
    bool is_running() const { return is_running_; }

    /// For steps: makes their change. One that throws ends what is running.
    void run(const std::function<void()>& change);

    /// For steps that are running: they changed fields of this command.
    void written(const std::shared_ptr<MVCommandBase>& command);

signals:
    /// A step was pushed, undone or redone, or several at once. `written` are the commands whose fields changed.
    void ended(const WrittenCommands& written);

private:
    void end();

    QUndoStack stack_;
    bool is_running_ = false;
    WrittenCommands written_;
};
