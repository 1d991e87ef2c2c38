#pragma once

#include "ui/filters/vk_filter_widget_base.h"

class ExtensionsPreset;
class Presets;
class QPushButton;

/// Edits the filter of files, which can follow a preset.
class VKFileFilterWidget final : public VKFilterWidgetBase
{
    Q_OBJECT

public:
    /// `lists` and `presets` outlive the widget.
    VKFileFilterWidget(CommandLists& lists, Presets& presets, QWidget* parent = nullptr);

signals:
    /// The user wants to edit the presets.
    void manage_presets_requested();

private:
    Fields read(const VellumarkCommand& command) const override;
    QUndoCommand* make_step(CommandLists& lists, const std::shared_ptr<VellumarkCommand>& command,
                            const Fields& fields, const QString& text) const override;
    Fields make_fields(Mode mode) const override;
    void take(const Fields& fields, bool is_other) override;
    QLineEdit& line_of(Mode mode) const override;
    QString value_of(const Fields& fields) const override;
    void show_rows(std::optional<Mode> mode) override;

    void add_preset_row();
    void fill_presets();
    void presets_changed();
    void choose_preset(int index);
    /// Null for "Custom".
    const ExtensionsPreset* preset() const;

    Presets& presets_;
    std::u16string preset_uuid_; ///< that "Extensions" goes by
    std::vector<std::u16string> names_;
    QWidget* preset_row_;
    QComboBox* preset_;
    QPushButton* manage_;
    QLineEdit* extensions_;
};
