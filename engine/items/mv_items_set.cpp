#include "engine/items/mv_items_set.h"

#include "engine/items/long_path.h"
#include "engine/items/mv_item_exception.h"
#include "engine/text/letters.h"
#include "platform/files.h"

#include <stdexcept>

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
    const auto made = make_intermediate(name, parent);
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
    forget_states();
    const std::size_t head = head_length(path);
    if (head == 0)
        throw MVItemException(std::u16string(path), MVItemError::PathNotAbsolute);
    std::shared_ptr<MVItemFolder> folder =
        child_folder(*root_, path.substr(0, head), path, MVItemError::RootFolderError);
    std::size_t at = head + 1;
    if (at >= path.size()) {
        items_.push_back(std::move(folder));
        return;
    }
    for (std::size_t end; (end = path.find(u'\\', at)) != path.npos; at = end + 1)
        folder = child_folder(*folder, path.substr(at, end - at), path, MVItemError::SubfolderIsNoFolder);
    if (at == path.size())
        return;
    const auto attributes = platform::file_attributes(add_long_path_prefix(path));
    if (!attributes)
        throw std::runtime_error("GetFileAttributesEx failed");
    const auto item = make_item(MVItemInfo::of(std::u16string(path.substr(at)), *attributes), folder.get());
    folder->insert(item);
    items_.push_back(item);
}

void MVItemsSet::reset()
{
    items_.clear();
    forget_states();
}

void MVItemsSet::forget_states()
{
    has_file_state_ = has_folder_state_ = has_link_state_ = -1;
}

bool MVItemsSet::has_files() const
{
    if (has_file_state_ >= 0)
        return has_file_state_ == 1;
    has_file_state_ = has_folder_state_ = has_link_state_ = 0;
    for (const auto& item : items_) {
        (item->is_folder() ? has_folder_state_ : has_file_state_) = 1;
        if (item->is_link())
            has_link_state_ = 1;
        if (has_file_state_ + has_folder_state_ + has_link_state_ == 3)
            break;
    }
    return has_file_state_ == 1;
}

bool MVItemsSet::has_folders() const
{
    if (has_folder_state_ < 0)
        has_files();
    return has_folder_state_ == 1;
}

bool MVItemsSet::has_links() const
{
    if (has_link_state_ < 0)
        has_files();
    return has_link_state_ == 1;
}
