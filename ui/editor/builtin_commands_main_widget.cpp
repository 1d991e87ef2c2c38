#include "ui/editor/builtin_commands_main_widget.h"

#include "store/builtin_command_info.h"

#include <QCoreApplication>
#include <QLabel>
#include <QVBoxLayout>

namespace {

QString translated(std::string_view text)
{
    return QCoreApplication::translate("BuiltinCommandInfo", std::string(text).c_str());
}

/// The descriptions are rich text themselves; names and rules are not.
QString description_of(CommandType type)
{
    const BuiltinCommandInfo& info = builtin_command_info(type);
    QString html =
        "<h3>" + translated(info.name).toHtmlEscaped() + "</h3><p>" + translated(info.description) + "</p>";
    if (const std::string_view rule = info.show_rule_text(); !rule.empty())
        html += "<p><i>" + translated(rule).toHtmlEscaped() + "</i></p>";
    return html;
}

}

BuiltinCommandsMainWidget::BuiltinCommandsMainWidget(CommandControllerBase& controller, QWidget* parent)
    : CommandMainWidgetBase(controller, parent), hint_(new QLabel(tr("Select a command to see its description."))),
      description_(new QLabel)
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel("<h2>" + tr("File Action Command") + "</h2>"));
    hint_->setStyleSheet(QStringLiteral("color:#888;background-color:#ccc"));
    hint_->setWordWrap(true);
    layout->addWidget(hint_);
    description_->setTextFormat(Qt::RichText);
    description_->setWordWrap(true);
    description_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    description_->hide();
    layout->addWidget(description_);
    layout->addStretch();
}

void BuiltinCommandsMainWidget::show_description(CommandType type)
{
    description_->setText(description_of(type));
    description_->show();
    hint_->hide();
}
