#pragma once

#include <QStringList>

/// What combo boxes offer for enumerations that more than one of them edits, in the order of the values, translated.
namespace entry_texts {

QStringList case_types();
QStringList checksum_types();
QStringList date_formats();
QStringList size_formats();

}
