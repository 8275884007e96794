# Fails when a folder of kroui includes a folder of its own level or above,
# so that the folders keep standing in the levels that CMakeLists.txt of
# kroui draws. Run as: cmake -DPLATFORM=<platform dir> -P FolderLevels.cmake
set(_levels
  "os drawbot"
  "base"
  "backend"
  "backends utility theme"
  "ui"
  "ksv skins")

set(_level 0)
foreach(_folders IN LISTS _levels)
  separate_arguments(_folders)
  foreach(_folder IN LISTS _folders)
    set(_level_of_${_folder} ${_level})
  endforeach()
  math(EXPR _level "${_level} + 1")
endforeach()

set(_failures "")

# Checks the includes of `files`, which stand in `folder`.
function(check_folder folder files)
  foreach(_file IN LISTS files)
    file(STRINGS "${_file}" _includes REGEX "^#include <(kroui/[A-Za-z_]+|backends)/")
    foreach(_include IN LISTS _includes)
      string(REGEX REPLACE "^#include <(kroui/)?([A-Za-z_]+)/.*" "\\2" _target "${_include}")
      if(_target STREQUAL folder)
        continue()
      endif()
      if(NOT DEFINED _level_of_${_target} OR NOT _level_of_${_target} LESS _level_of_${folder})
        string(APPEND _failures "${_file}: ${_include} (${folder}/ may not include ${_target}/)\n")
      endif()
    endforeach()
  endforeach()
  set(_failures "${_failures}" PARENT_SCOPE)
endfunction()

file(GLOB _folders RELATIVE "${PLATFORM}/kroui" "${PLATFORM}/kroui/*")
foreach(_folder IN LISTS _folders)
  if(NOT IS_DIRECTORY "${PLATFORM}/kroui/${_folder}")
    continue()
  endif()
  if(NOT DEFINED _level_of_${_folder})
    string(APPEND _failures "kroui/${_folder}/ has no level: add it here and to kroui's CMakeLists.txt\n")
    continue()
  endif()
  file(GLOB_RECURSE _files "${PLATFORM}/kroui/${_folder}/*.h" "${PLATFORM}/kroui/${_folder}/*.cpp")
  check_folder(${_folder} "${_files}")
endforeach()
file(GLOB_RECURSE _files "${PLATFORM}/backends/*.h" "${PLATFORM}/backends/*.cpp")
check_folder(backends "${_files}")

if(_failures)
  message(FATAL_ERROR "kroui's folders include upwards or sideways:\n${_failures}")
endif()
