# Applies ZEL_SANITIZE to everything built below, libraries and tests alike,
# so that a sanitizer sees both sides of every call.
if(ZEL_SANITIZE)
  string(REPLACE "," ";" _zel_sanitizers "${ZEL_SANITIZE}")
  foreach(_s IN LISTS _zel_sanitizers)
    if(NOT _s MATCHES "^(address|undefined|thread|leak)$")
      message(FATAL_ERROR "ZEL_SANITIZE: unknown sanitizer '${_s}'")
    endif()
  endforeach()
  if("thread" IN_LIST _zel_sanitizers AND "address" IN_LIST _zel_sanitizers)
    message(FATAL_ERROR "ZEL_SANITIZE: thread cannot be combined with address")
  endif()
  add_compile_options(-fsanitize=${ZEL_SANITIZE} -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${ZEL_SANITIZE})
  if("undefined" IN_LIST _zel_sanitizers)
    # Undefined behaviour fails the run instead of scrolling past in a log.
    add_compile_options(-fno-sanitize-recover=undefined)
  endif()
endif()

# The fuzz targets are libFuzzer programs, so only clang builds them; it
# instruments every library for coverage, so that libFuzzer sees into the code
# the fuzz targets call.
if(ZEL_BUILD_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "ZEL_BUILD_FUZZ needs clang and its libFuzzer, not "
      "${CMAKE_CXX_COMPILER_ID}: configure with -DCMAKE_CXX_COMPILER=clang++ "
      "(as scripts/test does for build/fuzz) or with -DZEL_BUILD_FUZZ=OFF")
  endif()
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
