#pragma once

#include "ui/preview/text_pieces.h"

#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QTimer>

/// Shows a text of any size and keeps the window alive meanwhile: the first screenful comes at once, the rest in
/// slices of a few milliseconds. Where a very long line is folded, a bar stands at the end of one part and at the
/// beginning of the next. What is selected is copied as it stands in the text, also when the text is not all there
/// yet. Main thread only.
class PreviewTextEdit final : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit PreviewTextEdit(QWidget* parent = nullptr);

    /// Shows `text` from its beginning. What is still to come of an older one is dropped.
    void show_text(const QString& text);

    const QString& text() const { return pieces_.text(); }

    /// Whether a part of the text is still to come.
    bool is_filling() const { return fill_timer_.isActive(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;

private:
    void take_empty_document();
    void drop_text();
    void append_pieces(qsizetype pieces, qsizetype units);
    void append_slice();
    bool lay_out_last_lines(const QElapsedTimer& slice) const;
    void mark_folds();
    int visible_lines() const;

    TextPieces pieces_;
    QTimer fill_timer_;
};
