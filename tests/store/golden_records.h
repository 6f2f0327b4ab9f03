/// The record formats written down a second time, by hand, so that a slip in the record
/// descriptions of the store cannot pass: offset, number of elements, width, field, value in a new
/// record. Offsets are bytes from the start of the record.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "store/records.h"

namespace quorvel::store::golden {

/// One line of a format. `set` and `get` go through the member of the record's struct.
template <class Record>
struct Row {
    int offset;
    int count;
    int width;
    bool isText;
    std::string name;
    /// One for all elements, or one each; none stands for zero bytes.
    std::vector<std::string> newTexts;
    std::int16_t newNumber;
    std::function<void(Record&, int element, const std::string& text)> setText;
    std::function<std::string(const Record&, int element)> getText;
    std::function<void(Record&, int element, std::int16_t number)> setNumber;
    std::function<std::int16_t(const Record&, int element)> getNumber;

    [[nodiscard]] std::size_t at(int element) const {
        return static_cast<std::size_t>(offset + element * width);
    }
    [[nodiscard]] std::string newText(int element) const {
        return newTexts.size() == 1 ? newTexts[0] : newTexts[static_cast<std::size_t>(element)];
    }
};

/// The lines of a record; of a scene the header alone.
template <class Record>
std::vector<Row<Record>> rows();
template <>
std::vector<Row<ProjectRecord>> rows();
template <>
std::vector<Row<SceneRecord>> rows();
template <>
std::vector<Row<ObjectSlotRecord>> rows();
template <>
std::vector<Row<GameSettingsRecord>> rows();
template <>
std::vector<Row<ItemRecord>> rows();
template <>
std::vector<Row<LocationRecord>> rows();
template <>
std::vector<Row<CueCardRecord>> rows();
template <>
std::vector<Row<SkinRecord>> rows();

/// Two bytes, the low one first.
std::string intBytes(std::int16_t number);
/// `text` followed by blanks up to `width`.
std::string padded(const std::string& text, int width);

/// The bytes that the lines give for a new record.
template <class Record>
std::string newBytes() {
    std::string bytes;
    for (const Row<Record>& row : rows<Record>()) {
        for (int i = 0; i < row.count; ++i) {
            if (!row.isText) {
                bytes += intBytes(row.newNumber);
            } else if (row.newTexts.empty()) {
                bytes += std::string(static_cast<std::size_t>(row.width), '\0');
            } else {
                bytes += padded(row.newText(i), row.width);
            }
        }
    }
    return bytes;
}

}  // namespace quorvel::store::golden
