/// What a program file says of itself.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include <QString>

namespace quorvel::resources {

/// A four-part version, the most important part first.
using FourPartVersion = std::array<std::uint16_t, 4>;

/// "3.3.1.0" for such a version.
QString versionText(const FourPartVersion& version);

/// The eight standard texts of a version block, by their places in `VersionInfo::texts`.
inline constexpr std::array<std::string_view, 8> kVersionTexts = {
    "CompanyName",    "FileDescription",  "FileVersion", "InternalName",
    "LegalCopyright", "OriginalFilename", "ProductName", "ProductVersion"};

/// The version block of a file; empty where it has none.
struct VersionInfo {
    std::optional<FourPartVersion> version;
    std::array<QString, kVersionTexts.size()> texts;

    /// The text of that name; empty for a name that is not one of the eight.
    [[nodiscard]] QString text(std::string_view name) const;

    friend bool operator==(const VersionInfo&, const VersionInfo&) = default;
};

}  // namespace quorvel::resources
