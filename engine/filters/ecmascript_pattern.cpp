#include "engine/filters/ecmascript_pattern.h"

#include "engine/filters/pattern_atom.h"
#include "engine/filters/pattern_text.h"
#include "engine/text/letters.h"
#include "engine/text/utf.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace {

/// The most that PCRE2 repeats; no name is that long.
constexpr unsigned most_repeats = 65535;

class Translation
{
public:
    explicit Translation(std::u16string_view pattern) : pattern_(pattern) {}

    LibraryPattern run()
    {
        while (!pattern_.rest().empty())
            translate_next();
        if (!open_groups_.empty())
            throw PatternError("the group has no end", open_groups_.back().at);
        if (last_reference_ > groups_)
            throw PatternError("there is no such group", reference_at_);
        out_.has_back_references = last_reference_ > 0;
        return std::move(out_);
    }

private:
    struct Group {
        std::size_t at;
        bool is_look_ahead;
    };

    void translate_next()
    {
        start_ = pattern_.at();
        const bool had_atom = std::exchange(has_atom_, false);
        switch (const char16_t unit = pattern_.next()) {
        case u'^':
        case u'$':
        case u'|': out_.text += unit; break;
        case u'(': open_group(); break;
        case u')': close_group(); break;
        case u'{':
        case u'*':
        case u'+':
        case u'?': translate_repeat(unit, had_atom); break;
        case u'\\': translate_escape(); break;
        case u'[': put(read_class(pattern_)); break;
        case u'.': put({.is_set = true, .set = u"^\n\r\u2028\u2029"}); break;
        default: put({.unit = unit});
        }
    }

    void put(const PatternAtom& atom)
    {
        out_.text += library_text(atom);
        has_atom_ = true;
    }

    void open_group()
    {
        bool is_look_ahead = false;
        out_.text += u'(';
        if (pattern_.skip(u"?")) {
            const char16_t kind = pattern_.next();
            if (kind != u':' && kind != u'=' && kind != u'!')
                throw PatternError("unknown kind of group", start_);
            is_look_ahead = kind != u':';
            out_.has_look_aheads |= kind == u'=';
            out_.text.append({u'?', kind});
        } else {
            ++groups_;
        }
        open_groups_.push_back({start_, is_look_ahead});
    }

    void close_group()
    {
        if (open_groups_.empty())
            throw PatternError("nothing is open", start_);
        out_.text += u')';
        has_atom_ = !open_groups_.back().is_look_ahead;
        open_groups_.pop_back();
    }

    void translate_repeat(char16_t unit, bool had_atom)
    {
        if (!had_atom)
            throw PatternError("nothing to repeat", start_);
        out_.text += unit == u'{' ? bounds() : std::u16string{unit};
        if (pattern_.skip(u"?"))
            out_.text += u'?';
    }

    std::u16string bounds()
    {
        const unsigned least = number();
        std::string text = "{" + std::to_string(least);
        if (pattern_.skip(u",")) {
            const bool has_most = is_digit_next();
            const unsigned most = has_most ? number() : most_repeats;
            if (most < least)
                throw PatternError("the bounds are in the wrong order", start_);
            text += most < most_repeats ? "," + std::to_string(most) : ",";
        }
        if (!pattern_.skip(u"}"))
            throw PatternError("these are no bounds", start_);
        return to_utf16(text + "}");
    }

    bool is_digit_next() const { return !pattern_.rest().empty() && is_ascii_digit(pattern_.rest().front()); }

    unsigned number()
    {
        if (!is_digit_next())
            throw PatternError("a number is missing", pattern_.at());
        unsigned value = 0;
        while (is_digit_next())
            value = std::min(value * 10 + (pattern_.next() - u'0'), most_repeats);
        return value;
    }

    void translate_escape()
    {
        if (is_digit_next() && !pattern_.rest().starts_with(u'0'))
            return translate_reference();
        for (const std::u16string_view letter : {u"b", u"B"})
            if (pattern_.skip(letter)) {
                (out_.text += u'\\') += letter;
                return;
            }
        put(read_escape(pattern_));
    }

    void translate_reference()
    {
        const unsigned group = number();
        if (group > last_reference_) {
            last_reference_ = group;
            reference_at_ = start_;
        }
        out_.text += to_utf16("\\g{" + std::to_string(group) + "}");
        has_atom_ = true;
    }

    PatternText pattern_;
    LibraryPattern out_;
    std::size_t start_ = 0; ///< of the term that is being read
    bool has_atom_ = false; ///< what has been read last can be repeated
    std::vector<Group> open_groups_;
    unsigned groups_ = 0, last_reference_ = 0;
    std::size_t reference_at_ = 0;
};

}

LibraryPattern from_ecmascript(std::u16string_view pattern)
{
    return Translation(pattern).run();
}
