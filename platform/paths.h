#pragma once

#include <compare>
#include <string>
#include <string_view>

/// Paths inside the system stand in drive form (`C:\dir\file`) or server form (`\\server\share\file`).
/// Here drive `C:` is the root of the host's file system and `\\server\share` is the folder `/net/server/share`.
/// No other drive exists.
namespace platform {

/// The bytes that open `path` on the host; the long-path prefix is allowed, `C:` alone is the root too. Empty for a
/// path that names nothing here: another drive, neither drive nor server form, or a slash or U+0000 in it. Nothing is
/// normalised. The result can be longer than PATH_MAX.
std::string to_host_path(std::u16string_view path);

/// Drive form of an absolute host path. Every byte string has its own result, which `to_host_path` turns back.
/// Below a root that a test has set the root's own part is left out; a path outside it has no form of its own and
/// keeps all its parts.
std::u16string from_host_path(std::string_view host_path);

/// A host file name as it travels inside the system: UTF-8 decoded, a byte that is no valid UTF-8 as
/// U+DC00 + byte, a backslash as U+F05C. The bytes of a real U+F05C are treated as invalid ones, so that the
/// mapping can be undone.
std::u16string from_host_name(std::string_view name);

/// Appends the bytes that `from_host_name` decoded to `name`. A surrogate that it never yields, one without its
/// partner that stands for no byte, is appended as U+FFFD.
void append_host_name(std::string& bytes, std::u16string_view name);

/// How two names in one folder compare: equal when the file system takes them for the same. Here it tells names apart
/// exactly, so that the order is that of their UTF-16 units.
std::strong_ordering compare_names(std::u16string_view left, std::u16string_view right);

/// Replaces, unit for unit, what only stands for odd bytes of a host name: U+F05C becomes `\`, a surrogate
/// without its partner U+FFFD.
void make_presentable(std::u16string& text);

/// Makes a host path absolute against `current_folder` and normalises it by text alone: "//", "." and ".." go,
/// no link is followed, trailing slashes are dropped. "/.." is "/".
std::string absolute_host_path(std::string_view path, std::string_view current_folder);

/// The folder that drive `C:` stands for; "/" unless a test has set another. No trailing slash but in "/".
const std::string& host_root();

/// Makes drive `C:` and `/net` stand below `folder` (absolute, existing). For tests, before any other thread runs.
void set_host_root(std::string folder);

}
