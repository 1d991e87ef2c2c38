#include "engine/items/mv_items_set.h"

#include "engine/items/long_path.h"
#include "engine/items/mv_item_exception.h"
#include "engine/text/letters.h"
#include "platform/files.h"

#include <algorithm>
#include <utility>

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
    return std::make_shared<MVItemFolder>(MVItemInfo{{.is_folder = true}, std::u16string(name)}, &parent);
}

/// The child folder of that name, made where there is none. A file of that name has become a folder when a path below
/// it is known to exist; otherwise there is no such folder, and null comes back.
std::shared_ptr<MVItemFolder> child_folder(MVItemFolder& parent, std::u16string_view name, bool exists)
{
    const std::shared_ptr<MVItemBase> child = parent.children().find(name);
    if (child && child->is_folder())
        return std::static_pointer_cast<MVItemFolder>(child);
    if (child && !exists)
        return nullptr;
    auto made = make_intermediate(name, parent);
    parent.insert(made);
    return made;
}

/// A drive is the same whatever the case of its letter, which no file system has a say in; a server is a folder's
/// name.
std::shared_ptr<MVItemFolder> top_level_folder(MVItemFolder& root, std::u16string_view head)
{
    if (head[1] == u':' && !root.children().find(head)) {
        const char16_t other_case[]{static_cast<char16_t>(head[0] ^ u'a' ^ u'A'), u':'};
        if (const std::u16string_view other(other_case, 2); root.children().find(other))
            return child_folder(root, other, false);
    }
    return child_folder(root, head, false);
}

}

MVItemsSet::MVItemsSet() : root_(std::make_shared<MVItemFolder>(MVItemInfo{{.is_folder = true}, {}}, nullptr)) {}

MVItemsSet::MVItemsSet(std::u16string_view path) : MVItemsSet()
{
    add_path(path);
}

MVItemsSet::MVItemsSet(std::span<const std::u16string> paths) : MVItemsSet()
{
    for (const std::u16string& path : paths)
        add_path(path);
}

std::optional<platform::FileAttributes> MVItemsSet::attributes_of(std::u16string_view path)
{
    const std::size_t head = head_length(path);
    if (head == 0 || head + 1 >= path.size() || path.ends_with(u'\\'))
        return {};
    return platform::file_attributes(add_long_path_prefix(path));
}

void MVItemsSet::add_path(std::u16string_view path, const std::optional<platform::FileAttributes>& attributes)
{
    const std::size_t head = head_length(path);
    if (head == 0)
        throw MVItemException(std::u16string(path), MVItemError::PathNotAbsolute);
    std::shared_ptr<MVItemFolder> folder = top_level_folder(*root_, path.substr(0, head));
    if (!folder)
        throw MVItemException(std::u16string(path), MVItemError::RootFolderError);
    std::size_t at = head + 1;
    if (at >= path.size())
        return select(std::move(folder));
    for (std::size_t end = 0; (end = path.find(u'\\', at)) != path.npos; at = end + 1) {
        folder = child_folder(*folder, path.substr(at, end - at), attributes.has_value());
        if (!folder)
            throw MVItemException(std::u16string(path), MVItemError::SubfolderIsNoFolder);
    }
    if (at == path.size())
        return;
    if (!attributes)
        throw AttributesUnreadable();
    auto item = make_item({*attributes, std::u16string(path.substr(at))}, folder.get());
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

void MVItemsSet::swap(MVItemsSet& other) noexcept
{
    std::swap(root_, other.root_);
    std::swap(items_, other.items_);
    std::swap(has_files_, other.has_files_);
    std::swap(has_folders_, other.has_folders_);
    std::swap(has_links_, other.has_links_);
}
