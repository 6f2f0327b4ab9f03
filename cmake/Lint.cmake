# The preset lint runs clang-tidy beside the compiler, so that ninja looks again at what has changed.
if(CMAKE_CXX_CLANG_TIDY)
    # A change of the checks is a change of every command line, so everything is looked at again.
    set(texts)
    foreach(folder "" examples/ tests/)
        set(list ${PROJECT_SOURCE_DIR}/${folder}.clang-tidy)
        file(READ ${list} text)
        string(APPEND texts "${text}")
        set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
            ${list})
    endforeach()
    string(SHA256 checks "${texts}")
    string(SUBSTRING ${checks} 0 16 checks)
    # The command lines are g++'s, and clang does not know all of its warnings.
    list(APPEND CMAKE_CXX_CLANG_TIDY --extra-arg=-DQUORVEL_CHECKS_${checks}
        --extra-arg=-Wno-unknown-warning-option)

    # What moc and rcc have written lies in the build folder, and nobody tidies it. One check has to
    # be there: clang-tidy refuses to run without any.
    file(WRITE ${CMAKE_BINARY_DIR}/.clang-tidy "Checks: '-*,misc-definitions-in-headers'\n")
endif()
