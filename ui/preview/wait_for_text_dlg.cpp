#include "ui/preview/wait_for_text_dlg.h"

#include "ui/preview/progress_lines.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

// The children are made without a parent, for they come in the order in which the layout takes them.
WaitForTextDlg::WaitForTextDlg(QWidget* parent) : QDialog(parent), progress_(new ProgressLines)
{
    setModal(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("Please wait while the text is generated.")));
    layout->addWidget(new QLabel(tr("This dialog will automatically close once the text has been generated.")));
    layout->addWidget(progress_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

void WaitForTextDlg::show_progress(const QString& status, const QString& item)
{
    progress_->show_progress(status, item);
}
