#include "ui/preview/text_pieces.h"

#include <algorithm>

namespace {

bool ends_line(QChar unit)
{
    return unit == u'\n' || unit == u'\r' || unit == QChar::ParagraphSeparator;
}

/// A text edit would take these two for its own marks of structure.
bool is_structure_mark(QChar unit)
{
    return unit == QChar(0xfdd0) || unit == QChar(0xfdd1);
}

/// The units up to the end of the line, `most` when it is further away.
qsizetype line_length(QStringView rest, qsizetype most)
{
    const QStringView begin = rest.first(std::min(rest.size(), most));
    return std::ranges::find_if(begin, ends_line) - begin.begin();
}

/// Scripts whose letters join, combine or come from several fonts, and surrogates. General punctuation and symbols
/// are not among them.
bool is_of_slow_script(QChar unit)
{
    return unit >= QChar(0x590) && (unit < QChar(0x1e00) || unit >= QChar(0x2e80));
}

bool is_slow(QStringView line)
{
    return line.size() > TextPieces::slow_fold && std::ranges::any_of(line, is_of_slow_script);
}

}

QString TextPieces::next(qsizetype pieces, qsizetype units)
{
    QString shown;
    while (!complete_ && (shown.isEmpty() || (pieces > 0 && shown.size() < units))) {
        append_piece(shown);
        --pieces;
    }
    return shown;
}

qsizetype TextPieces::piece_length(QStringView rest)
{
    const bool continues = folding_;
    const qsizetype room_left = continues ? 0 : room_;
    const qsizetype length = line_length(rest, fold + room_left + 1);
    const bool slow = is_slow(rest.first(length));
    const qsizetype cost = slow ? slow_cost : 1, cut = slow ? slow_fold : fold;
    folding_ = length > cut + room_left / cost;
    // A short line makes room again, but not the end of a folded one, so that lines alike stay folded.
    if (!folding_ && !continues)
        room_ = std::min(room, room_ + cost * (cut - length));
    if (!folding_)
        return length;
    const bool cuts_pair = rest[cut - 1].isHighSurrogate() && rest[cut].isLowSurrogate();
    return cut - (cuts_pair ? 1 : 0);
}

void TextPieces::append_piece(QString& shown)
{
    const QStringView rest = QStringView(text_).sliced(taken_);
    const QStringView piece = rest.first(piece_length(rest));
    const qsizetype begin = shown.size();
    shown += piece;
    std::replace_if(shown.begin() + begin, shown.end(), is_structure_mark, QChar::ReplacementCharacter);
    taken_ += piece.size();
    shown_ += piece.size();
    if (taken_ == text_.size())
        complete_ = true;
    else
        end_piece(shown);
}

void TextPieces::end_piece(QString& shown)
{
    const QStringView rest = QStringView(text_).sliced(taken_);
    const qsizetype units = rest.startsWith(u"\r\n") ? 2 : ends_line(rest.front()) ? 1 : 0;
    shown += u'\n';
    taken_ += units;
    ++shown_;
    if (units != 1)
        joints_.push_back({shown_, taken_});
}

qsizetype TextPieces::offset_of(qsizetype shown) const
{
    const auto behind = std::ranges::upper_bound(joints_, shown, {}, &Joint::shown);
    if (behind == joints_.begin())
        return shown;
    const Joint& joint = *std::prev(behind);
    return joint.text + (shown - joint.shown);
}

TextPieces::Part TextPieces::shown_part(qsizetype from, qsizetype to) const
{
    const qsizetype begin = offset_of(from);
    const qsizetype end = to >= shown_ ? text_.size() : offset_of(to);
    return {begin, end - begin};
}

bool TextPieces::continues_line(qsizetype begin) const
{
    return begin > 0 && !ends_line(text_[offset_of(begin) - 1]);
}
