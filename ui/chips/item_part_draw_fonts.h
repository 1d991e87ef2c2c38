#pragma once

#include "ui/chips/chip_geometry.h"
#include "ui/chips/option_segment.h"

#include <QFont>
#include <QFontMetrics>

/// The fonts of chips, with their metrics.
class ItemPartDrawFonts
{
public:
    /// `base` is the widget's font.
    explicit ItemPartDrawFonts(const QFont& base);

    const QFont& base() const { return base_.font; }

    const QFont& title() const { return title_.font; }

    const QFont& of(SegmentKind kind) const { return sized(kind).font; }

    int title_width(const QString& text) const { return title_.width(text); }

    int width(const OptionSegment& segment) const { return sized(segment.kind).width(segment.text); }

    /// As high as these fonts need it, and never lower than usual.
    const ChipMetrics& metrics() const { return metrics_; }

private:
    struct Sized {
        QFont font;
        QFontMetrics metrics;

        explicit Sized(const QFont& its) : font(its), metrics(its) {}

        int width(const QString& text) const { return metrics.boundingRect(text).width(); }
    };

    const Sized& sized(SegmentKind kind) const;

    Sized base_;
    Sized title_;
    Sized plain_;
    Sized bold_;
    Sized italic_;
    ChipMetrics metrics_;
};
