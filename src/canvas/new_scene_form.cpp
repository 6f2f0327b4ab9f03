#include "canvas/new_scene_form.h"

#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quorvel::canvas {
namespace {

constexpr std::array kSceneCaptions = {"Normal empty scene", "Auto-Closeup from current scene",
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
        options_[i] = new QRadioButton(QString::fromLatin1(kSceneCaptions[i]), frame);
        options_[i]->setObjectName(
            forms::elementName(QStringLiteral("Option1"), static_cast<int>(i)));
        options->addWidget(options_[i]);
    }
    options_.front()->setChecked(true);
    // Of a scene without a record there is nothing to begin with.
    for (std::size_t i = 1; i < options_.size(); ++i) {
        options_[i]->setEnabled(keeper_.isSceneStored());
    }

    QVBoxLayout* column = makeColumn();
    column->addWidget(frame);
    addButtonRow(column, {{"Command3", "Continue", [this] { Command3_Click(); },
                           forms::FormButton::Role::byEnter},
                          {"Command2", "Cancel", [this] { reject(); }},
                          {"Command4", "Help", help, forms::FormButton::Role::help}});
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
