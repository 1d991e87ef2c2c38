#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// A folder of empty files that is removed with the object.
class BenchFiles
{
public:
    explicit BenchFiles(std::size_t files);
    ~BenchFiles();
    BenchFiles(const BenchFiles&) = delete;
    BenchFiles& operator=(const BenchFiles&) = delete;

    /// Drive form.
    const std::u16string& folder() const { return folder_; }

    /// Drive form, in the order of the file system's names.
    const std::vector<std::u16string>& paths() const { return paths_; }

    /// Writes one more file, which is not among `paths`, and returns its drive form.
    std::u16string write(const std::string& name, const std::string& content) const;

private:
    std::string host_folder_;
    std::u16string folder_;
    std::vector<std::u16string> paths_;
};
