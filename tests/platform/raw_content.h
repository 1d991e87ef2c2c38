#pragma once

#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>

inline std::string content_of(const std::string& host_path)
{
    std::ifstream file(host_path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

/// The last bytes of a number, the least one first unless `is_big`.
inline std::string number(std::uint64_t value, int bytes, bool is_big = false)
{
    std::string result;
    for (int i = 0; i < bytes; ++i)
        result.insert(is_big ? result.begin() : result.end(), static_cast<char>(i < 8 ? value >> (8 * i) : 0));
    return result;
}

/// A piece of a film or of a picture that is packed like one.
inline std::string box(const std::string& type, const std::string& content)
{
    return number(content.size() + 8, 4, true) + type + content;
}
