#include "canvas/resize_form.h"

#include <utility>

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "canvas/texts.h"
#include "forms/number_problem.h"
#include "store/numbers.h"

namespace quorvel::canvas {
namespace {

constexpr int kLeastCustomSide = 5;
constexpr int kCustom = 3;
constexpr int kRestore = 4;
constexpr std::array<std::int16_t, 3> kPresets = {20, 60, 100};
constexpr std::array kOptionCaptions = {
    "Preset 1 - Small     (20h X 20w)", "Preset 2 - Medium (60h X 60w)",
    "Preset 3 - Large    (100h X 100w)", "Custom size", "Restore default size and position"};
constexpr std::array kSizeCaptions = {"Current Width >", "Current Height >", "Proposed Width >",
                                      "Proposed Height >"};

/// Where "Restore default size and position" puts a link. The lower one goes to another place than
/// in a new scene: authors' scenes rely on it.
Place restoredPlace(store::LinkSide side) {
    const store::EdgeLink link = store::defaultLink(side);
    if (side == store::LinkSide::down) {
        return {.left = 442, .top = 32, .width = link.width, .height = link.height};
    }
    return {.left = link.left, .top = link.top, .width = link.width, .height = link.height};
}

}  // namespace

ResizeD::ResizeD(Link link, forms::Boxes& boxes, const std::function<void()>& help, QWidget* parent)
    : Form(QStringLiteral("ResizeD"), QStringLiteral("Resize \"Link\" Object"), parent),
      link_(std::move(link)),
      boxes_(boxes) {
    build(help);
    showSizes();
}

void ResizeD::build(const std::function<void()>& help) {
    auto* caption = new QLabel(directionName(link_.side), this);
    caption->setObjectName(QStringLiteral("Label1"));
    QFont bold = caption->font();
    bold.setBold(true);
    caption->setFont(bold);
    auto* index = new QLabel(QString::number(static_cast<int>(link_.side)), this);
    index->setObjectName(QStringLiteral("HSInd"));
    auto* heading = new QHBoxLayout;
    heading->addWidget(new QLabel(QStringLiteral("Link Index #"), this));
    heading->addWidget(index);
    heading->addSpacing(forms::kFormSpacing);
    heading->addWidget(caption, 1);

    QVBoxLayout* column = makeColumn();
    column->addLayout(heading);
    column->addWidget(buildOptions());
    column->addWidget(buildSizes());
    const auto buttons = addButtonRow(
        column, {{"Command1", "Apply", [this] { apply(); }},
                 {"Command2", "Cancel", [this] { reject(); }},
                 {"Command3", "OK", [this] { Command3_Click(); }, forms::FormButton::Role::byEnter},
                 {"Command4", "Help", help, forms::FormButton::Role::help}});
    applyButton_ = buttons.front();
    applyButton_->setEnabled(false);
}

QWidget* ResizeD::buildOptions() {
    auto* frame = new QGroupBox(this);
    frame->setObjectName(QStringLiteral("Frame1"));
    frame->setAccessibleName(QStringLiteral("Size"));
    auto* rows = new QVBoxLayout(frame);
    for (std::size_t i = 0; i < options_.size(); ++i) {
        const int at = static_cast<int>(i);
        options_[i] = new QRadioButton(QString::fromLatin1(kOptionCaptions[i]), frame);
        options_[i]->setObjectName(forms::elementName(QStringLiteral("Option1"), at));
        connect(options_[i], &QRadioButton::clicked, this, [this, at] { Option1_Click(at); });
        rows->addWidget(options_[i]);
        if (at != kCustom) {
            continue;
        }
        auto* row = new QHBoxLayout;
        row->addSpacing(24);
        constexpr std::array kNames = {"Custom Height", "Custom Width"};
        constexpr std::array kUnits = {"h", "w"};
        for (std::size_t side = 0; side < custom_.size(); ++side) {
            custom_[side] = new QLineEdit(frame);
            custom_[side]->setObjectName(
                forms::elementName(QStringLiteral("Text1"), static_cast<int>(side)));
            custom_[side]->setToolTip(QString::fromLatin1(kNames[side]));
            custom_[side]->setAccessibleName(QString::fromLatin1(kNames[side]));
            custom_[side]->setMaximumWidth(70);
            custom_[side]->setValidator(new QRegularExpressionValidator(
                QRegularExpression(QStringLiteral("[0-9]*")), custom_[side]));
            connect(custom_[side], &QLineEdit::textEdited, this, [this] { Text1_Change(); });
            row->addWidget(custom_[side]);
            row->addWidget(new QLabel(QString::fromLatin1(kUnits[side]), frame));
            if (side == 0) {
                auto* by = new QLabel(QStringLiteral("X"), frame);
                by->setObjectName(QStringLiteral("Label5"));
                row->addWidget(by);
            }
        }
        row->addStretch();
        rows->addLayout(row);
    }
    restoreIt_ = new QLabel(QStringLiteral("* RESTORE POSITION *"), frame);
    restoreIt_->setObjectName(QStringLiteral("RestoreIt"));
    QSizePolicy keepsRoom = restoreIt_->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(true);
    restoreIt_->setSizePolicy(keepsRoom);
    restoreIt_->hide();
    rows->addWidget(restoreIt_, 0, Qt::AlignHCenter);
    return frame;
}

QWidget* ResizeD::buildSizes() {
    auto* frame = new QWidget(this);
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(0, 0, 0, 0);
    constexpr std::array kNames = {"Label4(0)", "Label4(1)", "Label6(0)", "Label6(1)"};
    for (std::size_t i = 0; i < sizes_.size(); ++i) {
        const int row = static_cast<int>(i % 2);
        const int column = static_cast<int>(i / 2) * 2;
        grid->addWidget(new QLabel(QString::fromLatin1(kSizeCaptions[i]), frame), row, column);
        sizes_[i] = new QLabel(frame);
        sizes_[i]->setObjectName(QString::fromLatin1(kNames[i]));
        grid->addWidget(sizes_[i], row, column + 1);
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    return frame;
}

int ResizeD::chosen() const {
    for (std::size_t i = 0; i < options_.size(); ++i) {
        if (options_[i]->isChecked()) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

Place ResizeD::proposed() const {
    Place place = link_.place();
    const int option = chosen();
    if (option >= 0 && option < kCustom) {
        place.height = place.width = kPresets[static_cast<std::size_t>(option)];
    } else if (option == kCustom) {
        place.height = pixel(customSide(0));
        place.width = pixel(customSide(1));
    } else if (option == kRestore) {
        place = restoredPlace(link_.side);
    }
    return place;
}

int ResizeD::customSide(std::size_t side) const {
    return store::valInt(custom_.at(side)->text().toStdString());
}

void ResizeD::showSizes() {
    const Place current = link_.place();
    const Place next = proposed();
    std::array<int, 4> numbers = {current.width, current.height, next.width, next.height};
    if (chosen() == kCustom) {
        // As typed, also what will be refused.
        numbers[2] = customSide(1);
        numbers[3] = customSide(0);
    }
    for (std::size_t i = 0; i < sizes_.size(); ++i) {
        sizes_[i]->setText(QString::number(numbers[i]));
    }
    restoreIt_->setVisible(chosen() == kRestore);
}

void ResizeD::Option1_Click(int index) {
    if (index == kCustom) {
        custom_[0]->setFocus();
    }
    applyButton_->setEnabled(true);
    showSizes();
}

void ResizeD::Text1_Change() {
    options_[kCustom]->setChecked(true);
    applyButton_->setEnabled(true);
    showSizes();
}

/// Whether a link can have the size that was typed; tells why not.
bool ResizeD::checkCustom() {
    if (customSide(0) < kLeastCustomSide || customSide(1) < kLeastCustomSide) {
        boxes_.tell(QStringLiteral("Custom size is too small!  Minimum size is 5h X 5w."));
        return false;
    }
    for (QLineEdit* box : custom_) {
        const QString problem = forms::numberProblem(box->text(), kLeastCustomSide);
        if (!problem.isEmpty()) {
            boxes_.show({.text = problem, .icon = forms::Box::Icon::exclamation});
            box->setFocus();
            box->selectAll();
            return false;
        }
    }
    return true;
}

bool ResizeD::apply() {
    if (chosen() == kCustom && !checkCustom()) {
        return false;
    }
    link_.setPlace(proposed());
    applyButton_->setEnabled(false);
    showSizes();
    return true;
}

void ResizeD::Command3_Click() {
    if (!applyButton_->isEnabled() || apply()) {
        accept();
    }
}

}  // namespace quorvel::canvas
