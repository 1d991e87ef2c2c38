#pragma once

#include <string>

/// A second name for the user's commands file, behind which it goes on when a save takes the first one. It goes with
/// the object unless `keep` was called.
class KeptFile
{
public:
    /// Has none when there is no file at `path`. Throws std::runtime_error "Failed to keep the old commands file."
    explicit KeptFile(const std::u16string& path);
    ~KeptFile();
    KeptFile(const KeptFile&) = delete;
    KeptFile& operator=(const KeptFile&) = delete;

    void keep() { name_.clear(); }

private:
    std::u16string name_; ///< empty for none
};
