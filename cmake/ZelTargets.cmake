# The small helpers every CMakeLists of the project uses: one adds a library,
# one a test executable, one a benchmark, one the compiled-in resources.
include(GenerateExportHeader)

set(ZEL_GENERATED_INCLUDE_DIR "${PROJECT_BINARY_DIR}/generated/include")

function(zel_set_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
  if(ZEL_WARNINGS_AS_ERRORS)
    target_compile_options(${target} PRIVATE -Werror)
    # GCC 12 at -O2 and above reports -Wrestrict inside std::string for
    # "text" + string (its bug 105329, fixed in GCC 13): keep it a warning.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
      target_compile_options(${target} PRIVATE -Wno-error=restrict)
    endif()
  endif()
endfunction()

# Adds the folders below the current one that mirror ZEL_COMPONENT_FOLDERS
# (tests/platform/krocore, bench/zel, ...).
function(zel_add_mirrored_subdirectories)
  foreach(_dir IN LISTS ZEL_COMPONENT_FOLDERS)
    if(EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/${_dir}/CMakeLists.txt")
      add_subdirectory(${_dir})
    endif()
  endforeach()
endfunction()

# zel_add_library(<name> ROOT <include root> EXPORT_MACRO <PREFIX> SOURCES ...
#                 [PUBLIC_DEPS ...] [PRIVATE_DEPS ...])
# A shared library with hidden default visibility: only what carries the
# generated <name>/Export.h macro is reachable, as from a Windows DLL.
function(zel_add_library name)
  cmake_parse_arguments(ARG "" "ROOT;EXPORT_MACRO" "SOURCES;PUBLIC_DEPS;PRIVATE_DEPS" ${ARGN})
  add_library(${name} SHARED ${ARG_SOURCES})
  add_library(zel::${name} ALIAS ${name})
  target_compile_features(${name} PUBLIC cxx_std_20)
  set_target_properties(${name} PROPERTIES
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}
    EXPORT_NAME ${name})
  generate_export_header(${name}
    BASE_NAME ${ARG_EXPORT_MACRO}
    EXPORT_MACRO_NAME ${ARG_EXPORT_MACRO}_API
    EXPORT_FILE_NAME "${ZEL_GENERATED_INCLUDE_DIR}/${name}/Export.h")
  target_include_directories(${name} PUBLIC
    $<BUILD_INTERFACE:${ARG_ROOT}>
    $<BUILD_INTERFACE:${ZEL_GENERATED_INCLUDE_DIR}>
    $<INSTALL_INTERFACE:include>)
  target_link_libraries(${name} PUBLIC ${ARG_PUBLIC_DEPS} PRIVATE ${ARG_PRIVATE_DEPS})
  # Installed side by side, each library finds its siblings next to itself:
  # a program's own run path does not reach the libraries its libraries
  # need (DT_RUNPATH applies to the object that carries it only).
  if(APPLE)
    set_target_properties(${name} PROPERTIES INSTALL_RPATH "@loader_path")
  elseif(UNIX)
    set_target_properties(${name} PROPERTIES INSTALL_RPATH "$ORIGIN")
  endif()
  zel_set_warnings(${name})
  set_property(GLOBAL APPEND PROPERTY ZEL_LIBRARIES ${name})
endfunction()

# zel_add_test(<name> SOURCES ... LIBS ...)
# One executable per library; one CTest entry per executable, so that the
# fixtures' set-up and tear-down of process-wide singletons are exercised
# between cases in one process.
function(zel_add_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LIBS} zel_test_support GTest::gmock)
  zel_set_warnings(${name})
  add_test(NAME ${name} COMMAND ${name} --gtest_color=no)
  zel_set_test_environment(${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT 600)
endfunction()

# The sanitizers check what scripts/test checks, whoever runs CTest.
function(zel_set_test_environment test)
  set(_environment "KRO_BACKEND=headless" "ZEL_SOURCE_DIR=${PROJECT_SOURCE_DIR}"
    "ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1:detect_stack_use_after_return=1"
    "UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1")
  set_tests_properties(${test} PROPERTIES ENVIRONMENT "${_environment}")
endfunction()

# zel_add_bench(<name> SOURCES ... LIBS ...)
function(zel_add_bench name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LIBS} benchmark::benchmark benchmark::benchmark_main)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bench")
  zel_set_warnings(${name})
  set_property(GLOBAL APPEND PROPERTY ZEL_BENCHMARKS ${name})
endfunction()

