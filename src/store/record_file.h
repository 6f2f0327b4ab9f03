/// A store: a file of records of one length, reached by record number.
#pragma once

#include <filesystem>
#include <functional>
#include <span>

#include "store/file_handle.h"
#include "store/records.h"

namespace quorvel::store {

/// The store without the type of its records.
class RecordFileBase {
  public:
    /// Record numbers start at 1. `block` holds `count` whole records, the first being `number`.
    using BlockReader = std::function<void(int number, int count, std::span<const char> block)>;

    [[nodiscard]] bool isOpen() const { return file_.isOpen(); }
    [[nodiscard]] bool isWritable() const { return file_.isWritable(); }
    [[nodiscard]] const std::filesystem::path& path() const { return file_.path(); }
    /// Length of the file in bytes.
    [[nodiscard]] std::uintmax_t size() const { return file_.size(); }
    /// Records in the file now, from its length.
    [[nodiscard]] int count() const;
    /// True when there is no record, and was none that others cut off.
    [[nodiscard]] bool isEmpty() const;

    /// Hands every record over once, in order, in blocks of about a megabyte. A record that the
    /// file holds in part is filled up with zero bytes.
    void readAll(const BlockReader& reader);

    /// Makes the file anew where it was, with all its records, after its path came to name nothing.
    void putBack() { file_.putBack(); }

    /// As `FileHandle::lock`.
    FileLock lock() { return file_.lock(); }

    void close() { file_.close(); }

  protected:
    explicit RecordFileBase(std::size_t length) : length_(length) {}
    void openFile(const std::filesystem::path& path, FileUse use) {
        file_ = FileHandle::open(path, use);
    }
    void openOrCreateFile(const std::filesystem::path& path) {
        file_ = FileHandle::openOrCreate(path);
    }
    void readBytes(int number, std::span<char> into);
    void writeBytes(int number, std::span<const char> bytes);

  private:
    [[nodiscard]] std::uintmax_t offsetOf(int number) const;

    FileHandle file_;
    std::size_t length_;
};

/// A store of `Record`s. All failures are thrown as `RuntimeError`.
template <class Record>
class RecordFile : public RecordFileBase {
  public:
    RecordFile() : RecordFileBase(sizeof(Record)) {}

    void open(const std::filesystem::path& path, FileUse use = FileUse::readAndWrite) {
        openFile(path, use);
    }
    void openOrCreate(const std::filesystem::path& path) { openOrCreateFile(path); }

    /// Record `number` as it lies in the file. Beyond the end of the file it is the zeroed record;
    /// of a record that is there in part the rest is zero.
    Record read(int number) {
        Record record{};
        readBytes(number, bytesOf(record));
        return record;
    }

    /// Writes the record in place, or appends it.
    void write(int number, const Record& record) { writeBytes(number, bytesOf(record)); }
};

}  // namespace quorvel::store
