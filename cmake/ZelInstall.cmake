# Install rules and an exported package config, so that a host can
# find_package(ZEL) and link zel::zel.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

get_property(_zel_libraries GLOBAL PROPERTY ZEL_LIBRARIES)
if(_zel_libraries)
  install(TARGETS ${_zel_libraries} EXPORT ZELTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(DIRECTORY "${PROJECT_SOURCE_DIR}/platform/" "${PROJECT_SOURCE_DIR}/zel"
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    FILES_MATCHING PATTERN "*.h" PATTERN "*Impl.h" EXCLUDE
    # The shortcut manager's private parts, held by ShortcutManagerImpl.h.
    PATTERN "ContextRegistry.h" EXCLUDE PATTERN "ShortcutDispatcher.h" EXCLUDE
    PATTERN "ShortcutSetLibrary.h" EXCLUDE
    # The workspace's registry of window classes, behind WindowClasses.h.
    PATTERN "WindowClassRegistry.h" EXCLUDE)
  install(DIRECTORY "${ZEL_GENERATED_INCLUDE_DIR}/" DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  install(EXPORT ZELTargets NAMESPACE zel:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/ZEL)
  file(WRITE "${PROJECT_BINARY_DIR}/ZELConfig.cmake.in"
    "@PACKAGE_INIT@\ninclude(CMakeFindDependencyMacro)\nfind_dependency(Threads)\n"
    "include(\"\${CMAKE_CURRENT_LIST_DIR}/ZELTargets.cmake\")\n")
  configure_package_config_file("${PROJECT_BINARY_DIR}/ZELConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/ZELConfig.cmake"
    INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/ZEL)
  write_basic_package_version_file("${PROJECT_BINARY_DIR}/ZELConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion)
  install(FILES "${PROJECT_BINARY_DIR}/ZELConfig.cmake" "${PROJECT_BINARY_DIR}/ZELConfigVersion.cmake"
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/ZEL)
endif()
