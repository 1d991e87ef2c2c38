#pragma once

#include <string>
#include <string_view>

/// A real folder of its own for one test, removed with all it holds when the object goes.
class TempFolder
{
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    /// Host path of the folder, or of an entry in it.
    std::string host(std::string_view name = {}) const;
    /// The same in drive form.
    std::u16string path(std::string_view name = {}) const;

    /// Creates a file with its missing parent folders; returns its drive form.
    std::u16string write(std::string_view name, std::string_view content = {}) const;
    /// Creates a file that takes no room on the disk, and to read longer than any test; returns its drive form.
    std::u16string write_endless(std::string_view name) const;
    /// Creates a folder with its missing parents; returns its drive form.
    std::u16string make_folder(std::string_view name) const;
    /// Creates a symbolic link `name` with the text `target`; returns the link's drive form.
    std::u16string make_link(std::string_view name, std::string_view target) const;
    /// Sets the modification time, in seconds since 1970 UTC.
    void set_modified(std::string_view name, long long seconds) const;

private:
    std::string folder_;
};
