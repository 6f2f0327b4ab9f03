#include "resources/file_names.h"

#include <gtest/gtest.h>

#include <QStringList>

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

QString shorter(const char* name, const QStringList& taken = {}) {
    return resources::shorterName(QString::fromUtf8(name),
                                  [&](const QString& one) { return !taken.contains(one); });
}

TEST(ShorterName, KeepsTheBeginningAndTheEnding) {
    EXPECT_EQ(shorter("twelve_chars.gif"), QStringLiteral("twelve_char.gif"));
    EXPECT_EQ(shorter("a.very.long.name.of.dots.gif"), QStringLiteral("a.very.long.gif"));
    EXPECT_EQ(shorter("beautiful_sunset.jpeg"), QStringLiteral("beautiful_.jpeg"));
    EXPECT_EQ(shorter("without_an_ending"), QStringLiteral("without_an_"));
    EXPECT_EQ(shorter("the old   house.gif"), QStringLiteral("the old   h.gif"));
    EXPECT_EQ(shorter("the stones of it.gif"), QStringLiteral("the stones.gif")) << "no blank";
}

TEST(ShorterName, AvoidsWhatIsTaken) {
    EXPECT_EQ(shorter("twelve_chars.gif", {QStringLiteral("twelve_char.gif")}),
              QStringLiteral("twelve_cha2.gif"));
    QStringList taken{QStringLiteral("twelve_char.gif")};
    for (int n = 2; n < 12; ++n) {
        taken << QStringLiteral("twelve_char").left(n < 10 ? 10 : 9) + QString::number(n) +
                     QStringLiteral(".gif");
    }
    EXPECT_EQ(shorter("twelve_chars.gif", taken), QStringLiteral("twelve_ch12.gif"));
}

TEST(ShorterName, IsOneThatAFieldCanHold) {
    EXPECT_EQ(shorter("what? is : this.gif"), QStringLiteral("what_ is _.gif"));
    EXPECT_EQ(shorter("\xCE\xB1\xCE\xB2 in greek letters.gif"), QStringLiteral("__ in greek.gif"));
    EXPECT_EQ(shorter("\xF0\x9F\x98\x80 a smile of joy.gif"), QStringLiteral("__ a smile.gif"));
    for (const char* name : {"   blanks before it.gif", "aux                 .gif",
                             "x.......................", "...................gif"}) {
        const QString made = shorter(name);
        EXPECT_LE(made.size(), 15) << name;
        EXPECT_TRUE(made.isEmpty() || resources::nameFault(made) == resources::NameFault::none)
            << name;
    }
}

TEST(ShorterName, MayNotExist) {
    EXPECT_EQ(shorter("a.fifteen_letters"), QString()) << "there is no room beside the ending";
    EXPECT_EQ(shorter("con.and.more.and.more.gif"), QString()) << "a device with any ending";
    EXPECT_EQ(resources::shorterName(QStringLiteral("twelve_chars.gif"),
                                     [](const QString&) { return false; }),
              QString());
}

}  // namespace
}  // namespace quorvel::resources
