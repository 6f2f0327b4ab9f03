#include "forms/file_remark.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>

#include "forms/file_dialogs.h"
#include "media/file_kind.h"
#include "resources/path_text.h"

namespace quorvel::forms {
namespace {

namespace fs = std::filesystem;
using namespace std::string_view_literals;

enum class Content : std::uint8_t {
    unknown,
    gif,
    jpg,
    bmp,
    icon,
    cursor,
    wav,
    midi,
    mp3,
    avi,
    mpg
};

struct Ending {
    const char* text;
    Content content;
    const char* words;  ///< what such a file holds
};

constexpr std::array kEndings = {
    Ending{"gif", Content::gif, "a GIF picture"}, Ending{"jpg", Content::jpg, "a JPG picture"},
    Ending{"bmp", Content::bmp, "a bitmap"},      Ending{"ico", Content::icon, "an icon"},
    Ending{"cur", Content::cursor, "a cursor"},   Ending{"wav", Content::wav, "a WAV sound"},
    Ending{"mid", Content::midi, "MIDI music"},   Ending{"mp3", Content::mp3, "MP3 sound"},
    Ending{"avi", Content::avi, "an AVI movie"},  Ending{"mpg", Content::mpg, "an MPG movie"},
};

std::string headOf(const fs::path& file) {
    std::error_code error;
    if (!fs::is_regular_file(file, error)) {
        return {};  // opening a pipe would wait
    }
    std::string head(16, '\0');
    std::ifstream in(file, std::ios::binary);
    in.read(head.data(), static_cast<std::streamsize>(head.size()));
    head.resize(static_cast<std::size_t>(std::max<std::streamsize>(in.gcount(), 0)));
    return head;
}

Content contentOf(const fs::path& file) {
    const std::string bytes = headOf(file);
    const std::string_view head = bytes;
    struct Signature {
        std::string_view bytes;
        Content content;
    };
    static constexpr std::array kPictures = {
        Signature{"GIF87a"sv, Content::gif},       Signature{"GIF89a"sv, Content::gif},
        Signature{"\xFF\xD8\xFF"sv, Content::jpg}, Signature{"BM"sv, Content::bmp},
        Signature{"\0\0\1\0"sv, Content::icon},    Signature{"\0\0\2\0"sv, Content::cursor},
    };
    for (const Signature& one : kPictures) {
        if (head.starts_with(one.bytes)) {
            return one.content;
        }
    }
    switch (media::kindOf(file)) {
        case media::FileKind::wav:
            return Content::wav;
        case media::FileKind::midi:
            return Content::midi;
        case media::FileKind::mp3:
            return Content::mp3;
        case media::FileKind::movie:
            return head.size() >= 12 && head.substr(8, 4) == "AVI "sv ? Content::avi : Content::mpg;
        case media::FileKind::none:
            break;
    }
    return Content::unknown;
}

/// ".gif, .jpg and .bmp": the kinds of `filter`, each once.
QString kindsIn(const QString& filter) {
    QStringList endings;
    for (const FileKind& kind : kindsOf(filter)) {
        for (const QString& pattern : kind.patterns) {
            endings << pattern.mid(1);
        }
    }
    endings.removeDuplicates();
    const QString last = endings.isEmpty() ? QString() : endings.takeLast();
    return endings.isEmpty() ? last
                             : endings.join(QStringLiteral(", ")) + QStringLiteral(" and ") + last;
}

QString withKinds(const QString& text, const QString& filter) {
    return QStringLiteral("%1  Every player knows %2.").arg(text, kindsIn(filter));
}

QString wordsOf(Content content) {
    const auto* const found = std::ranges::find(kEndings, content, &Ending::content);
    return found == kEndings.end() ? QString() : QString::fromLatin1(found->words);
}

}  // namespace

QString remarkOn(const fs::path& file, const QString& filter) {
    const QString name = resources::pathText(file.filename());
    const std::vector<FileKind> kinds = kindsOf(filter);
    if (std::ranges::none_of(kinds, [&](const FileKind& kind) { return kind.matches(name); })) {
        return withKinds(
            QStringLiteral("\"%1\" was taken, but a player may not know its ending.").arg(name),
            filter);
    }
    const QString ending = name.section(QLatin1Char('.'), -1).toLower();
    const auto* const expected = std::ranges::find_if(
        kEndings, [&](const Ending& one) { return ending == QLatin1String(one.text); });
    const Content content = contentOf(file);
    if (expected == kEndings.end() || expected->content == content) {
        return {};
    }
    const QString promised = QString::fromLatin1(expected->words);
    const QString held =
        content == Content::unknown
            ? QStringLiteral("it does not hold %1.").arg(promised)
            : QStringLiteral("it holds %1 and not %2.").arg(wordsOf(content), promised);
    return withKinds(QStringLiteral("\"%1\" was taken, but %2").arg(name, held), filter);
}

QString previewRemark(const QString& verb, const QString& name, const QString& reason,
                      const QString& filter) {
    return withKinds(
        QStringLiteral("The preview cannot %1 \"%2\".  %3").arg(verb, name, reason.trimmed()),
        filter);
}

}  // namespace quorvel::forms
