#include "shell/help_pages.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <QTextDocumentFragment>

namespace quorvel::shell {
namespace {

constexpr int kBefore = 30;
constexpr int kPassage = 110;

/// Where `word` begins a word of `text`, at `from` or later, or -1.
qsizetype beginning(const QString& text, const QString& word, qsizetype from = 0) {
    for (qsizetype at = text.indexOf(word, from, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(word, at + 1, Qt::CaseInsensitive)) {
        if (at == 0 || !text.at(at - 1).isLetterOrNumber()) {
            return at;
        }
    }
    return -1;
}

/// How often words of `text` begin with one of `words`.
int countOf(const QString& text, const QStringList& words) {
    int count = 0;
    for (const QString& word : words) {
        for (qsizetype at = beginning(text, word, 0); at >= 0; at = beginning(text, word, at + 1)) {
            ++count;
        }
    }
    return count;
}

bool holdsAll(const QString& text, const QStringList& words) {
    return std::all_of(words.begin(), words.end(),
                       [&text](const QString& word) { return beginning(text, word) >= 0; });
}

/// Some words of `text` around `at`, with dots where it goes on.
QString passageAt(const QString& text, qsizetype at) {
    qsizetype from = std::max<qsizetype>(0, at - kBefore);
    while (from > 0 && text.at(from - 1) != QLatin1Char(' ')) {
        --from;
    }
    qsizetype to = std::min(text.size(), from + kPassage);
    while (to < text.size() && text.at(to) != QLatin1Char(' ')) {
        ++to;
    }
    const QString dots(QChar(0x2026));
    return (from > 0 ? dots : QString()) + text.mid(from, to - from) +
           (to < text.size() ? dots : QString());
}

}  // namespace

QStringList searchWords(const QString& question) {
    static const QRegularExpression between(QStringLiteral("[^\\w']+"),
                                            QRegularExpression::UseUnicodePropertiesOption);
    return question.split(between, Qt::SkipEmptyParts);
}

void HelpPages::read() {
    if (!texts_.empty()) {
        return;
    }
    for (const forms::HelpPage& page : forms::helpPages()) {
        QFile file(pathOf(page));
        if (!file.open(QIODevice::ReadOnly)) {
            continue;
        }
        QString html = QString::fromUtf8(file.readAll());
        // The title is known, and stands in the page twice.
        const QString end = QStringLiteral("</h1>");
        const qsizetype heading = html.indexOf(end);
        html.remove(0, heading < 0 ? 0 : heading + end.size());
        const QString text = QTextDocumentFragment::fromHtml(html).toPlainText();
        QString plain = text;
        plain.remove(QChar::ObjectReplacementCharacter);
        texts_.push_back({.page = &page, .text = plain.simplified()});
    }
}

std::vector<HelpMatch> HelpPages::search(const QString& question) {
    const QStringList words = searchWords(question);
    if (words.isEmpty()) {
        return {};
    }
    read();
    struct Found {
        HelpMatch match;
        bool inTitle;
        int count;
    };
    std::vector<Found> found;
    for (const Text& one : texts_) {
        const QString title = QString::fromLatin1(one.page->title);
        if (!holdsAll(title + QLatin1Char(' ') + one.text, words)) {
            continue;
        }
        qsizetype first = one.text.size();
        for (const QString& word : words) {
            const qsizetype at = beginning(one.text, word);
            first = at >= 0 ? std::min(first, at) : first;
        }
        const qsizetype at = first == one.text.size() ? 0 : first;
        found.push_back({.match = {.page = one.page, .passage = passageAt(one.text, at)},
                         .inTitle = holdsAll(title, words),
                         .count = countOf(one.text, words)});
    }
    std::stable_sort(found.begin(), found.end(), [](const Found& a, const Found& b) {
        return std::tie(b.inTitle, b.count) < std::tie(a.inTitle, a.count);
    });
    std::vector<HelpMatch> matches;
    matches.reserve(found.size());
    for (Found& one : found) {
        matches.push_back(std::move(one.match));
    }
    return matches;
}

}  // namespace quorvel::shell
