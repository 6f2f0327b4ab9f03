/// Picture files, each decoded once and shared by all who show it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <list>
#include <memory>
#include <unordered_map>

#include <QHash>
#include <QImage>
#include <QSize>
#include <QString>

namespace quorvel::forms {

class PictureFrames;

/// The still picture of a file: its natural size and its first frame. It is made whole and never
/// changes; a file that has changed becomes a new one.
class Picture {
  public:
    /// Why there is no picture.
    enum class Problem : std::uint8_t {
        none,
        missing,   ///< no such file
        refused,   ///< the file may not be read
        tooLarge,  ///< it would take more memory than any picture of a game
        damaged,   ///< cut off, garbled, empty, or no picture at all
    };

    explicit Picture(Problem problem) : problem_(problem) {}
    Picture(std::filesystem::path file, QImage first, int firstDelay, bool mayMove);
    /// A picture of the program's own. `size` is in logical pixels.
    Picture(QImage image, QSize size);

    [[nodiscard]] bool ok() const { return problem_ == Problem::none; }
    [[nodiscard]] Problem problem() const { return problem_; }
    /// Natural size in pixels; empty when there is no picture.
    [[nodiscard]] QSize size() const { return size_; }
    [[nodiscard]] const QImage& firstFrame() const { return first_; }
    /// How long the first frame stands, in milliseconds.
    [[nodiscard]] int firstDelay() const { return firstDelay_; }
    /// True when the file's format knows animations. Whether there is a second frame shows only
    /// when it is played.
    [[nodiscard]] bool mayMove() const { return mayMove_; }

    /// The frames of an animation, for those who play it. They are shared and live as long as
    /// somebody holds them.
    [[nodiscard]] std::shared_ptr<PictureFrames> frames() const;

  private:
    Problem problem_ = Problem::none;
    std::filesystem::path file_;
    QSize size_;
    QImage first_;
    int firstDelay_ = 0;
    bool mayMove_ = false;
    mutable std::weak_ptr<PictureFrames> frames_;
};

using PicturePtr = std::shared_ptr<const Picture>;

/// Loads pictures. Owned by the shell, used by all windows; one thread.
///
/// A picture that somebody shows is found again; a small number of others is kept for the scene
/// that the author comes back to. A file that was changed in between is read anew.
class PictureStore {
  public:
    /// The longest side and the largest area that is decoded, in pixels. A header may promise more
    /// than the machine has.
    static constexpr int kLongestSide = 16384;
    static constexpr std::int64_t kLargestArea = 32LL * 1024 * 1024;
    /// What is kept though nobody shows it.
    static constexpr std::size_t kKeptPictures = 64;
    static constexpr qsizetype kKeptBytes = 24LL * 1024 * 1024;

    /// The picture in `file`, never null: one that cannot be shown says why. Only the first frame
    /// is decoded.
    [[nodiscard]] PicturePtr load(const std::filesystem::path& file);

    /// A stock picture by name, drawn once at its natural size.
    [[nodiscard]] PicturePtr stock(const QString& name);

    /// Forgets what nobody shows.
    void clear();

  private:
    struct Entry {
        std::filesystem::file_time_type modified;
        std::uintmax_t bytes = 0;
        std::weak_ptr<const Picture> picture;
        PicturePtr failure;  // of a file that cannot be shown: it is not decoded again and again
    };
    void keep(const PicturePtr& picture);

    std::unordered_map<std::string, Entry> entries_;
    std::list<PicturePtr> kept_;  // the newest in front
    qsizetype keptBytes_ = 0;
    QHash<QString, PicturePtr> stock_;
};

}  // namespace quorvel::forms
