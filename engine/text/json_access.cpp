#include "engine/text/json_access.h"

#include "engine/text/utf.h"

#include <stdexcept>

namespace json = boost::json;

namespace json_access {

const json::value& required(const json::object& object, std::string_view key)
{
    if (const json::value* value = object.if_contains(key))
        return *value;
    throw std::runtime_error("Missing key in JSON: " + std::string(key));
}

std::string_view required_string(const json::object& object, std::string_view key)
{
    return required(object, key).as_string();
}

std::u16string required_text(const json::object& object, std::string_view key)
{
    return to_utf16(required_string(object, key));
}

std::int32_t required_int32(const json::object& object, std::string_view key)
{
    return required(object, key).to_number<std::int32_t>();
}

std::uint64_t required_uint64(const json::object& object, std::string_view key)
{
    return required(object, key).to_number<std::uint64_t>();
}

std::string_view optional_string(const json::object& object, std::string_view key)
{
    const json::value* value = object.if_contains(key);
    return value ? std::string_view(value->as_string()) : std::string_view();
}

std::u16string optional_text(const json::object& object, std::string_view key)
{
    return to_utf16(optional_string(object, key));
}

bool optional_bool(const json::object& object, std::string_view key, bool missing)
{
    const json::value* value = object.if_contains(key);
    return value ? value->as_bool() : missing;
}

std::int32_t optional_int32(const json::object& object, std::string_view key, std::int32_t missing)
{
    const json::value* value = object.if_contains(key);
    return value ? value->to_number<std::int32_t>() : missing;
}

std::uint32_t optional_uint32(const json::object& object, std::string_view key, std::uint32_t missing)
{
    const json::value* value = object.if_contains(key);
    return value ? value->to_number<std::uint32_t>() : missing;
}

}
