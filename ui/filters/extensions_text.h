#pragma once

#include <QString>

#include <string>
#include <string_view>

/// A list of extensions as it stands in a field.
QString shown_extensions(std::u16string_view list);

/// Of extensions as they are typed: without the dots and blanks around them, and without empty ones.
std::u16string bare_extensions(const QString& typed);
