#pragma once

#include "ui/suspendable.h"

#include <QObject>

#include <memory>

class AppServices;
class CommandMainWidgetBase;
class MVCommandBase;

/// An editor for one class of commands: it holds the current command and owns the page that shows it. Main thread
/// only.
class CommandControllerBase : public QObject, public Suspendable
{
    Q_OBJECT

public:
    explicit CommandControllerBase(AppServices& app, QObject* parent = nullptr);

    /// Null before `create_main_widget`.
    CommandMainWidgetBase* main_widget() const { return main_widget_; }

    /// Makes the page, remembers and returns it. Called once.
    virtual CommandMainWidgetBase* create_main_widget(QWidget* parent) = 0;

    /// False when the command isn't of the class that this editor edits; the editor then holds none.
    virtual bool set_current_command(const std::shared_ptr<MVCommandBase>& command) = 0;

    /// The command changed behind the widgets: brings everything up to date.
    virtual void refresh() {}

    /// Brackets several changes, so that what follows from them is done once.
    virtual void begin_update() {}

    virtual void end_update() {}

    /// Another page covers this one.
    void suspend() override {}

    void resume() override {}

    /// Shows or hides the editing pane.
    virtual void set_expanded(bool /*expanded*/) {}

    /// What OK does with the command. True when the application may close at once.
    virtual bool run_current_command() { return true; }

    /// A selection has arrived and will be taken once its paths answer.
    virtual void selection_coming() {}

    /// Whether its commands can be duplicated.
    virtual bool allows_duplicate() const { return true; }

    /// Puts the focus into the command's name and selects it, where the page has a box for it.
    virtual void focus_name() {}

signals:
    /// The command's fields changed, by an edit or by undo.
    void current_command_changed();

protected:
    AppServices& app() const { return app_; }

    void set_main_widget(CommandMainWidgetBase* widget) { main_widget_ = widget; }

private:
    AppServices& app_;
    CommandMainWidgetBase* main_widget_ = nullptr;
};
