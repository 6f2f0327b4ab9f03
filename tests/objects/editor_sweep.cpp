#include "objects/editor_sweep.h"

#include <set>

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QDial>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace quorvel::test {
namespace {

template <class... Kinds>
bool isAny(const QWidget& widget) {
    return ((qobject_cast<const Kinds*>(&widget) != nullptr) || ...);
}

/// What an author can put something in with.
bool isInput(const QWidget& widget) {
    const auto* group = qobject_cast<const QGroupBox*>(&widget);
    return isAny<QLineEdit, QAbstractButton, QComboBox, QSlider, QDial, QTabBar, QAbstractSpinBox,
                 QAbstractItemView, QTextEdit, QPlainTextEdit>(widget) ||
           (group != nullptr && group->isCheckable());
}

/// The inputs of a window, without the pieces that Qt makes some of them of.
std::vector<const QWidget*> inputs(const QWidget& window) {
    std::vector<const QWidget*> found;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        bool piece = false;
        for (const QWidget* around = widget->parentWidget(); around != &window && !piece;
             around = around->parentWidget()) {
            piece = isAny<QComboBox, QTabBar, QAbstractSpinBox, QAbstractItemView>(*around);
        }
        if (isInput(*widget) && !piece) {
            found.push_back(widget);
        }
    }
    return found;
}

/// Whether the author can change the control, on whatever page it is. An option that is on cannot
/// be switched off.
bool isChangeable(const QWidget& widget) {
    const auto* radio = qobject_cast<const QRadioButton*>(&widget);
    return widget.isEnabledTo(widget.window()) && (radio == nullptr || !radio->isChecked());
}

/// Turns to the page that shows the control, as the author has to.
void reveal(const Hand& hand, const QWidget& widget) {
    auto* pages = hand.window().findChild<QTabBar*>(QStringLiteral("Pages"));
    for (int page = 0; pages != nullptr && !widget.isVisible() && page < pages->count(); ++page) {
        pages->setCurrentIndex(page);
    }
    EXPECT_TRUE(widget.isVisible()) << "on no page";
}

void type(QLineEdit& edit) {
    if (edit.isReadOnly()) {
        QTest::mouseDClick(&edit, Qt::LeftButton);
        return;
    }
    edit.setFocus();
    edit.selectAll();
    QTest::keyClicks(
        &edit, edit.text() == QStringLiteral("31") ? QStringLiteral("32") : QStringLiteral("31"));
}

/// "field: before > after" for each field that differs, for messages.
std::string difference(const Fields& before, const Fields& after) {
    std::string told;
    for (const auto& [name, value] : before) {
        if (after.at(name) != value) {
            told += name + ": " + value + " > " + after.at(name) + "; ";
        }
    }
    return told;
}

/// Whether there is something to save.
void expectApply(const Hand& hand, const SweptWindow& window, bool enabled) {
    const std::string& apply = window.buttons.apply;
    EXPECT_TRUE(apply.empty() || hand.button(apply.c_str()).isEnabled() == enabled);
}

}  // namespace

SweepStage::SweepStage() {
    ProjectBuilder builder;
    builder.scenes(kScenes).items(3).locations(3).cards(3);
    builder.gfx("one.gif", stillGif(40, 30)).gfx("two.gif", stillGif(12, 16));
    for (const char* file : {"a.wav", "b.wav", "c.mid", "d.avi", "e.avi"}) {
        builder.mmedia(file, file);
    }
    for (const int slot : {1, kSlot, kSlot + 1}) {
        builder.object(1, slot, 1, 10, 20);
    }
    open(builder);
}

std::string SweepStage::sceneBytes(const std::function<void(store::Scene&)>& blank) {
    store::Scene copy = scene();
    blank(copy);
    const store::SceneRecord record = copy.toRecord();
    return {reinterpret_cast<const char*>(&record), sizeof record};
}

