#pragma once

#include "platform/paths.h"

#include <boost/json.hpp>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

/// Ends the program, which libFuzzer takes as a find.
inline void require(bool condition, const char* rule)
{
    if (!condition) {
        std::fprintf(stderr, "broken: %s\n", rule);
        std::abort();
    }
}

/// Takes one input apart.
class FuzzInput
{
public:
    FuzzInput(const std::uint8_t* data, std::size_t size) : rest_(reinterpret_cast<const char*>(data), size) {}

    std::string_view rest() const { return rest_; }

    /// 0 at the end.
    unsigned byte()
    {
        if (rest_.empty())
            return 0;
        const unsigned value = static_cast<unsigned char>(rest_.front());
        rest_.remove_prefix(1);
        return value;
    }

    /// UTF-16 of what stands before the next line feed, or of all that is left; bytes that are no UTF-8 give lone
    /// surrogates.
    std::u16string line()
    {
        const std::size_t end = std::min(rest_.find('\n'), rest_.size());
        std::u16string text = platform::from_host_name(rest_.substr(0, end));
        rest_.remove_prefix(std::min(end + 1, rest_.size()));
        return text;
    }

    /// The same of all that is left.
    std::u16string text() const { return platform::from_host_name(rest_); }

    /// Empty when it is no JSON.
    std::optional<boost::json::value> json() const
    {
        boost::json::error_code error;
        boost::json::value value = boost::json::parse(rest_, error);
        return error ? std::nullopt : std::optional(std::move(value));
    }

private:
    std::string_view rest_;
};

/// What `read` makes of outside data; empty when it refuses with an exception, as readers may.
template <typename Read>
auto accepted(const Read& read) -> std::optional<decltype(read())>
{
    try {
        return read();
    } catch (const std::exception&) {
        return {};
    }
}
