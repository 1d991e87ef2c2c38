#pragma once

#include <QString>

#include <string>
#include <string_view>

/// The interface's strings and those of the rooms below hold the same UTF-16 units.
inline QString to_qstring(std::u16string_view text)
{
    return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

/// The text's own units; valid as long as the text is there unchanged.
inline std::u16string_view units_of(const QString& text)
{
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

inline std::u16string from_qstring(const QString& text)
{
    return text.toStdU16String();
}
