#pragma once

#include <QWidget>

class CommandControllerBase;
class QSettings;

/// An editor's page. Main thread only.
class CommandMainWidgetBase : public QWidget
{
    Q_OBJECT

public:
    CommandMainWidgetBase(CommandControllerBase& controller, QWidget* parent);

    CommandControllerBase& controller() const { return controller_; }

    /// Writes what the page keeps between sessions.
    virtual void save_settings(QSettings& /*settings*/) const {}

    virtual void restore_settings(QSettings& /*settings*/) {}

    /// The page comes to the front.
    virtual void page_shown() {}

private:
    CommandControllerBase& controller_;
};
