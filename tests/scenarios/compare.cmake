# Runs one scenario and shows how its output differs from the trace that is expected, in which the
# folder of the repository stands as "HERE".
execute_process(COMMAND ${DRIVE} ${SCRIPT} OUTPUT_FILE ${OUTPUT} ERROR_VARIABLE errors
  RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "vyn-drive ended with ${status}: ${errors}")
endif()
file(READ ${OUTPUT} output)
string(REPLACE "${CMAKE_CURRENT_SOURCE_DIR}" "HERE" output "${output}")
file(WRITE ${OUTPUT} "${output}")
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${TRACE} ${OUTPUT}
  RESULT_VARIABLE differs OUTPUT_QUIET ERROR_QUIET)
if(differs)
  execute_process(COMMAND diff -u ${TRACE} ${OUTPUT})
  message(FATAL_ERROR "The output is not the expected trace; it is kept in ${OUTPUT}")
endif()
