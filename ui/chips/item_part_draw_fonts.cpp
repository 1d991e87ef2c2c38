#include "ui/chips/item_part_draw_fonts.h"

#include <algorithm>

namespace {

constexpr int option_size = 10;

QFont bold(QFont font)
{
    font.setWeight(QFont::Bold);
    return font;
}

QFont italic(QFont font)
{
    font.setItalic(true);
    return font;
}

QFont sized(QFont font, int points)
{
    font.setPointSize(points);
    return font;
}

}

ItemPartDrawFonts::ItemPartDrawFonts(const QFont& base)
    : base_(base), title_(bold(base)), plain_(::sized(base, option_size)), bold_(bold(plain_.font)),
      italic_(italic(plain_.font))
{
    metrics_.head = std::max(metrics_.head, title_.metrics.height() + ChipMetrics::inset);
    metrics_.line = std::max(metrics_.line, plain_.metrics.height() + 4);
}

const ItemPartDrawFonts::Sized& ItemPartDrawFonts::sized(SegmentKind kind) const
{
    switch (kind) {
    case SegmentKind::Literal: return bold_;
    case SegmentKind::Sample: return italic_;
    case SegmentKind::Value:
    case SegmentKind::Label:
    case SegmentKind::Gap: break;
    }
    return plain_;
}
