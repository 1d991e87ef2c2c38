#include "app/window_layout.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// Of the window, both ways.
constexpr int least_side = 600;

void give_buttons_one_width(const QDialogButtonBox& box)
{
    int width = 0;
    for (QAbstractButton* button : box.buttons()) {
        button->ensurePolished();
        width = std::max(width, button->sizeHint().width());
    }
    for (QAbstractButton* button : box.buttons())
        button->setMinimumWidth(width);
}

QMargins default_margins(const QStyle& style)
{
    return {style.pixelMetric(QStyle::PM_LayoutLeftMargin), style.pixelMetric(QStyle::PM_LayoutTopMargin),
            style.pixelMetric(QStyle::PM_LayoutRightMargin), style.pixelMetric(QStyle::PM_LayoutBottomMargin)};
}

/// The layout of all that the window shows.
QVBoxLayout& add_frame(QWidget& window)
{
    // Struts rather than a minimum of the dialog itself, which would let texts of more room be cut.
    auto* frame = new QHBoxLayout(&window);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->addStrut(least_side);
    auto* outer = new QVBoxLayout;
    outer->addStrut(least_side);
    frame->addLayout(outer);
    return *outer;
}

}

QDialogButtonBox& lay_out_window(QWidget& window, QWidget& tools, QWidget& content)
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help);
    QVBoxLayout& outer = add_frame(window);
    outer.addWidget(&tools);
    auto* inner = new QVBoxLayout;
    inner->setContentsMargins(default_margins(*window.style()));
    inner->addWidget(&content, 1);
    inner->addWidget(buttons);
    outer.addLayout(inner, 1);
    give_buttons_one_width(*buttons);
    // The command of the last run is current and its text is there, so that Return is all it takes.
    buttons->button(QDialogButtonBox::Ok)->setFocus();
    return *buttons;
}
