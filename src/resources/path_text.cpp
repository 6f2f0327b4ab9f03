#include "resources/path_text.h"

#include <cstdio>

#include "store/paths.h"
#include "store/utf8.h"

namespace quorvel::resources {
namespace {

namespace fs = std::filesystem;

/// The half of a pair that stands for byte 0; only those of bytes from 0x80 on are used.
constexpr char16_t kEscape = 0xDC00;
const QString kUrl = QStringLiteral("file://");

bool isEscape(QChar half) {
    return half.unicode() >= kEscape + 0x80 && half.unicode() <= kEscape + 0xFF;
}

std::FILE* openStream(const fs::path& path) {
#ifdef _WIN32
    return _wfopen(path.c_str(), L"rbN");
#else
    return std::fopen(path.c_str(), "rbe");
#endif
}

}  // namespace

QString bytesText(std::string_view path) {
    QString text;
    text.reserve(static_cast<qsizetype>(path.size()));
    while (!path.empty()) {
        const auto byte = static_cast<unsigned char>(path.front());
        const char32_t point = store::takeCodePoint(path);
        if (point == store::kMalformed) {
            text += QChar(static_cast<char16_t>(kEscape + byte));
        } else {
            text += QChar::fromUcs4(point);
        }
    }
    return text;
}

QString pathText(const fs::path& path) {
    return bytesText(store::textOf(path));
}

std::string pathBytes(const QString& text) {
    std::string bytes;
    qsizetype begin = 0;
    const auto takeTo = [&](qsizetype end) {
        bytes += QStringView(text).mid(begin, end - begin).toUtf8().toStdString();
        begin = end + 1;
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].isHighSurrogate()) {
            ++i;  // whatever follows belongs to it
        } else if (isEscape(text[i])) {
            takeTo(i);
            bytes += static_cast<char>(text[i].unicode() - kEscape);
        }
    }
    takeTo(text.size());
    return bytes;
}

fs::path pathOf(const QString& text) {
    return store::pathOf(pathBytes(text));
}

QString storedPath(const QString& path) {
    if (path.isValidUtf16()) {
        return path;
    }
    const QByteArray coded = QByteArray::fromStdString(pathBytes(path)).toPercentEncoding("/");
    return kUrl + QString::fromLatin1(coded);
}

QString fromStoredPath(const QString& stored) {
    if (!stored.startsWith(kUrl)) {
        return stored;
    }
    const QByteArray coded = stored.mid(kUrl.size()).toLatin1();
    return bytesText(QByteArray::fromPercentEncoding(coded).toStdString());
}

bool openToRead(QFile& file, const fs::path& path) {
    const QString text = pathText(path);
    if (text.isValidUtf16()) {
        file.setFileName(text);
        return file.open(QIODevice::ReadOnly);
    }
    std::FILE* stream = openStream(path);
    if (stream == nullptr) {
        return false;
    }
    if (file.open(stream, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        return true;
    }
    std::fclose(stream);
    return false;
}

}  // namespace quorvel::resources
