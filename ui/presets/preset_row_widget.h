#pragma once

#include "engine/filters/extensions_preset.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

/// Edits one filter preset: its name, which reads as a label until it has the focus, and its extensions. Main thread
/// only.
class PresetRowWidget final : public QWidget
{
    Q_OBJECT

public:
    explicit PresetRowWidget(const ExtensionsPreset& preset, QWidget* parent = nullptr);

    /// As typed, with the name trimmed and no blanks in the extensions.
    ExtensionsPreset preset() const;

    bool has_extensions() const;
    bool has_fault() const;

    /// Gives the name the focus, all of it selected.
    void edit_name();

    /// The button that deletes it, to which Tab comes last.
    QPushButton* last_field() const { return delete_; }

signals:
    void delete_requested(PresetRowWidget* row);
    /// The user typed.
    void content_changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void on_editing_finished();

private:
    void set_name_editable(bool editable);
    void name_controls();
    void check();

    std::u16string uuid_;
    QLineEdit* name_;
    QLineEdit* extensions_;
    QPushButton* delete_;
    QLabel* error_;
};
