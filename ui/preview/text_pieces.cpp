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

qsizetype piece_length(QStringView rest)
{
    const QStringView piece = rest.first(std::min(rest.size(), TextPieces::longest));
    const auto end = std::ranges::find_if(piece, ends_line);
    if (end != piece.end() || piece.size() == rest.size())
        return end - piece.begin();
    const bool cuts_pair = piece.back().isHighSurrogate() && rest[piece.size()].isLowSurrogate();
    return piece.size() - (cuts_pair ? 1 : 0);
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
