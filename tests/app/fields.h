#pragma once

#include "editing_page.h"

#include <functional>
#include <optional>
#include <vector>

/// A field of a command: how a user edits it, and what the model of that command has then. Values are numbers, such
/// as the row of a combo box.
struct Field {
    const char* step;
    /// Towards this value; returns the new one, or nothing when that is the old one or the control can't be used.
    std::function<std::optional<int>(int)> edit;
    std::function<void(VellumarkCommand&, int)> set;
    std::function<bool(const VellumarkCommand&)> shows;
    bool joins; ///< the step before it of the same text
};

/// The window, and all fields but the templates.
class Fields : public EditingPage
{
protected:
    std::vector<Field> fields() const;

private:
    template <typename Control>
    Field field(const char* section, const char* name, const char* step,
                const std::function<int(const VellumarkCommand&)>& get,
                const std::function<void(VellumarkCommand&, int)>& set) const;
};
