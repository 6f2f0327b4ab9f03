# quorvel_delivery() puts what is delivered with the program beside it: the files that each new
# project gets a copy of, the empty folders in which authors keep incoming files and skins, and the
# help. Files are copied at build time, each when it has changed; what an author has put into those
# folders stays.
function(quorvel_delivery)
    set(bin ${CMAKE_BINARY_DIR}/bin)
    set(delivered)
    foreach(pair defaults:QuorvelDefaults help:help)
        string(REPLACE ":" ";" pair ${pair})
        list(GET pair 0 from)
        list(GET pair 1 to)
        file(GLOB_RECURSE files CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}/${from}
            ${PROJECT_SOURCE_DIR}/${from}/*)
        foreach(file IN LISTS files)
            add_custom_command(OUTPUT ${bin}/${to}/${file}
                COMMAND ${CMAKE_COMMAND} -E copy
                        ${PROJECT_SOURCE_DIR}/${from}/${file} ${bin}/${to}/${file}
                DEPENDS ${PROJECT_SOURCE_DIR}/${from}/${file}
                COMMENT "Delivering ${to}/${file}" VERBATIM)
            list(APPEND delivered ${bin}/${to}/${file})
        endforeach()
    endforeach()
    # A folder's time changes with what is put into it, so nothing may depend on it.
    foreach(folder incoming Skins)
        add_custom_command(OUTPUT ${bin}/${folder}
            COMMAND ${CMAKE_COMMAND} -E make_directory ${bin}/${folder}
            COMMENT "Delivering ${folder}/" VERBATIM)
        list(APPEND delivered ${bin}/${folder})
    endforeach()
    add_custom_target(delivery ALL DEPENDS ${delivered})
endfunction()
