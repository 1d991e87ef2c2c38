#include "app/appearance.h"

#include "ui/colours.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleHints>
#include <QWidget>

#include <cstdlib>

namespace {

bool is_desktop_dark()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    return QGuiApplication::styleHints()->colorScheme() == Qt::ColorScheme::Dark;
#else
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
#endif
}

/// Where neither style exists the desktop's own stays.
void choose_style(bool dark)
{
    if (QStyle* style = QStyleFactory::create(dark ? QStringLiteral("windows11") : QStringLiteral("windowsvista")))
        QApplication::setStyle(style);
}

/// How far a text colour stands out from the field behind it, 0 to 255.
int contrast(const QPalette& palette, QPalette::ColorRole role)
{
    const QColor colour = palette.color(role);
    return std::abs(colour.lightness() - palette.color(QPalette::Base).lightness()) * colour.alpha() / 255;
}

/// A dark theme may leave the colour of placeholders out, which then is the black of a light one.
void make_placeholders_readable()
{
    QPalette palette = QGuiApplication::palette();
    if (4 * contrast(palette, QPalette::PlaceholderText) >= contrast(palette, QPalette::Text))
        return;
    QColor colour = palette.color(QPalette::Text);
    colour.setAlpha(128);
    palette.setColor(QPalette::PlaceholderText, colour);
    QApplication::setPalette(palette);
}

}

Appearance::Appearance(QApplication& application) : QObject(&application)
{
    const bool dark = is_desktop_dark();
    choose_style(dark);
    application.setStyleSheet(QStringLiteral(
        "QPushButton { padding: 6px 20px; } QTabBar::tab { padding: 6px 20px; } QTabBar::tab:selected { "
        "background-color: palette(base); } QCheckBox { spacing: 6px; } QRadioButton { spacing: 6px; }"));
    colours::set_dark_mode(dark);
    make_placeholders_readable();
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, this, &Appearance::follow_desktop);
#else
    application.installEventFilter(this);
#endif
}

bool Appearance::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parent() && event->type() == QEvent::ApplicationPaletteChange)
        follow_desktop();
    return QObject::eventFilter(watched, event);
}

void Appearance::follow_desktop()
{
    make_placeholders_readable();
    const bool dark = is_desktop_dark();
    if (dark == colours::dark_mode())
        return;
    colours::set_dark_mode(dark);
    choose_style(dark);
    // Whether widgets heard of the new palette before this or will after it is not laid down.
    for (QWidget* widget : QApplication::allWidgets())
        widget->update();
}
