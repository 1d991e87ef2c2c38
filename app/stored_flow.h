#pragma once

class CommandLists;
class QWidget;
class StoredState;

/// Loading, saving and resetting the stored commands, with all that is asked and told before and after. Boxes stand
/// above `window`. Main thread only.
class StoredFlow
{
public:
    StoredFlow(QWidget& window, CommandLists& lists, StoredState& stored)
        : window_(window), lists_(lists), stored_(stored)
    {}

    /// False when the commands file can't be used, which the user is told once events are processed.
    bool load();

    /// True when the commands file was written. Whatever speaks against is shown to the user.
    bool save();

    /// Replaces the menu list by the default commands, as one step of undo; a failure is shown to the user.
    void reset();

    /// Asks what becomes of unsaved changes, if there are any. False when the window is to stay.
    bool settle_changes();

private:
    QWidget& window_;
    CommandLists& lists_;
    StoredState& stored_;
};
