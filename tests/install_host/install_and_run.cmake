# Installs the build in BUILD_DIR into a fresh tree, then configures, builds and runs the tiny host
# against it. Everything happens below WORK_DIR.
function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE out)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGV} failed with ${result}:\n${out}")
  endif()
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
run(${CMAKE_COMMAND} -S ${HOST_DIR} -B ${WORK_DIR}/build -G Ninja
    -DCMAKE_PREFIX_PATH=${prefix} "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}")
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
set(ENV{QT_QPA_PLATFORM} offscreen)
set(ENV{ASAN_OPTIONS} detect_leaks=0)
run(${WORK_DIR}/build/tiny_host)
