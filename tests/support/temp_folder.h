/// A folder that lives as long as the test that made it.
#pragma once

#include <filesystem>
#include <string_view>

namespace quorvel::test {

/// Makes an empty folder of its own below the system's folder for temporary files and removes it
/// with everything in it, read-only entries too, when it goes out of scope. What is mounted inside
/// has to be declared after it, so that it is gone first.
class TempFolder {
  public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    /// The path of `relative` in the folder; "/" separates.
    [[nodiscard]] std::filesystem::path operator/(std::string_view relative) const {
        return path_ / relative;
    }
    /// Makes a folder, with those above it, and returns its path.
    std::filesystem::path makeFolder(std::string_view relative) const;

  private:
    std::filesystem::path path_;
};

}  // namespace quorvel::test