# zel_add_resources(<target> MODULE <module> TYPE <type> FILES <file>...
#                   [TYPE <type> FILES <file>...]...)
# Compiles the files into <target> as one table: at run time
# GetBinaryFromModule(module, type, name) finds each file's bytes under its
# name without extension. One generated source holds them all (the assembler
# takes the bytes in with .incbin, so nothing converts them) and one registrar
# files the table while the library loads. The source is written at configure
# time, when the list of files is known; its object is rebuilt whenever one of
# the files changes. The directives are the GNU assembler's for ELF; a Windows
# build would write an RCDATA script instead, found by the same module, type
# and name.
function(zel_add_resources target)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "MODULE" "")
  string(MAKE_C_IDENTIFIER "zel_resource_${target}" _prefix)
  set(_type "")
  set(_index 0)
  set(_files "")
  set(_asm "")
  set(_symbols "")
  set(_table "")
  set(_next "")
  foreach(_arg IN LISTS ARG_UNPARSED_ARGUMENTS)
    if(_arg STREQUAL "TYPE" OR _arg STREQUAL "FILES")
      set(_next ${_arg})
    elseif(_next STREQUAL "TYPE")
      set(_type "${_arg}")
    elseif(_next STREQUAL "FILES" AND _type)
      get_filename_component(_file "${_arg}" ABSOLUTE)
      get_filename_component(_name "${_file}" NAME_WE)
      if(NOT "${_type}/${_name}" MATCHES "^[A-Za-z0-9_]+/[A-Za-z0-9_]+$" OR _file MATCHES "[\\\"]")
        message(FATAL_ERROR "zel_add_resources: ${_file}: type and name must be identifiers, the path free of quotes")
      endif()
      set(_symbol "${_prefix}_${_index}")
      string(APPEND _asm "  .balign 16\n  .globl ${_symbol}, ${_symbol}_end\n"
        "  .hidden ${_symbol}, ${_symbol}_end\n${_symbol}:\n  .incbin \"${_file}\"\n"
        "${_symbol}_end:\n  .byte 0\n")
      string(APPEND _symbols "[[gnu::visibility(\"hidden\")]] extern const unsigned char "
        "${_symbol}[], ${_symbol}_end[];\n")
      string(APPEND _table "  {u\"${_type}\", u\"${_name}\", ${_symbol}, ${_symbol}_end},\n")
      list(APPEND _files "${_file}")
      math(EXPR _index "${_index} + 1")
    else()
      message(FATAL_ERROR "zel_add_resources: expected TYPE <type> FILES <file>..., got ${_arg}")
    endif()
  endforeach()
  set(_out "${CMAKE_CURRENT_BINARY_DIR}/${target}_resources.cpp")
  file(CONFIGURE OUTPUT "${_out}" @ONLY CONTENT
"// Generated by zel_add_resources for the module \"@ARG_MODULE@\"; do not edit.
#include <krocore/resources/ModuleResources.h>

// Each file 16-byte aligned and followed by a zero byte, so that text
// resources can be read as C strings.
asm(R\"zelresources(
  .pushsection .rodata.@_prefix@,\"a\"
@_asm@  .popsection
)zelresources\");

extern \"C\" {
@_symbols@}

namespace {
const krocore::utility::ModuleResource kResources[] = {
@_table@};
const krocore::utility::ModuleResourceRegistrar kRegistrar{\"@ARG_MODULE@\", kResources};
} // namespace
")
  target_sources(${target} PRIVATE "${_out}")
  set_source_files_properties("${_out}" PROPERTIES OBJECT_DEPENDS "${_files}")
endfunction()

# zel_add_fuzzer(<name> SOURCES ... LIBS ... [SECONDS n] [CORPUS dir])
# A libFuzzer binary over a target defining LLVMFuzzerTestOneInput (clang only:
# see ZelSanitizers.cmake). CTest runs it for SECONDS (default 10).
function(zel_add_fuzzer name)
  cmake_parse_arguments(ARG "" "SECONDS;CORPUS" "SOURCES;LIBS" ${ARGN})
  if(NOT ARG_SECONDS)
    set(ARG_SECONDS 10)
  endif()
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LIBS})
  target_compile_options(${name} PRIVATE -fsanitize=fuzzer)
  target_link_options(${name} PRIVATE -fsanitize=fuzzer)
  zel_set_warnings(${name})
  # libFuzzer writes the inputs it finds into its first folder: give it one in
  # the build tree, so that the seed corpus in the sources stays as committed.
  set(_scratch "${CMAKE_CURRENT_BINARY_DIR}/${name}-found")
  file(MAKE_DIRECTORY "${_scratch}")
  set(_args -max_total_time=${ARG_SECONDS} "${_scratch}")
  if(ARG_CORPUS)
    get_filename_component(_corpus "${ARG_CORPUS}" ABSOLUTE)
    list(APPEND _args "${_corpus}")
  endif()
  add_test(NAME ${name} COMMAND ${name} ${_args})
  set_tests_properties(${name} PROPERTIES LABELS fuzz TIMEOUT 900)
endfunction()
