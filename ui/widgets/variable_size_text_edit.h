#pragma once

#include <QTextEdit>

#include <string>

/// The height of a text edit for a document that high, in pixels.
int fitted_height(double document_height);

/// A box for a piece of text, as high as the text within limits. It has no undo of its own: undo is the command
/// stack's, whose keys it lets through. Tab types a tab; Ctrl+Tab and Shift+Tab leave the box.
///
/// With `show_whitespace` blanks, tabs and line ends are shown as marks as long as the box doesn't have the focus.
/// Main thread only.
class VariableSizeTextEdit : public QTextEdit
{
    Q_OBJECT

public:
    explicit VariableSizeTextEdit(QWidget* parent = nullptr);

    /// To be set before the first text.
    void set_show_whitespace(bool show) { show_whitespace_ = show; }

    /// Shows the text and takes the focus away; emits no textChanged.
    void set_stored_text(const std::u16string& text);

    /// As `set_stored_text`, for a text that may have come by undo while the user types: the focus and the cursor
    /// stay, and the text that is there already is left alone.
    void follow_text(const std::u16string& text);

    /// What the user edits, as UTF-16 with line feeds. Unlike toPlainText it keeps no-break spaces, and it gives the
    /// stored text while marks are shown.
    std::u16string stored_text() const;

signals:
    /// The height changed, so that the layouts around have to be asked anew.
    void size_changed();

public slots:
    void text_changed();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    bool leave(bool next);
    void show_plain();
    void show_marked();

    bool show_whitespace_ = false;
    /// Whether what is shown is `stored_text_` with marks, not the text itself.
    bool marked_ = false;
    QString stored_text_;
    /// Where the cursor was when the focus went, so that the user finds it there again.
    int anchor_ = 0;
    int position_ = 0;
};
