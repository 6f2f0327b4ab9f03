#include "forms/picture_file.h"

#include <algorithm>
#include <string_view>

#include "resources/path_text.h"

namespace quorvel::forms {
namespace {

constexpr int kHeader = 11;  // signature, size, flags
constexpr int kPlace = 9;    // of an image on the screen, and flags
constexpr unsigned kApplication = 0xFF;

}  // namespace

std::int64_t GifBlocks::take(const char* bytes, std::int64_t count) {
    std::int64_t taken = 0;
    while (taken < count && !hasEnded()) {
        // Whole pieces at once, but for the beginning of one that may tell something.
        const int rest = static_cast<int>(std::min<std::int64_t>(left_, count - taken));
        if (part_ == Part::colours || (part_ == Part::block && !applications_)) {
            left_ -= rest;
            taken += rest;
            if (left_ == 0) {
                endBlock();
            }
        } else {
            takeByte(static_cast<unsigned char>(bytes[taken]));
            ++taken;
        }
    }
    return taken;
}

void GifBlocks::skipColours(unsigned flags, Part then) {
    constexpr unsigned kHasColours = 0x80;
    left_ += (flags & kHasColours) != 0 ? 3 * (2 << (flags & 7)) : 0;
    part_ = left_ > 0 ? Part::colours : then;
    then_ = then;
}

void GifBlocks::takeByte(unsigned byte) {
    switch (part_) {
        case Part::header:
            if (++seen_ == kHeader) {
                left_ = 2;  // the background and the shape of the pixels
                skipColours(byte, Part::introducer);
            }
            break;
        case Part::introducer:
            introduce(byte);
            break;
        case Part::extension:
            applications_ = byte == kApplication;
            part_ = Part::blockLength;
            break;
        case Part::place:
            if (++seen_ == kPlace) {
                skipColours(byte, Part::codeSize);
            }
            break;
        case Part::codeSize:
            part_ = Part::blockLength;
            break;
        case Part::blockLength:
            left_ = static_cast<int>(byte);
            pieceLength_ = 0;
            part_ = byte == 0 ? Part::introducer : Part::block;
            break;
        case Part::block:
            if (pieceLength_ < static_cast<int>(std::size(piece_))) {
                piece_[pieceLength_++] = static_cast<unsigned char>(byte);
            }
            if (--left_ == 0) {
                endBlock();
            }
            break;
        case Part::colours:
        case Part::end:
            break;
    }
}

void GifBlocks::introduce(unsigned byte) {
    seen_ = 0;
    applications_ = false;
    loops_ = false;
    switch (byte) {
        case ',':
            part_ = Part::place;
            break;
        case '!':
            part_ = Part::extension;
            break;
        default:  // the trailer, or no block at all
            part_ = Part::end;
    }
}

/// Behind a table of colours, or behind a piece of data.
void GifBlocks::endBlock() {
    if (part_ == Part::colours) {
        part_ = then_;
        return;
    }
    part_ = Part::blockLength;
    if (!applications_) {
        return;
    }
    const std::string_view piece(reinterpret_cast<const char*>(piece_),
                                 static_cast<std::size_t>(pieceLength_));
    if (loops_ && pieceLength_ >= 3 && piece_[0] == 1) {
        const int rounds = piece_[1] | piece_[2] << 8;
        loopCount_ = rounds == 0 ? -1 : rounds;
    }
    loops_ = piece.starts_with("NETSCAPE");
}

PictureFile::PictureFile(const std::filesystem::path& file) : path_(file) {}

bool PictureFile::openToRead() {
    constexpr qint64 kSignature = 6;
    if (!resources::openToRead(file_, path_)) {
        return false;
    }
    const QByteArray signature = file_.peek(kSignature);
    isGif_ = signature == "GIF87a" || signature == "GIF89a";
    end_ = std::min(file_.size(), kMostBytes);
    // The file has a buffer, a second one is of no use.
    return QIODevice::open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 PictureFile::size() const {
    return end_;
}

/// A jump over bytes that were not read yet would lose the thread of the blocks.
bool PictureFile::seek(qint64 position) {
    const qint64 farthest = isGif_ ? reached_ : end_;
    return position <= farthest && QIODevice::seek(position) && file_.seek(position);
}

qint64 PictureFile::readData(char* data, qint64 most) {
    const qint64 from = file_.pos();
    if (from >= end_) {
        return 0;
    }
    qint64 count = file_.read(data, std::min(most, end_ - from));
    if (count > 0 && from + count > reached_) {
        if (isGif_) {
            const qint64 known = reached_ - from;
            reached_ += blocks_.take(data + known, count - known);
            if (blocks_.hasEnded()) {
                end_ = reached_;
                count = end_ - from;
            }
        } else {
            reached_ = from + count;
        }
    }
    return count;
}

qint64 PictureFile::writeData(const char* /*data*/, qint64 /*most*/) {
    return -1;
}

}  // namespace quorvel::forms
