#pragma once

#include "ui/widgets/expandable_container_widget.h"

#include <memory>

class QVBoxLayout;
class VellumarkCommand;

/// A titled section of an editor's page: it shows a group of a command's fields, and changes them by steps of undo.
/// Main thread only.
class VKSectionWidget : public ExpandableContainerWidget
{
    Q_OBJECT

public:
    using ExpandableContainerWidget::ExpandableContainerWidget;

    /// Shows the command's fields as they now are. Not null.
    void set_command(std::shared_ptr<VellumarkCommand> command);

    virtual QString section_title() const = 0;

protected:
    /// Null before the first command.
    const std::shared_ptr<VellumarkCommand>& command() const { return command_; }

    /// Makes the content with the room for the title at its top; `fit_content` follows once it is filled.
    QVBoxLayout* make_section_layout();

    /// Brings the controls up to date with the command, which changes nothing in it.
    virtual void load() = 0;

    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    std::shared_ptr<VellumarkCommand> command_;
};
