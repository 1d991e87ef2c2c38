#include "ui/controls/entry_texts.h"

#include "engine/checksums/checksum_type.h"
#include "engine/parts/date_part.h"
#include "engine/parts/size_part.h"
#include "engine/text/case_type.h"
#include "engine/text/tr_noop.h"

#include <QCoreApplication>

#include <array>

namespace {

constexpr auto date_format_texts = std::to_array({
    TR_NOOP("entry_texts", "Short Date"),
    TR_NOOP("entry_texts", "Long Date"),
    TR_NOOP("entry_texts", "Short Date & Time"),
    TR_NOOP("entry_texts", "Long Date & Time"),
    TR_NOOP("entry_texts", "YYYY-MM-DD HH:MM:SS"),
    TR_NOOP("entry_texts", "YYYY-MM-DD_HH-MM-SS"),
    TR_NOOP("entry_texts", "Year as YYYY"),
    TR_NOOP("entry_texts", "Year as YY"),
    TR_NOOP("entry_texts", "Month Name"),
    TR_NOOP("entry_texts", "Month Name Abr."),
    TR_NOOP("entry_texts", "Month as MM"),
    TR_NOOP("entry_texts", "Date as DD"),
    TR_NOOP("entry_texts", "Day Name"),
    TR_NOOP("entry_texts", "Day Name Abr."),
    TR_NOOP("entry_texts", "Day of Week 0 (Sunday) to 6 (Saturday)"),
    TR_NOOP("entry_texts", "Day of Week 1 (Monday) to 7 (Sunday)"),
    TR_NOOP("entry_texts", "Hour, 24-Hour Clock"),
    TR_NOOP("entry_texts", "Hour, 12-Hour Clock"),
    TR_NOOP("entry_texts", "Minutes as MM"),
    TR_NOOP("entry_texts", "Seconds as SS"),
    TR_NOOP("entry_texts", "AM/PM"),
});
static_assert(date_format_texts.size() == date_formats.size());

constexpr auto size_format_texts = std::to_array({
    TR_NOOP("entry_texts", "Bytes"),
    TR_NOOP("entry_texts", "Kilobytes"),
    TR_NOOP("entry_texts", "Megabytes"),
    TR_NOOP("entry_texts", "Gigabytes"),
    TR_NOOP("entry_texts", "Terabytes"),
    TR_NOOP("entry_texts", "Auto"),
});
static_assert(size_format_texts.size() == size_formats.size());

template <std::size_t N>
QStringList translated(const std::array<const char*, N>& texts)
{
    QStringList list;
    for (const char* text : texts)
        list += QCoreApplication::translate("entry_texts", text);
    return list;
}

}

QStringList entry_texts::case_types()
{
    QStringList list;
    for (const auto& row : ::case_types)
        list += QCoreApplication::translate("MVCaseTypeUtils", row.display.data());
    return list;
}

QStringList entry_texts::checksum_types()
{
    QStringList list;
    for (const auto& row : ::checksum_types)
        list += QString::fromUtf8(row.display);
    return list;
}

QStringList entry_texts::date_formats()
{
    return translated(date_format_texts);
}

QStringList entry_texts::size_formats()
{
    return translated(size_format_texts);
}
