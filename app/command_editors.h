#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

class AppServices;
class CommandControllerBase;
class MVCommandBase;
class MainAppUi;

using EditorList = std::vector<std::unique_ptr<CommandControllerBase>>;

/// Makes the editors, in the order in which they are offered a command.
using MakeEditors = std::function<EditorList(AppServices&)>;

/// The editors, and which of them has the current command. Main thread only.
class CommandEditors final : public QObject
{
    Q_OBJECT

public:
    explicit CommandEditors(QObject* parent = nullptr);
    ~CommandEditors() override;

    /// Takes the editors over, puts their pages into `ui` and restores what the pages keep. Once.
    void add(EditorList editors, MainAppUi& ui);

    /// Offers the command to one editor after the other. The first that takes it becomes the current one; there is
    /// none when nobody does. False when an editor has this very command already: that stays as it is.
    bool set_current_command(const std::shared_ptr<MVCommandBase>& command);

    /// Null when no editor has the current command.
    CommandControllerBase* current() const { return current_; }

    /// The current command changed behind its editor: brings that up to date.
    void refresh() const;

    /// What OK does with the current command. True when the application may close at once, as it may without an
    /// editor.
    bool run_current_command() const;

signals:
    /// The current command's fields changed, by an edit or by undo.
    void current_command_changed();

private:
    EditorList editors_;
    CommandControllerBase* current_ = nullptr;
    std::shared_ptr<MVCommandBase> command_; ///< the current editor's
};
