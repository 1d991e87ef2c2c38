#pragma once

#include <QString>

#include <string>
#include <string_view>

/// The interface's strings and those of the rooms below hold the same UTF-16 units.
inline QString to_qstring(std::u16string_view text)
{
    return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

inline std::u16string from_qstring(const QString& text)
{
    return text.toStdU16String();
}
