#pragma once

#include <QWidget>

#include <vector>

class CommandControllerBase;
class QSettings;

/// An editor's page. Main thread only.
class CommandMainWidgetBase : public QWidget
{
    Q_OBJECT

public:
    CommandMainWidgetBase(CommandControllerBase& controller, QWidget* parent);

    CommandControllerBase& controller() const { return controller_; }

    /// What F6 goes through, in order: of each area the part that had the focus last, or its first one.
    virtual std::vector<QWidget*> focus_areas() const { return {}; }

    /// Writes what the page keeps between sessions.
    virtual void save_settings(QSettings& /*settings*/) const {}

    virtual void restore_settings(QSettings& /*settings*/) {}

    /// The page comes to the front.
    virtual void page_shown() {}

private:
    CommandControllerBase& controller_;
};
