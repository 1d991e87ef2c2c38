#pragma once

#include "ui/app_services.h"
#include "ui/editor/command_controller_base.h"
#include "ui/editor/command_main_widget_base.h"
#include "ui/selection_services.h"

#include "engine/commands/vellumark_command.h"

#include <QSettings>

#include <functional>
#include <string>

/// A page that keeps one setting.
class TestPage final : public CommandMainWidgetBase
{
public:
    using CommandMainWidgetBase::CommandMainWidgetBase;

    void save_settings(QSettings& settings) const override { settings.setValue("TestPage", 7); }

    void restore_settings(QSettings& settings) override { restored = settings.value("TestPage").toInt(); }

    int restored = 0;
};

/// Edits file-name commands, and writes down what it is asked to do.
class TestEditor final : public CommandControllerBase
{
public:
    using CommandControllerBase::CommandControllerBase;

    CommandMainWidgetBase* create_main_widget(QWidget* parent) override
    {
        set_main_widget(new TestPage(*this, parent));
        return main_widget();
    }

    bool set_current_command(const std::shared_ptr<MVCommandBase>& command) override
    {
        if (before_offer)
            before_offer();
        ++offers;
        current = std::dynamic_pointer_cast<VellumarkCommand>(command);
        return current != nullptr;
    }

    void refresh() override { calls += app().selection().is_selection_coming() ? "early-refresh " : "refresh "; }

    void selection_coming() override { calls += app().selection().is_selection_coming() ? "coming " : "late "; }

    void focus_name() override { calls += "focus "; }

    bool allows_duplicate() const override { return duplicates; }

    bool run_current_command() override
    {
        calls += "run ";
        return may_close;
    }

    /// As an edit of the user's would.
    void change_separator(std::u16string text)
    {
        current->set_separator(std::move(text));
        emit current_command_changed();
    }

    std::shared_ptr<VellumarkCommand> current;
    std::string calls;
    int offers = 0;
    bool may_close = true, duplicates = true;
    std::function<void()> before_offer; ///< what it throws, the offer of a command throws
};
