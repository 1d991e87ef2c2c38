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

/// Whether the piece stands in a box.
inline bool is_boxed(const OptionSegment& segment)
{
    return (segment.kind == SegmentKind::Literal || segment.kind == SegmentKind::Value) && !segment.text.isEmpty();
}

/// How far a piece moves on what follows it, from the width of its text, in pixels.
inline int advance_of(const OptionSegment& segment, int text_width)
{
    constexpr int wide = 12, narrow = 2;
    return text_width + (is_boxed(segment) || segment.kind == SegmentKind::Gap ? wide : narrow);
}
