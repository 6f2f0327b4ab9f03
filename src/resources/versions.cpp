#include "resources/versions.h"

#include <algorithm>
#include <array>
#include <optional>
#include <system_error>

#include <QFile>
#include <QStringList>

#include "resources/path_text.h"
#include "resources/player_marker.h"
#include "resources/version_resource.h"
#include "store/paths.h"

namespace quorvel::resources {

namespace fs = std::filesystem;

QString versionText(const FourPartVersion& version) {
    QStringList parts;
    for (const std::uint16_t part : version) {
        parts << QString::number(part);
    }
    return parts.join(QLatin1Char('.'));
}

QString VersionInfo::text(std::string_view name) const {
    const auto* const found = std::ranges::find(kVersionTexts, name);
    return found == kVersionTexts.end()
               ? QString()
               : texts[static_cast<std::size_t>(found - kVersionTexts.begin())];
}

namespace {

/// Calls `routine` with the bytes of the file; its default where there is no file to be read.
template <class Routine>
auto withFile(const fs::path& path, Routine routine) {
    using Result = decltype(routine(std::declval<const ByteSource&>()));
    std::error_code error;
    QFile file;
    // Opened for reading alone: a player that runs at the moment is never disturbed.
    if (!fs::is_regular_file(path, error) || !openToRead(file, path)) {
        return Result{};
    }
    const ByteSource source(static_cast<std::uintmax_t>(file.size()),
                            [&file](std::uintmax_t offset, std::span<char> into) {
                                if (!file.seek(static_cast<qint64>(offset))) {
                                    return std::size_t{0};
                                }
                                const qint64 count =
                                    file.read(into.data(), static_cast<qint64>(into.size()));
                                return static_cast<std::size_t>(std::max<qint64>(count, 0));
                            });
    return routine(source);
}

using Numbers = std::array<uint, 4>;

std::optional<Numbers> numbersOf(const QString& version) {
    const QStringList parts = version.split(QLatin1Char('.'));
    Numbers numbers{};
    if (parts.size() < static_cast<qsizetype>(numbers.size())) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        bool isNumber = false;
        numbers[i] = parts[static_cast<qsizetype>(i)].trimmed().toUInt(&isNumber);
        if (!isNumber) {
            return std::nullopt;
        }
    }
    return numbers;
}

}  // namespace

VersionInfo GetFileVersionText(const fs::path& path) {
    return withFile(path, [](const ByteSource& source) {
        if (auto info = readVersionResource(source)) {
            return *info;
        }
        return findPlayerMarker(source).value_or(VersionInfo{});
    });
}

bool isOlderVersion(const QString& a, const QString& b) {
    const auto left = numbersOf(a);
    const auto right = numbersOf(b);
    return left && right && *left < *right;
}

bool CompareVersions(const fs::path& projectPlayer, const fs::path& defaultPlayer) {
    const auto numbers = [](const fs::path& path) {
        const VersionInfo info = GetFileVersionText(path);
        return info.version ? versionText(*info.version) : QString();
    };
    return isOlderVersion(numbers(projectPlayer), numbers(defaultPlayer));
}

bool isWindowsProgram(const fs::path& path) {
    return withFile(path, [](const ByteSource& source) { return isWindowsProgram(source); });
}

}  // namespace quorvel::resources
