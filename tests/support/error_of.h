#pragma once

#include <exception>
#include <string>

/// The text of what `action` throws, else "no error".
template <typename Action>
std::string error_of(Action action)
{
    try {
        action();
    } catch (const std::exception& error) {
        return error.what();
    }
    return "no error";
}
