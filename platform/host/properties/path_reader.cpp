#include "platform/host/properties/readers.h"
#include "platform/paths.h"

namespace platform {

namespace {

/// The path without its last component and the backslash before it; a root keeps its backslash. Empty for a root.
std::u16string_view folder_of(std::u16string_view path)
{
    const std::size_t slash = path.rfind(u'\\');
    if (slash == path.npos || slash + 1 == path.size())
        return {};
    constexpr std::size_t drive_root = 2;
    return path.substr(0, slash == drive_root && path[1] == u':' ? slash + 1 : slash);
}

void set_presentable(PropertyBag& bag, std::u16string_view name, std::u16string_view text)
{
    std::u16string result(text);
    make_presentable(result);
    if (!result.empty())
        bag.set(name, std::move(result));
}

}

bool read_path(SubjectFile& file, PropertyBag& bag)
{
    const std::u16string_view path = file.path(), folder = folder_of(path);
    set_presentable(bag, u"System.ItemNameDisplay", file.name());
    set_presentable(bag, u"System.FileName", file.name());
    set_presentable(bag, u"System.FileExtension", file.extension());
    set_presentable(bag, u"System.ItemPathDisplay", path);
    set_presentable(bag, u"System.ItemFolderPathDisplay", folder);
    set_presentable(bag, u"System.ItemFolderNameDisplay", folder.substr(folder.rfind(u'\\') + 1));
    return true;
}

}
