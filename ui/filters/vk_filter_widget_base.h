#pragma once

#include "ui/filters/pattern_fault.h"
#include "ui/sections/undo_command_changes.h"

#include <QWidget>

#include <array>
#include <memory>
#include <optional>
#include <vector>

class HoverToggleRow;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QRadioButton;
class QUndoCommand;

/// Edits one filter of a command below a header that shows and hides it: each of the user's actions is a step of
/// undo. A pattern is taken over when its field is left. Each type keeps its pattern as long as the command stays.
/// Main thread only.
class VKFilterWidgetBase : public QWidget
{
    Q_OBJECT

public:
    /// Shows the command's filter as it now is, which changes nothing in the command. A pattern that is being typed
    /// is left alone; when the command is another, the one before takes it over. Not null.
    void show_command(const std::shared_ptr<VellumarkCommand>& command);

    /// Takes over a pattern that is being typed, as one step of undo; nothing when it is no other.
    void finish_edit();

signals:
    /// Another height is wanted.
    void height_changed();

protected:
    using Mode = ItemFilter::Mode;
    using Fields = command_fields::FilterFields;

    /// `modes` are the types to choose from beside "None"; `lists` outlives the widget.
    VKFilterWidgetBase(CommandLists& lists, std::vector<Mode> modes, QWidget* parent);

    struct ActionTexts {
        QString include, exclude;
    };

    /// Once, after the rows that the derived class adds, so that Tab follows the rows.
    void add_pattern_rows(const ActionTexts& texts);

    /// Makes a field for a pattern ready to be typed in.
    void join_line(QLineEdit& line);

    QFormLayout* form() const { return form_; }

    /// False before the first command.
    bool has_command() const { return command_ != nullptr; }

    /// Sets all controls from the command once more.
    void reload();

    /// What the widget would write for a type.
    virtual Fields make_fields(Mode mode) const;

    /// Writes the fields, as one step of undo; nothing when the command has them.
    void push(const Fields& fields, const QString& text);

    /// The text of a type's pattern, as it was shown or taken over last.
    const QString& text_of(Mode mode) const { return texts_[static_cast<std::size_t>(mode)]; }

    void set_text_of(Mode mode, const QString& text) { texts_[static_cast<std::size_t>(mode)] = text; }

    /// Takes what the derived class shows beside type, pattern and action. `is_other`: so is the command.
    virtual void take(const Fields& /*fields*/, bool /*is_other*/) {}

    virtual QLineEdit& line_of(Mode /*mode*/) const { return *pattern_; }

    /// What the header calls the filter's value.
    virtual QString value_of(const Fields& fields) const;

    /// Shows the rows that belong to the type; empty for "None".
    virtual void show_rows(std::optional<Mode> mode);

    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    virtual Fields read(const VellumarkCommand& command) const = 0;
    virtual QUndoCommand* make_step(CommandLists& lists, const std::shared_ptr<VellumarkCommand>& command,
                                    const Fields& fields, const QString& text) const = 0;

    void add_type_row();
    void load(const Fields& fields, bool is_other);
    void show_line(bool keeps_typing);
    void check();
    void show_fault();
    void update_header();
    void toggle();
    std::optional<Mode> pending() const;
    bool is_typing() const;
    void leave_command();
    void push_later(const Fields& fields, const QString& text);
    int row_of(Mode mode) const;
    std::optional<Mode> mode_of(const Fields& fields) const;
    void change_type(int row);
    void change_action(bool excludes);

    CommandLists& lists_;
    std::vector<Mode> modes_;
    std::shared_ptr<VellumarkCommand> command_;
    Fields shown_;
    std::optional<Mode> mode_; ///< empty for "None"
    std::array<QString, 3> texts_;
    PatternFault fault_; ///< of what stands in the type's field
    bool updating_ = false;
    int height_ = 0;
    HoverToggleRow* header_;
    QWidget* body_;
    QFormLayout* form_;
    QComboBox* type_;
    QLineEdit* pattern_;
    QLabel* error_;
    QRadioButton* include_;
    QRadioButton* exclude_;
};
