#pragma once

#include <QList>
#include <QString>

/// How a piece of a chip's option line looks.
enum class SegmentKind : int {
    Literal, ///< the user's own text, in a box
    Sample,
    Value, ///< a choice, in a box
    Label,
    Gap
};

/// A piece of the line under a chip's title, which tells of its options.
struct OptionSegment {
    QString text;
    SegmentKind kind = SegmentKind::Label;

    bool operator==(const OptionSegment&) const = default;
};

using OptionSegments = QList<OptionSegment>;

/// Whether the piece stands in a box: only texts do.
constexpr bool is_boxed(SegmentKind kind)
{
    return kind == SegmentKind::Literal || kind == SegmentKind::Value;
}

/// How far a piece moves on what follows it, from the width of its text, in pixels.
constexpr int advance_of(SegmentKind kind, int text_width)
{
    constexpr int box = 12, plain = 2;
    if (kind == SegmentKind::Gap)
        return text_width + box;
    return is_boxed(kind) && text_width > 0 ? text_width + box : text_width + plain;
}
