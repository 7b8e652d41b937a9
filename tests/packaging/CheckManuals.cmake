cmake_minimum_required(VERSION 3.22)

# Fails when a manual page has another version than the program or is shown with a warning.

find_program(man man)
if(NOT man)
  message("SKIPPED: no man")
  return()
endif()
file(GLOB_RECURSE pages ${FOLDER}/*.1)
list(LENGTH pages count)
if(NOT count EQUAL 6)
  message(FATAL_ERROR "three programs in two languages have ${count} pages")
endif()
foreach(page IN LISTS pages)
  file(STRINGS ${page} title LIMIT_COUNT 1 ENCODING UTF-8)
  string(FIND "${title}" "\"Trelonit ${VERSION}\"" place)
  if(place EQUAL -1)
    message(FATAL_ERROR "${page} is not of version ${VERSION}: ${title}")
  endif()
  execute_process(
    COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C.UTF-8 MANROFFSEQ= MANWIDTH=80
      ${man} --warnings -E UTF-8 -l -Tutf8 -Z ${page}
    RESULT_VARIABLE result OUTPUT_VARIABLE shown ERROR_VARIABLE warnings)
  string(LENGTH "${shown}" length)
  if(NOT result EQUAL 0 OR NOT warnings STREQUAL "" OR length LESS 500)
    message(FATAL_ERROR "${page}: ${result}, ${length} characters shown\n${warnings}")
  endif()
endforeach()
