#include "ui/preview/preview_text_edit.h"

#include "ui/preview/text_mime_data.h"

#include <QAbstractTextDocumentLayout>
#include <QElapsedTimer>
#include <QFontDatabase>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

namespace {

constexpr double tab_stop_distance = 30.0;
/// Lines to begin with while the edit has not got its size.
constexpr int least_screenful = 100;
constexpr qsizetype step_pieces = 200, step_units = 16'384;
constexpr qint64 slice_ms = 3;
/// The first screenful is painted and what the user does is heard before the rest comes.
constexpr int pause_before_rest_ms = 10;

}

PreviewTextEdit::PreviewTextEdit(QWidget* parent) : QPlainTextEdit(parent)
{
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setUndoRedoEnabled(false);
    setLineWrapMode(NoWrap);
    setTabStopDistance(tab_stop_distance);
    connect(&fill_timer_, &QTimer::timeout, this, &PreviewTextEdit::append_slice);
}

void PreviewTextEdit::show_text(const QString& text)
{
    fill_timer_.stop();
    clear();
    pieces_ = TextPieces(text);
    append_pieces(std::max(visible_lines(), least_screenful), step_units);
    // The cursor went along with what was put in behind it.
    moveCursor(QTextCursor::Start);
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
    if (!pieces_.is_complete())
        fill_timer_.start(pause_before_rest_ms);
}

void PreviewTextEdit::append_pieces(qsizetype pieces, qsizetype units)
{
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    end.insertText(pieces_.next(pieces, units));
}

void PreviewTextEdit::append_slice()
{
    fill_timer_.setInterval(0);
    QElapsedTimer slice;
    slice.start();
    const bool joins_view = blockCount() <= verticalScrollBar()->value() + visible_lines();
    auto* layout = document()->documentLayout();
    {
        // The lines that can be seen already need not be painted again.
        const QSignalBlocker quiet(layout);
        while (!pieces_.is_complete() && slice.elapsed() < slice_ms)
            append_pieces(step_pieces, step_units);
    }
    emit layout->documentSizeChanged(layout->documentSize());
    if (joins_view)
        viewport()->update();
    if (pieces_.is_complete())
        fill_timer_.stop();
}

int PreviewTextEdit::visible_lines() const
{
    return viewport()->height() / fontMetrics().lineSpacing() + 1;
}

QMimeData* PreviewTextEdit::createMimeDataFromSelection() const
{
    const QTextCursor cursor = textCursor();
    return new TextMimeData(text(), pieces_.shown_part(cursor.selectionStart(), cursor.selectionEnd()));
}
