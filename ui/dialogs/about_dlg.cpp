#include "ui/dialogs/about_dlg.h"

#include "platform/known_folders.h"
#include "ui/product.h"
#include "ui/text.h"
#include "ui/widgets/scheme_change.h"

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QUrl>

namespace {

QLabel* label_of(const QString& text, int point_size, QFont::Weight weight)
{
    auto* label = new QLabel(text);
    QFont font = label->font();
    font.setPointSize(point_size);
    font.setWeight(weight);
    label->setFont(font);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QLabel* picture()
{
    auto* label = new QLabel;
    label->setPixmap(QIcon(QStringLiteral(":/MirvantaApp/Resources/AppIcon.ico")).pixmap(64, 64));
    label->setAccessibleName(AboutDlg::tr("Application icon"));
    return label;
}

}

QString version_line(const QString& program_folder)
{
    const bool from_store = (program_folder + u'\\').contains(QStringLiteral("\\WindowsApps\\"), Qt::CaseInsensitive);
    return u'v' + QLatin1String(product::version) + QLatin1String(from_store ? "-MS" : "-IN");
}

AboutDlg::AboutDlg(QWidget* parent) : QDialog(parent), link_(new QLabel)
{
    setWindowTitle(tr("About %1").arg(QLatin1String(product::name)));
    // The link alone, so that the keyboard finds it and selecting text doesn't get in its way.
    link_->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    link_->setAccessibleName(tr("Web site %1").arg(QLatin1String(product::web_site)));
    connect(link_, &QLabel::linkActivated, this,
            [] { QDesktopServices::openUrl(QUrl(QStringLiteral("https://") + QLatin1String(product::web_site))); });
    show_link();

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto* grid = new QGridLayout(this);
    const QString version = version_line(to_qstring(platform::program_folder()));
    auto* legal = new QLabel(tr("Made by %1. All rights reserved.").arg(QLatin1String(product::organisation)));
    grid->addWidget(picture(), 0, 0, 4, 1, Qt::AlignTop);
    grid->addWidget(label_of(QLatin1String(product::name), 14, QFont::Bold), 0, 1);
    grid->addWidget(label_of(version, 10, QFont::Normal), 1, 1);
    grid->addWidget(link_, 2, 1);
    grid->addWidget(legal, 3, 1);
    grid->setRowMinimumHeight(4, 6);
    grid->addWidget(buttons, 5, 0, 1, 2);
    grid->setHorizontalSpacing(18);
    grid->setColumnStretch(1, 1);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    // Not to the link, which comes first.
    buttons->button(QDialogButtonBox::Ok)->setFocus();
}

void AboutDlg::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (is_scheme_change(*event))
        show_link();
}

void AboutDlg::show_link()
{
    link_->setText(QStringLiteral("<a href=\"link\" style=\"color:%1; text-decoration:underline;\">%2</a>")
                       .arg(palette().color(QPalette::Link).name(), QLatin1String(product::web_site)));
}
