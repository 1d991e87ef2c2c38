#include "box_answer.h"

#include "ui/dialogs/busy_dlg.h"
#include "ui/preview/wait_for_text_dlg.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>

BoxAnswer::BoxAnswer(QStringList buttons) : buttons_(std::move(buttons))
{
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { answer(); });
    timer_.start(0);
}

void BoxAnswer::answer()
{
    QWidget* dialog = QApplication::activeModalWidget();
    if (!dialog || qobject_cast<WaitForTextDlg*>(dialog) || qobject_cast<BusyDlg*>(dialog))
        return;
    const auto* box = qobject_cast<QMessageBox*>(dialog);
    QStringList names;
    QAbstractButton* chosen = nullptr;
    for (QAbstractButton* button : dialog->findChildren<QAbstractButton*>()) {
        if (!button->isVisible())
            continue;
        names += button->text().remove('&');
        if (names.back() == buttons_.front())
            chosen = button;
    }
    seen_ +=
        (dialog->windowTitle() + '|' + (box ? box->text() : QString()) + '|' + names.join(", ") + '\n').toStdString();
    if (buttons_.size() > 1)
        buttons_.removeFirst();
    if (chosen)
        chosen->click();
    else
        dialog->close();
}
