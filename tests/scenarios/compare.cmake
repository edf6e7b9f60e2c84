# Runs one scenario and shows how its output differs from the trace that is expected.
execute_process(COMMAND ${DRIVE} ${SCRIPT} OUTPUT_FILE ${OUTPUT} ERROR_VARIABLE errors
  RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "vyn-drive ended with ${status}: ${errors}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${TRACE} ${OUTPUT}
  RESULT_VARIABLE differs OUTPUT_QUIET ERROR_QUIET)
if(differs)
  execute_process(COMMAND diff -u ${TRACE} ${OUTPUT})
  message(FATAL_ERROR "The output is not the expected trace; it is kept in ${OUTPUT}")
endif()
