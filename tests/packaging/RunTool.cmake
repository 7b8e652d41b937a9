cmake_minimum_required(VERSION 3.22)

# Fails when the tool does with these arguments, which a "|" parts.

find_program(tool ${TOOL})
if(NOT tool)
  message("SKIPPED: no ${TOOL}")
  return()
endif()
string(REPLACE "|" ";" ARGUMENTS "${ARGUMENTS}")
execute_process(COMMAND ${tool} ${ARGUMENTS}
  RESULT_VARIABLE result OUTPUT_VARIABLE said ERROR_VARIABLE said)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${result}\n${said}")
endif()
message(STATUS "${said}")
