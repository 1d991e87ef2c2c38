#include "ui/preview/preview_text_edit.h"

#include "ui/preview/preview_layout.h"
#include "ui/preview/text_mime_data.h"

#include <QElapsedTimer>
#include <QFontDatabase>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QThreadPool>

#include <algorithm>

namespace {

constexpr double tab_stop_distance = 30.0;
/// Lines to begin with while the edit has not got its size.
constexpr int least_screenful = 100;
constexpr qsizetype step_pieces = 200, step_units = 16'384;
constexpr qint64 slice_ms = 2;
constexpr int most_dropped_at_once = 100'000;
constexpr int most_layouts_ahead = 300'000;
/// The first screenful is painted and what the user does is heard before the rest comes.
constexpr int pause_before_rest_ms = 10;
/// Of the bar at a fold, which is narrower than the document's margin.
constexpr qreal bar_gap = 1, bar_width = 2;

}

PreviewTextEdit::PreviewTextEdit(QWidget* parent) : QPlainTextEdit(parent)
{
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setLineWrapMode(NoWrap);
    take_empty_document();
    connect(&fill_timer_, &QTimer::timeout, this, &PreviewTextEdit::append_slice);
}

void PreviewTextEdit::show_text(const QString& text)
{
    fill_timer_.stop();
    drop_text();
    pieces_ = TextPieces(text);
    append_pieces(std::max(visible_lines(), least_screenful), step_units);
    // The cursor went along with what was put in behind it.
    moveCursor(QTextCursor::Start);
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
    if (!pieces_.is_complete())
        fill_timer_.start(pause_before_rest_ms);
}

/// To let go of a long document takes longer than a key stroke may: that is another thread's work.
void PreviewTextEdit::drop_text()
{
    if (document()->characterCount() < most_dropped_at_once) {
        clear();
        return;
    }
    QTextDocument* old = document();
    take_empty_document();
    old->setParent(nullptr);
    old->moveToThread(nullptr);
    QThreadPool::globalInstance()->start([old] { delete old; });
}

void PreviewTextEdit::take_empty_document()
{
    auto* empty = new QTextDocument(this);
    empty->setDocumentLayout(new PreviewLayout(empty));
    empty->setUndoRedoEnabled(false);
    empty->setDefaultFont(font());
    setDocument(empty);
    setTabStopDistance(tab_stop_distance); // the document's
}

void PreviewTextEdit::append_pieces(qsizetype pieces, qsizetype units)
{
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    QTextBlock block = end.block();
    end.insertText(pieces_.next(pieces, units));
    // Each block makes its layout when it is first asked for it; a new width of the window would ask all at once.
    // What takes 320 bytes a line is not worth it for texts that nobody reads to the end.
    for (; block.isValid() && block.blockNumber() < most_layouts_ahead; block = block.next())
        block.layout();
}

void PreviewTextEdit::append_slice()
{
    fill_timer_.setInterval(0);
    QElapsedTimer slice;
    slice.start();
    const bool joins_view = blockCount() <= verticalScrollBar()->value() + visible_lines();
    auto& layout = static_cast<PreviewLayout&>(*document()->documentLayout());
    {
        // The lines that can be seen already need not be painted again.
        const QSignalBlocker quiet(&layout);
        while (!pieces_.is_complete() && slice.elapsed() < slice_ms)
            append_pieces(step_pieces, step_units);
    }
    const bool is_done = pieces_.is_complete() && lay_out_last_lines(slice);
    layout.tell_size(!is_done);
    if (joins_view)
        viewport()->update();
    if (is_done)
        fill_timer_.stop();
}

/// How far the scroll bars go hangs on the last lines. False when their turn is in another slice.
bool PreviewTextEdit::lay_out_last_lines(const QElapsedTimer& slice) const
{
    const auto* layout = document()->documentLayout();
    QTextBlock block = document()->lastBlock();
    for (int line = visible_lines(); line > 0 && block.isValid(); --line, block = block.previous()) {
        if (slice.elapsed() >= slice_ms)
            return false;
        layout->blockBoundingRect(block);
    }
    return true;
}

void PreviewTextEdit::paintEvent(QPaintEvent* event)
{
    QPlainTextEdit::paintEvent(event);
    mark_folds();
}

void PreviewTextEdit::mark_folds()
{
    QPainter painter(viewport());
    const QColor colour = palette().color(QPalette::Highlight);
    for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
        const QRectF line = blockBoundingGeometry(block).translated(contentOffset());
        if (line.top() > viewport()->height())
            break;
        QRectF bar(line.left() + bar_gap, line.top(), bar_width, line.height());
        if (pieces_.continues_line(block.position()))
            painter.fillRect(bar, colour);
        const QTextLine text = block.layout()->lineAt(0);
        bar.moveLeft(line.left() + text.x() + text.naturalTextWidth() + bar_gap);
        if (block.next().isValid() && pieces_.continues_line(block.next().position()))
            painter.fillRect(bar, colour);
    }
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
