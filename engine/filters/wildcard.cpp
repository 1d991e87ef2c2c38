#include "engine/filters/wildcard.h"

#include "engine/text/letters.h"

bool matches_wildcard(std::u16string_view pattern, std::u16string_view name)
{
    std::size_t at = 0, star = pattern.npos, star_end = 0, in_pattern = 0;
    while (at < name.size()) {
        if (in_pattern < pattern.size() && pattern[in_pattern] == u'*') {
            star = in_pattern++;
            star_end = at;
        } else if (in_pattern < pattern.size() &&
                   (pattern[in_pattern] == u'?' || to_lower(pattern[in_pattern]) == to_lower(name[at]))) {
            ++in_pattern;
            ++at;
        } else if (star != pattern.npos) {
            at = ++star_end;
            in_pattern = star + 1;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(u'*', in_pattern) == pattern.npos;
}
