# Runs PROGRAM in DIRECTORY and compares what it prints with the file EXPECTED.
execute_process(COMMAND ${PROGRAM} WORKING_DIRECTORY ${DIRECTORY} OUTPUT_VARIABLE printed RESULT_VARIABLE result)
file(READ ${EXPECTED} expected)
string(REPLACE "\r\n" "\n" printed "${printed}")
if(NOT result EQUAL 0 OR NOT printed STREQUAL expected)
    message(FATAL_ERROR "result ${result}, expected:\n${expected}\nprinted:\n${printed}")
endif()
