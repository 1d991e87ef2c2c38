#pragma once

#include "ui/lists/command_lists.h"
#include "ui/undo/undo_steps.h"
#include "ui/widgets/expandable_container_widget.h"

#include <memory>
#include <type_traits>

class QVBoxLayout;
class VellumarkCommand;

/// A titled section of an editor's page: it shows a group of a command's fields, and changes them by steps of undo.
/// Main thread only.
class VKSectionWidget : public ExpandableContainerWidget
{
    Q_OBJECT

public:
    /// Shows the command's fields as they now are, which changes nothing in it. Not null.
    void set_command(std::shared_ptr<VellumarkCommand> command);

    virtual QString section_title() const = 0;

protected:
    /// `lists` outlives the section.
    explicit VKSectionWidget(CommandLists& lists, QWidget* parent = nullptr);

    /// Null before the first command.
    const std::shared_ptr<VellumarkCommand>& command() const { return command_; }

    /// Makes the content with the room for the title at its top; `take_content_height` follows once it is filled.
    QVBoxLayout* make_section_layout();

    /// Brings the controls up to date with the command. What they tell meanwhile changes nothing.
    virtual void load() = 0;

    /// Changes a field as one step of undo. Nothing while the controls are loaded or show no command yet.
    template <typename Step>
    void push(typename Step::Value value, const QString& text)
    {
        if (is_at_work())
            lists_.steps().stack().push(new Step(lists_, command_, std::move(value), text));
    }

    /// Whether what the controls tell is the user's doing.
    bool is_at_work() const { return command_ && !loading_; }

    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

protected slots:
    /// A text box wants another height, which the section follows at once, without the animation.
    void text_edit_size_changed();

private:
    CommandLists& lists_;
    std::shared_ptr<VellumarkCommand> command_;
    bool loading_ = false;
};
