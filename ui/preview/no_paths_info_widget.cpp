#include "ui/preview/no_paths_info_widget.h"

#include <QLabel>
#include <QVBoxLayout>

NoPathsInfoWidget::NoPathsInfoWidget(QWidget* parent) : QWidget(parent)
{
    const QString format = QStringLiteral(
        "<h2><b>%1</b></h2><p>%2</p><ul><li style='line-height: 150%;'>%3</li><li style='line-height: 150%;'>%4</li>"
        "<li style='line-height: 150%;'>%5</li><li style='line-height: 150%;'>%6</li></ul>");
    auto* label =
        new QLabel(format.arg(tr("No items selected"), tr("To select items:"),
                              tr("Open <i>Windows File Explorer</i> (you can use the shortcut <b>Win+E</b>)"),
                              tr("Select one or more files or folders"),
                              tr("Right click on any selected item to open the context menu"),
                              tr("In the <b>Vellumark</b> submenu, select the <b>More Commands</b> command")),
                   this);
    label->setTextFormat(Qt::RichText);
    label->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label, 0, Qt::AlignTop);
}
