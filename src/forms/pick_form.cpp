#include "forms/pick_form.h"

#include <array>

#include <QLabel>
#include <QVBoxLayout>

namespace quorvel::forms {
namespace {

/// Wide enough for the first text in one line, in pixels.
constexpr int kTextWidth = 500;

constexpr std::array kTexts = {
    "The file you have chosen is not in the project's correct \"resource\" folder.",
    "What would you like to do?",
    "NOTE: You can have this automatically decided for you!  Choose 'Editor Options' from the "
    "Options Menu on the main window.",
};

}  // namespace

PickCM::PickCM(QWidget* parent)
    : StandingForm(QStringLiteral("PickCM"), QStringLiteral("Quorvel"), parent) {
    QVBoxLayout* column = makeColumn();
    for (std::size_t i = 0; i < kTexts.size(); ++i) {
        auto* label = new QLabel(QString::fromLatin1(kTexts.at(i)), this);
        label->setObjectName(QStringLiteral("Label%1").arg(i + 1));
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setFixedWidth(kTextWidth);
        label->setMinimumHeight(label->heightForWidth(kTextWidth));
        column->addWidget(label);
    }
    addButtonRow(column, {{"Command1(0)", "COPY the file", [this] { Command1_Click(0); },
                           FormButton::Role::byEnter},
                          {"Command1(1)", "MOVE the file", [this] { Command1_Click(1); }}});
}

void PickCM::Command1_Click(int index) {
    PickChoice = index == 0 ? resources::Pick::copy : resources::Pick::move;
    accept();
}

}  // namespace quorvel::forms
