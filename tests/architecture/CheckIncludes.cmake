cmake_minimum_required(VERSION 3.22)

# Fails when a folder includes a header of a folder that it may not use, or when a folder outside
# windows/ and apps/ includes a Qt header.

set(allowed_platform "platform")
set(allowed_resources "resources" "platform")
set(allowed_analysis "analysis" "platform")
set(allowed_catalogue "catalogue" "platform")
set(allowed_checks "checks" "analysis" "catalogue" "platform")
set(allowed_opinion "opinion" "analysis" "catalogue" "checks" "platform")
set(allowed_workstation "workstation" "analysis" "catalogue" "checks" "opinion" "platform")
set(allowed_editor "editor" "platform")
set(allowed_drawing "drawing" "analysis" "catalogue" "platform")

set(opinion_records "checks/CheckNumbers.h|checks/ElementGroups.h|analysis/CheckRecord.h|\
analysis/ElementGroup.h|analysis/Scheme.h|analysis/modDatatypes.h")
set(wrong "")
set(files_seen 0)
foreach(folder platform resources analysis catalogue checks opinion workstation editor drawing)
  file(GLOB_RECURSE sources "${ROOT}/${folder}/*.h" "${ROOT}/${folder}/*.cpp")
  foreach(source ${sources})
    math(EXPR files_seen "${files_seen} + 1")
    file(STRINGS "${source}" includes REGEX "^#include [<\"]")
    foreach(include ${includes})
      if(include MATCHES "^#include <Q[A-Z]")
        list(APPEND wrong "${source}: ${include}")
      elseif(include MATCHES "^#include \"([^/\"]+)/")
        if(NOT CMAKE_MATCH_1 IN_LIST allowed_${folder})
          list(APPEND wrong "${source}: ${include}")
        endif()
        # The second opinion stands on records and the schemes' table, never on what it judges.
        if(folder STREQUAL "opinion" AND
           include MATCHES "\"(checks/|analysis/)" AND
           NOT include MATCHES "\"(${opinion_records})\"")
          list(APPEND wrong "${source}: ${include}")
        endif()
      endif()
    endforeach()
  endforeach()
endforeach()

if(files_seen EQUAL 0)
  message(FATAL_ERROR "no sources under ${ROOT}")
endif()
if(wrong)
  list(JOIN wrong "\n" text)
  message(FATAL_ERROR "not allowed:\n${text}")
endif()
message(STATUS "${files_seen} files keep the directions of use")
