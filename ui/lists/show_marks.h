#pragma once

#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

class SelectionServices;
class MVCommandBase;
class VellumarkCommand;

/// Which commands the menu shows for the selection. An answer may take a look at every selected item, each by a
/// regular expression, so what isn't quickly known is found in slices of time between the user's events. Main thread
/// only, which is the thread that changes the selection.
class ShowMarks
{
public:
    using Command = std::shared_ptr<MVCommandBase>;

    /// `decided` is called for each command whose answer came later, and may differ from the first one.
    ShowMarks(SelectionServices& selection, std::function<void(const Command&)> decided);

    /// True for an empty selection, and as long as the answer isn't known.
    bool is_shown(const Command& command);

    /// The selection or the commands' filters changed.
    void forget();
    void forget(const Command& command);

private:
    struct Search {
        std::size_t next_item = 0;
        bool known = false;
        bool shown = true;
    };

    void take_first_look(Search& search, const VellumarkCommand& command);
    bool filters_pass(const Command& command, const VellumarkCommand& vellumark);
    /// Looks at further items, at least at one.
    void go_on(Search& search, const VellumarkCommand& command, std::chrono::steady_clock::time_point until) const;
    void work();
    void wait_for(const Command& command);

    SelectionServices& selection_;
    std::function<void(const Command&)> decided_;
    /// The keys keep their commands alive, so that no other one gets the address of one in here.
    std::unordered_map<Command, Search> searches_;
    std::vector<Command> waiting_; ///< what was asked for last is answered first
    QTimer timer_;
    /// On first looks since the event loop ran last, which is what one paint takes.
    std::chrono::steady_clock::duration spent_{};
};
