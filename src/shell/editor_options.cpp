#include "shell/editor_options.h"

#include <span>

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QShowEvent>
#include <QVBoxLayout>

namespace quorvel::shell {
namespace {

/// Room for a text, in pixels; each frame within another takes its share.
constexpr int kOptionTextWidth = 530;

/// The number of the selected option, or `otherwise` when there is none.
int selected(std::span<QRadioButton* const> options, int otherwise) {
    for (std::size_t i = 0; i < options.size(); ++i) {
        if (options[i]->isChecked()) {
            return static_cast<int>(i) + 1;
        }
    }
    return otherwise;
}

/// Selects option `value`, counted from 1; none where the settings hold another number.
void select(std::span<QRadioButton* const> options, int value) {
    for (std::size_t i = 0; i < options.size(); ++i) {
        const bool on = static_cast<int>(i) + 1 == value;
        // An exclusive group would keep one option on.
        options[i]->setAutoExclusive(false);
        options[i]->setChecked(on);
        options[i]->setAutoExclusive(true);
        // The Tab key stops at the option that is on, the arrows go to the others.
        options[i]->setFocusPolicy(on ? Qt::StrongFocus : Qt::ClickFocus);
    }
    if (selected(options, 0) == 0) {
        options.front()->setFocusPolicy(Qt::StrongFocus);
    }
}

QGroupBox* frame(const QString& name, const QString& caption, QWidget* parent) {
    auto* box = new QGroupBox(caption, parent);
    box->setObjectName(name);
    auto* column = new QVBoxLayout(box);
    column->setSpacing(forms::kFormSpacing);
    return box;
}

}  // namespace

EdOptions::EdOptions(EditorSettings& settings, const std::function<void()>& help, QWidget* parent)
    : Form(QStringLiteral("EdOptions"), QStringLiteral("Editor Options"), parent),
      settings_(settings) {
    QVBoxLayout* column = makeColumn();
    column->addWidget(initialFolder());
    column->addWidget(wrongFolders());
    column->addWidget(quickTips());
    apply_ = addButtonRow(column, {{"Command3", "Apply", [this] { Command3_Click(); }},
                                   {"Command4", "OK", [this] { Command4_Click(); },
                                    forms::FormButton::Role::byEnter},
                                   {"Command2", "Cancel", [this] { reject(); }},
                                   {"Command5", "Help", help, forms::FormButton::Role::help}})
                 .front();
}

QWidget* EdOptions::initialFolder() {
    QWidget* box = frame(QStringLiteral("Frame1"), QStringLiteral("Initial 'Locate' Folder"), this);
    addText(box, QStringLiteral("Label4"),
            QStringLiteral("When choosing game-related files for the first time, make the default "
                           "'Locate' folder..."));
    const QString name = QStringLiteral("Option2");
    defaultFolder_ = {
        addOption(box, name, 0,
                  QStringLiteral("The project's appropriate \"Resource\" folder (\"Gfx\" or "
                                 "\"MMedia\")")),
        addOption(box, name, 1, QStringLiteral("The Quorvel \"Incoming\" folder")),
    };
    return box;
}

QWidget* EdOptions::wrongFolders() {
    QWidget* box = frame(QStringLiteral("Frame2"),
                         QStringLiteral("Game-related files (Graphics, sound, etc)"), this);
    QWidget* inner =
        frame(QStringLiteral("Frame3"), QStringLiteral("'Incorrect' source folders"), box);
    addText(inner, QStringLiteral("Label4"),
            QStringLiteral("When choosing game-related files from a folder other than the "
                           "project's \"Resource\" folders or the Quorvel \"Incoming\" "
                           "folder..."));
    const QString name = QStringLiteral("Option1");
    wrongFolder_ = {
        addOption(inner, name, 0,
                  QStringLiteral("COPY them to the project's appropriate \"Resource\" folder")),
        addOption(inner, name, 1,
                  QStringLiteral("MOVE them to the project's appropriate \"Resource\" folder")),
        addOption(inner, name, 2, QStringLiteral("ASK ME each time the situation arises")),
    };
    box->layout()->addWidget(inner);
    addText(box, QStringLiteral("Label3"),
            QStringLiteral("Files chosen from the 'Incoming' Folder are ALWAYS moved.\nPlease "
                           "consult the Help File for more information"));
    return box;
}

QWidget* EdOptions::quickTips() {
    QWidget* box = frame(QStringLiteral("Frame4"), QStringLiteral("Quick Tips"), this);
    addText(box, QStringLiteral("Label1"),
            QStringLiteral("Clicking this button will enable Quick Tips if you have turned them "
                           "off via a Quick Tip window."));
    auto* row = new QHBoxLayout;
    QPushButton* restore =
        addButton(row, QStringLiteral("Command1"), QStringLiteral("Restore Quick Tips"));
    restore->setAutoDefault(false);
    row->addStretch();
    static_cast<QVBoxLayout*>(box->layout())->addLayout(row);
    connect(restore, &QPushButton::clicked, this, [this] { settings_.RestoreQuickTips(); });
    return box;
}

QRadioButton* EdOptions::addOption(QWidget* frame, const QString& name, int index,
                                   const QString& caption) {
    auto* option = new QRadioButton(caption, frame);
    option->setObjectName(forms::elementName(name, index));
    frame->layout()->addWidget(option);
    connect(option, &QRadioButton::clicked, this, [this] { apply_->setEnabled(true); });
    return option;
}

QLabel* EdOptions::addText(QWidget* frame, const QString& name, const QString& text) {
    auto* label = new QLabel(text, frame);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(kOptionTextWidth);
    label->setMinimumHeight(label->heightForWidth(kOptionTextWidth));
    frame->layout()->addWidget(label);
    return label;
}

void EdOptions::showEvent(QShowEvent* event) {
    Form::showEvent(event);
    if (event->spontaneous()) {
        return;
    }
    select(defaultFolder_, settings_.DefaultFolder);
    select(wrongFolder_, settings_.WrongFolder);
    apply_->setEnabled(false);
}

void EdOptions::Command3_Click() {
    settings_.DefaultFolder = selected(defaultFolder_, settings_.DefaultFolder);
    settings_.WrongFolder = selected(wrongFolder_, settings_.WrongFolder);
    settings_.SaveEditorSettings();
    apply_->setEnabled(false);
}

void EdOptions::Command4_Click() {
    if (apply_->isEnabled()) {
        Command3_Click();
    }
    accept();
}

}  // namespace quorvel::shell
