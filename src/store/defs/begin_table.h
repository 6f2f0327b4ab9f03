// Turns a record's list of fields into the rows of its field table; RECORD is the struct.
#include "store/defs/begin_traits.h"
#define TEXT(name, width, holds, meaning, ...)                                          \
    textRow({.use = FieldUse::holds}, #name, offsetof(RECORD, name), 1, width, meaning, \
            {__VA_ARGS__}),
#define TEXTS(name, count, width, holds, meaning, ...)                                      \
    textRow({.use = FieldUse::holds}, #name, offsetof(RECORD, name), count, width, meaning, \
            {__VA_ARGS__}),
#define INT(name, holds, meaning, value) \
    intRow({.use = FieldUse::holds}, #name, offsetof(RECORD, name), 1, meaning, value),
#define INTS(name, count, holds, meaning, value) \
    intRow({.use = FieldUse::holds}, #name, offsetof(RECORD, name), count, meaning, value),
#define SLOTS(name, count, holds, meaning) \
    slotRow({.use = FieldUse::holds}, #name, offsetof(RECORD, name), count, meaning),
