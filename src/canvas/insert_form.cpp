#include "canvas/insert_form.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QShowEvent>
#include <QTimer>
#include <QVBoxLayout>

#include "forms/option_text.h"
#include "store/numbers.h"

namespace quorvel::canvas {
namespace {

constexpr std::array kTypeCaptions = {
    "Ambient (Non-interactive)",
    "HotSpot (Can link to another scene or map, more flexible than a Link Object)",
    "Goodie (An object that the player can pick up)",
    "Switch (Can be used to control other areas of the game)",
    "Reactor (Simple object that, when clicked, plays a sound and/ or animation)",
    "Responder (Hidden- Triggered by a flag change, and can perform several functions)",
    "Delay (Hidden- Can be triggered by a flag change, and sets a flag after X seconds)",
    "Multi-Trigger (Hidden- Triggered by a flag change and switches to another scene.  Supports "
    "up to 3 Flag changes.  May be used for multiple game endings)",
    "Conversation (Allows you to have multiple-choice conversations in your game)",
    "Flag Conjunction (Hidden- Sets a flag only if other specified flag equations are true)",
};

}  // namespace

newlink::newlink(const store::Scene& scene, forms::Boxes& boxes, const std::function<void()>& help,
                 QWidget* parent)
    : Form(QStringLiteral("newlink"), QStringLiteral("Insert New Object"), parent),
      scene_(scene),
      boxes_(boxes) {
    build(help);
}

void newlink::build(const std::function<void()>& help) {
    setMinimumWidth(560);
    auto* frame = new QGroupBox(
        QStringLiteral("Available Object Types (Choose one then click Continue)"), this);
    frame->setObjectName(QStringLiteral("Frame1"));
    auto* rows = new QVBoxLayout(frame);
    for (std::size_t type = 0; type < options_.size(); ++type) {
        auto* row = new forms::OptionText(QString::fromLatin1(kTypeCaptions[type]), frame);
        options_[type] = row->button();
        options_[type]->setObjectName(
            forms::elementName(QStringLiteral("Option1"), static_cast<int>(type)));
        rows->addWidget(row);
    }
    forms::OptionText::group(frame, {options_.begin(), options_.end()});

    auto* caption = new QLabel(QStringLiteral("INDEX # >"), this);
    caption->setObjectName(QStringLiteral("Label3"));
    indexes_ = new QComboBox(this);
    indexes_->setObjectName(QStringLiteral("Combo1"));
    indexes_->setAccessibleName(QStringLiteral("INDEX #"));
    caption->setBuddy(indexes_);
    auto* hint = new QLabel(
        QStringLiteral("The index # can be any unused # between 1 and 20.  Lower #s appear behind "
                       "higher #s.  For example: Index #2 will overlap Index #1; Index #3 will "
                       "overlap Index #s 2 and 1, etc.  (NOTE: If no objects will overlap, it "
                       "isn't necessary to use high index #s when lower ones are available.)"),
        this);
    hint->setObjectName(QStringLiteral("Label2"));
    hint->setWordWrap(true);

    auto* reminder = new QLabel(
        QStringLiteral("If you add a new object type, change the number in the Activate section to "
                       "clear all option boxes!"),
        this);
    reminder->setObjectName(QStringLiteral("Label1"));
    reminder->hide();

    auto* index = new QHBoxLayout;
    index->addWidget(caption, 0, Qt::AlignTop);
    index->addWidget(indexes_, 0, Qt::AlignTop);
    index->addSpacing(forms::kFormSpacing);
    index->addWidget(hint, 1);

    QVBoxLayout* column = makeColumn();
    column->addWidget(frame);
    column->addLayout(index);
    addButtonRow(column, {{"Command3", "Continue", [this] { Command3_Click(); },
                           forms::FormButton::Role::byEnter},
                          {"Command2", "Cancel", [this] { reject(); }},
                          {"Command4", "Help", help, forms::FormButton::Role::help}});
}

void newlink::showEvent(QShowEvent* event) {
    Form::showEvent(event);
    if (!event->spontaneous()) {
        forms::OptionText::clear({options_.begin(), options_.end()});
        fillFreeIndexes();
    }
}

void newlink::fillFreeIndexes() {
    indexes_->clear();
    for (int k = 1; k <= store::kSlotCount; ++k) {
        if (store::typeOf(scene_.slot(k)) == store::ObjectType::free) {
            indexes_->addItem(QString::number(k));
        }
    }
    if (indexes_->count() > 0) {
        indexes_->setCurrentIndex(0);
        return;
    }
    // A window cannot leave while it is being shown.
    QTimer::singleShot(0, this, [this] {
        boxes_.tell(
            QStringLiteral("According to calculations, all 20 objects are used.  This window "
                           "shouldn't have opened.  Please Report this error."));
        reject();
    });
}

void newlink::Command3_Click() {
    for (std::size_t type = 0; type < options_.size(); ++type) {
        if (options_[type]->isChecked()) {
            chosenType = static_cast<store::ObjectType>(type);
        }
    }
    chosenIndex = store::valInt(indexes_->currentText().toStdString());
    if (chosenType != store::ObjectType::free && chosenIndex > 0) {
        accept();
    }
}

}  // namespace quorvel::canvas
