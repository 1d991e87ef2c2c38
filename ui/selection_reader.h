#pragma once

/// Something that reads the selection on a thread of its own, such as the generator of a preview. All calls come on
/// the main thread.
class SelectionReader
{
public:
    /// Whether a run reads the selection, a cancelled one that has not ended yet included.
    virtual bool is_reading() const = 0;

    /// Asks the run in progress to end and returns at once. Once it has ended, `SelectionReaders::reading_ended` is
    /// to be called.
    virtual void stop_reading() = 0;

protected:
    ~SelectionReader() = default;
};

/// Who keeps the selection from changing under its readers. Main thread only.
///
/// While a selection waits, a reader starts no run; the refresh that follows the change starts it.
class SelectionReaders
{
public:
    /// `reader` stays registered until it is removed, which is to happen before it goes.
    virtual void add_reader(SelectionReader& reader) = 0;
    virtual void remove_reader(SelectionReader& reader) = 0;

    /// A registered reader's run has ended. The selection changes later, not inside this call.
    virtual void reading_ended() = 0;

    /// Whether a selection has come that can't be taken yet: its paths have not answered, or somebody still reads the
    /// old one.
    virtual bool is_selection_waiting() const = 0;

protected:
    ~SelectionReaders() = default;
};
