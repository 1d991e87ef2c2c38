#pragma once

#include "support/temp_folder.h"

#include <string>
#include <string_view>
#include <vector>

/// A home folder `C:\home\anna` whose contents and dates never change: some of `samples/`, and small files of the
/// kinds that they lack. Drive `C:` is a temporary folder as long as the object lives.
class SampleHome
{
public:
    SampleHome();
    ~SampleHome();

    /// Selections in drive form, from the most general one to those that some commands are made for.
    static std::vector<std::vector<std::u16string>> selections();

private:
    void copy_sample(std::string_view name);

    const TempFolder folder_;
};
