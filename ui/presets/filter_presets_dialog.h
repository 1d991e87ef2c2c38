#pragma once

#include "ui/presets/presets.h"

#include <QDialog>

class PresetRowWidget;
class QDialogButtonBox;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

/// Edits a copy of the filter presets: once it is accepted, `presets` is what was made of it. Main thread only.
class FilterPresetsDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit FilterPresetsDialog(const Presets::List& presets, QWidget* parent = nullptr);

    ~FilterPresetsDialog() override;

    /// As the rows have them.
    Presets::List presets() const;

public slots:
    /// Adds a preset without name and extensions behind the others.
    void add_preset();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    PresetRowWidget* add_row(const ExtensionsPreset& preset);
    void delete_row(PresetRowWidget* row);
    std::vector<PresetRowWidget*> rows() const;
    void check_rows();

    QScrollArea* area_;
    QVBoxLayout* rows_; ///< with a line between two rows
    QPushButton* add_;
    QDialogButtonBox* buttons_;
};
