#pragma once

#include "ui/preview/clipboard_preview_container_widget.h"
#include "ui/preview/preview_text_edit.h"

#include <QElapsedTimer>

/// The preview in a window of its own, which knows when its text was last painted.
class PreviewWindow final : public QObject
{
public:
    PreviewWindow();

    ClipboardPreviewContainerWidget& widget() { return widget_; }

    PreviewTextEdit& edit() { return *edit_; }

    /// Shows the text and returns the milliseconds until its first screenful is painted.
    double show_and_paint(const QString& text);
    /// Runs the event loop until the text has been painted after this call.
    bool wait_for_paint();

private:
    bool eventFilter(QObject* object, QEvent* event) override;

    ClipboardPreviewContainerWidget widget_;
    PreviewTextEdit* const edit_;
    int paints_ = 0;
};
