/// The one type of failure. Routines throw it; the routine that the author knows by name is the
/// trap that turns it into a box.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

namespace quorvel::store {

/// Run-time error numbers that the editor can meet.
enum class ErrorNumber {
    overflow = 6,
    badFileName = 52,
    fileNotFound = 53,
    deviceError = 57,
    fileExists = 58,
    diskFull = 61,
    badRecord = 63,
    tooManyFiles = 67,
    accessError = 75,
    pathNotFound = 76,
    invalidPicture = 481,
};

/// The fixed description of a run-time error, as boxes show it.
std::string_view describe(ErrorNumber number);

/// A failure with its number, its description and the file it concerns (empty when none).
class RuntimeError : public std::runtime_error {
  public:
    explicit RuntimeError(ErrorNumber number, std::filesystem::path file = {});

    [[nodiscard]] int number() const { return static_cast<int>(number_); }
    [[nodiscard]] ErrorNumber code() const { return number_; }
    [[nodiscard]] std::string description() const { return std::string(describe(number_)); }
    [[nodiscard]] const std::filesystem::path& file() const { return file_; }

  private:
    ErrorNumber number_;
    std::filesystem::path file_;
};

/// What others did to a file that is open here.
enum class FileLoss {
    gone,       ///< its path names nothing any more
    replaced,   ///< its path names another file
    shortened,  ///< a part of it was cut off
};

/// An open file that is not what it was; writing to it would lose what the author made, or what
/// somebody else did.
class LostFileError : public RuntimeError {
  public:
    LostFileError(FileLoss loss, std::filesystem::path file);

    [[nodiscard]] FileLoss loss() const { return loss_; }

  private:
    FileLoss loss_;
};

/// The run-time error that stands for an error of the operating system.
ErrorNumber errorNumberOf(std::error_code error);

}  // namespace quorvel::store
