/// A field of a record, wherever the record lies, as a control is bound to it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include <QString>

#include "store/fields.h"

namespace quorvel::groups {

/// A number of 16 bits. The record must outlive the reference.
struct NumberRef {
    std::function<std::int16_t()> get;
    std::function<void(std::int16_t)> set;

    // Implicit on purpose: a binding names the field itself.
    NumberRef(std::int16_t& number)  // NOLINT(google-explicit-constructor)
        : get([&number] { return number; }), set([&number](std::int16_t to) { number = to; }) {}
    NumberRef(store::IntField& field)  // NOLINT(google-explicit-constructor)
        : get([&field] { return std::int16_t{field}; }),
          set([&field](std::int16_t to) { field = to; }) {}
};

/// A text. The record must outlive the reference.
struct TextRef {
    std::function<QString()> get;
    std::function<void(const QString&)> set;

    TextRef(std::string& text)  // NOLINT(google-explicit-constructor)
        : get([&text] { return QString::fromStdString(text); }),
          set([&text](const QString& to) { text = to.toStdString(); }) {}
    template <std::size_t Width>
    TextRef(store::TextField<Width>& field)  // NOLINT(google-explicit-constructor)
        : get([&field] { return QString::fromStdString(field.text()); }),
          set([&field](const QString& to) { field = to.toStdString(); }) {}
};

}  // namespace quorvel::groups
