#pragma once

class CommandsListController;
class QWidget;
class StoredState;

/// Saving the stored commands, with all that is asked and told before and after. Boxes stand above `window`. Main
/// thread only.
class SaveFlow
{
public:
    SaveFlow(QWidget& window, StoredState& stored, CommandsListController& menu)
        : window_(window), stored_(stored), menu_(menu)
    {}

    /// True when the commands file was written. Whatever speaks against is shown to the user.
    bool save();

    /// Asks what becomes of unsaved changes, if there are any. False when the window is to stay.
    bool settle_changes();

private:
    QWidget& window_;
    StoredState& stored_;
    CommandsListController& menu_;
};
