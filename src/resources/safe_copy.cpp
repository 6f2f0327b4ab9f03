#include "resources/safe_copy.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <memory>
#include <span>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "store/file_handle.h"
#include "store/paths.h"
#include "store/runtime_error.h"

#ifdef _WIN32
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace quorvel::resources {
namespace {

namespace fs = std::filesystem;
using store::ErrorNumber;
using store::RuntimeError;

constexpr std::size_t kCopyPiece = std::size_t{1} << 20;
/// More files than that cannot have been left by editors that were killed in the middle of a copy.
constexpr int kMostLeftovers = 1000;

const std::string kBeside = "~quorvel";
const std::string kBesideEnding = ".tmp";

std::string nameBeside(int number) {
    return kBeside + std::to_string(number) + kBesideEnding;
}

bool isNameBeside(const std::string& name) {
    if (!name.starts_with(kBeside) || !name.ends_with(kBesideEnding)) {
        return false;
    }
    int number = -1;
    std::from_chars(name.data() + kBeside.size(), name.data() + name.size(), number);
    return number >= 0 && number < kMostLeftovers && name == nameBeside(number);
}

[[noreturn]] void fail(const fs::path& path, std::error_code error) {
    throw RuntimeError(store::errorNumberOf(error), path);
}

std::error_code lastError() {
    return {errno, std::generic_category()};
}

/// Creates a file that must not exist yet; null when it does or cannot be made.
std::FILE* createNew(const fs::path& path) {
    errno = 0;
#ifdef _WIN32
    return _wfopen(path.c_str(), L"wbxN");
#else
    return std::fopen(path.c_str(), "wbxe");
#endif
}

/// Brings what was written down to the disk; false leaves the reason in errno.
bool syncToDisk(std::FILE* file) {
#ifdef _WIN32
    return _commit(_fileno(file)) == 0;
#else
    // A file system that knows no such thing says EINVAL.
    return ::fsync(fileno(file)) == 0 || errno == EINVAL;
#endif
}

/// A new file beside another, which is gone at the end unless it has taken that one's name.
class FileBeside {
  public:
    explicit FileBeside(fs::path target) : target_(std::move(target)) {
        for (int i = 0; i < kMostLeftovers && file_ == nullptr; ++i) {
            path_ = target_.parent_path() / nameBeside(i);
            file_.reset(createNew(path_));
            if (file_ == nullptr && errno != EEXIST) {
                refuse();
            }
        }
        if (file_ == nullptr) {
            throw RuntimeError(ErrorNumber::fileExists, path_);
        }
        std::setvbuf(file_.get(), nullptr, _IONBF, 0);
    }
    ~FileBeside() {
        file_.reset();
        if (!path_.empty()) {
            std::error_code ignored;
            fs::remove(path_, ignored);
        }
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    void write(std::span<const char> bytes) {
        errno = 0;
        if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size()) {
            fail(target_, lastError());
        }
    }

    /// Lets those run the file who can run `source`.
    void allowToRunAs(const fs::path& source) {
        constexpr fs::perms kRun =
            fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
        std::error_code error;
        const fs::perms permissions = fs::status(source, error).permissions();
        if (!error) {
            fs::permissions(path_, permissions & kRun, fs::perm_options::add, error);
        }
        if (error) {
            fail(target_, error);
        }
    }

    void takeName() {
        errno = 0;
        if (std::fflush(file_.get()) != 0 || !syncToDisk(file_.get()) ||
            std::fclose(file_.release()) != 0) {
            fail(target_, lastError());
        }
        std::error_code error;
        fs::rename(path_, target_, error);
        if (error) {
            fail(target_, error);
        }
        path_.clear();
    }

  private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    [[noreturn]] void refuse() const {
        const std::error_code error = lastError();
        // The file itself is new, so it is the folder that was not found.
        if (error == std::errc::no_such_file_or_directory) {
            throw RuntimeError(ErrorNumber::pathNotFound, target_);
        }
        fail(target_, error);
    }

    fs::path target_;
    fs::path path_;
    std::unique_ptr<std::FILE, Closer> file_;
};

}  // namespace

void copySafely(const fs::path& source, const fs::path& target, const CopyProgress& progress,
                CopyAs as) {
    store::FileHandle from = store::FileHandle::open(source);
    const std::uintmax_t total = from.size();
    FileBeside copy(target);
    std::vector<char> piece(kCopyPiece);
    std::uintmax_t done = 0;
    while (const std::size_t count = from.readAt(done, piece)) {
        copy.write(std::span(piece).first(count));
        done += count;
        if (progress) {
            progress(done, total);
        }
    }
    // A source that gave less than it promised is not one that may be deleted afterwards.
    if (done < total) {
        throw RuntimeError(ErrorNumber::deviceError, source);
    }
    if (as == CopyAs::program) {
        copy.allowToRunAs(source);
    }
    copy.takeName();
}

std::vector<fs::path> removeLeftovers(const fs::path& folder) {
    std::vector<fs::path> found;
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        std::error_code ignored;
        if (isNameBeside(store::textOf(entry->path().filename())) &&
            fs::is_regular_file(entry->symlink_status(ignored))) {
            found.push_back(entry->path());
        }
    }
    std::erase_if(found, [](const fs::path& path) {
        std::error_code ignored;
        return !fs::remove(path, ignored);
    });
    std::ranges::sort(found);
    return found;
}

#ifdef _WIN32
void settleNames(const fs::path& /*folder*/) {}
#else
void settleNames(const fs::path& folder) {
    const int handle = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) {
        fail(folder, lastError());
    }
    const bool settled = ::fsync(handle) == 0 || errno == EINVAL;
    const std::error_code error = lastError();
    ::close(handle);
    if (!settled) {
        fail(folder, error);
    }
}
#endif

}  // namespace quorvel::resources
