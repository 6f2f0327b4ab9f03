/// Finding files of a project. A path may come in any letter case and with either separator: what
/// exists is found as it is spelt on disk.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quorvel::store {

/// The path of a UTF-8 text, and back.
std::filesystem::path pathOf(std::string_view utf8);
std::string textOf(const std::filesystem::path& path);

/// `base` followed by `relative`, whose separators may be "/" or "\". Each step that exists under
/// another letter case is taken as it is spelt on disk; what does not exist is kept as given. Where
/// a name may hold a backslash, the longest name that exists is the step.
std::filesystem::path resolvePath(const std::filesystem::path& base, std::string_view relative);

/// True for a name that can only mean a file of the folder it is looked up in: not empty, no
/// separator, no drive, no control character, neither "." nor "..".
bool isBareName(std::string_view name);

/// The two folders that file fields of records refer to.
enum class ResourceFolder { gfx, mmedia };

/// Path of such a folder below `projectFolder`, as spelt on disk.
std::filesystem::path resourceFolder(const std::filesystem::path& projectFolder,
                                     ResourceFolder kind);

/// The file `name` of a resource folder, or nothing when it is not there, is not a regular file,
/// or when `name` is not a bare name.
std::optional<std::filesystem::path> findResource(const std::filesystem::path& projectFolder,
                                                  ResourceFolder kind, std::string_view name);

/// True when both names are equal but for the case of letters of the records' code page; of names
/// that do not fit into the page the letters A to Z count.
bool sameName(std::string_view a, std::string_view b);

}  // namespace quorvel::store
