// Turns a type's list of fields into the rows of its table. Rows of equal fields, which stand last,
// are described once, after an entry that tells how many they are.
#include "store/defs/begin_traits.h"
#define STR(name, number, holds, value, meaning) \
    ObjectFieldInfo{{.use = FieldUse::holds}, #name, true, number, value, 0, meaning, {}, 0},
#define INT(name, number, holds, value, meaning) \
    ObjectFieldInfo{{.use = FieldUse::holds}, #name, false, number, "", value, meaning, {}, 0},
#define ROWS(Row, row, count, stride, label, meaning) \
    ObjectFieldInfo{{}, "", false, 0, "", 0, meaning, {count, stride, label}, 0},
#define ROW_INT(name, number, holds, value, meaning) \
    ObjectFieldInfo{{.use = FieldUse::holds}, #name, false, number, "", value, meaning, {}, 0},
#define END_ROWS
