#include "groups/sheet.h"

#include <algorithm>
#include <optional>
#include <utility>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QScopedValueRollback>

#include "forms/record_list.h"
#include "groups/controls.h"
#include "groups/level.h"
#include "groups/number_box.h"
#include "store/numbers.h"

namespace quorvel::groups {
namespace {

std::optional<int> indexOf(const QComboBox& list) {
    return list.currentIndex() < 0 ? std::nullopt : std::optional(list.currentIndex());
}

/// Shows the entry of an index, or none where there is no such entry.
void showIndex(QComboBox& list, int index) {
    list.setCurrentIndex(index < list.count() ? index : -1);
}

/// How a control shows a number.
struct NumberFace {
    QWidget* control;
    std::function<void(int)> show;
    /// Nothing when the control shows no value.
    std::function<std::optional<int>()> value;
    /// What a stored value stands for, where that is another.
    std::function<int(int)> reading = [](int stored) { return stored; };
};

class NumberBinding : public Binding {
  public:
    NumberBinding(NumberRef field, NumberFace face)
        : field_(std::move(field)), face_(std::move(face)) {}

    void load() override {
        kept_ = face_.reading(field_.get());
        face_.show(kept_);
        shown_ = face_.value();
    }
    void store() override {
        const auto value = face_.value();
        if (value != shown_) {
            kept_ = value.value_or(0);
            shown_ = value;
        }
        field_.set(static_cast<std::int16_t>(kept_));
    }
    [[nodiscard]] QString problem() const override {
        const auto* box = qobject_cast<const NumberBox*>(face_.control);
        return box == nullptr ? QString() : box->problem();
    }
    [[nodiscard]] QWidget* control() const override { return face_.control; }

  private:
    NumberRef field_;
    NumberFace face_;
    int kept_ = 0;
    std::optional<int> shown_;
};

class TextBinding : public Binding {
  public:
    TextBinding(TextRef field, QLineEdit* box) : field_(std::move(field)), box_(box) {
        if (qobject_cast<NumberBox*>(box) != nullptr) {
            // Digits that the record would cut off make it another number.
            constexpr int kFieldWidth = 15;
            box->setMaxLength(kFieldWidth);
        }
    }

    void load() override {
        kept_ = field_.get();
        box_->setText(kept_);
        shown_ = box_->text();
    }
    void store() override {
        if (box_->text() != shown_) {
            kept_ = shown_ = box_->text();
        }
        field_.set(kept_);
    }
    [[nodiscard]] QString problem() const override {
        const auto* number = qobject_cast<const NumberBox*>(box_);
        return number == nullptr ? QString() : number->problem();
    }
    [[nodiscard]] QWidget* control() const override { return box_; }

  private:
    TextRef field_;
    QLineEdit* box_;
    QString kept_;
    QString shown_;
};

class DecimalBinding : public Binding {
  public:
    DecimalBinding(TextRef field, QComboBox* list) : field_(std::move(field)), list_(list) {}

    void load() override {
        showIndex(*list_, store::valInt(field_.get().toStdString()));
        shown_ = list_->currentIndex();
    }
    void store() override {
        const int index = list_->currentIndex();
        // A text that the list has no entry for stays while the list shows none.
        if (index >= 0 || index != shown_) {
            field_.set(QString::number(std::max(index, 0)));
        }
    }
    [[nodiscard]] QWidget* control() const override { return list_; }

