#include "resources/version_resource.h"

#include <algorithm>
#include <string>
#include <vector>

namespace quorvel::resources {
namespace {

constexpr std::size_t kDosHeader = 64;
constexpr std::size_t kFileHeader = 24;  // the signature and the header behind it
constexpr std::size_t kSectionHeader = 40;
constexpr std::size_t kMostSections = 96;  // more than that is not loaded by Windows either
constexpr std::size_t kDirectoryHeader = 16;
constexpr std::size_t kDirectoryEntry = 8;
constexpr std::size_t kDataEntry = 16;
constexpr std::uint32_t kVersionType = 16;
constexpr std::uint32_t kHighBit = 0x80000000U;
constexpr std::uint32_t kFixedSignature = 0xFEEF04BDU;
constexpr std::size_t kFixedInfo = 52;
/// The length of a block is a 16-bit number.
constexpr std::size_t kLongestBlock = 0xFFFF;

struct Section {
    std::uint32_t address;
    std::uint32_t length;  // in the file
    std::uint32_t offset;
};

std::uint32_t fileHeaderOffset(const ByteSource& source) {
    const std::string dos = source.read(0, kDosHeader);
    const BoundedBytes header{dos};
    if (header.part(0, 2) != "MZ") {
        throw DamagedBytes{};
    }
    return header.number32(60);
}

/// The parts of the file that the resource tree is found by.
class Image {
  public:
    explicit Image(const ByteSource& source) : source_(source) {
        const std::uint32_t at = fileHeaderOffset(source);
        const std::string headerBytes = source.read(at, kFileHeader);
        const BoundedBytes header{headerBytes};
        if (header.part(0, 4) != std::string_view("PE\0\0", 4)) {
            throw DamagedBytes{};
        }
        const std::size_t sections = header.number16(6);
        const std::size_t optional = header.number16(20);
        if (sections > kMostSections) {
            throw DamagedBytes{};
        }
        readResourceAddress(source.read(at + kFileHeader, optional));
        readSections(
            source.read(std::uintmax_t{at} + kFileHeader + optional, sections * kSectionHeader));
    }

    /// The bytes at an address of the loaded program.
    [[nodiscard]] std::string at(std::uint32_t address, std::size_t count) const {
        for (const Section& section : sections_) {
            if (address >= section.address && address - section.address < section.length) {
                const std::uint32_t inside = address - section.address;
                if (count > section.length - inside) {
                    throw DamagedBytes{};
                }
                return source_.read(std::uintmax_t{section.offset} + inside, count);
            }
        }
        throw DamagedBytes{};
    }

    /// The same, counted from the root of the resource tree.
    [[nodiscard]] std::string resource(std::uint32_t offset, std::size_t count) const {
        if (offset > UINT32_MAX - resources_) {
            throw DamagedBytes{};
        }
        return at(resources_ + offset, count);
    }

  private:
    void readResourceAddress(const std::string& bytes) {
        const BoundedBytes header{bytes};
        const bool wide = header.number16(0) == 0x20B;  // a 64-bit program
        const std::size_t directories = wide ? 112 : 96;
        if (header.number32(directories - 4) < 3) {
            throw DamagedBytes{};
        }
        resources_ = header.number32(directories + 16);
        if (resources_ == 0) {
            throw DamagedBytes{};
        }
    }
    void readSections(const std::string& bytes) {
        const BoundedBytes table{bytes};
        for (std::size_t at = 0; at < bytes.size(); at += kSectionHeader) {
            sections_.push_back(
                {table.number32(at + 12), table.number32(at + 16), table.number32(at + 20)});
        }
    }

