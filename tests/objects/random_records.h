/// Records of random content, damaged ones among them, and their fields by name.
#pragma once

#include <initializer_list>
#include <random>

#include "objects/sweep_table.h"
#include "store/objects.h"

namespace quorvel::test {

/// Chance, the same for the same seed.
class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}

    template <class Value>
    Value pick(std::initializer_list<Value> values) {
        std::uniform_int_distribution<std::size_t> at(0, values.size() - 1);
        return *(values.begin() + at(engine_));
    }
    /// A value that a field of this use may hold, or one that it should not.
    int number(store::FieldUse use);
    /// The name of a file, or of none, or of one that is not there; or a number.
    const char* text(store::FieldUse use);

  private:
    std::mt19937 engine_;
};

/// An object of `type` at a place of its own. Fields without a meaning for the type hold something
/// too.
store::ObjectSlot randomSlot(store::ObjectType type, Dice& dice);

/// The fields of a slot by the names that they have in its type, the others as in `SlotInt4`.
Fields slotFields(const store::ObjectSlot& slot, store::ObjectType type);

/// What every save of an object's window makes of its fields: a stored 0 stands for the first
/// option, what is no channel for the first one.
Fields settledSlot(Fields fields, store::ObjectType type);

}  // namespace quorvel::test
