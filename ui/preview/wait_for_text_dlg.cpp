#include "ui/preview/wait_for_text_dlg.h"

#include "ui/preview/progress_lines.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

namespace {

/// Sets what the run tells apart from the sentences above and the button below.
constexpr int progress_margin = 12;

}

// The children are made without a parent, for they come in the order in which the layout takes them.
WaitForTextDlg::WaitForTextDlg(QWidget* parent) : QDialog(parent), progress_(new ProgressLines)
{
    setWindowTitle(QCoreApplication::applicationName());
    setModal(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("Please wait while the text is generated.")));
    layout->addWidget(new QLabel(tr("This dialog will automatically close once the text has been generated.")));
    layout->addSpacing(progress_margin);
    layout->addWidget(progress_);
    layout->addSpacing(progress_margin);
    layout->addStretch();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

void WaitForTextDlg::show_progress(const QString& status, const QString& item)
{
    progress_->show_progress(status, item);
}
