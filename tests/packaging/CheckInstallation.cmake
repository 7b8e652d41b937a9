cmake_minimum_required(VERSION 3.22)

# Fails when an installation has other files than it should, or ones that do not work there.

file(REMOVE_RECURSE ${FOLDER})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${FOLDER} --config "${CONFIG}"
  RESULT_VARIABLE result OUTPUT_VARIABLE said ERROR_VARIABLE said)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "not installed: ${result}\n${said}")
endif()

find_program(gzip gzip)
set(packed "")
if(gzip)
  set(packed .gz)
endif()
set(id ru.trelonit.Trelonit)
set(programs trelonit-cli)
set(expected share/doc/trelonit/changelog${packed} share/doc/trelonit/copyright)
if(WINDOWS)
  list(APPEND programs trelonit trelonit-paper)
  list(APPEND expected share/applications/${id}.desktop share/metainfo/${id}.metainfo.xml
    share/mime/packages/${id}.xml share/icons/hicolor/scalable/apps/${id}.svg)
endif()
foreach(program IN LISTS programs)
  list(APPEND expected bin/${program} share/man/man1/${program}.1${packed}
    share/man/ru/man1/${program}.1${packed})
endforeach()
foreach(example scheme1-24m scheme2-30m scheme3-18m scheme4-36m)
  list(APPEND expected share/doc/trelonit/examples/${example}.tsav)
endforeach()
# Where the compiler of help files was there.
if(EXISTS "${BUILD}/bin/Trelo calculation.chm")
  list(APPEND expected "share/trelonit/Trelo calculation.chm")
endif()
list(SORT expected)
file(GLOB_RECURSE found LIST_DIRECTORIES false RELATIVE ${FOLDER} ${FOLDER}/*)
list(SORT found)
if(NOT found STREQUAL expected)
  list(JOIN found "\n  " found)
  list(JOIN expected "\n  " expected)
  message(FATAL_ERROR "installed:\n  ${found}\nexpected:\n  ${expected}")
endif()

foreach(program IN LISTS programs)
  execute_process(COMMAND ${FOLDER}/bin/${program} --version
    RESULT_VARIABLE result OUTPUT_VARIABLE said ERROR_VARIABLE said)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${program} does not start where it is installed: ${result}\n${said}")
  endif()
endforeach()
if(NOT WINDOWS)
  return()
endif()

file(SHA256 ${PICTURES}/trelonit.svg wanted)
file(SHA256 ${FOLDER}/share/icons/hicolor/scalable/apps/${id}.svg installed)
if(NOT wanted STREQUAL installed)
  message(FATAL_ERROR "the icon is not the program's")
endif()

# The desktop's database of types takes the description and knows a project by its ending.
find_program(update update-mime-database)
if(NOT update)
  return()
endif()
execute_process(
  COMMAND ${CMAKE_COMMAND} -E env XDG_DATA_DIRS=${FOLDER}/share ${update} ${FOLDER}/share/mime
  RESULT_VARIABLE result OUTPUT_VARIABLE said ERROR_VARIABLE said)
if(NOT result EQUAL 0 OR NOT said STREQUAL "")
  message(FATAL_ERROR "the description of the type is refused: ${result}\n${said}")
endif()
file(STRINGS ${FOLDER}/share/mime/globs2 known REGEX ":application/x-trelonit-project:\\*.tsav$")
if(NOT known)
  message(FATAL_ERROR "the type of *.tsav is not known")
endif()
# Without its ending a project is known by its first line.
file(READ ${FOLDER}/share/mime/magic magic HEX)
file(STRINGS ${EXAMPLES}/scheme1-24m.tsav first LIMIT_COUNT 1)
string(HEX "${first}" first)
string(FIND "${magic}" "${first}" place)
if(place EQUAL -1)
  message(FATAL_ERROR "the first line of a project is not known")
endif()
