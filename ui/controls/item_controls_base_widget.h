#pragma once

#include "ui/controls/mv_int_edit.h"
#include "ui/controls/part_setting.h"
#include "ui/parts/template_edits.h"
#include "ui/text.h"
#include "ui/widgets/variable_size_text_edit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QWidget>

#include <functional>
#include <vector>

class QFormLayout;
class QGridLayout;

/// Edits one part of a template: each control writes one setting of it, as a step of undo. Main thread only.
///
/// A derived class is the table of its controls, in the order of their rows: each `add_...` makes one and joins it to
/// its setting. A value outside a control's entries shows as nothing selected, one outside its bounds as it is.
class ItemControlsBaseWidget : public QWidget
{
    Q_OBJECT

public:
    /// Adds the button "Delete". Once, after all controls, so that Tab comes to it last.
    void add_delete_button();

    /// Shows the part that stands at this position; -1 shows none. It is of the class that the widget edits.
    void set_position(int position);

    /// -1 while no part is shown.
    int position() const { return position_; }

    /// Sets every control from the part, which changes nothing. Nothing while a change of the widget's own is under
    /// way, so that the control that makes it is left alone.
    void refresh();

signals:
    /// Another height is wanted.
    void resized();
    /// The button "Delete" was pressed.
    void delete_requested();

protected:
    /// `edits` outlives the widget.
    ItemControlsBaseWidget(TemplateEdits& edits, QWidget* parent);

    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// An entry's index is the value of the setting.
    template <typename Setting>
    QComboBox* add_combo(const QString& label, const QStringList& entries, const Setting& setting)
    {
        QComboBox* combo = new_combo(label, entries);
        join(
            combo, setting, &QComboBox::currentIndexChanged,
            [combo](auto value) { combo->setCurrentIndex(static_cast<int>(value)); },
            [](int index) { return static_cast<typename Setting::Value>(index); });
        return combo;
    }

    template <typename Setting>
    QCheckBox* add_check(const QString& text, const Setting& setting)
    {
        QCheckBox* box = new_check(text);
        join(
            box, setting, &QCheckBox::toggled, [box](bool on) { box->setChecked(on); }, [](bool on) { return on; });
        return box;
    }

    struct Bounds {
        int minimum, maximum;
    };

    template <typename Setting>
    MVIntEdit* add_number(const QString& label, Bounds bounds, const Setting& setting)
    {
        auto* edit = new MVIntEdit(bounds.minimum, bounds.maximum);
        add_line_row(label, edit);
        join(
            edit, setting, &MVIntEdit::number_changed,
            [edit](auto value) { show_line(*edit, QString::number(value)); },
            [](int number) { return static_cast<typename Setting::Value>(number); });
        return edit;
    }

    template <typename Setting>
    QLineEdit* add_line(const QString& label, const Setting& setting)
    {
        auto* edit = new QLineEdit;
        add_line_row(label, edit);
        join(
            edit, setting, &QLineEdit::textChanged,
            [edit](const std::u16string& text) { show_line(*edit, to_qstring(text)); }, from_qstring);
        return edit;
    }

    /// Without a label it takes the whole row.
    template <typename Setting>
    VariableSizeTextEdit* add_text(const QString& label, const Setting& setting)
    {
        auto* edit = new VariableSizeTextEdit;
        add_row(label, edit);
        join(
            edit, setting, &QTextEdit::textChanged, [edit](const std::u16string& text) { edit->follow_text(text); },
            [edit] { return edit->stored_text(); });
        return edit;
    }

    template <typename Part>
    void enable_when(QWidget* control, bool (Part::*condition)() const)
    {
        follow<Part>(nullptr, [=](const Part& part) { control->setEnabled((part.*condition)()); });
    }

    template <typename Part>
    void show_when(QWidget* control, bool (Part::*condition)() const)
    {
        follow<Part>(nullptr, [=](const Part& part) { control->setVisible((part.*condition)()); });
    }

    /// Has `show` set a control from the part, with the control's signals blocked; without a control, what hangs on
    /// the part beside its own setting.
    template <typename Part>
    void follow(QWidget* control, std::function<void(const Part&)> show)
    {
        shows_.push_back({control, [show = std::move(show)](const ItemPartBase& base) {
                              if (const auto* part = dynamic_cast<const Part*>(&base))
                                  show(*part);
                          }});
    }

    /// Changes the part as one step of undo: `set` works on a copy, which the step writes. Then every control but
    /// the cause is set anew. False when that changes nothing, or the part is of another class.
    template <typename Part, typename Set>
    bool change(const QWidget* cause, const QString& text, MergeId merge_id, Set set)
    {
        const auto live = part();
        const std::shared_ptr<ItemPartBase> changed = live ? live->clone() : nullptr;
        auto* typed = dynamic_cast<Part*>(changed.get());
        if (!typed)
            return false;
        set(*typed);
        return push(cause, changed, text, merge_id);
    }

    /// A row of its own above all others, for a control that takes the full width.
    void add_wide(QWidget* control);
    /// Puts a control into the current form, with its label as its name.
    void add_row(const QString& label, QWidget* control);

    /// Where the rows that are added next go.
    QFormLayout* form() const { return form_; }

    /// Has them go into a new form instead, which the caller puts somewhere.
    QFormLayout* begin_form();

private:
    struct Show {
        QWidget* control; ///< null when there is none to leave alone
        std::function<void(const ItemPartBase&)> show;
    };

    /// `show` puts the setting's value into the control, `read` makes one of what the signal brings.
    template <typename Control, typename Setting, typename Sender, typename... Arguments, typename Put, typename Read>
    void join(Control* control, const Setting& setting, void (Sender::*edited)(Arguments...), Put put, Read read)
    {
        using Part = typename Setting::Part;
        follow<Part>(control, [=](const Part& part) { put((part.*setting.get)()); });
        connect(control, edited, this, [=, this](Arguments... arguments) {
            const auto set = [&](Part& part) { (part.*setting.set)(read(arguments...)); };
            if (change<Part>(control, setting.text, setting.merge_id, set))
                emit_changed(setting.changed);
        });
    }

    template <typename Widget>
    void emit_changed(void (Widget::*signal)())
    {
        emit(static_cast<Widget*>(this)->*signal)();
    }

    /// Null while none is shown.
    std::shared_ptr<const ItemPartBase> part() const;
    bool push(const QWidget* cause, const std::shared_ptr<const ItemPartBase>& changed, const QString& text,
              MergeId merge_id);
    void show_part(const QWidget* but);

    QComboBox* new_combo(const QString& label, const QStringList& entries);
    QCheckBox* new_check(const QString& text);
    void add_line_row(const QString& label, QLineEdit* edit);
    static void show_line(QLineEdit& edit, const QString& text);

    TemplateEdits& edits_;
    int position_ = -1;
    std::vector<Show> shows_;
    bool changing_ = false;
    int height_ = 0;
    QGridLayout* rows_;
    QFormLayout* form_ = nullptr;
};
