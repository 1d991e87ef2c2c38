#pragma once

#include <cstdint>
#include <exception>
#include <string>

enum class MVItemError : std::uint32_t { PathNotAbsolute, FileNotFound, RootFolderError, SubfolderIsNoFolder };

/// A path that can't be entered in an `MVItemsSet`.
class MVItemException : public std::exception
{
public:
    MVItemException(std::u16string path, MVItemError reason);

    const std::u16string& path() const { return path_; }

    MVItemError reason() const { return reason_; }

    const char* what() const noexcept override { return message_.c_str(); }

private:
    std::u16string path_;
    MVItemError reason_;
    std::string message_;
};
