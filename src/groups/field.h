/// A field of a record, wherever the record lies, as a control is bound to it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <type_traits>

#include <QString>

#include "store/dictionary.h"
#include "store/fields.h"

namespace quorvel::groups {

/// A number of 16 bits. The record must outlive the reference.
struct NumberRef {
    std::function<std::int16_t()> get;
    std::function<void(std::int16_t)> set;
    store::FieldUse use = store::FieldUse::value;

    // Implicit on purpose: a binding names the field itself.
    NumberRef(std::int16_t& number,  // NOLINT(google-explicit-constructor)
              store::FieldUse holds = store::FieldUse::value)
        : get([&number] { return number; }),
          set([&number](std::int16_t to) { number = to; }),
          use(holds) {}
    NumberRef(store::IntField& field,  // NOLINT(google-explicit-constructor)
              store::FieldUse holds = store::FieldUse::value)
        : get([&field] { return std::int16_t{field}; }),
          set([&field](std::int16_t to) { field = to; }),
          use(holds) {}

    /// A field of an object in memory.
    NumberRef(store::ObjectSlot& slot, store::NumberField field)
        : NumberRef(store::number(slot, field), field.use) {}
    NumberRef(store::ObjectSlot& slot, const store::FieldRef& field)
        : NumberRef(store::numberIn(slot, field), field.use) {}
    /// A field of the header or an edge link of the scene in memory.
    NumberRef(store::Scene& scene, const store::FieldRef& field)
        : NumberRef(store::numberIn(scene, field), field.use) {}
    /// A field of a record as it lies in a file. A text that stands for a number is one: it is
    /// written in decimal.
    template <class Record>
    requires std::is_trivially_copyable_v<Record> NumberRef(Record& record,
                                                            const store::FieldRef& field)
        : get([&record, &field] { return store::readNumber(store::bytesOf(record), field); }),
          set([&record, &field](std::int16_t to) {
              store::writeNumber(store::bytesOf(record), field, to);
          }),
          use(field.use) {}
};

/// A text. The record must outlive the reference.
struct TextRef {
    std::function<QString()> get;
    std::function<void(const QString&)> set;
    /// Characters that the record takes; 0 where the reference was made from a text alone.
    int width = 0;
    store::FieldUse use = store::FieldUse::text;

    TextRef(std::string& text,  // NOLINT(google-explicit-constructor)
            int longest = 0, store::FieldUse holds = store::FieldUse::text)
        : get([&text] { return QString::fromStdString(text); }),
          set([&text](const QString& to) { text = to.toStdString(); }),
          width(longest),
          use(holds) {}
    template <std::size_t Width>
    TextRef(store::TextField<Width>& field,  // NOLINT(google-explicit-constructor)
            store::FieldUse holds = store::FieldUse::text)
        : get([&field] { return QString::fromStdString(field.text()); }),
          set([&field](const QString& to) { field = to.toStdString(); }),
          width(static_cast<int>(Width)),
          use(holds) {}

    /// A field of an object in memory.
    TextRef(store::ObjectSlot& slot, store::WordField field)
        : TextRef(store::word(slot, field), store::ObjectSlot::kStrWidth, field.use) {}
    TextRef(store::ObjectSlot& slot, const store::FieldRef& field)
        : TextRef(store::textIn(slot, field), field.width, field.use) {}
    /// A text of the header of the scene in memory.
    TextRef(store::Scene& scene, const store::FieldRef& field)
        : TextRef(store::textIn(scene, field), field.width, field.use) {}
    /// A text of a record as it lies in a file.
    template <class Record>
    requires std::is_trivially_copyable_v<Record> TextRef(Record& record,
                                                          const store::FieldRef& field)
        : get([&record, &field] {
              return QString::fromStdString(store::readText(store::bytesOf(record), field));
          }),
          set([&record, &field](const QString& to) {
              store::writeText(store::bytesOf(record), field, to.toStdString());
          }),
          width(field.width),
          use(field.use) {}
};

}  // namespace quorvel::groups
