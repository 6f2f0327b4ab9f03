#undef STR
#undef INT
