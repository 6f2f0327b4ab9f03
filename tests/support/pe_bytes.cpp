#include "support/pe_bytes.h"

namespace quorvel::test {
namespace {

constexpr std::uint32_t kResourceAddress = 0x3000;

void put16(std::string& bytes, std::uint32_t number) {
    bytes += static_cast<char>(number & 0xFFU);
    bytes += static_cast<char>(number >> 8U & 0xFFU);
}

void put32(std::string& bytes, std::uint32_t number) {
    put16(bytes, number & 0xFFFFU);
    put16(bytes, number >> 16U);
}

void align(std::string& bytes) {
    bytes.resize((bytes.size() + 3) / 4 * 4, '\0');
}

void padTo(std::string& bytes, std::size_t size) {
    bytes.resize(size, '\0');
}

std::string utf16(const std::u16string& text) {
    std::string bytes;
    for (const char16_t unit : text) {
        put16(bytes, unit);
    }
    return bytes;
}

/// A node of the version block; `valueLength` in the unit of its kind.
std::string node(const std::string& key, const std::string& value, std::size_t valueLength,
                 bool isText, const std::string& children) {
    std::string bytes(6, '\0');
    bytes += utf16(std::u16string(key.begin(), key.end()));
    put16(bytes, 0);
    align(bytes);
    bytes += value;
    if (!children.empty()) {
        align(bytes);
        bytes += children;
    }
    std::string head;
    put16(head, static_cast<std::uint32_t>(bytes.size()));
    put16(head, static_cast<std::uint32_t>(valueLength));
    put16(head, isText ? 1 : 0);
    return bytes.replace(0, head.size(), head);
}

void append(std::string& children, const std::string& child) {
    align(children);
    children += child;
}

std::string fixedInfo(const PeProgram& program) {
    std::string bytes;
    put32(bytes, 0xFEEF04BD);
    put32(bytes, 0x00010000);
    for (int twice = 0; twice < 2; ++twice) {  // of the file, then of the product
        put16(bytes, program.version[1]);
        put16(bytes, program.version[0]);
        put16(bytes, program.version[3]);
        put16(bytes, program.version[2]);
    }
    padTo(bytes, 52);
    return bytes;
}

/// A directory of the resource tree with one entry.
std::string directory(std::uint32_t id, std::uint32_t offset) {
    std::string bytes(12, '\0');
    put16(bytes, 0);
    put16(bytes, 1);
    put32(bytes, id);
    put32(bytes, offset);
    return bytes;
}

std::string resourceSection(const PeProgram& program) {
    const std::string block = versionBlock(program);
    std::string bytes = directory(program.hasVersion ? 16 : 3, 0x80000018U);
    bytes += directory(1, 0x80000030U);
    bytes += directory(0x0409, 0x48);
    put32(bytes, kResourceAddress + (kPeBlock - kPeResources));
    put32(bytes, static_cast<std::uint32_t>(block.size()));
    padTo(bytes, kPeBlock - kPeResources);
    bytes += block;
    padTo(bytes, (bytes.size() + 0x1FF) / 0x200 * 0x200);
    return bytes;
}

std::string optionalHeader(const PeProgram& program) {
    std::string bytes;
    put16(bytes, program.wide ? 0x20B : 0x10B);
    padTo(bytes, program.wide ? 108 : 92);
    put32(bytes, 16);
    for (std::uint32_t i = 0; i < 16; ++i) {
        put32(bytes, i == 2 && program.hasResources ? kResourceAddress : 0);
        put32(bytes, 0);
    }
    return bytes;
}

std::string section(const char* name, std::uint32_t address, std::size_t length,
                    std::size_t offset) {
    std::string bytes = name;
    padTo(bytes, 8);
    for (const std::size_t number : {length, std::size_t{address}, length, offset}) {
        put32(bytes, static_cast<std::uint32_t>(number));
    }
    padTo(bytes, 40);
    return bytes;
}

}  // namespace

std::string versionBlock(const PeProgram& program) {
    std::string children;
    if (!program.tables.empty()) {
        std::string tables;
        for (const PeTable& table : program.tables) {
            std::string texts;
            for (const auto& [name, text] : table.texts) {
                append(texts,
                       node(name, utf16(text + u'\0'), text.size() + 1, true, std::string()));
            }
            append(tables, node(table.key, "", 0, true, texts));
        }
        append(children, node("StringFileInfo", "", 0, true, tables));
    }
    if (program.hasTranslation) {
        std::string translation;
        put16(translation, program.language);
        put16(translation, program.codePage);
        append(children,
               node("VarFileInfo", "", 0, true, node("Translation", translation, 4, false, "")));
    }
    const std::string fixed = program.hasFixedInfo ? fixedInfo(program) : std::string();
    return node("VS_VERSION_INFO", fixed, fixed.size(), false, children);
}

std::string peBytes(const PeProgram& program) {
    const std::string resources = resourceSection(program);
    const std::string optional = optionalHeader(program);
    std::string bytes = "MZ";
    padTo(bytes, 60);
    put32(bytes, 0x80);
    padTo(bytes, 0x80);
    bytes += std::string("PE\0\0", 4);
    put16(bytes, program.wide ? 0x8664 : 0x14C);
    put16(bytes, 2);
    padTo(bytes, 0x80 + 20);
    put16(bytes, static_cast<std::uint32_t>(optional.size()));
    put16(bytes, 0x102);
    bytes += optional;
    bytes += section(".text", 0x1000, 0x200, 0x200);
    bytes += section(".rsrc", kResourceAddress, resources.size(), kPeResources);
    padTo(bytes, kPeResources);
    return bytes + resources;
}

}  // namespace quorvel::test
