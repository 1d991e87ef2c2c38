#pragma once

#include <boost/json.hpp>

#include <cstdint>
#include <string>
#include <string_view>

/// Typed reading of JSON objects. A value of the wrong kind throws the JSON library's own error; a missing required
/// key throws std::runtime_error "Missing key in JSON: " and the key.
namespace json_access {

const boost::json::value& required(const boost::json::object& json, std::string_view key);
std::string_view required_string(const boost::json::object& json, std::string_view key);
std::u16string required_text(const boost::json::object& json, std::string_view key);
std::int32_t required_int32(const boost::json::object& json, std::string_view key);
std::uint64_t required_uint64(const boost::json::object& json, std::string_view key);

/// Empty when the key is missing.
std::string_view optional_string(const boost::json::object& json, std::string_view key);
std::u16string optional_text(const boost::json::object& json, std::string_view key);
bool optional_bool(const boost::json::object& json, std::string_view key, bool missing);
std::int32_t optional_int32(const boost::json::object& json, std::string_view key, std::int32_t missing);
std::uint32_t optional_uint32(const boost::json::object& json, std::string_view key, std::uint32_t missing);

}
