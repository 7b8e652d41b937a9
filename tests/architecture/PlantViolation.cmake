cmake_minimum_required(VERSION 3.22)

# Shows that CheckIncludes.cmake finds what it is for. In a small tree of sources that keep every
# rule, FILE gets the line LINE, which the check must then name, and nothing else:
#   cmake -D TREE=FOLDER [-D FILE=NAME -D LINE=TEXT] -P PlantViolation.cmake
# Without FILE the check must find nothing wrong.

set(kept
  "platform/Text.h|#include <string>"
  "resources/Blocks.cpp|#include \"platform/Text.h\""
  "analysis/Scheme.h|#include \"platform/Text.h\""
  "catalogue/Sections.h|#include \"platform/Text.h\""
  "checks/CheckDriver.cpp|#include \"analysis/Scheme.h\""
  "opinion/Statics.cpp|#include \"analysis/Scheme.h\""
  "workstation/design/Selection.cpp|#include \"opinion/Statics.h\""
  "editor/rtf/Reader.cpp|#include \"platform/Text.h\""
  "drawing/autocad/Host.h|#include \"platform/Text.h\""
  "drawing/scheme/Layout.cpp|#include \"drawing/autocad/Host.h\""
  "drawing/host/Document.cpp|#include \"drawing/host/Document.h\""
  "windows/main/Window.cpp|#include <QtWidgets/QWidget>"
  "windows/results/Window.cpp|#include \"opinion/Statics.h\""
  "apps/Program.cpp|#include \"workstation/design/Selection.h\""
  "apps/trelonit/main.cpp|#include \"windows/main/Window.h\""
  "examples/generator/main.cpp|#include \"apps/Program.h\""
  "fuzz/rtf/Fuzzer.cpp|#include \"editor/rtf/Reader.h\""
  "bench/Paint.cpp|#include <QWidget>"
  "tests/support/World.h|#include \"platform/Text.h\""
  "tests/windows/WindowTest.cpp|#include <QtTest>"
  "tests/office/OfficeTest.cpp|#include \"windows/office/Office.h\""
  "tests/cli/CliTest.cpp|#include \"apps/Program.h\""
  "tests/editor/CorpusTest.cpp|#include \"fuzz/rtf/Fuzzer.h\"")

file(REMOVE_RECURSE "${TREE}")
foreach(source IN LISTS kept)
  string(REPLACE "|" ";" source "${source}")
  list(GET source 0 name)
  list(GET source 1 line)
  file(WRITE "${TREE}/${name}" "${line}\n")
endforeach()
if(DEFINED FILE)
  # After another line, so that not the first one alone is read.
  file(APPEND "${TREE}/${FILE}" "#include <vector>\n${LINE}\n")
endif()

execute_process(COMMAND ${CMAKE_COMMAND} -D ROOT=${TREE} -P ${CMAKE_CURRENT_LIST_DIR}/CheckIncludes.cmake
  RESULT_VARIABLE status OUTPUT_VARIABLE told ERROR_VARIABLE told)
string(REGEX MATCHALL "\n +[^ ]+[.](h|cpp): [^\n]*" wrong "${told}")
list(TRANSFORM wrong STRIP)
if(DEFINED FILE)
  if(NOT DEFINED TOLD)
    set(TOLD "${LINE}")
  endif()
  if(status EQUAL 0 OR NOT wrong STREQUAL "${FILE}: ${TOLD}")
    message(FATAL_ERROR "not told, or not alone: ${FILE}: ${TOLD}\n${told}")
  endif()
elseif(NOT status EQUAL 0)
  message(FATAL_ERROR "a tree that keeps every rule is refused\n${told}")
endif()
