#include "groups/controls.h"

#include <algorithm>

#include <QButtonGroup>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QVBoxLayout>

#include "forms/form.h"

namespace quorvel::groups {
namespace {

constexpr int kTextFlags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap;
constexpr int kLongLine = 10000;
constexpr int kChannels = 16;
/// Where a long caption breaks when nothing else says so, in pixels.
constexpr int kNarrow = 260;

}  // namespace

Frame makeFrame(const char* name, const char* caption, QWidget* parent) {
    auto* box = new QGroupBox(QString::fromLatin1(caption), parent);
    box->setObjectName(QString::fromLatin1(name));
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(8, 4, 8, 6);
    column->setSpacing(4);
    return {box, column};
}

QHBoxLayout* makeRow(const std::vector<QWidget*>& widgets, const QWidget* wide) {
    auto* row = new QHBoxLayout;
    for (QWidget* widget : widgets) {
        row->addWidget(widget, widget == wide ? 1 : 0);
    }
    if (wide == nullptr) {
        row->addStretch();
    }
    return row;
}

void addAll(QVBoxLayout* column, const std::vector<QWidget*>& widgets) {
    for (QWidget* widget : widgets) {
        column->addWidget(widget);
    }
}

std::array<QVBoxLayout*, 2> addHalves(QVBoxLayout* column) {
    auto* halves = new QHBoxLayout;
    halves->setSpacing(forms::kFormSpacing);
    std::array<QVBoxLayout*, 2> made{};
    for (QVBoxLayout*& half : made) {
        half = new QVBoxLayout;
        half->setSpacing(forms::kFormSpacing);
        halves->addLayout(half, 1);
    }
    column->addLayout(halves);
    return made;
}

QLabel* makeLabel(const char* text, QWidget* parent, const char* name) {
    auto* label = new QLabel(QString::fromLatin1(text), parent);
    label->setTextFormat(Qt::PlainText);
    label->setObjectName(QString::fromLatin1(name));
    return label;
}

WrapCheck::WrapCheck(const QString& caption, QWidget* parent) : QCheckBox(caption, parent) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QRect WrapCheck::textArea(int width) const {
    QStyleOptionButton option;
    initStyleOption(&option);
    option.rect = QRect(0, 0, width, kLongLine);
    const int left = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this).left();
    return {left, 0, std::max(width - left, 1), kLongLine};
}

int WrapCheck::heightForWidth(int width) const {
    const int text = fontMetrics().boundingRect(textArea(width), kTextFlags, this->text()).height();
    return std::max(text + 2, QCheckBox::sizeHint().height());
}

QSize WrapCheck::minimumSizeHint() const {
    const int width = std::min(kNarrow, QCheckBox::sizeHint().width());
    return {width, heightForWidth(std::max(width, this->width()))};
}

QSize WrapCheck::sizeHint() const {
    const int width = std::max(minimumSizeHint().width(), this->width());
    return {width, heightForWidth(width)};
}

void WrapCheck::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    QStyleOptionButton indicator = option;
    indicator.rect = style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, this);
    painter.drawPrimitive(QStyle::PE_IndicatorCheckBox, indicator);
    QRect area = textArea(width());
    area.setHeight(height());
    painter.drawItemText(area, kTextFlags, palette(), isEnabled(), text(), QPalette::WindowText);
    if (hasFocus() && (option.state & QStyle::State_KeyboardFocusChange) != 0) {
        QStyleOptionFocusRect frame;
        frame.QStyleOption::operator=(option);
        frame.rect = area.adjusted(-2, 0, 0, 0);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, frame);
    }
}

QCheckBox* makeCheck(const char* name, const char* caption, QWidget* parent) {
    auto* check = new QCheckBox(QString::fromLatin1(caption), parent);
    check->setObjectName(QString::fromLatin1(name));
    return check;
}

WrapCheck* makeWrapCheck(const char* name, const char* caption, QWidget* parent) {
    auto* check = new WrapCheck(QString::fromLatin1(caption), parent);
    check->setObjectName(QString::fromLatin1(name));
    return check;
}

QComboBox* makeList(const QString& name, const QString& spoken, const QStringList& entries,
                    QWidget* parent) {
    auto* list = new QComboBox(parent);
    list->setObjectName(name);
    list->setAccessibleName(spoken);
    list->addItems(entries);
    return list;
}

QPushButton* makeSmallButton(const QString& name, const char* caption, const QString& spoken,
                             QWidget* parent) {
    auto* button = new QPushButton(QString::fromLatin1(caption), parent);
    button->setObjectName(name);
    button->setAccessibleName(spoken);
    button->setAutoDefault(false);
    constexpr int kPadding = 14;
    const int width = std::max(button->fontMetrics().horizontalAdvance(QStringLiteral("...")),
                               button->fontMetrics().horizontalAdvance(button->text())) +
                      kPadding;
    button->setFixedWidth(width);
    return button;
}

OptionGroup::OptionGroup(const char* name, int firstIndex, const std::vector<const char*>& captions,
                         QWidget* parent)
    : QObject(parent), firstIndex_(firstIndex) {
    auto* group = new QButtonGroup(this);
    int index = firstIndex;
    for (const char* caption : captions) {
        auto* option = new QRadioButton(QString::fromLatin1(caption), parent);
        option->setObjectName(forms::elementName(QString::fromLatin1(name), index));
        connect(option, &QRadioButton::clicked, this, [this, index] { Q_EMIT clicked(index); });
        group->addButton(option);
        options_.push_back(option);
        ++index;
    }
    connect(group, &QButtonGroup::buttonToggled, this, &OptionGroup::followFocus);
    followFocus();
}

/// The Tab key stops at the option that is on, the arrows go to the others.
void OptionGroup::followFocus() {
    const bool none = !chosen().has_value();
    for (QRadioButton* option : options_) {
        const bool stop = option->isChecked() || (none && option == first());
        option->setFocusPolicy(stop ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

QRadioButton* OptionGroup::option(int index) const {
    return options_.at(static_cast<std::size_t>(index - firstIndex_));
}

std::optional<int> OptionGroup::chosen() const {
    const auto on =
        std::ranges::find_if(options_, [](auto* option) { return option->isChecked(); });
    return on == options_.end()
               ? std::nullopt
               : std::optional(firstIndex_ + static_cast<int>(on - options_.begin()));
}

void OptionGroup::choose(int index) {
    QButtonGroup* group = first()->group();
    // An exclusive group would keep one option on.
    group->setExclusive(false);
    for (std::size_t i = 0; i < options_.size(); ++i) {
        options_[i]->setChecked(firstIndex_ + static_cast<int>(i) == index);
    }
    group->setExclusive(true);
}

ChannelList::ChannelList(const QString& name, QWidget* parent) : QComboBox(parent) {
    setObjectName(name);
    setAccessibleName(QStringLiteral("Wav Ch"));
    addItem(QStringLiteral("(Auto/Index)"));
    for (int channel = 1; channel <= kChannels - 3; ++channel) {
        addItem(QStringLiteral("Ch%1").arg(channel));
    }
    addItem(QStringLiteral("(Persistent)"));
    addItem(QStringLiteral("(Dialogue)"));
}

int ChannelList::reading(int stored) {
    return stored >= 0 && stored < kChannels ? stored : 0;
}

QStringList comparisons() {
    return {QStringLiteral("="), QStringLiteral("<>"), QStringLiteral("<"), QStringLiteral(">")};
}

}  // namespace quorvel::groups
