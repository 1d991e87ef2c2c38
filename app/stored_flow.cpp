#include "app/stored_flow.h"

#include "app/list_edits.h"
#include "app/message_boxes.h"
#include "app/stored_state.h"
#include "ui/dialogs/busy_dlg.h"
#include "ui/lists/command_lists.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDebug>
#include <QScopedValueRollback>
#include <QTimer>
#include <QWidget>

#include <atomic>
#include <stdexcept>
#include <utility>

namespace {

/// Whether what is typed there would be lost with its row.
bool is_edit_of_row(const QWidget* focus)
{
    const QWidget* viewport = focus ? focus->parentWidget() : nullptr;
    return viewport && qobject_cast<const QAbstractItemView*>(viewport->parentWidget());
}

}

StoredFlow::StoredFlow(QWidget& window, CommandLists& lists, StoredState& stored, StoredFiles files)
    : window_(window), lists_(lists), stored_(stored), files_(std::move(files)),
      start_([files = files_] { return read_start(files); }), watch_(window, files_.load)
{
    connect(&watch_, &StoredWatch::read, this, &StoredFlow::take_over);
    // A change may be undone, an edit of a name or a dialog may end.
    connect(&lists_.steps(), &UndoSteps::ended, this, &StoredFlow::look_again);
    connect(qApp, &QApplication::focusChanged, this, &StoredFlow::look_again);
}

StoredFlow::Start StoredFlow::read_start(const StoredFiles& files)
{
    Start start;
    try {
        start.commands = files.load();
    } catch (const std::exception&) {
        start.failure = std::current_exception();
    }
    try {
        if (start.failure)
            start.unusable = files.read_text();
        else
            start.last = files.read_last();
    } catch (const std::exception& error) {
        // Nothing about the last command's file may stop the start: at worst another command is current.
        qDebug() << "A file can't be read at the start:" << error.what();
    }
    return start;
}

void StoredFlow::finish_loading()
{
    if (start_.job().wait(files_.patience_at_start)) {
        take_start();
        return;
    }
    connect(&start_.job(), &BackgroundJob::done, this, &StoredFlow::take_start);
    // With the window.
    QTimer::singleShot(0, this, &StoredFlow::wait_for_start);
}

void StoredFlow::wait_for_start()
{
    if (has_loaded_)
        return;
    auto* dialog = new BusyDlg(tr("Loading..."), &window_);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(this, &StoredFlow::loaded, dialog, &QDialog::accept);
    connect(dialog, &QDialog::rejected, this, [this, dialog] {
        disconnect(this, nullptr, dialog, nullptr);
        has_loaded_ = true;
        emit loaded(false, nullptr);
    });
    dialog->open();
}

void StoredFlow::take_start()
{
    const bool is_late = std::exchange(has_loaded_, true);
    watch_.start();
    Start start = start_.take();
    if (start.failure) {
        take_failure(start);
        if (!is_late)
            emit loaded(false, nullptr);
    } else if (is_late && (is_in_use() || lists_.steps().stack().count() > 0)) {
        take_over(start.commands);
    } else {
        stored_.fill(std::move(start.commands));
        emit loaded(true, std::move(start.last));
    }
}

void StoredFlow::take_failure(const Start& start)
{
    if (start.unusable)
        stored_.set_unusable(*start.unusable);
    // With the window, which has to listen for selections however long the box stays.
    QTimer::singleShot(0, &window_, [&window = window_, failure = start.failure] {
        try {
            std::rethrow_exception(failure);
        } catch (const std::exception& error) {
            MessageBoxes::show_failure(&window, MessageBoxes::tr("Failed to load stored commands"), error);
        }
    });
}

