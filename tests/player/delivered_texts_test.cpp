// The texts that each new project gets for those who will play its game.
#include <gtest/gtest.h>
#include <utility>

#include "store/text_codec.h"
#include "support/file_bytes.h"

namespace quorvel::test {
namespace {

class DeliveredTexts : public ::testing::TestWithParam<const char*> {};

TEST_P(DeliveredTexts, CanBeReadOnWindowsAsTheyAre) {
    const std::string bytes =
        readBytes(std::filesystem::path(QUORVEL_PLAYER).parent_path() / GetParam());
    ASSERT_GT(bytes.size(), 400U) << "there is something to read";
    ASSERT_TRUE(bytes.ends_with("\r\n"));
    std::size_t width = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        if (byte == '\n') {
            EXPECT_EQ(bytes[i - 1], '\r') << "a line ends in both, at byte " << i;
            width = 0;
        } else if (byte != '\r') {
            EXPECT_GE(byte, 0x20) << "at byte " << i;
            EXPECT_LE(++width, 100U) << "at byte " << i;
        } else {
            EXPECT_EQ(bytes[i + 1], '\n') << "at byte " << i;
        }
    }
    EXPECT_EQ(store::encodeText(store::decodeText(bytes)), bytes);
}

TEST_P(DeliveredTexts, PromiseNothingThatThisPlayerCannotDo) {
    const std::string bytes =
        readBytes(std::filesystem::path(QUORVEL_PLAYER).parent_path() / GetParam());
    for (const char* word : {"inventory", "carry", "item", "sound", "speaker", "music", "movie",
                             "talk", "save", "load", "menu", "travel"}) {
        EXPECT_EQ(bytes.find(word), std::string::npos) << word;
    }
}

TEST(DeliveredReadMe, NamesTheLibrariesThatThePlayerNeeds) {
    const std::filesystem::path player = QUORVEL_PLAYER;
    const std::string text = readBytes(player.parent_path() / "ReadMe.txt");
    const std::string program = readBytes(player);
    for (const auto& [file, name] : {std::pair("libQt6Widgets.so.6", "Qt 6"),
                                     std::pair("libgstreamer-1.0.so.0", "GStreamer")}) {
        if (program.find(file) != std::string::npos) {
            EXPECT_NE(text.find(name), std::string::npos) << name;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, DeliveredTexts, ::testing::Values("ReadMe.txt", "Manual.txt"));

}  // namespace
}  // namespace quorvel::test
