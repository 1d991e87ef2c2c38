#include "ui/widgets/variable_size_text_edit.h"

#include "ui/text.h"
#include "ui/widgets/field_manners.h"
#include "ui/widgets/visible_whitespace.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QSignalBlocker>

#include <algorithm>

namespace {

/// QTextEdit::toPlainText would turn no-break spaces into blanks.
QString plain_text(const QTextDocument& document)
{
    QString text = document.toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    return text;
}

/// With the line feeds back behind their marks, so that lines stay lines.
QString marked_text(const QString& text)
{
    return visible_whitespace(text).replace(line_feed_mark, QString(line_feed_mark) + u'\n');
}

}

int fitted_height(double document_height)
{
    return std::clamp(static_cast<int>(document_height + 3), 30, 120);
}

VariableSizeTextEdit::VariableSizeTextEdit(QWidget* parent) : QTextEdit(parent)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSize(10);
    setFont(font);
    setAcceptRichText(false);
    setUndoRedoEnabled(false);
    // The base class claims the keys of undo even so.
    leave_undo_to_window(*this);
    setLineWrapMode(NoWrap);
    // A bar would cover the text of a box that is one line high; the view follows the cursor without it.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAccessibleDescription(tr("Tab types a tab. Ctrl+Tab and Shift+Tab leave the box."));
    connect(this, &QTextEdit::textChanged, this, &VariableSizeTextEdit::text_changed);
    text_changed();
}

void VariableSizeTextEdit::set_stored_text(const std::u16string& text)
{
    {
        const QSignalBlocker blocker(this);
        clearFocus();
        stored_text_ = to_qstring(text);
        anchor_ = position_ = 0;
        if (show_whitespace_)
            show_marked();
        else
            setPlainText(stored_text_);
    }
    text_changed();
}

void VariableSizeTextEdit::follow_text(const std::u16string& text)
{
    if (stored_text() == text)
        return;
    const bool focused = hasFocus();
    const int position = textCursor().position();
    set_stored_text(text);
    if (!focused)
        return;
    setFocus();
    QTextCursor cursor = textCursor();
    cursor.setPosition(std::min(position, static_cast<int>(document()->characterCount()) - 1));
    setTextCursor(cursor);
}

std::u16string VariableSizeTextEdit::stored_text() const
{
    return from_qstring(marked_ ? stored_text_ : plain_text(*document()));
}

void VariableSizeTextEdit::text_changed()
{
    const int height = fitted_height(document()->size().height());
    if (minimumHeight() == height && maximumHeight() == height)
        return;
    setFixedHeight(height);
    emit size_changed();
}

void VariableSizeTextEdit::focusInEvent(QFocusEvent* event)
{
    show_plain();
    QTextEdit::focusInEvent(event);
    text_changed();
}

void VariableSizeTextEdit::focusOutEvent(QFocusEvent* event)
{
    // Below its own context menu the box still is what the user edits; cut and paste need its selection.
    if (show_whitespace_ && !marked_ && event->reason() != Qt::PopupFocusReason) {
        stored_text_ = plain_text(*document());
        anchor_ = textCursor().anchor();
        position_ = textCursor().position();
        show_marked();
    }
    QTextEdit::focusOutEvent(event);
    text_changed();
}

bool VariableSizeTextEdit::focusNextPrevChild(bool next)
{
    return next ? QTextEdit::focusNextPrevChild(next) : leave(next);
}

bool VariableSizeTextEdit::leave(bool next)
{
    // QTextEdit keeps the focus for the sake of typed tabs.
    return QWidget::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call)
}

void VariableSizeTextEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->modifiers() == Qt::ControlModifier && event->key() == Qt::Key_Tab)
        leave(true);
    else
        QTextEdit::keyPressEvent(event);
}

void VariableSizeTextEdit::dropEvent(QDropEvent* event)
{
    // Text can be dropped without giving the box the focus first.
    show_plain();
    setFocus(Qt::MouseFocusReason);
    QTextEdit::dropEvent(event);
}

void VariableSizeTextEdit::show_plain()
{
    if (!marked_)
        return;
    marked_ = false;
    const QSignalBlocker blocker(this);
    setPlainText(stored_text_);
    QTextCursor cursor = textCursor();
    cursor.setPosition(anchor_);
    cursor.setPosition(position_, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void VariableSizeTextEdit::show_marked()
{
    marked_ = true;
    const QSignalBlocker blocker(this);
    setPlainText(marked_text(stored_text_));
}
