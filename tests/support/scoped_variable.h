#pragma once

#include <cstdlib>
#include <optional>
#include <string>

/// Sets an environment variable for a scope, or takes it out; then it is as it was. For one thread alone.
class ScopedVariable
{
public:
    ScopedVariable(std::string name, const std::optional<std::string>& value) : name_(std::move(name))
    {
        if (const char* old = std::getenv(name_.c_str()))
            old_ = old;
        put(value);
    }

    ~ScopedVariable() { put(old_); }

    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;

private:
    void put(const std::optional<std::string>& value)
    {
        value ? setenv(name_.c_str(), value->c_str(), 1) : unsetenv(name_.c_str());
    }

    std::string name_;
    std::optional<std::string> old_;
};
