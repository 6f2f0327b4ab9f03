// Turns a type's list of fields into the names of its struct.
#define STR(name, number, use, ...) static constexpr WordField name{number};
#define INT(name, number, use, ...) static constexpr NumberField name{number};
