#pragma once

#include "preview/paint_watch.h"
#include "ui/preview/clipboard_preview_container_widget.h"
#include "ui/preview/preview_text_edit.h"

#include <QElapsedTimer>

/// The preview in a window of its own, which knows when its text was last painted.
class PreviewWindow
{
public:
    PreviewWindow();

    ClipboardPreviewContainerWidget& widget() { return widget_; }

    PreviewTextEdit& edit() { return *edit_; }

    /// Shows the text and returns the milliseconds until its first screenful is painted.
    double show_and_paint(const QString& text);

    /// Runs the event loop until the text has been painted after this call.
    bool wait_for_paint() { return paints_.wait(); }

private:
    ClipboardPreviewContainerWidget widget_;
    PreviewTextEdit* const edit_;
    PaintWatch paints_;
};
