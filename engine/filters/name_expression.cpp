#include "engine/filters/name_expression.h"

#include "engine/filters/ecmascript_pattern.h"
#include "engine/filters/pattern_text.h"
#include "engine/text/letters.h"

#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>

#include <cstdint>
#include <new>
#include <string>
#include <utility>

namespace {

struct Free {
    void operator()(pcre2_code* code) const { pcre2_code_free(code); }

    void operator()(pcre2_match_context* context) const { pcre2_match_context_free(context); }

    void operator()(pcre2_match_data* data) const { pcre2_match_data_free(data); }
};

template <typename T>
using Owned = std::unique_ptr<T, Free>;

/// Throws std::bad_alloc for null.
template <typename T>
Owned<T> owned(T* made)
{
    if (!made)
        throw std::bad_alloc();
    return Owned<T>(made);
}

PCRE2_SPTR units(std::u16string_view text)
{
    return reinterpret_cast<PCRE2_SPTR>(text.data());
}

Owned<pcre2_code> compile(const LibraryPattern& pattern)
{
    // Where nothing refers to groups, what they matched needn't be kept and put back on each way.
    const std::uint32_t options = PCRE2_UCP | PCRE2_DOLLAR_ENDONLY | PCRE2_ALLOW_EMPTY_CLASS |
                                  PCRE2_MATCH_UNSET_BACKREF |
                                  (pattern.has_back_references ? 0 : PCRE2_NO_AUTO_CAPTURE) |
                                  // What it would look for first, the look-ahead may have taken already.
                                  (pattern.has_look_aheads ? PCRE2_NO_START_OPTIMIZE : 0);
    int error = 0;
    PCRE2_SIZE error_at = 0;
    return Owned<pcre2_code>(
        pcre2_compile(units(pattern.text), pattern.text.size(), options, &error, &error_at, nullptr));
}

/// What a search may take. The library counts the ways that it tries from each place in the name, and a way takes
/// longer in a longer pattern. Two repeats of "." in a row are tried to their end on the longest name; the worst
/// searches end within some 100 ms on a machine of today.
Owned<pcre2_match_context> limits_for(const LibraryPattern& pattern)
{
    constexpr std::size_t most_ways = 50'000, short_pattern = 1000;
    constexpr std::uint32_t most_memory = 4096; // KiB
    auto context = owned(pcre2_match_context_create(nullptr));
    pcre2_set_match_limit(
        context.get(), static_cast<std::uint32_t>(most_ways * short_pattern / (short_pattern + pattern.text.size())));
    pcre2_set_heap_limit(context.get(), most_memory);
    return context;
}

}

struct NameExpression::Compiled {
    Owned<pcre2_code> code;
    Owned<pcre2_match_context> limits;
};

NameExpression::NameExpression(std::u16string_view pattern)
{
    try {
        const LibraryPattern translated = from_ecmascript(pattern);
        if (auto code = compile(translated))
            compiled_ = std::make_unique<const Compiled>(Compiled{std::move(code), limits_for(translated)});
    } catch (const PatternError& error) {
        error_offset_ = error.at();
    }
}

NameExpression::~NameExpression() = default;

bool NameExpression::is_found_in(std::u16string_view name) const
{
    if (!compiled_)
        return false;
    // Kept for the next name, since to make it takes as long as most searches.
    thread_local const auto data = owned(pcre2_match_data_create(1, nullptr));
    const std::u16string text = lower_cased(name);
    return pcre2_match(compiled_->code.get(), units(text), text.size(), 0, 0, data.get(), compiled_->limits.get()) >=
           0;
}
