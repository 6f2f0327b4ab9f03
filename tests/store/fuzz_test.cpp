/// The fuzz target for the store, fed with inputs that are the same on every machine. The long hunt
/// is left to the fuzzer itself, see tests/fuzz.
#include <gtest/gtest.h>

#include "store/records.h"
#include "support/file_bytes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace quorvel::store {
namespace {

void feed(const std::string& bytes) {
    EXPECT_EQ(
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()),
        0);
}

TEST(StoreFuzz, Nothing) {
    feed("");
}

TEST(StoreFuzz, RandomBytesOfEveryLength) {
    for (std::uint32_t seed = 0; seed < 2000; ++seed) {
        feed(test::randomBytes(seed * 37 % 4600, seed));
    }
}

TEST(StoreFuzz, ValidRecordsWithAFewRandomBytes) {
    const auto scene = newRecord<SceneRecord>();
    const auto bytes = bytesOf(scene);
    for (std::uint32_t seed = 0; seed < 1000; ++seed) {
        std::string damaged(bytes.begin(), bytes.end());
        const std::string random = test::randomBytes(24, seed);
        for (std::size_t i = 0; i + 3 <= random.size(); i += 3) {
            const auto high = static_cast<unsigned char>(random[i]);
            const auto low = static_cast<unsigned char>(random[i + 1]);
            damaged[(high * 256U + low) % damaged.size()] = random[i + 2];
        }
        feed(damaged);
    }
}

TEST(StoreFuzz, TextsLikeNumbersAndPaths) {
    const std::string letters = "0123456789+-. /\\:~*?\"|<>aZ\xC3\xA4\x80\n";
    for (std::uint32_t seed = 0; seed < 2000; ++seed) {
        std::string text = test::randomBytes(seed % 40, seed);
        for (char& c : text) {
            c = letters[static_cast<unsigned char>(c) % letters.size()];
        }
        feed(text);
    }
}

}  // namespace
}  // namespace quorvel::store
