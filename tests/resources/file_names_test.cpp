#include "resources/file_names.h"

#include <gtest/gtest.h>

namespace quorvel::resources {
namespace {

NameFault faultOf(const char* utf8) {
    return nameFault(QString::fromUtf8(utf8));
}

TEST(FileNames, OrdinaryNamesAreFit) {
    for (const char* name :
         {"a", "coin.gif", "Coin of Gold.GIF", "a.b.c.wav", "K\xC3\xBC-one.bmp", "\xE2\x82\xAC.gif",
          ".gif", "(None)", "a'b,c;d=e+f[g]", "~%$&#@!.wav"}) {
        EXPECT_EQ(faultOf(name), NameFault::none) << name;
    }
}

TEST(FileNames, EveryCharacterThatWindowsReservesIsRefused) {
    for (const char c : std::string("<>:\"/\\|?*\x01\x1F\x7F")) {
        const QString name = QStringLiteral("a%1b.gif").arg(QLatin1Char(c));
        EXPECT_EQ(nameFault(name), NameFault::reservedCharacter) << name.toStdString();
    }
    EXPECT_EQ(nameFault(QStringLiteral("a") + QChar(0) + QStringLiteral(".gif")),
              NameFault::reservedCharacter);
}

TEST(FileNames, ACharacterOutsideTheCodePageIsRefused) {
    EXPECT_EQ(faultOf("\xD1\x81.gif"), NameFault::outsideCodePage) << "a Cyrillic letter";
    EXPECT_EQ(faultOf("\xF0\x9F\x98\x80.gif"), NameFault::outsideCodePage) << "a face";
    EXPECT_EQ(faultOf("e\xCC\x81.gif"), NameFault::outsideCodePage) << "a combining accent";
    EXPECT_EQ(nameFault(QString(QChar(0xD83D)) + QStringLiteral(".gif")),
              NameFault::outsideCodePage)
        << "half a face";
    EXPECT_EQ(nameFault(QString(QChar(0xFFFD))), NameFault::outsideCodePage)
        << "what stands for bytes that are no text";
}

TEST(FileNames, BlanksAtTheEndsAndADotAtTheEndAreRefused) {
    EXPECT_EQ(faultOf("a.gif "), NameFault::blankAtAnEnd);
    EXPECT_EQ(faultOf(" a.gif"), NameFault::blankAtAnEnd);
    EXPECT_EQ(faultOf(" "), NameFault::blankAtAnEnd);
    EXPECT_EQ(faultOf("a.gif."), NameFault::dotAtTheEnd);
    EXPECT_EQ(faultOf("."), NameFault::dotAtTheEnd);
    EXPECT_EQ(faultOf(".."), NameFault::dotAtTheEnd);
    EXPECT_EQ(faultOf(""), NameFault::empty);
}

TEST(FileNames, DeviceNamesAreRefusedInAnyCaseAndWithAnyEnding) {
    for (const char* stem : {"CON", "PRN", "AUX", "NUL", "COM", "LPT"}) {
        const QString name = QString::fromLatin1(stem);
        if (name != QLatin1String("COM") && name != QLatin1String("LPT")) {
            EXPECT_EQ(nameFault(name), NameFault::deviceName);
            EXPECT_EQ(nameFault(name.toLower() + QStringLiteral(".gif")), NameFault::deviceName);
            EXPECT_EQ(nameFault(name + QStringLiteral(".a.b")), NameFault::deviceName);
            EXPECT_EQ(nameFault(name + QStringLiteral(" .gif")), NameFault::deviceName);
            EXPECT_EQ(nameFault(name + QStringLiteral("E.gif")), NameFault::none);
            continue;
        }
        for (int digit = 1; digit <= 9; ++digit) {
            const QString device = name + QString::number(digit);
            EXPECT_EQ(nameFault(device), NameFault::deviceName);
            EXPECT_EQ(nameFault(device.toLower() + QStringLiteral(".wav")), NameFault::deviceName);
            EXPECT_EQ(nameFault(device + QStringLiteral("1.wav")), NameFault::none);
        }
        EXPECT_EQ(nameFault(name), NameFault::none);
        EXPECT_EQ(nameFault(name + QStringLiteral("0.wav")), NameFault::none);
        EXPECT_EQ(nameFault(name + QChar(0xB2)), NameFault::deviceName) << "a raised 2";
    }
    EXPECT_EQ(faultOf("conin$"), NameFault::deviceName);
    EXPECT_EQ(faultOf("my.con"), NameFault::none);
}

}  // namespace
}  // namespace quorvel::resources