    const ByteSource& source_;
    std::vector<Section> sections_;
    std::uint32_t resources_ = 0;
};

/// The offset that an entry of the directory at `offset` leads to: the entry of that type, or for 0
/// the first one.
std::uint32_t enter(const Image& image, std::uint32_t offset, std::uint32_t type) {
    const std::string headBytes = image.resource(offset, kDirectoryHeader);
    const BoundedBytes head{headBytes};
    const std::size_t count = std::size_t{head.number16(12)} + head.number16(14);
    const std::string bytes =
        image.resource(offset + std::uint32_t{kDirectoryHeader}, count * kDirectoryEntry);
    const BoundedBytes entries{bytes};
    for (std::size_t at = 0; at < bytes.size(); at += kDirectoryEntry) {
        if (type == 0 || entries.number32(at) == type) {
            return entries.number32(at + 4);
        }
    }
    throw DamagedBytes{};
}

/// The bytes of the first version resource. The tree has three levels by its format: type, name,
/// language.
std::string findBlock(const Image& image) {
    std::uint32_t offset = enter(image, 0, kVersionType);
    for (int level = 0; level < 2; ++level) {
        if ((offset & kHighBit) == 0) {
            throw DamagedBytes{};
        }
        offset = enter(image, offset & ~kHighBit, 0);
    }
    if ((offset & kHighBit) != 0) {
        throw DamagedBytes{};
    }
    const std::string bytes = image.resource(offset, kDataEntry);
    const BoundedBytes entry{bytes};
    return image.at(entry.number32(0), std::min<std::size_t>(entry.number32(4), kLongestBlock));
}

std::size_t aligned(std::size_t offset) {
    return (offset + 3) / 4 * 4;
}

/// UTF-16 up to its end or a zero.
QString textIn(const BoundedBytes& block, std::size_t from, std::size_t to) {
    QString text;
    for (std::size_t at = from; at + 2 <= to; at += 2) {
        const std::uint16_t unit = block.number16(at);
        if (unit == 0) {
            break;
        }
        text += QChar(unit);
    }
    return text;
}

/// One node of the version block: a key, a value, children. Places count from the block's start.
struct Node {
    QString key;
    std::size_t value;
    std::size_t valueEnd;
    std::size_t children;
    std::size_t end;
};

Node nodeAt(const BoundedBytes& block, std::size_t at) {
    constexpr std::size_t kHead = 6;
    const std::size_t length = block.number16(at);
    const std::size_t valueLength = block.number16(at + 2);
    const bool isText = block.number16(at + 4) == 1;
    if (length < kHead || length > block.size() - at) {
        throw DamagedBytes{};
    }
    Node node{};
    node.end = at + length;
    node.key = textIn(block, at + kHead, node.end);
    const std::size_t keyEnd = at + kHead + 2 * (static_cast<std::size_t>(node.key.size()) + 1);
    node.value = std::min(aligned(keyEnd), node.end);
    // Texts count in letters, and some compilers of resources count them in bytes.
    const std::size_t bytes = isText ? valueLength * 2 : valueLength;
    node.valueEnd = std::min(node.value + bytes, node.end);
    node.children = std::min(aligned(node.valueEnd), node.end);
    return node;
}

template <class Visitor>
void forEachChild(const BoundedBytes& block, const Node& parent, Visitor visit) {
    std::size_t at = parent.children;
    while (at < parent.end) {
        const Node child = nodeAt(block, at);
        if (child.end > parent.end) {
            throw DamagedBytes{};
        }
        visit(child);
        at = aligned(child.end);
    }
}

/// Language and code page of the first translation as the key of its texts; empty for none.
QString translationOf(const BoundedBytes& block, const Node& root) {
    QString translation;
    forEachChild(block, root, [&](const Node& info) {
        if (info.key != QLatin1String("VarFileInfo")) {
            return;
        }
        forEachChild(block, info, [&](const Node& var) {
            if (translation.isEmpty() && var.key == QLatin1String("Translation") &&
                var.valueEnd - var.value >= 4) {
                translation = QStringLiteral("%1%2")
                                  .arg(block.number16(var.value), 4, 16, QLatin1Char('0'))
                                  .arg(block.number16(var.value + 2), 4, 16, QLatin1Char('0'));
            }
        });
    });
    return translation;
}

void takeTexts(const BoundedBytes& block, const Node& table, VersionInfo& info) {
    forEachChild(block, table, [&](const Node& entry) {
        for (std::size_t i = 0; i < kVersionTexts.size(); ++i) {
            const auto& name = kVersionTexts[i];
            if (entry.key == QLatin1String(name.data(), static_cast<qsizetype>(name.size()))) {
                info.texts[i] = textIn(block, entry.value, entry.end).trimmed();
            }
        }
    });
}

void readBlock(const BoundedBytes& block, VersionInfo& info) {
    const Node root = nodeAt(block, 0);
    if (root.key != QLatin1String("VS_VERSION_INFO")) {
        throw DamagedBytes{};
    }
    if (root.valueEnd - root.value >= kFixedInfo && block.number32(root.value) == kFixedSignature) {
        info.version =
            FourPartVersion{block.number16(root.value + 10), block.number16(root.value + 8),
                            block.number16(root.value + 14), block.number16(root.value + 12)};
    }
    const QString translation = translationOf(block, root);
    bool taken = false;
    forEachChild(block, root, [&](const Node& child) {
        if (child.key != QLatin1String("StringFileInfo")) {
            return;
        }
        forEachChild(block, child, [&](const Node& table) {
            const bool isMeant =
                translation.isEmpty() || table.key.compare(translation, Qt::CaseInsensitive) == 0;
            if (isMeant && !taken) {
                taken = true;
                takeTexts(block, table, info);
            }
        });
    });
}

}  // namespace

bool isWindowsProgram(const ByteSource& source) {
    try {
        return source.read(fileHeaderOffset(source), 4) == std::string_view("PE\0\0", 4);
    } catch (const DamagedBytes&) {
        return false;
    }
}

std::optional<VersionInfo> readVersionResource(const ByteSource& source) {
    std::string block;
    try {
        block = findBlock(Image(source));
    } catch (const DamagedBytes&) {
        return std::nullopt;
    }
    VersionInfo info;
    try {
        readBlock(BoundedBytes(block), info);
    } catch (const DamagedBytes&) {
        // What was read before the damage holds.
        return info;
    }
    return info;
}

}  // namespace quorvel::resources
