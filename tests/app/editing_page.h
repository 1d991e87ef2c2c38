#pragma once

#include "app/editors.h"
#include "app_test.h"
#include "engine/commands/vellumark_command.h"
#include "support/fake_clipboard.h"
#include "ui/sections/vk_section_widget.h"
#include "ui/widgets/disclosure_triangle.h"
#include "ui/widgets/variable_size_text_edit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>

/// The window with one command and its editing pane open; its controls by their section's and their own name.
class EditingPage : public AppTest
{
protected:
    EditingPage()
    {
        ship("One, More", "Two");
        reopen();
    }

    void reopen()
    {
        app.reset();
        app = std::make_unique<MirvantaApp>(editors_with(clipboard));
        app->show();
        app->current_editor()->set_expanded(true);
    }

    VellumarkCommand& command() const
    {
        return dynamic_cast<VellumarkCommand&>(*app->active_list().current_command());
    }

    template <typename Control>
    Control& control(const char* section, const QString& name) const
    {
        for (VKSectionWidget* owner : app->findChildren<VKSectionWidget*>())
            if (owner->section_title() == section)
                for (Control* each : owner->findChildren<Control*>())
                    if (name_of(*each) == name)
                        return *each;
        throw std::runtime_error("no control " + name.toStdString());
    }

    void open_filters() const
    {
        for (DisclosureTriangle* each : app->findChildren<DisclosureTriangle*>())
            each->activate();
    }

    FakeClipboard clipboard;

private:
    template <typename Control>
    static QString name_of(const Control& control)
    {
        if constexpr (requires { control.text(); } && !std::is_same_v<Control, QLineEdit> &&
                      !std::is_same_v<Control, QSpinBox>)
            return control.text();
        else
            return control.accessibleName();
    }
};