bool StoredFlow::save()
{
    // A screen reader presses buttons behind a dialog as well.
    if (is_busy_)
        return false;
    const QScopedValueRollback<bool> busy(is_busy_, true);
    bool may_lack_configure_command = false;
    while (may_save(may_lack_configure_command)) {
        Written written = write(false);
        if (written == Written::FoundOther)
            switch (MessageBoxes::ask_about_other_changes(&window_)) {
            case MessageBoxes::OtherChanges::Merge:
                if (!merge())
                    return false;
                continue;
            case MessageBoxes::OtherChanges::Overwrite: written = write(true); break;
            case MessageBoxes::OtherChanges::Cancel: break;
            }
        return written == Written::Yes;
    }
    return false;
}

bool StoredFlow::may_save(bool& may_lack_configure_command)
{
    const CommandsListController& menu = lists_.menu();
    if (menu.is_empty()) {
        MessageBoxes::show_menu_is_empty(&window_);
        return false;
    }
    if (!menu.has_configure_command() && !may_lack_configure_command)
        may_lack_configure_command = MessageBoxes::save_without_configure_command(&window_);
    return menu.has_configure_command() || may_lack_configure_command;
}

StoredFlow::Written StoredFlow::write(bool over_all)
{
    const QString failed = MessageBoxes::tr("Failed to save stored commands");
    try {
        PendingSave save = over_all ? stored_.save_over_all() : stored_.save();
        const auto is_written = write_file(save.saving);
        if (!is_written) {
            stored_.give_up(save);
            MessageBoxes::show_failure(&window_, failed, tr("Saving was cancelled."));
            return Written::No;
        }
        if (!*is_written)
            return Written::FoundOther;
        stored_.mark_saved(std::move(save));
        watch_.file_written();
        return Written::Yes;
    } catch (const std::exception& error) {
        MessageBoxes::show_failure(&window_, failed, error);
        return Written::No;
    }
}

std::optional<bool> StoredFlow::write_file(CommandsSaving saving)
{
    const auto is_wanted = std::make_shared<std::atomic<bool>>(true);
    saving.is_wanted = [is_wanted] { return is_wanted->load(); };
    BackgroundValue<bool> job([save = files_.save, saving = std::move(saving)] { return save(saving); });
    if (BusyDlg::wait_for(job.job(), tr("Saving..."), &window_))
        return job.take();
    *is_wanted = false;
    return {};
}

bool StoredFlow::merge()
{
    BackgroundValue<commands_file::Loaded> reading(files_.read);
    if (!BusyDlg::wait_for(reading.job(), tr("Loading..."), &window_))
        return false;
    try {
        // A file that is gone meanwhile stands in nobody's way.
        if (const commands_file::Loaded theirs = reading.take(); theirs.text)
            stored_.merge(theirs);
    } catch (const std::exception& error) {
        MessageBoxes::show_failure(&window_, MessageBoxes::tr("Failed to load stored commands"), error);
        return false;
    }
    return true;
}

void StoredFlow::reset()
{
    try {
        list_edits::reset(lists_);
    } catch (const std::exception& error) {
        MessageBoxes::show_failure(&window_, MessageBoxes::tr("Failed to read built-in stored commands"), error);
    }
}

bool StoredFlow::settle_changes()
{
    if (!stored_.has_unsaved_changes())
        return true;
    switch (MessageBoxes::ask_about_changes(&window_, question_)) {
    case MessageBoxes::SaveChoice::Save: return save();
    case MessageBoxes::SaveChoice::DontSave: return true;
    case MessageBoxes::SaveChoice::Cancel: break;
    }
    return false;
}

void StoredFlow::call_off()
{
    if (question_)
        question_->reject();
}

bool StoredFlow::is_in_use() const
{
    return is_busy_ || stored_.has_unsaved_changes() || QApplication::activeModalWidget() ||
           QApplication::activePopupWidget() || QApplication::mouseButtons() != Qt::NoButton ||
           is_edit_of_row(window_.focusWidget());
}

void StoredFlow::take_over(const commands_file::Loaded& loaded)
{
    if (!stored_.is_news(loaded))
        return;
    is_news_put_off_ = is_in_use();
    if (!is_news_put_off_)
        stored_.take_over(loaded);
}

void StoredFlow::look_again()
{
    if (is_news_put_off_ && !is_in_use())
        watch_.look_soon();
}
