#pragma once

#include "engine/filters/pattern_text.h"

#include <string>

/// What stands for one unit of a name: a unit, or any of a set.
struct PatternAtom {
    char16_t unit = 0;
    bool is_set = false;
    std::u16string set = {}; ///< what PCRE2 takes between "[" and "]"
};

/// Reads what follows a backslash. Throws PatternError when it is no escape of ECMAScript's that stands for one unit.
PatternAtom read_escape(PatternText& pattern);

/// Reads a class from behind its "[" to its end. Throws PatternError.
PatternAtom read_class(PatternText& pattern);

/// In PCRE2's syntax, for text in lower case.
std::u16string library_text(const PatternAtom& atom);
