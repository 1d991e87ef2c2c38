#pragma once

#include "engine/items/mv_items_set.h"
#include "ui/app_services.h"
#include "ui/editor/command_controller_base.h"
#include "ui/lists/commands_list_controller.h"

#include <QUndoStack>

#include <stdexcept>

/// An application of two lists and an undo stack, without a window. What is called is written down.
class FakeApp final : public AppServices
{
public:
    CommandsListController& menu_list() override { return menu; }

    CommandsListController& library_list() override { return library; }

    CommandsListController& active_list() override { return menu; }

    void show_menu_list() override { calls += "menu "; }

    QUndoStack& undo_stack() override { return stack; }

    std::shared_ptr<const MVItemsSet> selected_items() const override { return items; }

    SelectionReaders& selection_readers() override { throw std::logic_error("nobody reads the selection here"); }

    bool is_selection_coming() const override { return false; }

    CommandControllerBase* current_editor() override { return editor; }

    void duplicate_command() override { calls += "duplicate "; }

    void reset_stored_commands() override { calls += "reset "; }

    void close_with_accept() override { calls += "accept "; }

    QUndoStack stack;
    std::shared_ptr<MVItemsSet> items = std::make_shared<MVItemsSet>();
    CommandsListController menu{*this};
    CommandsListController library{*this};
    CommandControllerBase* editor = nullptr;
    std::string calls;
};