  private:
    TextRef field_;
    QComboBox* list_;
    int shown_ = -1;
};

}  // namespace

void Sheet::expectSound() {
    if (!std::exchange(soundExpected_, true)) {
        connect(this, &Sheet::activated, this, [this] { tools_.preview.prepare(); });
    }
}

void Sheet::touch() {
    if (!filling_) {
        Q_EMIT touched();
    }
}

void Sheet::bind(const NumberRef& field, QCheckBox* check) {
    bind(std::make_unique<NumberBinding>(
        field,
        NumberFace{.control = check,
                   .show = [check](int on) { check->setChecked(on != 0); },
                   .value = [check]() -> std::optional<int> { return check->isChecked(); }}));
}

void Sheet::bind(const NumberRef& field, NumberBox* box) {
    bind(std::make_unique<NumberBinding>(
        field, NumberFace{.control = box,
                          .show = [box](int number) { box->setText(QString::number(number)); },
                          .value = [box]() -> std::optional<int> { return box->number(); }}));
}

void Sheet::bind(const NumberRef& field, OptionGroup* options) {
    bind(std::make_unique<NumberBinding>(
        field, NumberFace{.control = options->first(),
                          .show = [options](int index) { options->choose(index); },
                          .value = [options] { return options->chosen(); },
                          .reading = [options](int stored) { return options->reading(stored); }}));
}

void Sheet::bind(const NumberRef& field, Level* level) {
    bind(std::make_unique<NumberBinding>(
        field, NumberFace{.control = level->slider(),
                          .show = [level](int value) { level->show(value); },
                          .value = [level]() -> std::optional<int> { return level->value(); }}));
}

void Sheet::bindSlider(const NumberRef& field, Level* level) {
    bind(std::make_unique<NumberBinding>(
        field,
        NumberFace{.control = level->slider(),
                   .show = [level](int value) { level->setValue(value); },
                   .value = [level]() -> std::optional<int> { return level->slider()->value(); },
                   .reading =
                       [slider = level->slider()](int stored) {
                           return std::clamp(stored, slider->minimum(), slider->maximum());
                       }}));
}

void Sheet::bindMovieVolume(const NumberRef& field, Level* level) {
    bind(std::make_unique<NumberBinding>(
        field, NumberFace{.control = level->slider(),
                          .show = [level](int value) { level->show(value); },
                          .value = [level]() -> std::optional<int> { return level->value(); },
                          .reading =
                              [field](int stored) {
                                  if (stored > kMovieVolume.highest) {
                                      field.set(static_cast<std::int16_t>(kMovieVolume.highest));
                                  }
                                  return std::min(stored, kMovieVolume.highest);
                              }}));
}

void Sheet::bind(const NumberRef& field, forms::RecordList* list) {
    bind(std::make_unique<NumberBinding>(
        field, NumberFace{.control = list,
                          .show = [list](int number) { list->choose(number); },
                          .value = [list] { return list->chosen(); }}));
}

void Sheet::bind(const NumberRef& field, ChannelList* list) {
    bind(std::make_unique<NumberBinding>(
        field, NumberFace{.control = list,
                          .show = [list](int channel) { list->setCurrentIndex(channel); },
                          .value = [list] { return indexOf(*list); },
                          .reading = [](int stored) { return ChannelList::reading(stored); }}));
}

void Sheet::bind(const NumberRef& field, QComboBox* list) {
    bind(std::make_unique<NumberBinding>(
        field, NumberFace{.control = list,
                          .show = [list](int index) { showIndex(*list, index); },
                          .value = [list] { return indexOf(*list); }}));
}

void Sheet::bind(const TextRef& field, QLineEdit* box) {
    bind(std::make_unique<TextBinding>(field, box));
}

void Sheet::bindText(const TextRef& field, QComboBox* list) {
    bind(std::make_unique<DecimalBinding>(field, list));
}

void Sheet::load(const std::function<void()>& then) {
    const QScopedValueRollback filling(filling_, true);
    for (const auto& binding : bindings_) {
        binding->load();
    }
    if (then) {
        then();
    }
}

void Sheet::store() {
    for (const auto& binding : bindings_) {
        binding->store();
    }
}

const Binding* Sheet::problem() const {
    for (const auto& binding : bindings_) {
        if (!binding->problem().isEmpty()) {
            return binding.get();
        }
    }
    return nullptr;
}

void Sheet::finishEditing(QWidget* focused) {
    if (auto* box = qobject_cast<NumberBox*>(focused)) {
        box->mend();
    }
}

}  // namespace quorvel::groups
