#pragma once

#include <QLabel>

#include <string>

/// The texts of the labels that can be seen in a window, in the order of their making, with "|" between them.
inline std::string visible_labels(const QWidget& window)
{
    QStringList texts;
    for (const auto* label : window.findChildren<QLabel*>())
        if (label->isVisible() && !label->text().isEmpty())
            texts += label->text();
    return texts.join('|').toStdString();
}
