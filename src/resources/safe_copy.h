/// Copying a file so that a failure leaves everything as it was.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <vector>

namespace quorvel::resources {

/// What a copy is to be.
enum class CopyAs : std::uint8_t { file, program };

/// Told after each piece: bytes written so far and bytes in all.
using CopyProgress = std::function<void(std::uintmax_t done, std::uintmax_t total)>;

/// Copies the regular file `source` to `target`. The bytes go into a file of another name beside
/// `target`, down to the disk, and that one is then renamed, so `target` is at every moment either
/// the old file or the whole new one. A link at `target` is replaced, not followed. The copy is
/// writable and bears the present time, by which caches see that it is new. It can be run only if
/// it is copied as a program and the source can be run.
///
/// Throws `store::RuntimeError` with the file that refused; what `progress` throws comes through.
/// In both cases `target` is as before and nothing else is left behind.
void copySafely(const std::filesystem::path& source, const std::filesystem::path& target,
                const CopyProgress& progress = {}, CopyAs as = CopyAs::file);

/// Removes what a program that was ended in the middle of `copySafely` has left in `folder`, and
/// returns the paths of what is gone. What cannot be removed stays. Nobody may be copying there.
std::vector<std::filesystem::path> removeLeftovers(const std::filesystem::path& folder);

/// Brings the names in `folder` down to the disk: a file that was renamed into it is found there
/// even when the machine stops at once. To be called before the source of a move is deleted. Does
/// nothing on systems that know no such thing. Throws `store::RuntimeError` with the folder.
void settleNames(const std::filesystem::path& folder);

}  // namespace quorvel::resources
