#include "store/runtime_error.h"

#include <cerrno>
#include <utility>

namespace quorvel::store {

std::string_view describe(ErrorNumber number) {
    switch (number) {
        case ErrorNumber::overflow:
            return "Overflow";
        case ErrorNumber::badFileName:
            return "Bad file name or number";
        case ErrorNumber::fileNotFound:
            return "File not found";
        case ErrorNumber::deviceError:
            return "Device I/O error";
        case ErrorNumber::fileExists:
            return "File already exists";
        case ErrorNumber::diskFull:
            return "Disk full";
        case ErrorNumber::badRecord:
            return "Bad record number";
        case ErrorNumber::tooManyFiles:
            return "Too many files";
        case ErrorNumber::accessError:
            return "Path/File access error";
        case ErrorNumber::pathNotFound:
            return "Path not found";
        case ErrorNumber::invalidPicture:
            return "Invalid picture";
    }
    return "Unknown error";
}

RuntimeError::RuntimeError(ErrorNumber number, std::filesystem::path file)
    : std::runtime_error(std::string(describe(number))), number_(number), file_(std::move(file)) {}

LostFileError::LostFileError(FileLoss loss, std::filesystem::path file)
    : RuntimeError(loss == FileLoss::shortened ? ErrorNumber::badRecord : ErrorNumber::fileNotFound,
                   std::move(file)),
      loss_(loss) {}

namespace {
/// The standard has no condition for a used-up quota.
bool isOverQuota([[maybe_unused]] std::error_code error) {
#if defined(EDQUOT) && !defined(_WIN32)
    return error.value() == EDQUOT;
#else
    return false;
#endif
}
}  // namespace

ErrorNumber errorNumberOf(std::error_code error) {
    const auto is = [&error](std::errc condition) { return error == condition; };
    if (is(std::errc::no_such_file_or_directory)) {
        return ErrorNumber::fileNotFound;
    }
    if (is(std::errc::not_a_directory)) {
        return ErrorNumber::pathNotFound;
    }
    if (is(std::errc::permission_denied) || is(std::errc::operation_not_permitted) ||
        is(std::errc::read_only_file_system) || is(std::errc::is_a_directory) ||
        is(std::errc::text_file_busy)) {
        return ErrorNumber::accessError;
    }
    if (is(std::errc::no_space_on_device) || is(std::errc::file_too_large) || isOverQuota(error)) {
        return ErrorNumber::diskFull;
    }
    if (is(std::errc::too_many_files_open) || is(std::errc::too_many_files_open_in_system)) {
        return ErrorNumber::tooManyFiles;
    }
    if (is(std::errc::filename_too_long) || is(std::errc::bad_file_descriptor) ||
        is(std::errc::invalid_argument)) {
        return ErrorNumber::badFileName;
    }
    if (is(std::errc::file_exists)) {
        return ErrorNumber::fileExists;
    }
    return ErrorNumber::deviceError;
}

}  // namespace quorvel::store
