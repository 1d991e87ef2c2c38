#include "engine/filters/pattern_atom.h"

#include "engine/text/letters.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace {

/// Those of POSIX, and three that C++ adds.
constexpr std::array<std::u16string_view, 15> class_names{u"alnum", u"alpha",  u"blank", u"cntrl", u"digit",
                                                          u"graph", u"lower",  u"print", u"punct", u"space",
                                                          u"upper", u"xdigit", u"d",     u"s",     u"w"};

constexpr std::u16string_view controls = u"tnvfr", codes_of_controls = u"\t\n\v\f\r";

char16_t read_hex(PatternText& pattern, int digits)
{
    unsigned code = 0;
    while (digits-- > 0) {
        const std::size_t digit = std::u16string_view(u"0123456789abcdef").find(to_lower(pattern.next()));
        if (digit == std::u16string_view::npos)
            throw PatternError("a hexadecimal digit is missing", pattern.at() - 1);
        code = code * 16 + static_cast<unsigned>(digit);
    }
    return static_cast<char16_t>(code);
}

char16_t read_control(PatternText& pattern)
{
    const char16_t letter = pattern.next();
    if (!is_ascii_letter(letter))
        throw PatternError("\\c takes a letter", pattern.at() - 1);
    return letter % 32;
}

/// One unit in PCRE2's syntax, whatever it means elsewhere.
std::u16string literal(char16_t unit)
{
    return is_ascii_letter(unit) || is_ascii_digit(unit) || unit >= 0x80 ? std::u16string{unit}
                                                                         : std::u16string{u'\\', unit};
}

/// Capital letters in a range stand for the small ones; they themselves are harmless.
std::u16string range(char16_t first, char16_t last)
{
    std::u16string text = literal(first) + u'-' + literal(last);
    const char16_t capital = std::max(first, u'A'), last_capital = std::min(last, u'Z');
    if (capital <= last_capital)
        text.append({to_lower(capital), u'-', to_lower(last_capital)});
    return text;
}

/// Reads a class's name from behind its "[:", or one unit from behind "[." or "[=".
PatternAtom read_named(PatternText& pattern, char16_t kind)
{
    const std::size_t start = pattern.at(), size = pattern.rest().find(std::u16string{kind, u']'});
    const std::u16string_view name = pattern.rest().substr(0, size);
    const bool is_known = kind == u':' ? std::ranges::find(class_names, name) != class_names.end() : name.size() == 1;
    if (size == name.npos || !is_known)
        throw PatternError("unknown name in a class", start);
    pattern.skip(name);
    pattern.next();
    pattern.next();
    if (kind != u':')
        return {.unit = name[0]};
    if (name.size() == 1)
        return {.is_set = true, .set = {u'\\', name[0]}};
    // With case ignored every letter that has one is of either.
    if (name == u"upper" || name == u"lower")
        return {.is_set = true, .set = u"\\p{L&}"};
    return {.is_set = true, .set = u"[:" + std::u16string(name) + u":]"};
}

PatternAtom read_class_atom(PatternText& pattern)
{
    if (pattern.skip(u"\\b"))
        return {.unit = u'\b'};
    const char16_t unit = pattern.next();
    if (unit == u'\\')
        return read_escape(pattern);
    for (const char16_t kind : {u':', u'.', u'='})
        if (unit == u'[' && pattern.skip({&kind, 1}))
            return read_named(pattern, kind);
    return {.unit = unit};
}

/// One member of a class or a range.
std::u16string read_members(PatternText& pattern)
{
    const std::size_t start = pattern.at();
    const PatternAtom first = read_class_atom(pattern);
    if (pattern.rest().starts_with(u"-]") || !pattern.skip(u"-"))
        return first.is_set ? first.set : literal(to_lower(first.unit));
    const PatternAtom last = read_class_atom(pattern);
    if (first.is_set || last.is_set || last.unit < first.unit)
        throw PatternError("no range", start);
    return range(first.unit, last.unit);
}

}

PatternAtom read_escape(PatternText& pattern)
{
    const char16_t unit = pattern.next();
    if (std::u16string_view(u"dDsSwW").find(unit) != std::u16string_view::npos)
        return {.is_set = true, .set = {u'\\', unit}};
    if (const std::size_t control = controls.find(unit); control != controls.npos)
        return {.unit = codes_of_controls[control]};
    if (unit == u'x' || unit == u'u')
        return {.unit = read_hex(pattern, unit == u'x' ? 2 : 4)};
    if (unit == u'c')
        return {.unit = read_control(pattern)};
    const bool is_zero = unit == u'0' && (pattern.rest().empty() || !is_ascii_digit(pattern.rest().front()));
    if (is_alphanumeric(unit) && !is_zero)
        throw PatternError("unknown escape", pattern.at() - 1);
    return {.unit = is_zero ? u'\0' : unit};
}

PatternAtom read_class(PatternText& pattern)
{
    PatternAtom made{.is_set = true};
    if (pattern.skip(u"^"))
        made.set = u"^";
    while (!pattern.skip(u"]"))
        made.set += read_members(pattern);
    return made;
}

std::u16string library_text(const PatternAtom& atom)
{
    if (!atom.is_set)
        return literal(to_lower(atom.unit));
    // The library doesn't repeat an empty class.
    return atom.set.empty() ? u"(?:[])" : u'[' + atom.set + u']';
}
