#include "ui/dialogs/no_commands_widget.h"

#include "ui/app_services.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QString reason(bool is_library, bool list_is_empty)
{
    if (!list_is_empty)
        return NoCommandsWidget::tr("Select a command");
    return is_library ? NoCommandsWidget::tr("Commands library is empty")
                      : NoCommandsWidget::tr("Context menu commands list is empty");
}

}

NoCommandsWidget::NoCommandsWidget(AppServices& app, QWidget* parent)
    : QWidget(parent), label_(new QLabel), reset_button_(new QPushButton(tr("Reset to default commands list")))
{
    label_->setAlignment(Qt::AlignCenter);
    label_->setWordWrap(true);
    connect(reset_button_, &QPushButton::clicked, this, [&app] { app.reset_stored_commands(); });

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->addStretch();
    layout->addWidget(label_);
    layout->addSpacing(36);
    layout->addWidget(reset_button_, 0, Qt::AlignHCenter);
    layout->addStretch();
    set_state(false, false);
}

void NoCommandsWidget::set_state(bool is_library, bool list_is_empty)
{
    label_->setText(reason(is_library, list_is_empty));
    reset_button_->setVisible(list_is_empty && !is_library);
}
