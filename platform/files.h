#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What the system asks of a file system. All paths are in drive or server form, the long-path prefix allowed;
/// host paths of any length work. Every operation may be called from several threads at once.
namespace platform {

/// What the file system tells of one entry. Times are 100 ns since 1601 UTC, 0 when unknown (the birth time on a
/// file system without one, a time before 1601 or too late for the count); size in bytes, 0 for a folder or link.
/// A link is a symbolic link: its times are its own, `is_folder` tells what it points to (false when dangling).
struct FileAttributes {
    std::int64_t modified = 0, created = 0, accessed = 0;
    std::uint64_t size = 0;
    bool is_folder = false, is_link = false;
};

/// Empty when the path does not exist or may not be read.
std::optional<FileAttributes> file_attributes(std::u16string_view path);

/// Calls `visit` for each entry but "." and "..", in the file system's order. An unreadable folder has no entries;
/// an entry that vanishes during the read is left out; of one whose attributes may not be read only the type is told.
/// What `visit` throws leaves this operation, nothing leaks.
void for_each_entry(std::u16string_view folder,
                    const std::function<void(std::u16string name, const FileAttributes&)>& visit);

/// Names of the disk shares of a server (no backslashes in `server`): the folders in `/net/server`, links to
/// folders included, in the file system's order. Empty when there is no such server.
std::vector<std::u16string> server_shares(std::u16string_view server);

/// The final path behind a link, all links on the way resolved, without the long-path prefix; a target below
/// `/net/server/share` is given in server form when `path` was in server form, else in drive form. Empty when
/// `path` is no link, its target is gone, or the links lead in a circle.
std::u16string link_target(std::u16string_view path);

/// True when the path leads to something, links followed: a dangling link does not exist. What can't be looked at for
/// want of rights or for a circle of links counts as there, so that reading it tells the reason.
bool exists(std::u16string_view path);

/// Creates the folder and its missing parents; a folder that is there is fine. Throws
/// boost::filesystem::filesystem_error with the operation name "create_directories" and the host path as path1.
void create_directories(std::u16string_view folder);

/// The whole content of a regular file, 2 GiB at the most. Fifos, sockets and devices are never opened, so that none
/// of them in the place of a stored file can make the program wait. When the file can't be opened or read the result
/// is empty and `error` holds the system's English words for the reason, or "Not a regular file"; otherwise `error`
/// stays as it was.
std::optional<std::string> read_file(std::u16string_view path, std::string& error);

/// The same of whatever a user names on a command line, pipes included: waits until the writer closes its end.
std::optional<std::string> read_file_or_pipe(std::u16string_view path, std::string& error);

/// What `replace_content` did. Unless it is done the old file is as it was and no temporary file is left.
enum class Replacement : std::uint32_t {
    Done,
    NotWritten,  ///< the temporary file could not be opened, locked or written
    NotReplaced, ///< it could not take the place of what is at the path
    Declined     ///< the caller didn't want it once it had seen what is there
};

/// Makes `content` the file at `path` in one step: at any moment, also after a crash, that is the old file or the new
/// one whole. The content goes to a temporary file beside it, named as the file with a "+", and is brought to the
/// disk; then this takes the file's name, and the folder's change is brought to the disk.
/// - A link stays: what it leads to is replaced, with the temporary file beside that; where it dangles, the file is
///   made.
/// - Permission bits are kept, the owner where that is allowed; hard links, ACLs and extended attributes are not.
/// - A folder, fifo, socket or device at the path, and a file that may not be written, are not replaced.
/// - At the temporary name a file left by an interrupted call is used again, a link or the like is removed, and a
///   folder makes the call fail.
/// - The temporary file is locked (flock) meanwhile. A second call waits for it up to a second, then gives up.
/// - `confirm` is called with that lock held, when all that is left is the new name: whoever saves in this way too
///   changes nothing from there on. With false the old file stays. What it throws leaves this operation, as if false.
Replacement replace_content(std::u16string_view path, std::string_view content,
                            const std::function<bool()>& confirm = {});

/// Gives a file, or what a link to one leads to, a second name before `replace_content` takes the first one: a hard
/// link, or a copy where there can be none, which nobody may read who might not read the file. False when neither
/// could be made, as when something is called `other` already, be it a link that leads nowhere.
bool keep_as(std::u16string_view path, std::u16string_view other);

/// Removes a file or a link, as well as that can be done.
void remove_file(std::u16string_view path);

}
