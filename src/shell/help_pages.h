/// The pages of the help as text: what the search looks through.
#pragma once

#include <vector>

#include <QString>

#include "forms/help_topics.h"

namespace quorvel::shell {

/// A page that holds all words of a search.
struct HelpMatch {
    const forms::HelpPage* page;
    QString passage;  ///< the words around the first place where one of them stands
};

/// Reads a page once, when it is first looked through.
class HelpPages {
  public:
    /// `folder` holds the files, with a separator at its end.
    explicit HelpPages(QString folder) : folder_(std::move(folder)) {}

    [[nodiscard]] const QString& folder() const { return folder_; }
    [[nodiscard]] QString pathOf(const forms::HelpPage& page) const {
        return folder_ + QString::fromLatin1(page.file);
    }

    /// The pages with all words of `question`: those with the words in the title first, then those
    /// that hold them most often. Letter case does not count; a word may be the beginning of
    /// another.
    [[nodiscard]] std::vector<HelpMatch> search(const QString& question);

  private:
    struct Text {
        const forms::HelpPage* page;
        QString text;  ///< without tags, blanks simplified
    };
    void read();

    QString folder_;
    std::vector<Text> texts_;
};

/// The words of a search.
QStringList searchWords(const QString& question);

}  // namespace quorvel::shell
