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

}  // namespace

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
