# Run by CMake itself when a test program has been built (tests/CMakeLists.txt): asks PROGRAM for its
# tests and writes to LIST one test of CTest for each of its suites, NAME.<suite>, run in FOLDER.

# Nothing takes so long but what hangs, also on a machine that does many other things.
set(timeout 900)

execute_process(
    COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ${PROGRAM} --gtest_list_tests
    OUTPUT_VARIABLE output RESULT_VARIABLE result TIMEOUT ${timeout})
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} does not list its tests: ${result}")
endif()
# A suite stands at the beginning of its line and ends in a point; its tests follow, indented.
string(REPLACE ";" "" output "${output}")
string(REPLACE "\n" ";" lines "${output}")
set(suites "")
foreach(line IN LISTS lines)
    if(line MATCHES "^([A-Za-z0-9_/]+)\\.")
        set(suite ${CMAKE_MATCH_1})
        list(APPEND suites ${suite})
        set(tests_${suite} 0)
    elseif(line MATCHES "^  ")
        math(EXPR tests_${suite} "${tests_${suite}} + 1")
    endif()
endforeach()
set(text "")
foreach(suite IN LISTS suites)
    # Large suites begin first, so that none of them is what all wait for in the end.
    string(APPEND text
        "add_test([=[${NAME}.${suite}]=] [=[${PROGRAM}]=] [=[--gtest_filter=${suite}.*]=])\n"
        "set_tests_properties([=[${NAME}.${suite}]=] PROPERTIES COST ${tests_${suite}} "
        "TIMEOUT ${timeout} WORKING_DIRECTORY [=[${FOLDER}]=] "
        "ENVIRONMENT QT_QPA_PLATFORM=offscreen)\n")
endforeach()
file(WRITE ${LIST} "${text}")
