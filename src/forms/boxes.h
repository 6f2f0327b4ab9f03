/// Message boxes behind an interface, so that a test can read and answer them.
#pragma once

#include <cstdint>

#include <QString>

namespace quorvel::forms {

/// Title of a box whose text names none: the program's.
inline const QString kProgramTitle = QStringLiteral("Quorvel");

struct Box {
    enum class Icon : std::uint8_t { none, information, question, exclamation, critical };
    enum class Buttons : std::uint8_t { ok, okCancel, yesNo, yesNoCancel };

    QString text;  ///< plain text, lines separated by "\n"
    QString title = kProgramTitle;
    Icon icon = Icon::none;
    Buttons buttons = Buttons::ok;
    /// For a question: Yes or OK takes away something that an author has made. Enter then answers
    /// No or Cancel.
    bool destroys = false;
    /// The caption of one more button, which answers `other`; empty for none.
    QString other = {};
};

enum class Answer : std::uint8_t { ok, cancel, yes, no, other };

/// The answer of a box that is closed with Escape or its frame: `cancel` or `no`, or `ok` where
/// that is the only button.
Answer answerByEscape(Box::Buttons buttons);

class Boxes {
  public:
    Boxes() = default;
    Boxes(const Boxes&) = delete;
    Boxes& operator=(const Boxes&) = delete;
    virtual ~Boxes() = default;

    /// Shows the box modally and returns the author's answer, `answerByEscape` where none is
    /// chosen.
    virtual Answer show(const Box& box) = 0;

    /// A plain box with an OK button.
    void tell(const QString& text) { show({.text = text}); }
};

/// The boxes that an author sees.
class MessageBoxes : public Boxes {
  public:
    Answer show(const Box& box) override;
};

}  // namespace quorvel::forms
