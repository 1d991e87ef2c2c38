#include "store/kept_file.h"

#include "engine/text/utf.h"
#include "platform/files.h"

#include <stdexcept>

KeptFile::KeptFile(const std::u16string& path)
{
    if (!platform::exists(path))
        return;
    std::u16string name = path + u".broken";
    // Asked for the entry itself: a link that leads nowhere has the name too.
    for (int number = 2; platform::file_attributes(name); ++number)
        name = path + u".broken" + to_utf16(std::to_string(number));
    if (!platform::keep_as(path, name))
        throw std::runtime_error("Failed to keep the old commands file.");
    name_ = std::move(name);
}

KeptFile::~KeptFile()
{
    if (!name_.empty())
        platform::remove_file(name_);
}
