#include "ui/editor/copy_step.h"

#include "engine/commands/vellumark_command.h"
#include "platform/clipboard.h"
#include "store/last_command.h"
#include "ui/background_job.h"
#include "ui/dialogs/busy_dlg.h"
#include "ui/dialogs/checksum_compare_dlg.h"
#include "ui/text.h"

#include <QDebug>
#include <QEventLoopLocker>
#include <QMessageBox>

// By value: a selection that comes during the comparison changes the caller's text and command.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
bool CopyStep::run(std::shared_ptr<const VellumarkCommand> command, const MVItemsSet& selection, QString text)
{
    // Without a window the program would end between a comparison and what follows it.
    const QEventLoopLocker stay;
    try {
        return settle(command.get(), selection, units_of(text));
    } catch (const std::exception& error) {
        return refuse(QString::fromLocal8Bit(error.what()));
    }
}

bool CopyStep::settle(const VellumarkCommand* command, const MVItemsSet& selection, std::u16string_view text)
{
    if (command && is_declined(*command, selection, text))
        return true;
    if (!copy(text))
        return false;
    if (command)
        keep_as_last_run(*command);
    return true;
}

bool CopyStep::is_declined(const VellumarkCommand& command, const MVItemsSet& selection, std::u16string_view text)
{
    const auto comparison = compare_with_clipboard(clipboard_, command, selection, text);
    if (!comparison)
        return false;
    window_.hide();
    return ChecksumCompareDlg(*comparison, nullptr).exec() != QDialog::Accepted;
}

bool CopyStep::copy(std::u16string_view text)
{
    platform::OpenClipboard opened(clipboard_);
    if (!opened)
        return warn(tr("Failed to open Windows clipboard"));
    return opened.replace_text(text) || warn(failed_to_copy());
}

void CopyStep::keep_as_last_run(const VellumarkCommand& command)
{
    // The text is where the user wants it; without the file the next start just selects another command.
    const BackgroundJob job([copy = command] {
        try {
            write_last_command(copy);
        } catch (const std::exception& error) {
            qDebug() << "The last command can't be kept:" << error.what();
        }
    });
    if (!BusyDlg::wait_for(job, tr("Saving..."), &window_))
        qDebug() << "The last command isn't kept yet";
}

bool CopyStep::refuse(const QString& reason)
{
    return warn(failed_to_copy() + '\n' + reason);
}

QString CopyStep::failed_to_copy()
{
    return tr("Failed to copy text to Windows clipboard");
}

bool CopyStep::warn(const QString& sentence)
{
    window_.show();
    QMessageBox::warning(&window_, QCoreApplication::applicationName(), sentence);
    return false;
}
