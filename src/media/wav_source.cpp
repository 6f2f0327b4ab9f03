#include "media/wav_source.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace quorvel::media {

std::string WavCache::keyOf(const std::filesystem::path& file) {
    std::error_code error;
    const auto size = std::filesystem::file_size(file, error);
    if (error) {
        return {};
    }
    const auto time = std::filesystem::last_write_time(file, error);
    if (error) {
        return {};
    }
    return file.string() + '\n' + std::to_string(size) + '\n' +
           std::to_string(time.time_since_epoch().count());
}

std::shared_ptr<const Samples> WavCache::find(const std::string& key) {
    const std::lock_guard lock(mutex_);
    const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& one) { return one.key == key; });
    if (key.empty() || entry == entries_.end()) {
        return nullptr;
    }
    entries_.splice(entries_.begin(), entries_, entry);
    return entry->samples;
}

void WavCache::keep(const std::string& key, std::shared_ptr<const Samples> samples) {
    if (key.empty() || find(key) != nullptr) {
        return;
    }
    const std::lock_guard lock(mutex_);
    size_ += samples->size();
    entries_.push_front({key, std::move(samples)});
    while (size_ > kMostOfAll) {
        size_ -= entries_.back().samples->size();
        entries_.pop_back();
    }
}

WavSource::WavSource(std::filesystem::path file, bool loop, std::shared_ptr<WavCache> cache)
    : file_(std::move(file)),
      loop_(loop),
      cache_(std::move(cache)),
      key_(WavCache::keyOf(file_)),
      complete_(cache_->find(key_)) {
    if (complete_ == nullptr) {
        decoder_ = std::make_unique<WavDecoder>(file_);
    }
    found_ = complete_ != nullptr && !complete_->empty();
}

std::size_t WavSource::read(float* to, std::size_t count) {
    std::size_t done = 0;
    while (done < count && !givenUp_) {
        if (at_ == samples().size() && !more()) {
            break;
        }
        const std::size_t part = std::min(count - done, samples().size() - at_);
        std::copy_n(samples().begin() + static_cast<std::ptrdiff_t>(at_), part, to + done);
        at_ += part;
        done += part;
    }
    return done;
}

/// Brings samples to stand at at_; false when nothing comes any more.
bool WavSource::more() {
    if (decoder_ != nullptr && moreOfFile()) {
        found_ = true;
        return true;
    }
    if (!loop_ || !found_ || givenUp_) {
        return false;
    }
    if (complete_ != nullptr) {
        at_ = 0;
        return true;
    }
    decoder_ = std::make_unique<WavDecoder>(file_);
    return moreOfFile();
}

bool WavSource::moreOfFile() {
    if (!tooLong_ && decoded_.size() > WavCache::kMostOfOne) {
        tooLong_ = true;
    }
    if (tooLong_) {
        decoded_.clear();
        at_ = 0;
    }
    while (decoder_->next(decoded_, givenUp_)) {
        if (at_ < decoded_.size()) {
            return true;
        }
    }
    if (!givenUp_) {
        endOfFile();
    }
    return false;
}

void WavSource::endOfFile() {
    decoder_.reset();
    if (!tooLong_) {
        decoded_.shrink_to_fit();
        complete_ = std::make_shared<const Samples>(std::exchange(decoded_, {}));
        cache_->keep(key_, complete_);
    }
}

}  // namespace quorvel::media
