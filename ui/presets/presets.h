#pragma once

#include "engine/filters/extensions_preset.h"

#include <QObject>

#include <vector>

/// The user's filter presets, as they are and as they were saved last. Main thread only.
class Presets final : public QObject
{
    Q_OBJECT

public:
    using List = std::vector<ExtensionsPreset>;

    using QObject::QObject;

    /// As edited. The list stays where it is, whatever it holds.
    const List& working() const { return working_; }

    const List& saved() const { return saved_; }

    bool is_modified() const { return working_ != saved_; }

    /// Replaces them; commands that follow one are brought up to date by whoever edits them.
    void set_working(List presets);

    /// What the commands file holds; what is edited stays as it is.
    void set_saved(List presets);

    /// Loaded: these are the saved and the edited ones.
    void set_both(List presets);

signals:
    /// The presets, or whether they are saved.
    void changed();

private:
    List working_;
    List saved_;
};
