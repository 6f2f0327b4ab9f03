# Compares docs/formats.md with what the generator prints now.
execute_process(COMMAND ${GENERATOR} OUTPUT_VARIABLE wanted RESULT_VARIABLE failed)
if(failed)
    message(FATAL_ERROR "${GENERATOR} failed: ${failed}")
endif()
set(found "")
if(EXISTS ${PAGE})
    file(READ ${PAGE} found)
endif()
if(NOT found STREQUAL wanted)
    message(FATAL_ERROR "${PAGE} does not show the record descriptions of the store. "
        "Renew it with: cmake --build ${BUILD} --target renew_formats_page")
endif()
