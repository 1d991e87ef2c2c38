#pragma once

#include <memory>

class MVItemsSet;
class SelectionReaders;

/// The selected files and folders, as the interface reads them. Main thread only.
class SelectionServices
{
public:
    /// What texts and show marks are made of. Never null, always the same object.
    virtual std::shared_ptr<const MVItemsSet> selected_items() const = 0;

    /// Where whoever reads the selection on another thread registers, so that it doesn't change meanwhile.
    virtual SelectionReaders& selection_readers() = 0;

    /// Whether a selection has arrived that isn't taken yet: its paths have not answered, or somebody still reads the
    /// old one. A text made meanwhile is of the old one.
    virtual bool is_selection_coming() const = 0;

protected:
    ~SelectionServices() = default;
};
