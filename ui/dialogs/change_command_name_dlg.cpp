#include "ui/dialogs/change_command_name_dlg.h"

#include "engine/commands/mv_command_base.h"
#include "engine/commands/singular_name.h"
#include "ui/text.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

void add_row(QVBoxLayout& layout, const QString& text, QLineEdit* edit)
{
    auto* label = new QLabel(text);
    label->setBuddy(edit);
    layout.addWidget(label);
    layout.addWidget(edit);
}

}

ChangeCommandNameDlg::ChangeCommandNameDlg(const MVCommandBase& command, QWidget* main_window)
    : QDialog(main_window), name_(to_qstring(command.name())), name1_(to_qstring(command.name1())),
      name_edit_(new QLineEdit), name1_edit_(new QLineEdit)
{
    setWindowTitle(tr("Rename Command"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(name_edit_, &QLineEdit::textChanged, this, [this](const QString& name) {
        name1_edit_->setPlaceholderText(to_qstring(singular_name(from_qstring(name))));
    });
    name_edit_->setMinimumWidth(360);
    name_edit_->setText(name_);
    name_edit_->selectAll();
    name1_edit_->setText(name1_);

    auto* layout = new QVBoxLayout(this);
    add_row(*layout, tr("Command &Name:"), name_edit_);
    add_row(*layout, tr("Command Name When &One Item Selected:"), name1_edit_);
    layout->addStretch();
    layout->addWidget(buttons);
}

void ChangeCommandNameDlg::accept()
{
    name_ = name_edit_->text();
    name1_ = name1_edit_->text();
    QDialog::accept();
}
