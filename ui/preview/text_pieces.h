#pragma once

#include <QString>

#include <vector>

/// A text cut into pieces that a text edit can lay out, each a paragraph there: its lines, and of a line that would
/// take too long to paint parts of `fold` units. Says where a place of what is shown lies in the text, so that
/// neither the added ends of paragraphs nor those that the edit writes in its own way reach anybody. Surrogate pairs
/// stay whole.
class TextPieces
{
public:
    /// A line is folded only when it has more than `fold` units and the lines before it left no room for it: any `n`
    /// pieces in a row have at most `room + n * fold` units. A text edit lays out and paints all of a line, however
    /// little of it can be seen.
    static constexpr qsizetype fold = 512, room = 24'576;
    /// The same for a line with any unit of a script that takes longer than the European ones: a selected mix of
    /// scripts takes some 2 us a unit on a slow machine, five times as long. It shares the room, where each of its
    /// units counts `slow_cost` times.
    static constexpr qsizetype slow_fold = 256, slow_cost = 4;

    explicit TextPieces(QString text = {}) : text_(std::move(text)) {}

    const QString& text() const { return text_; }

    /// Whether all pieces have been taken.
    bool is_complete() const { return complete_; }

    /// What is to be shown behind all that was taken before: at most so many pieces, and none more once there are
    /// `units` units. At least one piece, or nothing when complete. A line feed parts the pieces.
    QString next(qsizetype pieces, qsizetype units);

    /// A part of the text, in its units.
    struct Part {
        qsizetype offset = 0;
        qsizetype length = 0;

        bool operator==(const Part&) const = default;
    };

    /// The part that is shown from one place up to another one, which comes later. The end of what was taken so far
    /// stands for the end of the text: pieces that are appended there join a selection, too.
    Part shown_part(qsizetype from, qsizetype to) const;

    /// Whether the piece that is shown from `begin` on goes on with the line of the one before.
    bool continues_line(qsizetype begin) const;

private:
    /// From `shown` on, and up to the next joint, what is shown and the text run in parallel.
    struct Joint {
        qsizetype shown;
        qsizetype text;
    };

    qsizetype offset_of(qsizetype shown) const;
    qsizetype piece_length(QStringView rest);
    void append_piece(QString& shown);
    /// Steps over the line end or the cut behind a piece.
    void end_piece(QString& shown);

    QString text_;
    qsizetype taken_ = 0;   ///< units of the text
    qsizetype shown_ = 0;   ///< units of what is shown for them
    qsizetype room_ = room; ///< for what a line has beyond `fold`
    bool folding_ = false;  ///< the line that is being taken
    bool complete_ = false;
    std::vector<Joint> joints_;
};
