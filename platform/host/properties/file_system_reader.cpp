#include "platform/host/host_location.h"
#include "platform/host/properties/readers.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>

#include <vector>

namespace platform {

namespace {

/// The owner's name, else number.
std::string owner_name(uid_t owner)
{
    passwd entry;
    passwd* found = nullptr;
    constexpr std::size_t largest_entry = 16'384;
    std::vector<char> buffer(largest_entry);
    if (getpwuid_r(owner, &entry, buffer.data(), buffer.size(), &found) != 0 || !found)
        return std::to_string(owner);
    return entry.pw_name;
}

/// In the bits of the documented file attributes: read-only, hidden, folder, archive, link.
std::uint64_t attribute_bits(const SubjectFile& file, bool is_folder, const struct stat& entry)
{
    const bool is_read_only = (entry.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
    const bool is_hidden = file.name().starts_with(u'.');
    const bool is_link = S_ISLNK(entry.st_mode);
    return (is_read_only ? 1u : 0u) | (is_hidden ? 2u : 0u) | (is_folder ? 0x10u : 0x20u) | (is_link ? 0x400u : 0u);
}

void read_entry(const SubjectFile& file, bool is_folder, PropertyBag& bag)
{
    const HostLocation location(file.path());
    struct stat entry;
    if (fstatat(location.folder(), location.name(), &entry, AT_SYMLINK_NOFOLLOW) != 0)
        return;
    constexpr std::uint64_t block_size = 512;
    if (!is_folder)
        bag.set_count(u"System.FileAllocationSize", static_cast<std::uint64_t>(entry.st_blocks) * block_size);
    bag.set_count(u"System.FileAttributes", attribute_bits(file, is_folder, entry));
    bag.set_text(u"System.FileOwner", owner_name(entry.st_uid));
}

void set_known_time(PropertyBag& bag, std::u16string_view name, std::int64_t ticks)
{
    if (ticks != 0)
        bag.set_time(name, ticks);
}

}

bool read_file_system(SubjectFile& file, PropertyBag& bag)
{
    const auto attributes = file.attributes();
    if (!attributes)
        return false;
    if (!attributes->is_folder)
        bag.set_count(u"System.Size", attributes->size);
    set_known_time(bag, u"System.DateCreated", attributes->created);
    set_known_time(bag, u"System.DateModified", attributes->modified);
    set_known_time(bag, u"System.DateAccessed", attributes->accessed);
    bag.set(u"System.IsFolder", attributes->is_folder);
    bag.set(u"System.IsEncrypted", false);
    read_entry(file, attributes->is_folder, bag);
    return true;
}

}
