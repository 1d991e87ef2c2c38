#include "app/message_boxes.h"

#include <QMessageBox>
#include <QPushButton>

namespace {

// Every text of more than one line is HTML; no single piece of it spans a paragraph's end, so that translators see
// sentences.
constexpr QLatin1String open_paragraph("<p>");
constexpr QLatin1String close_paragraph("</p>");
constexpr QLatin1String next_paragraph("</p><p>");
constexpr QLatin1String open_list("<ol>");
constexpr QLatin1String item("<li>");

}

void MessageBoxes::show_failure(QWidget* parent, const QString& sentence, const QString& reason)
{
    // The parent may be a dialog that closes by itself meanwhile, and takes the box along.
    const QPointer box(new QMessageBox(QMessageBox::Warning, QCoreApplication::applicationName(),
                                       sentence + QLatin1Char('\n') + reason, QMessageBox::Ok, parent));
    // A path may look like a tag.
    box->setTextFormat(Qt::PlainText);
    box->exec();
    delete box;
}

void MessageBoxes::show_failure(QWidget* parent, const QString& sentence, const std::exception& failure)
{
    show_failure(parent, sentence, QString::fromUtf8(failure.what()));
}

void MessageBoxes::show_menu_is_empty(QWidget* parent)
{
    QMessageBox::warning(parent, QCoreApplication::applicationName(),
                         open_paragraph + tr("Cannot save empty context menu commands list.") + next_paragraph +
                             tr("Press the <b>Reset to default commands list</b> button to restore the default "
                                "commands list.") +
                             close_paragraph);
}

bool MessageBoxes::save_without_configure_command(QWidget* parent)
{
    const QString save_word = tr("Save");
    const QString explanation =
        open_paragraph + tr("The stored commands list does not contain the <i>More Commands</i> command.") +
        next_paragraph +
        tr("Without this command, you can only access the configuration window by holding CTRL while selecting any "
           "Vellumark command in Windows File Explorer.") +
        next_paragraph + tr("To restore the <i>More Commands</i> command:") + open_list + item +
        tr("Click <b>Cancel</b> to close this message") + item +
        tr("Click the <b>New</b> button to open the new command dialog") + item +
        tr("Click the <b>Add 'More Commands...' Command</b> button") + close_paragraph;
    const QString question =
        open_paragraph +
        tr("Press <b>%1</b> if you still want to save this list without the <i>More Commands</i> command.")
            .arg(save_word) +
        close_paragraph;
    QMessageBox box(QMessageBox::Warning, QCoreApplication::applicationName(), explanation + question,
                    QMessageBox::NoButton, parent);
    const QPushButton* save = box.addButton(save_word, QMessageBox::AcceptRole);
    box.addButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == save;
}

MessageBoxes::OtherChanges MessageBoxes::ask_about_other_changes(QWidget* parent)
{
    QMessageBox box(QMessageBox::Question, QCoreApplication::applicationName(),
                    tr("Stored commands were changed by another program since they were loaded."),
                    QMessageBox::NoButton, parent);
    const QPushButton* merge = box.addButton(tr("Merge"), QMessageBox::AcceptRole);
    const QPushButton* overwrite = box.addButton(tr("Overwrite"), QMessageBox::DestructiveRole);
    box.addButton(QMessageBox::Cancel);
    box.exec();
    if (box.clickedButton() == merge)
        return OtherChanges::Merge;
    return box.clickedButton() == overwrite ? OtherChanges::Overwrite : OtherChanges::Cancel;
}

MessageBoxes::SaveChoice MessageBoxes::ask_about_changes(QWidget* parent, QPointer<QDialog>& open)
{
    const QString save_word = tr("Save");
    const QString dont_save_word = tr("Don't Save");
    const QString text = open_paragraph + tr("You have made changes to the stored commands.") + next_paragraph +
                         tr("Press <b>%1</b> to save these changes, or <b>%2</b> to close this dialog without "
                            "saving the changes.")
                             .arg(save_word, dont_save_word) +
                         close_paragraph;
    QMessageBox box(QMessageBox::Question, QCoreApplication::applicationName(), text, QMessageBox::NoButton, parent);
    const QPushButton* save = box.addButton(save_word, QMessageBox::AcceptRole);
    const QPushButton* dont_save = box.addButton(dont_save_word, QMessageBox::RejectRole);
    box.addButton(QMessageBox::Cancel);
    open = &box;
    box.exec();
    if (box.clickedButton() == save)
        return SaveChoice::Save;
    return box.clickedButton() == dont_save ? SaveChoice::DontSave : SaveChoice::Cancel;
}
