/// What a path names now, compared with a file that was opened by it.
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>

namespace quorvel::store {

/// What is found where a file was opened.
enum class FoundFile : std::uint8_t {
    same,     ///< the open file
    nothing,  ///< no file, or no folder
    another,  ///< a file that took its place
};

/// Remembers of a file that was opened how it can be known again. The system's own numbers of disk
/// and file decide. Where it has none, or where they did not hold even at the opening, the length
/// does: a file of another length is not the one that is open.
class FileIdentity {
  public:
    FileIdentity() = default;
    /// `file` was just opened by `path`.
    FileIdentity(std::FILE* file, const std::filesystem::path& path);

    /// What `path` names now. What cannot be found out, in a folder that may not be searched for
    /// example, counts as the open file.
    [[nodiscard]] FoundFile find(std::FILE* file, const std::filesystem::path& path,
                                 std::uintmax_t openLength) const;

  private:
    bool isNumbered_ = false;
};

/// What `path` names, told by nothing but the length of what is there.
FoundFile findByLength(const std::filesystem::path& path, std::uintmax_t openLength);

}  // namespace quorvel::store
