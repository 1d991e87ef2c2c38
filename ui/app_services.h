#pragma once

class CommandControllerBase;
class CommandLists;
class ExemplarItemProvider;
class Presets;
class SelectionServices;
class UndoSteps;

/// What the interface asks of the application around it, a service a subject: whoever needs one of them takes that
/// one alone. Main thread only; outlives every widget and controller that was given a reference to it or to a
/// service.
class AppServices
{
public:
    virtual SelectionServices& selection() = 0;
    virtual CommandLists& lists() = 0;
    virtual UndoSteps& steps() = 0;
    /// Those that file filters can follow.
    virtual Presets& presets() = 0;
    virtual ExemplarItemProvider& exemplar() = 0;

    /// The editor that shows the active list's current command; null when no editor takes it.
    virtual CommandControllerBase* current_editor() = 0;

    /// Puts a copy of the active list's current command behind it, as one undo step.
    virtual void duplicate_command() = 0;

    /// Replaces the menu list by the default commands, as one undo step; a failure is shown to the user.
    virtual void reset_stored_commands() = 0;

    /// Lets the user edit the presets.
    virtual void manage_presets() = 0;

    /// Ends the dialog as after a finished command. Nothing is asked or saved but the window's state.
    virtual void close_with_accept() = 0;

protected:
    AppServices() = default;
    AppServices(const AppServices&) = default;
    AppServices& operator=(const AppServices&) = default;
    ~AppServices() = default;
};
