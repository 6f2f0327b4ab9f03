/// Small and read-only disks for tests. Mounting needs rights that not every machine gives:
///
///     const SmallDisk disk(64);
///     if (!disk.isMounted()) {
///         GTEST_SKIP() << disk.whyNot();
///     }
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

#include "support/temp_folder.h"

namespace quorvel::test {

/// A disk in memory that holds few kilobytes. It is unmounted when it goes out of scope.
class SmallDisk {
  public:
    explicit SmallDisk(std::size_t kilobytes);
    ~SmallDisk();
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    [[nodiscard]] bool isMounted() const { return whyNot_.empty(); }
    /// Why there is no disk; empty when there is one.
    [[nodiscard]] const std::string& whyNot() const { return whyNot_; }
    /// The folder that the disk is.
    [[nodiscard]] const std::filesystem::path& path() const { return folder_.path(); }

    /// Writes the file "filler" until nothing more fits. Bytes of a file's last, partly used block
    /// can still be written after that; a whole new block cannot.
    void fill() const;
    /// Removes what `fill` wrote.
    void makeRoom() const;

  private:
    TempFolder folder_;
    std::string whyNot_;
};

/// Makes a folder read-only where it stands, as on a disc: neither it nor anything below it can be
/// written or have its attributes changed, not even by the administrator. Files that were open for
/// writing before stay writable. Everything is as before when it goes out of scope.
class ReadOnlyMount {
  public:
    explicit ReadOnlyMount(std::filesystem::path folder);
    ~ReadOnlyMount();
    ReadOnlyMount(const ReadOnlyMount&) = delete;
    ReadOnlyMount& operator=(const ReadOnlyMount&) = delete;

    [[nodiscard]] bool isMounted() const { return whyNot_.empty(); }
    [[nodiscard]] const std::string& whyNot() const { return whyNot_; }

  private:
    std::filesystem::path folder_;
    std::string whyNot_;
};

}  // namespace quorvel::test
