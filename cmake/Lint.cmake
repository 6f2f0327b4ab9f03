# The preset asan runs clang-tidy beside the compiler, so that ninja looks again at what has changed.
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
    # The command lines are g++'s, and clang does not know all of its warnings. What moc and rcc have
    # written lies in the build folder, and nobody tidies it.
    list(APPEND CMAKE_CXX_CLANG_TIDY --extra-arg=-DQUORVEL_CHECKS_${checks}
        --extra-arg=-Wno-unknown-warning-option --extra-arg=-fno-sanitize=all
        --checks=-bugprone-suspicious-include  # which is what a unit is made of
        "--header-filter=^${PROJECT_SOURCE_DIR}/(src|player|tools|examples|tests|bench)/")
endif()

# quorvel_checks_of_this_folder() makes the .clang-tidy beside a CMakeLists.txt count for the targets
# after it: the units that are looked at lie in the build folder, where clang-tidy would find that of
# the project.
macro(quorvel_checks_of_this_folder)
    if(CMAKE_CXX_CLANG_TIDY)
        list(APPEND CMAKE_CXX_CLANG_TIDY --config-file=${CMAKE_CURRENT_SOURCE_DIR}/.clang-tidy)
    endif()
endmacro()
