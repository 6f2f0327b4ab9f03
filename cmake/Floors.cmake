# One floor of the house is one folder below src/ and one static library. A floor's link list is
# the statement of what it stands on; the house check of the test suite compares it with the
# includes and with the table in docs/architecture.md.

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Two clones in different folders share what is kept.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_SLOPPINESS=time_macros,include_file_mtime,include_file_ctime
        CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${CCACHE_PROGRAM})
endif()

include(${CMAKE_CURRENT_LIST_DIR}/Lint.cmake)

add_library(quorvel_options INTERFACE)
if(MSVC)
    target_compile_options(quorvel_options INTERFACE /W4 $<$<BOOL:${QUORVEL_WERROR}>:/WX> /utf-8 /permissive-)
else()
    target_compile_options(quorvel_options INTERFACE
        -Wall -Wextra -Wpedantic $<$<BOOL:${QUORVEL_WERROR}>:-Werror> -Wshadow -Wconversion -Wsign-conversion
        -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast -Wcast-align
        # Old versions of the record formats are told apart by value, never by enum alone.
        -Wno-switch-enum
        # g++ 12 sees an overlap in "(" + std::to_string(n) when it optimises (its bug 105329).
        $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
        # Sources that are looked at in one unit may shadow each other's names.
        $<$<BOOL:${CMAKE_UNITY_BUILD}>:-Wno-shadow>)
endif()
target_include_directories(quorvel_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_definitions(quorvel_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
# The sanitizers, or what counts the lines that are run. It is what is delivered that is looked at,
# not the tests: they are two thirds of the code and would be four fifths of an instrumented build.
# The sanitizers watch the heap of the whole program all the same.
add_library(quorvel_instrumented INTERFACE)
set(instruments)
if(QUORVEL_SANITIZE)
    set(instruments -fsanitize=address,undefined)
    target_compile_options(quorvel_instrumented INTERFACE
        -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
elseif(QUORVEL_COVERAGE)
    set(instruments --coverage)
endif()
target_compile_options(quorvel_instrumented INTERFACE ${instruments})
target_link_options(quorvel_options INTERFACE ${instruments})

include(${CMAKE_CURRENT_LIST_DIR}/Delivery.cmake)

# quorvel_floor(<name> SOURCES <files...> STANDS_ON <floors and libraries...>)
function(quorvel_floor name)
    cmake_parse_arguments(FLOOR "" "" "SOURCES;STANDS_ON" ${ARGN})
    add_library(quorvel_${name} STATIC ${FLOOR_SOURCES})
    target_link_libraries(quorvel_${name}
        PUBLIC quorvel_options ${FLOOR_STANDS_ON}
        PRIVATE quorvel_instrumented)
    if(NOT name STREQUAL store)  # the one floor without Qt
        set_target_properties(quorvel_${name} PROPERTIES AUTOMOC ON AUTORCC ON)
    endif()
endfunction()
