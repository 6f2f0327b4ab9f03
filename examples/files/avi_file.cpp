#include "files/avi_file.h"

#include <string>
#include <vector>

#include <QBuffer>

#include "files/bytes.h"

namespace quorvel::sample {
namespace {

constexpr int kQuality = 82;
constexpr unsigned kBytesPerSample = 2;

/// A piece of the file: four letters, a length, the content, at an even place.
std::string chunk(std::string_view name, const std::string& content) {
    Bytes bytes;
    bytes.text(name);
    bytes.number32(static_cast<unsigned>(content.size()));
    bytes.text(content);
    if (content.size() % 2 != 0) {
        bytes.number8(0);
    }
    return bytes.all();
}

std::string list(std::string_view kind, const std::string& content) {
    return chunk("LIST", std::string(kind) + content);
}

unsigned unsignedOf(int value) {
    return static_cast<unsigned>(value);
}

std::string mainHeader(const Movie& movie) {
    constexpr unsigned kHasIndexAndIsInterleaved = 0x110;
    Bytes bytes;
    bytes.number32(1000000 / unsignedOf(movie.perSecond));
    bytes.number32(0);
    bytes.number32(0);
    bytes.number32(kHasIndexAndIsInterleaved);
    bytes.number32(unsignedOf(movie.frames));
    bytes.number32(0);
    bytes.number32(2);  // streams
    bytes.number32(0);
    bytes.number32(unsignedOf(movie.size.width()));
    bytes.number32(unsignedOf(movie.size.height()));
    for (int i = 0; i < 4; ++i) {
        bytes.number32(0);
    }
    return chunk("avih", bytes.all());
}

std::string streamHeader(std::string_view kind, unsigned scale, unsigned rate, unsigned length,
                         unsigned sampleSize) {
    Bytes bytes;
    bytes.text(kind);
    for (int i = 0; i < 3; ++i) {
        bytes.number32(0);
    }
    bytes.number32(scale);
    bytes.number32(rate);
    bytes.number32(0);
    bytes.number32(length);
    bytes.number32(0);
    bytes.number32(0xFFFFFFFF);  // quality: as the decoder likes
    bytes.number32(sampleSize);
    bytes.number32(0);
    bytes.number32(0);
    return chunk("strh", bytes.all());
}

std::string pictureFormat(QSize size) {
    Bytes bytes;
    bytes.number32(40);
    bytes.number32(unsignedOf(size.width()));
    bytes.number32(unsignedOf(size.height()));
    bytes.number16(1);
    bytes.number16(24);
    bytes.text("MJPG");
    bytes.number32(unsignedOf(size.width() * size.height() * 3));
    for (int i = 0; i < 4; ++i) {
        bytes.number32(0);
    }
    return chunk("strf", bytes.all());
}

std::string soundFormat() {
    Bytes bytes;
    bytes.number16(1);  // plain samples
    bytes.number16(1);  // mono
    bytes.number32(kSampleRate);
    bytes.number32(kSampleRate * kBytesPerSample);
    bytes.number16(kBytesPerSample);
    bytes.number16(8 * kBytesPerSample);
    return chunk("strf", bytes.all());
}

std::string jpeg(const QImage& picture) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    picture.convertToFormat(QImage::Format_RGB32).save(&buffer, "JPG", kQuality);
    return buffer.data().toStdString();
}

/// The pieces of picture and sound in turn, and the index that tells where each lies.
class Interleaved {
  public:
    void add(std::string_view name, const std::string& content) {
        constexpr unsigned kKeyFrame = 0x10;
        index_.text(name);
        index_.number32(kKeyFrame);
        index_.number32(static_cast<unsigned>(4 + pieces_.size()));
        index_.number32(static_cast<unsigned>(content.size()));
        pieces_ += chunk(name, content);
    }
    [[nodiscard]] std::string file() const {
        return list("movi", pieces_) + chunk("idx1", index_.all());
    }

  private:
    std::string pieces_;
    Bytes index_;
};

}  // namespace

void writeAvi(const std::filesystem::path& path, const Movie& movie) {
    const std::vector<std::int16_t> samples = movie.sound.samples();
    const auto count = static_cast<unsigned>(samples.size());
    const std::string header =
        mainHeader(movie) +
        list("strl",
             streamHeader("vidsMJPG", 1, unsignedOf(movie.perSecond), unsignedOf(movie.frames), 0) +
                 pictureFormat(movie.size)) +
        list("strl", streamHeader(std::string("auds") + std::string(4, '\0'), kBytesPerSample,
                                  kSampleRate * kBytesPerSample, count, kBytesPerSample) +
                         soundFormat());
    Interleaved pieces;
    for (int frame = 0; frame < movie.frames; ++frame) {
        pieces.add("00dc", jpeg(movie.paint(frame)));
        const std::size_t from = count * static_cast<std::size_t>(frame) / unsignedOf(movie.frames);
        const std::size_t to =
            count * (static_cast<std::size_t>(frame) + 1) / unsignedOf(movie.frames);
        Bytes sound;
        for (std::size_t i = from; i < to; ++i) {
            sound.number16(static_cast<unsigned>(samples[i]) & 0xFFFFU);
        }
        pieces.add("01wb", sound.all());
    }
    Bytes file;
    file.text(chunk("RIFF", "AVI " + list("hdrl", header) + pieces.file()));
    file.writeTo(path);
}

}  // namespace quorvel::sample
