#pragma once

#include <array>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

/// One row an enumerator.
template <typename E>
struct EnumRow {
    E value;
    std::string_view json;         ///< stored; never changes
    std::string_view display = {}; ///< English source text, translated where it is shown
};

/// True when the rows stand in enumerator order, without gaps, each with a JSON string of its own.
template <typename Row, std::size_t N>
consteval bool is_complete(const std::array<Row, N>& rows)
{
    for (std::size_t i = 0; i < N; ++i) {
        if (static_cast<std::size_t>(rows[i].value) != i || rows[i].json.empty())
            return false;
        for (std::size_t k = 0; k < i; ++k)
            if (rows[k].json == rows[i].json)
                return false;
    }
    return true;
}

/// The row of a value, null when the value is outside the table.
template <typename Row, std::size_t N>
constexpr const Row* find_value(const std::array<Row, N>& rows, decltype(Row::value) value)
{
    const auto index = static_cast<std::size_t>(value);
    return index < N ? &rows[index] : nullptr;
}

/// The row of a JSON string, null when no row has it.
template <typename Row, std::size_t N>
constexpr const Row* find_json(const std::array<Row, N>& rows, std::string_view json)
{
    for (const Row& row : rows)
        if (row.json == json)
            return &row;
    return nullptr;
}

/// The row of a value; the first one for a value outside the table.
template <typename Row, std::size_t N>
constexpr const Row& row_or_first(const std::array<Row, N>& rows, decltype(Row::value) value)
{
    const Row* row = find_value(rows, value);
    return row ? *row : rows.front();
}

/// The value of a JSON string; `unknown` when no row has it.
template <typename Row, std::size_t N>
constexpr auto value_or(const std::array<Row, N>& rows, std::string_view json, decltype(Row::value) unknown)
{
    const Row* row = find_json(rows, json);
    return row ? row->value : unknown;
}

/// The value of a JSON string. Throws std::runtime_error with `error` when no row has it.
template <typename Row, std::size_t N>
auto known_value(const std::array<Row, N>& rows, std::string_view json, const std::string& error)
{
    if (const Row* row = find_json(rows, json))
        return row->value;
    throw std::runtime_error(error);
}

/// The JSON string of a value. Throws std::runtime_error with `error` when the value is outside the table.
template <typename Row, std::size_t N>
std::string_view known_json(const std::array<Row, N>& rows, decltype(Row::value) value, const std::string& error)
{
    if (const Row* row = find_value(rows, value))
        return row->json;
    throw std::runtime_error(error);
}