void SweepStage::expectCovered(const SweptWindow& window) {
    const SweepTable& table = window.table;
    for (const std::string& fault : table.faults()) {
        ADD_FAILURE() << fault;
    }
    const SweptWindow::Buttons& buttons = window.buttons;
    const std::set<std::string> ofAll = {buttons.apply, buttons.cancel, buttons.ok, buttons.help,
                                         "Pages"};
    std::set<std::string> there;
    window.reset();
    window.open([&](const Hand& hand) {
        for (const QWidget* input : inputs(hand.window())) {
            const std::string name = input->objectName().toStdString();
            EXPECT_FALSE(name.empty()) << "a nameless " << input->metaObject()->className();
            EXPECT_TRUE(there.insert(name).second) << "two controls are named " << name;
            const int told = static_cast<int>(ofAll.contains(name)) +
                             static_cast<int>(table.effects().contains(name)) +
                             static_cast<int>(table.left().contains(name));
            EXPECT_EQ(told, 1) << "the table does not say what '" << name << "' does, a "
                               << input->metaObject()->className();
        }
        hand.click(buttons.ok.c_str());
    });
    for (const auto& [name, effect] : table.effects()) {
        EXPECT_TRUE(there.contains(name)) << "the window has no " << name;
    }
    for (const auto& [name, reason] : table.left()) {
        EXPECT_TRUE(there.contains(name)) << "the window has no " << name;
        EXPECT_FALSE(reason.empty()) << name;
    }
}

std::vector<SweepStage::Move> SweepStage::moves(const SweptWindow& window) {
    std::vector<Move> found;
    window.reset();
    window.open([&](const Hand& hand) {
        for (const QWidget* input : inputs(hand.window())) {
            const std::string name = input->objectName().toStdString();
            if (!isChangeable(*input) || !window.table.effects().contains(name)) {
                continue;
            }
            found.push_back({.control = name});
            if (qobject_cast<const QComboBox*>(input) != nullptr) {
                found.push_back({.control = name, .back = true});
            }
        }
        hand.click(window.buttons.ok.c_str());
    });
    return found;
}

void SweepStage::sweep(const SweptWindow& window) {
    leavesAll(window, window.buttons.ok, nullptr);
    for (const Move& move : moves(window)) {
        SCOPED_TRACE(move.control + (move.back ? ", back" : ""));
        if (!window.buttons.cancel.empty()) {
            leavesAll(window, window.buttons.cancel, &move);
        }
        changesItsField(window, move);
    }
}

/// `move` is what the author does before, or null.
void SweepStage::leavesAll(const SweptWindow& window, const std::string& button, const Move* move) {
    window.reset();
    const Fields before = window.opened(window.fields());
    const std::string others = window.others();
    window.open([&](const Hand& hand) {
        if (move != nullptr) {
            make(hand, *move, window.table.effects().at(move->control));
        }
        expectApply(hand, window, move != nullptr);
        hand.click(button.c_str());
        EXPECT_FALSE(hand.window().isVisible());
    });
    EXPECT_EQ(difference(before, window.fields()), "") << button << " changes something";
    EXPECT_TRUE(window.others() == others) << button << " changes something beside the record";
}

void SweepStage::changesItsField(const SweptWindow& window, const Move& move) {
    const Effect& effect = window.table.effects().at(move.control);
    window.reset();
    const Fields before = window.settled(window.opened(window.fields()));
    const std::string others = window.others();
    window.open([&](const Hand& hand) {
        make(hand, move, effect);
        expectApply(hand, window, true);
        hand.click(window.buttons.ok.c_str());
        EXPECT_FALSE(hand.window().isVisible());
    });
    const Fields now = window.fields();
    if (!effect.value) {
        EXPECT_NE(now.at(effect.field), before.at(effect.field)) << "does not change its field";
    }
    Fields expected = before;
    expected.at(effect.field) = effect.value.value_or(now.at(effect.field));
    for (const auto& [field, value] : effect.sets) {
        expected.at(field) = value;
    }
    if (effect.follows) {
        effect.follows(before, expected);
    }
    EXPECT_EQ(difference(window.settled(expected), now), "") << "expected > found";
    EXPECT_TRUE(window.others() == others) << "changes something beside the record";
}

void SweepStage::make(const Hand& hand, const Move& move, const Effect& effect) {
    auto& widget = control<QWidget>(hand.window(), QString::fromStdString(move.control));
    reveal(hand, widget);
    if (effect.file != Effect::File::none) {
        dialogs.choice = text(effect.file == Effect::File::gfx ? files.gfx(*effect.value)
                                                               : files.mmedia(*effect.value));
    }
    if (auto* list = qobject_cast<QComboBox*>(&widget)) {
        const int count = list->count();
        const int step = move.back ? count - 1 : 1;
        hand.pick(move.control.c_str(), (std::max(list->currentIndex(), 0) + step) % count);
    } else if (auto* slider = qobject_cast<QSlider*>(&widget)) {
        slider->setValue(slider->value() > slider->minimum() ? slider->value() - 1
                                                             : slider->maximum());
    } else if (auto* edit = qobject_cast<QLineEdit*>(&widget)) {
        type(*edit);
    } else {
        hand.click(move.control.c_str());
    }
}

}  // namespace quorvel::test
