#pragma once

#include <string>
#include <string_view>

/// A regular expression in the syntax of PCRE2.
struct LibraryPattern {
    std::u16string text;
    bool has_back_references = false;
    bool has_look_aheads = false; ///< those that ask for something
};

/// A regular expression of ECMAScript (ECMA-262, without its "u" flag and what browsers tolerate beyond it, and with
/// the POSIX classes that C++ adds) for PCRE2 to find in text in lower case what the original finds where the case of
/// ASCII letters is ignored. It takes PCRE2_UCP, PCRE2_DOLLAR_ENDONLY, PCRE2_ALLOW_EMPTY_CLASS and
/// PCRE2_MATCH_UNSET_BACKREF. Throws PatternError for all that isn't ECMAScript.
LibraryPattern from_ecmascript(std::u16string_view pattern);
