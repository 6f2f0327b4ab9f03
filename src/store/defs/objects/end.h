#undef STR
#undef INT
#undef ROWS
#undef ROW_INT
#undef END_ROWS
#include "store/defs/end_traits.h"
