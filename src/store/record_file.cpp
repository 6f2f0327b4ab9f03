#include "store/record_file.h"

#include <algorithm>
#include <vector>

#include "store/numbers.h"
#include "store/runtime_error.h"

namespace quorvel::store {

int RecordFileBase::count() const {
    return recordCount(file_.size(), length_);
}

bool RecordFileBase::isEmpty() const {
    return count() == 0 && recordCount(file_.lengthHere(), length_) == 0;
}

std::uintmax_t RecordFileBase::offsetOf(int number) const {
    if (number < 1) {
        throw RuntimeError(ErrorNumber::badRecord, file_.path());
    }
    return static_cast<std::uintmax_t>(number - 1) * length_;
}

void RecordFileBase::readBytes(int number, std::span<char> into) {
    file_.readAt(offsetOf(number), into);
}

void RecordFileBase::writeBytes(int number, std::span<const char> bytes) {
    file_.writeAt(offsetOf(number), bytes);
}

void RecordFileBase::readAll(const BlockReader& reader) {
    constexpr std::size_t kBlockBytes = 1U << 20U;
    const int total = count();
    const int perBlock = static_cast<int>(std::max<std::size_t>(1, kBlockBytes / length_));
    std::vector<char> block(static_cast<std::size_t>(std::min(perBlock, total)) * length_);
    for (int number = 1; number <= total; number += perBlock) {
        const int here = std::min(perBlock, total - number + 1);
        const auto bytes = std::span(block).first(static_cast<std::size_t>(here) * length_);
        const std::size_t got = file_.readAt(offsetOf(number), bytes);
        std::fill(bytes.begin() + static_cast<std::ptrdiff_t>(got), bytes.end(), '\0');
        reader(number, here, bytes);
    }
}

}  // namespace quorvel::store
