#pragma once

#include <string>
#include <string_view>

/// A regular expression of ECMAScript (ECMA-262, without its "u" flag, and with the POSIX classes that C++ adds) in
/// the syntax of Boost's Perl expressions, one wide character a UTF-16 unit. The two agree but for some escapes,
/// empty classes and what Perl has beyond ECMAScript. Throws std::invalid_argument for such extras: letters that are
/// no escape, groups other than (?: (?= (?!, and possessive repeats.
std::wstring from_ecmascript(std::u16string_view pattern);
