/// The bytes of a picture file, as far as they belong to the picture.
#pragma once

#include <cstdint>
#include <filesystem>

#include <QFile>

namespace quorvel::forms {

/// Follows the blocks of a GIF, byte by byte, to find where it ends and what it says of its rounds.
class GifBlocks {
  public:
    /// Takes the next bytes. Returns how many of them belong to the picture: all, until its end has
    /// come, and none behind it. What is no block ends it as well.
    std::int64_t take(const char* bytes, std::int64_t count);

    [[nodiscard]] bool hasEnded() const { return part_ == Part::end; }
    /// Rounds beyond the first as far as it was told, 0 when it was not, -1 for ever.
    [[nodiscard]] int loopCount() const { return loopCount_; }

  private:
    enum class Part : std::uint8_t {
        header,
        colours,      ///< are skipped
        introducer,   ///< tells which block comes
        extension,    ///< its kind
        place,        ///< of an image
        codeSize,     ///< one byte before the image's data
        blockLength,  ///< of a piece of data, 0 behind the last
        block,
        end,
    };

    void takeByte(unsigned byte);
    void introduce(unsigned byte);
    void endBlock();
    void skipColours(unsigned flags, Part then);

    Part part_ = Part::header;
    Part then_ = Part::introducer;  // behind colours
    int seen_ = 0;                  // bytes of the part so far
    int left_ = 0;                  // of a table or a piece of data
    bool applications_ = false;     // within an extension of that kind
    bool loops_ = false;            // whose next piece tells the rounds
    unsigned char piece_[12] = {};  // the beginning of a piece of data
    int pieceLength_ = 0;
    int loopCount_ = 0;
};

/// Reads a picture file. Nothing behind the end of a GIF is read, and of no file more than the
/// largest picture can have: what is appended to a picture costs nothing.
class PictureFile : public QIODevice {
    Q_OBJECT
  public:
    /// The most that is read of any file, in bytes.
    static constexpr qint64 kMostBytes = 192LL * 1024 * 1024;

    explicit PictureFile(const std::filesystem::path& file);

    /// Opens the file for reading.
    bool openToRead();

    [[nodiscard]] qint64 size() const override;
    bool seek(qint64 position) override;

    /// Bytes that were read so far, at least once.
    [[nodiscard]] qint64 reached() const { return reached_; }
    /// What a GIF has said of its rounds in what was read so far, as `GifBlocks` tells it.
    [[nodiscard]] int loopCount() const { return blocks_.loopCount(); }

  protected:
    qint64 readData(char* data, qint64 most) override;
    qint64 writeData(const char* data, qint64 most) override;

  private:
    std::filesystem::path path_;
    QFile file_;
    GifBlocks blocks_;
    bool isGif_ = false;
    qint64 end_ = 0;      // nothing behind it is read
    qint64 reached_ = 0;  // the blocks were followed up to here
};

}  // namespace quorvel::forms
