#include "engine/items/mv_items_set.h"

#include "engine/items/long_path.h"
#include "engine/items/mv_item_exception.h"
#include "engine/text/letters.h"
#include "platform/files.h"

#include <algorithm>

namespace {

/// Length of the part of a path that names the top-level node: a drive's two characters, or two backslashes and a
/// server's name. 0 for a path that is not absolute.
std::size_t head_length(std::u16string_view path)
{
    if (path.size() < 3)
        return 0;
    if (path[1] == u':' && is_ascii_letter(path[0]))
        return 2;
    if (path.starts_with(u"\\\\") && path[2] != u'\\')
        return std::min(path.find(u'\\', 2), path.size());
    return 0;
}

std::shared_ptr<MVItemFolder> make_intermediate(std::u16string_view name, const MVItemFolder& parent)
{
    return std::make_shared<MVItemFolder>(MVItemInfo{.name = std::u16string(name), .is_folder = true}, &parent);
}

/// The child folder of that name, made where there is none; throws `error` when the child is a file.
std::shared_ptr<MVItemFolder> child_folder(MVItemFolder& parent, std::u16string_view name, std::u16string_view path,
                                           MVItemError error)
{
    if (const std::shared_ptr<MVItemBase> child = parent.children().find(name)) {
        if (!child->is_folder())
            throw MVItemException(std::u16string(path), error);
        return std::static_pointer_cast<MVItemFolder>(child);
    }
    auto made = make_intermediate(name, parent);
    parent.insert(made);
    return made;
}

}

MVItemsSet::MVItemsSet() : root_(std::make_shared<MVItemFolder>(MVItemInfo{.name = {}, .is_folder = true}, nullptr))
{}

MVItemsSet::MVItemsSet(std::u16string_view path) : MVItemsSet()
{
    add_path(path);
}

MVItemsSet::MVItemsSet(std::span<const std::u16string> paths) : MVItemsSet()
{
    for (const std::u16string& path : paths)
        add_path(path);
}

void MVItemsSet::add_path(std::u16string_view path)
{
    const std::size_t head = head_length(path);
    if (head == 0)
        throw MVItemException(std::u16string(path), MVItemError::PathNotAbsolute);
    std::shared_ptr<MVItemFolder> folder =
        child_folder(*root_, path.substr(0, head), path, MVItemError::RootFolderError);
    std::size_t at = head + 1;
    if (at >= path.size())
        return select(std::move(folder));
    for (std::size_t end = 0; (end = path.find(u'\\', at)) != path.npos; at = end + 1)
        folder = child_folder(*folder, path.substr(at, end - at), path, MVItemError::SubfolderIsNoFolder);
    if (at == path.size())
        return;
    const auto attributes = platform::file_attributes(add_long_path_prefix(path));
    if (!attributes)
        throw AttributesUnreadable();
    auto item = make_item(MVItemInfo::of(std::u16string(path.substr(at)), *attributes), folder.get());
    folder->insert(item);
    select(std::move(item));
}

void MVItemsSet::select(std::shared_ptr<MVItemBase> item)
{
    (item->is_folder() ? has_folders_ : has_files_) = true;
    has_links_ = has_links_ || item->is_link();
    items_.push_back(std::move(item));
}

void MVItemsSet::reset()
{
    items_.clear();
    has_files_ = has_folders_ = has_links_ = false;
}
