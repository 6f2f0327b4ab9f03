#include "canvas/new_scene_form.h"

#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quorvel::canvas {
namespace {

constexpr std::array kCaptions = {"Normal empty scene", "Auto-Closeup from current scene",
                                  "Exact Copy of the current scene"};
constexpr std::array kModes = {NewScene::empty, NewScene::closeup, NewScene::exactCopy};

}  // namespace

NewScenefrm::NewScenefrm(SceneKeeper& keeper, const std::function<void()>& help, QWidget* parent)
    : Form(QStringLiteral("NewScenefrm"), QStringLiteral("Add New Scene"), parent),
      keeper_(keeper) {
    auto* frame = new QGroupBox(QStringLiteral("New Scene Options"), this);
    frame->setObjectName(QStringLiteral("Frame1"));
    auto* options = new QVBoxLayout(frame);
    for (std::size_t i = 0; i < options_.size(); ++i) {
        options_[i] = new QRadioButton(QString::fromLatin1(kCaptions[i]), frame);
        options_[i]->setObjectName(
            forms::elementName(QStringLiteral("Option1"), static_cast<int>(i)));
        options->addWidget(options_[i]);
    }
    options_.front()->setChecked(true);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    QPushButton* go = addButton(buttons, QStringLiteral("Command3"), QStringLiteral("Continue"));
    QPushButton* cancel = addButton(buttons, QStringLiteral("Command2"), QStringLiteral("Cancel"));
    QPushButton* helpButton =
        addButton(buttons, QStringLiteral("Command4"), QStringLiteral("Help"));
    go->setDefault(true);
    cancel->setAutoDefault(false);
    helpButton->setAutoDefault(false);
    helpButton->setEnabled(help != nullptr);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(forms::kFormMargin, forms::kFormMargin, forms::kFormMargin,
                               forms::kFormMargin);
    column->setSpacing(forms::kFormSpacing);
    column->addWidget(frame);
    column->addLayout(buttons);

    connect(go, &QPushButton::clicked, this, [this] { Command3_Click(); });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    if (help) {
        connect(helpButton, &QPushButton::clicked, this, help);
    }
}

void NewScenefrm::Command3_Click() {
    for (std::size_t i = 0; i < options_.size(); ++i) {
        if (options_[i]->isChecked()) {
            keeper_.AddScene(kModes[i]);
        }
    }
    accept();
}

}  // namespace quorvel::canvas
