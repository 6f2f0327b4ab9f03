// Turns a type's list of fields into the names of its struct. Rows of equal fields become a struct
// and a routine that returns it for a row, counted from 0. What follows the use is for the table.
#define WITH(...)
#define WHEN(...)
#define WHEN_EITHER(...)
#define WHEN_IS(...)
#define WHEN_NOT(...)
#define WHEN_WITHIN(...)
#define STR(name, number, use, ...) static constexpr WordField name{number, FieldUse::use};
#define INT(name, number, use, ...) static constexpr NumberField name{number, FieldUse::use};
#define ROWS(Row, row, count, stride, ...)  \
    static constexpr int k##Row##s = count; \
    struct Row;                             \
    static constexpr Row row(int index) {   \
        return {index * (stride)};          \
    }                                       \
    struct Row {                            \
        int step;
#define ROW_INT(name, number, use, ...) NumberField name{(number) + step, FieldUse::use};
#define END_ROWS \
    }            \
    ;
