#include "forms/pictures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <system_error>
#include <utility>

#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

#include "forms/look.h"
#include "forms/picture_file.h"
#include "forms/pictures_frames.h"
#include "store/paths.h"

namespace quorvel::forms {
namespace {

namespace fs = std::filesystem;

constexpr qint64 kGifHeader = 10;

/// Drawings and other formats that run or fetch things are no pictures of a game.
bool isPictureFormat(const QByteArray& format) {
    static constexpr std::array kFormats = {"gif", "jpg", "jpeg", "bmp", "png", "ico", "cur"};
    return std::ranges::any_of(kFormats, [&](const char* known) { return format == known; });
}

/// The size that the file's header promises. Of a GIF the reader would tell it only after a walk
/// through all of its frames.
QSize promisedSize(PictureFile& file, const QImageReader& reader, const QByteArray& format) {
    if (format != "gif") {
        return reader.size();
    }
    const QByteArray header = file.peek(kGifHeader);
    if (header.size() < kGifHeader) {
        return {};
    }
    const auto number = [&header](qsizetype at) {
        return static_cast<unsigned char>(header[at]) | static_cast<unsigned char>(header[at + 1])
                                                            << 8;
    };
    return {number(6), number(8)};
}

bool isTooLarge(QSize size) {
    return size.width() > PictureStore::kLongestSide ||
           size.height() > PictureStore::kLongestSide ||
           std::int64_t{size.width()} * size.height() > PictureStore::kLargestArea;
}

PicturePtr failed(Picture::Problem problem) {
    return std::make_shared<const Picture>(problem);
}

PicturePtr decode(const fs::path& path) {
    PictureFile file(path);
    if (!file.openToRead()) {
        return failed(Picture::Problem::refused);
    }
    QImageReader reader(&file);
    const QByteArray format = reader.format();
    if (!isPictureFormat(format)) {
        return failed(Picture::Problem::damaged);
    }
    if (isTooLarge(promisedSize(file, reader, format))) {
        return failed(Picture::Problem::tooLarge);
    }
    QImage image;
    if (!reader.read(&image) || image.isNull()) {
        return failed(Picture::Problem::damaged);
    }
    const bool mayMove = format == "gif";
    const int delay = mayMove ? frameDelay(reader.nextImageDelay()) : 0;
    return std::make_shared<const Picture>(path, std::move(image), delay, mayMove);
}

}  // namespace

Picture::Picture(fs::path file, QImage first, int firstDelay, bool mayMove)
    : file_(std::move(file)),
      size_(first.size()),
      first_(std::move(first)),
      firstDelay_(firstDelay),
      mayMove_(mayMove) {}

Picture::Picture(QImage image, QSize size) : size_(size), first_(std::move(image)) {}

std::shared_ptr<PictureFrames> Picture::frames() const {
    auto frames = frames_.lock();
    if (frames == nullptr) {
        frames = std::make_shared<PictureFrames>(file_);
        frames_ = frames;
    }
    return frames;
}

PicturePtr PictureStore::load(const fs::path& file) {
    std::error_code error;
    // Has an answer for regular files only.
    const std::uintmax_t bytes = fs::file_size(file, error);
    if (error) {
        const bool missing =
            error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory;
        return failed(missing ? Picture::Problem::missing : Picture::Problem::refused);
    }
    const auto modified = fs::last_write_time(file, error);
    Entry& entry = entries_[store::textOf(file)];
    PicturePtr picture = entry.picture.lock();
    if (picture == nullptr || entry.modified != modified || entry.bytes != bytes) {
        picture = decode(file);
        // Rights can come back without the file changing.
        const bool lasting = !picture->ok() && picture->problem() != Picture::Problem::refused;
        entry = {modified, bytes, picture, lasting ? picture : nullptr};
    }
    if (picture->ok()) {
        keep(picture);
    }
    return picture;
}

/// Puts `picture` in front of what is kept and lets the oldest go.
void PictureStore::keep(const PicturePtr& picture) {
    const auto found = std::ranges::find(kept_, picture);
    if (found != kept_.end()) {
        kept_.splice(kept_.begin(), kept_, found);
        return;
    }
    kept_.push_front(picture);
    keptBytes_ += picture->firstFrame().sizeInBytes();
    while (!kept_.empty() && (kept_.size() > kKeptPictures || keptBytes_ > kKeptBytes)) {
        keptBytes_ -= kept_.back()->firstFrame().sizeInBytes();
        kept_.pop_back();
    }
    if (entries_.size() > 4 * kKeptPictures) {
        std::erase_if(entries_, [](const auto& entry) { return entry.second.picture.expired(); });
    }
}

PicturePtr PictureStore::stock(const QString& name) {
    PicturePtr& picture = stock_[name];
    if (picture == nullptr) {
        QSvgRenderer drawing(stockPicture(name));
        const QSize size = drawing.defaultSize();
        const qreal scale = std::ceil(qGuiApp->devicePixelRatio());
        QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        drawing.render(&painter);
        painter.end();
        image.setDevicePixelRatio(scale);
        picture = std::make_shared<const Picture>(std::move(image), size);
    }
    return picture;
}

void PictureStore::clear() {
    kept_.clear();
    keptBytes_ = 0;
    for (auto& [file, entry] : entries_) {
        entry.failure.reset();
    }
    std::erase_if(entries_, [](const auto& entry) { return entry.second.picture.expired(); });
}

}  // namespace quorvel::forms
