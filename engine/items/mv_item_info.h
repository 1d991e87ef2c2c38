#pragma once

#include "platform/files.h"

#include <string>

/// One directory entry: what a directory read yields and what a filter tests.
struct MVItemInfo : platform::FileAttributes {
    std::u16string name; ///< as typed or as the directory read reported it
};
