// Turns a record's list of fields into the rows of its field table; RECORD is the struct.
#define TEXT(name, width, meaning, ...) \
    textRow(#name, offsetof(RECORD, name), 1, width, meaning, {__VA_ARGS__}),
#define TEXTS(name, count, width, meaning, ...) \
    textRow(#name, offsetof(RECORD, name), count, width, meaning, {__VA_ARGS__}),
#define INT(name, meaning, ...) intRow(#name, offsetof(RECORD, name), 1, meaning, {__VA_ARGS__}),
#define INTS(name, count, meaning, ...) \
    intRow(#name, offsetof(RECORD, name), count, meaning, {__VA_ARGS__}),
#define SLOTS(name, count, meaning) slotRow(#name, offsetof(RECORD, name), count, meaning),
