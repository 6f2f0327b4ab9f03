#undef TEXT
#undef TEXTS
#undef INT
#undef INTS
#undef SLOTS
#include "store/defs/end_traits.h"
