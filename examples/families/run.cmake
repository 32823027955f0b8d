# Runs the examples in a directory of their own, one after the other, and compares what each prints with its text.
cmake_minimum_required(VERSION 3.21)
set(sources ${CMAKE_CURRENT_LIST_DIR})
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK}/cfg)

execute_process(COMMAND ${sources}/../../scripts/odbc ${WORK}/odbc OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${SQLITE3} ${WORK}/pipes.db3 INPUT_FILE ${sources}/pipes.sql COMMAND_ERROR_IS_FATAL ANY)
set(ENV{ODBCSYSINI} ${WORK}/odbc)
set(ENV{ZU_CFG_DIR} ${WORK}/cfg)
set(ENV{ZU_MESSAGE_BOX} console)

set(failed "")
foreach(path IN LISTS EXAMPLES)
    file(READ ${sources}/${path}.txt expected)
    get_filename_component(example ${path} NAME)
    execute_process(COMMAND ${EMULATOR} ${PROGRAMS}/example_${example}${SUFFIX} WORKING_DIRECTORY ${WORK}
        RESULT_VARIABLE result OUTPUT_VARIABLE printed ENCODING NONE)
    string(REPLACE "\r\n" "\n" printed "${printed}")
    # Where in the library a trace line comes from may change.
    string(REGEX REPLACE "lnklist [(][0-9]+[)]" "lnklist (251)" printed "${printed}")
    if(NOT result EQUAL 0 OR NOT printed STREQUAL expected)
        message("${example}: result ${result}, printed\n${printed}but should print\n${expected}")
        list(APPEND failed ${example})
    endif()
endforeach()
if(failed)
    message(FATAL_ERROR "failed: ${failed}")
endif()
