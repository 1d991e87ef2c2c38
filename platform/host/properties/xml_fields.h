#pragma once

#include <functional>
#include <map>
#include <string>

namespace platform {

/// Texts of a document by the local names of their elements, and of attributes by "@" and their local names. Several
/// of one name are joined with ";".
using XmlFields = std::map<std::u16string, std::u16string, std::less<>>;

/// What stands before the first error of a broken document.
XmlFields xml_fields(const std::string& xml);

}
