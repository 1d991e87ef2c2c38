#pragma once

#include "engine/items/mv_items_set.h"
#include "ui/app_services.h"
#include "ui/editor/command_controller_base.h"
#include "ui/lists/command_lists.h"
#include "ui/presets/presets.h"
#include "ui/preview/exemplar_item_provider.h"
#include "ui/selection_services.h"

#include <stdexcept>

/// An application of two lists and an undo stack, without a window. What is called is written down.
class FakeApp final : public AppServices, public SelectionServices
{
public:
    SelectionServices& selection() override { return *this; }

    CommandLists& lists() override { return lists_; }

    UndoSteps& steps() override { return steps_; }

    Presets& presets() override { return presets_; }

    ExemplarItemProvider& exemplar() override { return exemplar_; }

    std::shared_ptr<const MVItemsSet> selected_items() const override { return items; }

    SelectionReaders& selection_readers() override { throw std::logic_error("nobody reads the selection here"); }

    bool is_selection_coming() const override { return false; }

    CommandControllerBase* current_editor() override { return editor; }

    void duplicate_command() override { calls += "duplicate "; }

    void reset_stored_commands() override { calls += "reset "; }

    void manage_presets() override { calls += "presets "; }

    void close_with_accept() override { calls += "accept "; }

    std::shared_ptr<MVItemsSet> items = std::make_shared<MVItemsSet>();
    CommandControllerBase* editor = nullptr;
    std::string calls;

private:
    UndoSteps steps_;
    CommandLists lists_{*this, steps_};
    Presets presets_;
    ExemplarItemProvider exemplar_;

public:
    QUndoStack& stack = steps_.stack();
    CommandsListController& menu = lists_.menu();
    CommandsListController& library = lists_.library();
};
