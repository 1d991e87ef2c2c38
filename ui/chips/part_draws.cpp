#include "ui/chips/part_draws.h"

#include "ui/text.h"
#include "ui/widgets/visible_whitespace.h"

#include <QCoreApplication>

namespace {

/// More of a text would neither be read on a chip nor be quick to measure and paint.
constexpr std::size_t longest_text = 200;

constexpr std::array name_values{
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Name"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Name (No Ext.)"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Extension"),
};

constexpr std::array path_titles{
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Path"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Path to Parent"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Path Without Drive"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Path Drive"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Path Drive Letter"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Link Target"),
};
static_assert(path_titles.size() == path_types.size());

constexpr std::array size_values{
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Bytes"), QT_TRANSLATE_NOOP("ItemPartBaseDraw", "KB"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "MB"),    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "GB"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "TB"),    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Auto"),
};
static_assert(size_values.size() == size_formats.size());

constexpr std::array date_titles{
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Modified Date"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Created Date"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Accessed Date"),
};
static_assert(date_titles.size() == date_types.size());

constexpr std::array date_values{
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Short Date"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Long Date"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Short Date & Time"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Long Date & Time"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "YYYY-MM-DD HH:MM:SS"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "YYYY-MM-DD_HH-MM-SS"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Year YYYY"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Year YY"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Month"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Month Abr."),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Month MM"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Date DD"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Day"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Day Abr."),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Day 0-6"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Day 1-7"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Hour (24)"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Hour (12)"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Minutes MM"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "Seconds SS"),
    QT_TRANSLATE_NOOP("ItemPartBaseDraw", "AM/PM"),
};
static_assert(date_values.size() == date_formats.size());

/// The translated text of an enumerator; empty for a value outside the table.
template <typename E, std::size_t N>
QString text_of(const std::array<const char*, N>& texts, E value)
{
    const auto index = static_cast<std::size_t>(value);
    return index < N ? ItemPartBaseDraw::tr(texts[index]) : QString();
}

QString shortened(std::u16string_view text)
{
    if (text.size() <= longest_text)
        return to_qstring(text);
    std::u16string_view begin = text.substr(0, longest_text);
    if (QChar(begin.back()).isHighSurrogate())
        begin.remove_suffix(1);
    return to_qstring(begin) + QChar(0x2026);
}

OptionSegment literal(std::u16string_view text)
{
    return {visible_whitespace(shortened(text)), SegmentKind::Literal};
}

ChipPointer make(ItemPartBase::Type type, const std::shared_ptr<ItemPartBase>& part)
{
    switch (type) {
    case ItemPartBase::Type::Text: break;
    case ItemPartBase::Type::Name: return std::make_shared<NamePartDraw>(part);
    case ItemPartBase::Type::Path: return std::make_shared<PathPartDraw>(part);
    case ItemPartBase::Type::Size: return std::make_shared<SizePartDraw>(part);
    case ItemPartBase::Type::Date: return std::make_shared<DatePartDraw>(part);
    case ItemPartBase::Type::Property: return std::make_shared<PropertyPartDraw>(part);
    case ItemPartBase::Type::AutoNumber: return std::make_shared<AutoNumberPartDraw>(part);
    case ItemPartBase::Type::FolderFiles: return std::make_shared<FolderFilesPartDraw>(part);
    case ItemPartBase::Type::FolderSubfolders: return std::make_shared<FolderSubfoldersPartDraw>(part);
    case ItemPartBase::Type::Checksum: return std::make_shared<ChecksumPartDraw>(part);
    }
    return std::make_shared<TextPartDraw>(part);
}

}

OptionSegments TextPartDraw::option_segments() const
{
    return {literal(settings().text())};
}

OptionSegments NamePartDraw::option_segments() const
{
    return {{text_of(name_values, settings().name_type()), SegmentKind::Value}};
}

QString PathPartDraw::title() const
{
    return text_of(path_titles, is_palette() ? ItemPartPath::PathType::FullPath : settings().path_type());
}

OptionSegments PathPartDraw::option_segments() const
{
    if (settings().path_type() == ItemPartPath::PathType::DriveLetterOnly)
        return {};
    return {{tr("Sep.:"), SegmentKind::Label}, {shortened(settings().separator_text()), SegmentKind::Literal}};
}

OptionSegments SizePartDraw::option_segments() const
{
    return {{text_of(size_values, settings().size_format()), SegmentKind::Value}};
}

QString DatePartDraw::title() const
{
    return is_palette() ? tr("Date") : text_of(date_titles, settings().date_type());
}

OptionSegments DatePartDraw::option_segments() const
{
    return {{text_of(date_values, settings().date_format()), SegmentKind::Value}};
}

OptionSegments PropertyPartDraw::option_segments() const
{
    const std::u16string& name = settings().property_name();
    const std::u16string known = platform::property_display_name(name);
    return {{shortened(known.empty() ? name : known), SegmentKind::Value}};
}

OptionSegments AutoNumberPartDraw::option_segments() const
{
    const auto formatted = [&](std::uint64_t number) { return shortened(settings().formatted(number)); };
    const QString first = formatted(settings().start());
    return {{tr("%1, %2, ...").arg(first, formatted(settings().start() + settings().step())), SegmentKind::Sample}};
}

OptionSegments FolderContentsPartDraw::option_segments() const
{
    const auto& folder = static_cast<const ItemPartFolderContents&>(*part());
    const bool visits_files = folder.content_kind() == ItemPartFolderContents::ContentKind::Files;
    const OptionSegment gap{{}, SegmentKind::Gap};
    OptionSegments segments;
    if (!folder.start_text().empty())
        segments << literal(folder.start_text()) << gap;
    if (!folder.indent_text().empty())
        segments << literal(folder.indent_text());
    segments << OptionSegment{visits_files ? tr("Files...") : tr("Subfolders..."), SegmentKind::Value};
    if (!folder.end_text().empty())
        segments << gap << literal(folder.end_text());
    return segments;
}

OptionSegments ChecksumPartDraw::option_segments() const
{
    const std::string_view name = checksum_display_name(settings().checksum_type());
    return {{QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())), SegmentKind::Value}};
}

ChipPointer make_chip(const std::shared_ptr<ItemPartBase>& part)
{
    return make(part->type(), part);
}

ChipPointer make_palette_chip(ItemPartBase::Type type)
{
    return make(type, nullptr);
}
