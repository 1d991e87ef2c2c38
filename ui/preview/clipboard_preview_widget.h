#pragma once

#include <QWidget>

class PreviewTextEdit;
class ProgressLines;
class QLabel;
class QStackedLayout;

/// A title bar above the text that would go to the clipboard, or above what is being done as long as it is made. Main
/// thread only.
class ClipboardPreviewWidget final : public QWidget
{
    Q_OBJECT

public:
    explicit ClipboardPreviewWidget(QWidget* parent = nullptr);

public slots:
    void set_text(const QString& text);
    void show_updating();
    /// There is no text, for this reason.
    void show_failure(const QString& reason);
    /// What the run is doing and the path that it is at.
    void show_progress(const QString& status, const QString& item);

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* make_state_page();
    void show_state(const QString& state);
    void update_background();

    PreviewTextEdit* const text_edit_;
    QLabel* const state_;
    ProgressLines* const progress_;
    QStackedLayout* const pages_;
};
