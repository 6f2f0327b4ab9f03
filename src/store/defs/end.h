#undef TEXT
#undef TEXTS
#undef INT
#undef INTS
#undef SLOTS
