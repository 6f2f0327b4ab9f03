// Turns a record's list of fields into the members of its struct.
#define TEXT(name, width, ...) TextField<width> name;
#define TEXTS(name, count, width, ...) TextFields<count, width> name;
#define INT(name, ...) IntField name;
#define INTS(name, count, ...) IntFields<count> name;
#define SLOTS(name, count, ...) std::array<ObjectSlotRecord, count> name;
