#include "resources/file_names.h"

#include <algorithm>
#include <array>

#include "store/text_codec.h"

namespace quorvel::resources {
namespace {

bool isReserved(QChar c) {
    return c.unicode() < 0x20 || c.unicode() == 0x7F || QStringLiteral("<>:\"/\\|?*").contains(c);
}

/// Windows takes the name up to the first dot for the device's, whatever follows.
bool isDeviceName(const QString& name) {
    static constexpr std::array kDevices = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
    const QString stem = name.section(QLatin1Char('.'), 0, 0).trimmed().toUpper();
    if (std::ranges::any_of(kDevices,
                            [&](const char* one) { return stem == QLatin1String(one); })) {
        return true;
    }
    // The raised digits count as digits there.
    static const QString kDigits = QStringLiteral("123456789\u00B9\u00B2\u00B3");
    return stem.size() == 4 &&
           (stem.startsWith(QLatin1String("COM")) || stem.startsWith(QLatin1String("LPT"))) &&
           kDigits.contains(stem.back());
}

/// `text` without what no name can hold.
QString cleaned(const QString& text) {
    QString result;
    for (const QChar c : text) {
        const bool fits =
            !isReserved(c) && !c.isSurrogate() && store::fitsCodePage(QString(c).toStdString());
        result += fits ? c : QLatin1Char('_');
    }
    return result;
}

}  // namespace

QString shorterName(const QString& name, const std::function<bool(const QString&)>& isFree) {
    constexpr qsizetype kLongestStem = 11;
    constexpr int kLastNumber = 999;
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    const QString ending = dot < 0 ? QString() : cleaned(name.mid(dot)).trimmed();
    const QString stem = cleaned(dot < 0 ? name : name.left(dot)).trimmed();
    const qsizetype room = std::min(kLongestStem, kLongestFileName - ending.size());
    for (int number = 1; number <= kLastNumber; ++number) {
        const QString mark = number == 1 ? QString() : QString::number(number);
        if (room - mark.size() < 1) {
            break;
        }
        const QString shorter = stem.left(room - mark.size()).trimmed() + mark + ending;
        if (nameFault(shorter) == NameFault::none && isFree(shorter)) {
            return shorter;
        }
    }
    return {};
}

NameFault nameFault(const QString& name) {
    if (name.isEmpty()) {
        return NameFault::empty;
    }
    if (std::ranges::any_of(name, isReserved)) {
        return NameFault::reservedCharacter;
    }
    // A half of a surrogate pair would become "?" on its way into UTF-8.
    if (!name.isValidUtf16() || !store::fitsCodePage(name.toStdString())) {
        return NameFault::outsideCodePage;
    }
    if (name.front() == QLatin1Char(' ') || name.back() == QLatin1Char(' ')) {
        return NameFault::blankAtAnEnd;
    }
    if (name.back() == QLatin1Char('.')) {
        return NameFault::dotAtTheEnd;
    }
    return isDeviceName(name) ? NameFault::deviceName : NameFault::none;
}

}  // namespace quorvel::resources
