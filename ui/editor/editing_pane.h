#pragma once

#include <QScrollArea>

#include <memory>
#include <vector>

class AppServices;
class VellumarkCommand;
class VKSectionWidget;

/// The column of sections that edit a file-name command. It scrolls along when the section grows that the user works
/// in. Main thread only.
class EditingPane final : public QScrollArea
{
    Q_OBJECT

public:
    explicit EditingPane(AppServices& app, QWidget* parent = nullptr);

    /// Brings every section up to date with the command, not null.
    void set_command(const std::shared_ptr<VellumarkCommand>& command);

    /// Reads anew what follows from the fields of other sections: the rule that a command shows by in the menu.
    void update_sections();

    /// Of a pane that shows its first section as a whole.
    int wanted_height() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* make_content();
    void reveal(const QWidget& section);

    std::shared_ptr<VellumarkCommand> command_;
    std::vector<VKSectionWidget*>
        sections_; ///< in the order shown; the last one tells when the menu shows the command
};
