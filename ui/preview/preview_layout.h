#pragma once

#include <QPlainTextDocumentLayout>
#include <QTextBlock>

/// Lays out the lines of a preview. Whoever asks how high lines are that nobody has seen yet would have them laid
/// out, which takes long for long ones: while a guess will do, they are as high as the font says. Main thread only.
class PreviewLayout final : public QPlainTextDocumentLayout
{
public:
    using QPlainTextDocumentLayout::QPlainTextDocumentLayout;

    /// Has the edit around move its scroll bars to the document's size, as it is or by a guess.
    void tell_size(bool by_guess);

    QRectF blockBoundingRect(const QTextBlock& block) const override;

private:
    bool is_guessing_ = false;
};
