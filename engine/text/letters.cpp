#include "engine/text/letters.h"

namespace {

/// Unicode's classes from the C library's own locale of that name, which every glibc since 2.35 carries; case
/// changes for ASCII letters only.
class UnitCtype final : public std::ctype_byname<wchar_t>
{
public:
    UnitCtype() : std::ctype_byname<wchar_t>("C.UTF-8") {}

protected:
    wchar_t do_toupper(wchar_t unit) const override
    {
        return unit < 0x80 ? static_cast<wchar_t>(to_upper(static_cast<char16_t>(unit))) : unit;
    }

    const wchar_t* do_toupper(wchar_t* from, const wchar_t* to) const override
    {
        for (; from != to; ++from)
            *from = do_toupper(*from);
        return to;
    }

    wchar_t do_tolower(wchar_t unit) const override
    {
        return unit < 0x80 ? static_cast<wchar_t>(to_lower(static_cast<char16_t>(unit))) : unit;
    }

    const wchar_t* do_tolower(wchar_t* from, const wchar_t* to) const override
    {
        for (; from != to; ++from)
            *from = do_tolower(*from);
        return to;
    }
};

bool has_class(char16_t unit, std::ctype_base::mask mask)
{
    static const auto& facet = std::use_facet<std::ctype<wchar_t>>(letters_locale());
    return facet.is(mask, static_cast<wchar_t>(unit));
}

}

const std::locale& letters_locale()
{
    static const std::locale locale(std::locale::classic(), new UnitCtype);
    return locale;
}

bool is_letter(char16_t unit)
{
    return unit < 0x80 ? is_ascii_letter(unit) : has_class(unit, std::ctype_base::alpha);
}

bool is_lower(char16_t unit)
{
    return unit < 0x80 ? unit >= u'a' && unit <= u'z' : has_class(unit, std::ctype_base::lower);
}

bool is_upper(char16_t unit)
{
    return unit < 0x80 ? unit >= u'A' && unit <= u'Z' : has_class(unit, std::ctype_base::upper);
}

bool is_alphanumeric(char16_t unit)
{
    return unit < 0x80 ? is_ascii_letter(unit) || is_digit(unit) : has_class(unit, std::ctype_base::alnum);
}
