#pragma once

#include "app/stored_files.h"
#include "app/stored_watch.h"
#include "ui/background_job.h"

#include <QDialog>
#include <QPointer>

#include <exception>
#include <memory>
#include <optional>

class CommandLists;
class QWidget;
class StoredState;

/// Loading, saving and resetting the stored commands, with all that is asked and told before and after. Boxes stand
/// above `window`. Files are read and written on other threads; who waits for one that takes long may cancel that.
/// What another program has saved comes in as soon as the window has no changes of its own. Main thread only.
class StoredFlow final : public QObject
{
    Q_OBJECT

public:
    /// Begins to read the files.
    StoredFlow(QWidget& window, CommandLists& lists, StoredState& stored, StoredFiles files);

    /// Brings the files' contents to the lists, with `loaded`: at once when they have been read within a moment.
    /// Otherwise that comes later, and a dialog shows meanwhile; who cancels it goes on with empty lists.
    void finish_loading();

    /// True once `loaded` has come.
    bool has_loaded() const { return has_loaded_; }

    /// True when the commands file was written, false at once while another save is on its way. Whatever else speaks
    /// against is shown to the user.
    bool save();

    /// Replaces the menu list by the default commands, as one step of undo; a failure is shown to the user.
    void reset();

    /// Asks what becomes of unsaved changes, if there are any. False when the window is to stay.
    bool settle_changes();
    /// Whoever is being asked so need not answer any more: the window is to stay.
    void call_off();

signals:
    /// When the commands file can't be used the lists are empty, and the user is told once events are processed.
    /// `last` is the command of the last run, null for none; with `usable` false it is none. Once, and once more when
    /// the user didn't wait for the file, it comes after all, and the lists are still as empty as they were.
    void loaded(bool usable, std::shared_ptr<VellumarkCommand> last);

private:
    enum class Written { Yes, No, FoundOther };

    /// What is read for the start.
    struct Start {
        commands_file::Loaded commands;
        std::shared_ptr<VellumarkCommand> last;
        std::exception_ptr failure;          ///< null where there are commands
        std::optional<std::string> unusable; ///< the file that has led to the failure
    };

    static Start read_start(const StoredFiles& files);
    void wait_for_start();
    void take_start();
    void take_failure(const Start& start);
    bool is_in_use() const;
    void look_again();
    /// Asks about the missing command unless it may be missing, and tells then whether it may.
    bool may_save(bool& may_lack_configure_command);
    /// Whatever fails is shown to the user.
    Written write(bool over_all);
    /// As `commands_saving::write`; empty when the user cancels it.
    std::optional<bool> write_file(CommandsSaving saving);
    /// Brings in what another program has saved. False when that can't be read, which the user is told, or the user
    /// doesn't want to wait for it.
    bool merge();
    void take_over(const commands_file::Loaded& loaded);

    QWidget& window_;
    CommandLists& lists_;
    StoredState& stored_;
    const StoredFiles files_;
    BackgroundValue<Start> start_;
    bool has_loaded_ = false;
    bool is_busy_ = false;         ///< while a save is on its way
    bool is_news_put_off_ = false; ///< the window was in use when another program had changed the file
    QPointer<QDialog> question_;
    StoredWatch watch_;
};
