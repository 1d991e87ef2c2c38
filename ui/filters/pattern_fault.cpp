#include "ui/filters/pattern_fault.h"

#include "ui/text.h"

#include <QCoreApplication>

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(PatternFault)
};

/// Control characters by their pictures, for they have no look of their own.
QString visible(std::u16string characters)
{
    constexpr char16_t control_pictures = 0x2400;
    for (char16_t& unit : characters)
        if (unit < u' ')
            unit = static_cast<char16_t>(unit + control_pictures);
    return to_qstring(characters);
}

}

PatternFault fault_of(const ItemFilter& filter)
{
    if (const std::u16string characters = filter.invalid_characters(); !characters.empty()) {
        const bool is_list = filter.filter_mode() == ItemFilter::Mode::Extensions;
        const QString reason =
            is_list ? Texts::tr("Invalid characters for extensions: ") : Texts::tr("Invalid filename characters: ");
        return {reason + visible(characters), {}};
    }
    if (filter.is_pattern_valid())
        return {};
    const auto offset = filter.error_offset();
    return {Texts::tr("Invalid regex"), offset ? Texts::tr("At character %1").arg(*offset + 1) : QString()};
}

PatternFault fault_of(ItemFilter::Mode mode, const QString& text)
{
    ItemFilter filter;
    filter.set_filter_mode(mode);
    filter.set_filter_pattern(from_qstring(text));
    return fault_of(filter);
}
