#include "engine/items/mv_item_base.h"
#include "engine/items/mv_item_folder.h"

#include <boost/container/small_vector.hpp>

namespace {

/// What a path consists of: names from the top down, and a separator before or behind them all.
struct PathPieces {
    boost::container::small_vector<const MVItemBase*, 32> upwards;
    bool leading_separator = false, trailing_separator = false;
};

bool is_drive(const MVItemBase& node)
{
    return node.parent() && !node.parent()->parent();
}

PathPieces collect(const MVItemBase& start, const PathStyle& style)
{
    PathPieces pieces;
    if (is_drive(start)) {
        if (!style.no_drive)
            pieces.upwards.push_back(&start);
        pieces.trailing_separator = !style.no_drive;
        return pieces;
    }
    pieces.upwards.push_back(&start);
    std::int32_t names = 0;
    for (const MVItemBase* node = start.parent(); node && !node->name().empty(); node = node->parent()) {
        if (++names == style.max_parents)
            return pieces;
        if (style.no_drive && is_drive(*node)) {
            pieces.leading_separator = true;
            return pieces;
        }
        pieces.upwards.push_back(node);
    }
    return pieces;
}

void append_name(std::u16string& text, const MVItemBase& node, CaseType case_type)
{
    if (case_type == CaseType::Unchanged)
        text += node.name();
    else
        text += MVCaseTypeUtils::convert(case_type, node.name());
}

}

void MVItemBase::append_path(std::u16string& text, const PathStyle& style) const
{
    const std::u16string_view separator = style.separator.empty() ? u"\\" : style.separator;
    const PathPieces pieces = collect(*this, style);
    const std::size_t begin = text.size();
    if (pieces.leading_separator)
        text += separator;
    for (auto node = pieces.upwards.rbegin(); node != pieces.upwards.rend(); ++node) {
        if (node != pieces.upwards.rbegin())
            text += separator;
        append_name(text, **node, style.case_type);
    }
    if (pieces.trailing_separator)
        text += separator;
    if ((separator == u"/" || separator == u"\\\\") && std::u16string_view(text).substr(begin).starts_with(u"\\\\"))
        text.replace(begin, 2, std::u16string(separator).append(separator));
}

std::u16string MVItemBase::full_path() const
{
    std::u16string path;
    append_path(path, {});
    return path;
}
