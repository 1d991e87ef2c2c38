#pragma once

#include <QString>

#include <functional>

/// One line of a list's context menu.
struct ListMenuEntry {
    QString text;
    std::function<void()> run;
};
