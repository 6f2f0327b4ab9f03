#include "store/text_codec.h"

#include <gtest/gtest.h>
#include <set>

#include "support/file_bytes.h"

namespace quorvel::store {
namespace {

std::string allBytes() {
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
        bytes += static_cast<char>(i);
    }
    return bytes;
}

TEST(TextCodec, All256BytesComeBack) {
    EXPECT_EQ(encodeText(decodeText(allBytes())), allBytes());
    for (const char byte : allBytes()) {
        const std::string one(1, byte);
        EXPECT_EQ(encodeText(decodeText(one)), one) << static_cast<int>(byte);
        EXPECT_TRUE(fitsCodePage(decodeText(one))) << static_cast<int>(byte);
    }
}

TEST(TextCodec, NoTwoBytesMeanTheSame) {
    std::set<std::string> texts;
    for (const char byte : allBytes()) {
        texts.insert(decodeText(std::string(1, byte)));
    }
    EXPECT_EQ(texts.size(), 256U);
}

TEST(TextCodec, KnowsTheCodePage) {
    EXPECT_EQ(decodeText("\x80"), "\u20AC");
    EXPECT_EQ(decodeText("\x93quoted\x94"), "\u201Cquoted\u201D");
    EXPECT_EQ(decodeText("\x8A\x9A\x8E\x9E\x9F"), "\u0160\u0161\u017D\u017E\u0178");
    EXPECT_EQ(decodeText("\xC4\xD6\xDC\xDF\xFF"), "\u00C4\u00D6\u00DC\u00DF\u00FF");
    EXPECT_EQ(decodeText("\xA0"), "\u00A0");
    EXPECT_EQ(encodeText("\u0192\u2122\u2030"), "\x83\x99\x89");
}

TEST(TextCodec, UnassignedBytesAreTheControlCharactersOfTheirNumber) {
    EXPECT_EQ(decodeText("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
    EXPECT_EQ(encodeText("\u0081\u008D\u008F\u0090\u009D"), "\x81\x8D\x8F\x90\x9D");
}

TEST(TextCodec, WhatThePageLacksBecomesAQuestionMark) {
    for (const char* lacking : {"\u0080", "\u0100", "\u4E2D", "\uFFFD", "\U0001F600"}) {
        EXPECT_EQ(encodeText(lacking), "?") << lacking;
        EXPECT_FALSE(fitsCodePage(lacking)) << lacking;
    }
    EXPECT_EQ(encodeText("a\u4E2Db"), "a?b");
    EXPECT_TRUE(fitsCodePage("plain, \u00E9, ?"));
}

TEST(TextCodec, EveryMalformedByteBecomesAQuestionMark) {
    EXPECT_EQ(encodeText("\x80"), "?");                 // a follower alone
    EXPECT_EQ(encodeText("\xC3"), "?");                 // cut short
    EXPECT_EQ(encodeText("\xE2\x82"), "??");            // cut short
    EXPECT_EQ(encodeText("\xC0\x80"), "??");            // longer than needed
    EXPECT_EQ(encodeText("\xE0\x80\xAF"), "???");       // longer than needed
    EXPECT_EQ(encodeText("\xED\xA0\x80"), "???");       // half of a surrogate pair
    EXPECT_EQ(encodeText("\xF4\x90\x80\x80"), "????");  // beyond the last character
    EXPECT_EQ(encodeText("\xFF\xFE"), "??");
    EXPECT_EQ(encodeText("\xC3(\u00E9"), "?(\xE9");  // goes on after the fault
    EXPECT_FALSE(fitsCodePage("\xC3"));
}

TEST(TextCodec, AnyBytesAtAllCanBeEncoded) {
    for (std::uint32_t seed = 0; seed < 300; ++seed) {
        const std::string bytes = encodeText(test::randomBytes(40, seed));
        EXPECT_LE(bytes.size(), 40U);
        EXPECT_EQ(encodeText(decodeText(bytes)), bytes);
    }
}

TEST(TextCodec, OnlyBlanksAreTrimmed) {
    EXPECT_EQ(trimBlanks("  a b  "), "a b");
    EXPECT_EQ(trimBlanks("   "), "");
    EXPECT_EQ(trimBlanks(""), "");
    EXPECT_EQ(trimBlanks(" \t\r\n\xA0 "), "\t\r\n\xA0");
}

TEST(TextCodec, FieldsAreTrimmedWhenRead) {
    EXPECT_EQ(readField("  Hall         "), "Hall");
    EXPECT_EQ(readField("               "), "");
    EXPECT_EQ(readField("\tHall\t"), "\tHall\t");
    EXPECT_EQ(readField("\xC4pfel  "), "\u00C4pfel");
}

TEST(TextCodec, AFieldOfZeroBytesReadsAsEmpty) {
    EXPECT_EQ(readField(std::string(15, '\0')), "");
    EXPECT_EQ(readField(""), "");
    // A zero byte in a text that is there is a character like another.
    const std::string mixed("a\0b  ", 5);
    EXPECT_EQ(readField(mixed), std::string("a\0b", 3));
    EXPECT_EQ(readField(std::string(" \0", 2)), std::string(1, '\0'));
}

std::string written(std::size_t width, std::string_view text) {
    std::string field(width, '#');
    writeField(field, text);
    return field;
}

TEST(TextCodec, FieldsArePaddedAndCut) {
    EXPECT_EQ(written(6, "Hall"), "Hall  ");
    EXPECT_EQ(written(6, ""), "      ");
    EXPECT_EQ(written(4, "Hall"), "Hall");
    EXPECT_EQ(written(4, "Halls"), "Hall");
    EXPECT_EQ(written(6, " Hall"), " Hall ");
    EXPECT_EQ(written(0, "Hall"), "");
}

TEST(TextCodec, CuttingCountsCharactersNotUtf8Bytes) {
    EXPECT_EQ(written(4, "\u00C4\u00D6\u00DC\u20AC!"), "\xC4\xD6\xDC\x80");
    EXPECT_EQ(written(3, "\u4E2D\u4E2D\u4E2D\u4E2D"), "???");
}

}  // namespace
}  // namespace quorvel::store
