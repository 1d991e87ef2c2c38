#pragma once

#include <QString>

/// Stored text as it is shown: each blank as U+00B7, each tab as U+2192 between blanks, each line feed as U+21B5;
/// carriage returns are left out.
QString visible_whitespace(const QString& text);

/// The mark of a line feed.
inline constexpr QChar line_feed_mark(0x21b5);
