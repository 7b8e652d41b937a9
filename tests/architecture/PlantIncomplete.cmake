cmake_minimum_required(VERSION 3.22)

# Shows that scripts/alone finds what it is for. A small tree, compiled in one batch that compiles,
# has a header and a source which lack an include; they must be told, and nothing else:
#   cmake -D TREE=FOLDER -D SCRIPTS=FOLDER -D PYTHON=PROGRAM -D COMPILER=PROGRAM -P PlantIncomplete.cmake

file(REMOVE_RECURSE "${TREE}")
file(COPY "${SCRIPTS}/alone" "${SCRIPTS}/compile_commands.py" DESTINATION "${TREE}/scripts")
file(WRITE "${TREE}/part/Whole.h" "#include <string>\ninline std::string Whole() { return {}; }\n")
file(WRITE "${TREE}/part/Lacking.h" "inline std::string Lacking() { return {}; }\n")
file(WRITE "${TREE}/part/Whole.cpp" "#include \"part/Whole.h\"\n#include \"part/Lacking.h\"\n")
file(WRITE "${TREE}/part/Lacking.cpp" "std::string Borrowed() { return Whole(); }\n")
set(batch "${TREE}/build/part.dir/Unity/unity_0_cxx.cxx")
file(WRITE "${batch}"
  "#include \"${TREE}/part/Whole.cpp\"\n\n#include \"${TREE}/part/Lacking.cpp\"\n")
file(WRITE "${TREE}/build/compile_commands.json" "[{\"directory\": \"${TREE}/build\",
  \"command\": \"${COMPILER} -I${TREE} -o part.o -c ${batch}\", \"file\": \"${batch}\"}]\n")

execute_process(COMMAND ${COMPILER} -I${TREE} -fsyntax-only ${batch}
  RESULT_VARIABLE status ERROR_VARIABLE told)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "the batch must compile\n${told}")
endif()

function(expect kind told_first)
  execute_process(COMMAND ${PYTHON} ${TREE}/scripts/alone ${kind} --build ${TREE}/build
    RESULT_VARIABLE status OUTPUT_VARIABLE summary ERROR_VARIABLE told)
  string(REGEX MATCHALL "part/[A-Za-z.]+ does not compile alone" found "${told}")
  if(NOT status EQUAL 1 OR NOT found STREQUAL "${told_first} does not compile alone" OR
     NOT summary STREQUAL "2 ${kind}: 1 compile alone, 1 do not\n")
    message(FATAL_ERROR "${kind}: expected ${told_first} to be told\n${summary}${told}")
  endif()
endfunction()

expect(headers part/Lacking.h)
expect(sources part/Lacking.cpp)
