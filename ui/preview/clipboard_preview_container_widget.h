#pragma once

#include <QStackedWidget>

class ClipboardPreviewWidget;
class NoPathsInfoWidget;

/// The preview, or how to get a selection for one. Main thread only.
class ClipboardPreviewContainerWidget final : public QStackedWidget
{
    Q_OBJECT

public:
    explicit ClipboardPreviewContainerWidget(QWidget* parent = nullptr);

    /// The preview for a selection of that many items, or the help when there are none.
    void show_page_for(std::size_t selection_count);

public slots:
    void set_text(const QString& text);
    void show_updating();
    void show_failure(const QString& reason);
    void show_progress(const QString& status, const QString& item);

private:
    ClipboardPreviewWidget* const preview_;
    NoPathsInfoWidget* const no_paths_;
};
