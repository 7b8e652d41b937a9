# Read by cmake behind project() of the copy: what scripts/mutate builds otherwise.
function(trelonit_mutants)
  target_sources(trelonit_platform PRIVATE ${CMAKE_SOURCE_DIR}/scripts/mutants/Mutants.cpp)
  # Sources that are changed stand for themselves.
  foreach(folder IN LISTS TRELONIT_MUTATED)
    foreach(target trelonit_${folder} trelonit_${folder}_host)
      if(TARGET ${target})
        set_target_properties(${target} PROPERTIES UNITY_BUILD OFF)
      endif()
    endforeach()
  endforeach()
  # The console program asks at every line which mutant it is: its limits of time are longer.
  target_compile_definitions(cli_tests PRIVATE TRELONIT_COUNTED)
endfunction()
cmake_language(DEFER CALL trelonit_mutants)
