/// The fuzz target for versions, fed with inputs that are the same on every machine.
#include <gtest/gtest.h>

#include "support/file_bytes.h"
#include "support/pe_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace quorvel::test {
namespace {

void feed(const std::string& bytes) {
    EXPECT_EQ(
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()),
        0);
}

TEST(VersionsFuzz, RandomBytes) {
    feed("");
    for (std::uint32_t seed = 0; seed < 1000; ++seed) {
        feed(randomBytes(seed * 37 % 4600, seed));
    }
}

/// `bytes` with eight random ones in random places.
std::string damagedCopy(std::string bytes, std::uint32_t seed) {
    const std::string random = randomBytes(24, seed);
    for (std::size_t i = 0; i + 3 <= random.size(); i += 3) {
        const auto high = static_cast<unsigned char>(random[i]);
        const auto low = static_cast<unsigned char>(random[i + 1]);
        bytes[(high * 256U + low) % bytes.size()] = random[i + 2];
    }
    return bytes;
}

TEST(VersionsFuzz, ProgramsAndBlocksWithAFewRandomBytes) {
    const PeProgram program{
        .tables = {{.texts = {{"CompanyName", u"Somebody"}, {"FileVersion", u"1.2.3.4"}}}}};
    for (std::uint32_t seed = 0; seed < 2000; ++seed) {
        feed(damagedCopy(peBytes(program), seed));
        feed(damagedCopy(versionBlock(program), seed));
    }
}

}  // namespace
}  // namespace quorvel::test
