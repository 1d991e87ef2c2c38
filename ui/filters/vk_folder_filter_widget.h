#pragma once

#include "ui/filters/vk_filter_widget_base.h"

/// Edits the filter of folders.
class VKFolderFilterWidget final : public VKFilterWidgetBase
{
    Q_OBJECT

public:
    /// `lists` outlives the widget.
    explicit VKFolderFilterWidget(CommandLists& lists, QWidget* parent = nullptr);

private:
    Fields read(const VellumarkCommand& command) const override;
    QUndoCommand* make_step(CommandLists& lists, const std::shared_ptr<VellumarkCommand>& command,
                            const Fields& fields, const QString& text) const override;
};
