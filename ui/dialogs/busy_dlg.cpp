#include "ui/dialogs/busy_dlg.h"

#include "ui/background_job.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QEventLoop>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include <chrono>

namespace {

/// What is done by then needs no dialog, which would only flash.
constexpr std::chrono::milliseconds unnoticed{200};

}

BusyDlg::BusyDlg(const QString& text, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QCoreApplication::applicationName());
    setAccessibleDescription(text);
    setModal(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(text));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

bool BusyDlg::wait_for(const BackgroundJob& job, const QString& text, QWidget* window)
{
    QEventLoop loop;
    connect(&job, &BackgroundJob::done, &loop, &QEventLoop::quit);
    QTimer::singleShot(unnoticed, &loop, &QEventLoop::quit);
    if (!job.is_done())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    BusyDlg dialog(text, window);
    connect(&job, &BackgroundJob::done, &dialog, &QDialog::accept);
    if (!job.is_done())
        dialog.exec();
    return job.is_done();
}
