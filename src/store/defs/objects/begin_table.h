// Turns a type's list of fields into the rows of its table.
#define STR(name, number, use, value, ...) \
    ObjectFieldInfo{#name, true, number, FieldUse::use, value, 0, __VA_ARGS__},
#define INT(name, number, use, value, ...) \
    ObjectFieldInfo{#name, false, number, FieldUse::use, "", value, __VA_ARGS__},
