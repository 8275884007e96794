# cmake -DZEL_BUILD_DIR=... -DWORK_DIR=... -DCONSUMER_DIR=... -DGENERATOR=...
#       -DCXX_COMPILER=... [-DLAUNCHER=...] [-DBUILD_TYPE=...] [-DSANITIZE=...]
#       -P CheckInstall.cmake
# Installs the built libraries into a fresh prefix, builds the consumer project
# against that prefix alone and runs it, as a host would. Fails with the
# output of the step that failed (the loader's message, when the program
# cannot start).
cmake_minimum_required(VERSION 3.21)

foreach(_var ZEL_BUILD_DIR WORK_DIR CONSUMER_DIR GENERATOR CXX_COMPILER)
  if(NOT ${_var})
    message(FATAL_ERROR "CheckInstall.cmake: ${_var} is not set")
  endif()
endforeach()

set(_prefix "${WORK_DIR}/prefix")
set(_build "${WORK_DIR}/consumer")
file(REMOVE_RECURSE "${WORK_DIR}")

function(run_step what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE _result OUTPUT_VARIABLE _out ERROR_VARIABLE _out)
  if(NOT _result EQUAL 0)
    message(FATAL_ERROR "${what} failed (${_result}):\n${_out}")
  endif()
  set(_step_output "${_out}" PARENT_SCOPE)
endfunction()

run_step("Installing ZEL" "${CMAKE_COMMAND}" --install "${ZEL_BUILD_DIR}" --prefix "${_prefix}")

# The consumer is built like the libraries it links: a sanitized library
# needs its runtime loaded first, by the program.
set(_configure -S "${CONSUMER_DIR}" -B "${_build}" -G "${GENERATOR}"
  "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}" "-DCMAKE_PREFIX_PATH=${_prefix}")
if(LAUNCHER)
  list(APPEND _configure "-DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}")
endif()
if(BUILD_TYPE)
  list(APPEND _configure "-DCMAKE_BUILD_TYPE=${BUILD_TYPE}")
endif()
if(SANITIZE)
  list(APPEND _configure "-DCMAKE_CXX_FLAGS=-fsanitize=${SANITIZE}"
    "-DCMAKE_EXE_LINKER_FLAGS=-fsanitize=${SANITIZE}")
endif()
run_step("Configuring the consumer" "${CMAKE_COMMAND}" ${_configure})
run_step("Building the consumer" "${CMAKE_COMMAND}" --build "${_build}")

run_step("Running the installed consumer" "${_build}/zel_consumer")
if(NOT _step_output MATCHES "zel consumer: view created")
  message(FATAL_ERROR "The consumer ran but did not report its view:\n${_step_output}")
endif()
message(STATUS "${_step_output}")
