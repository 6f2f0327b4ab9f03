#undef WITH
#undef WHEN
#undef WHEN_EITHER
#undef WHEN_IS
#undef WHEN_NOT
#undef WHEN_WITHIN
#undef FROM
#undef SLICE
