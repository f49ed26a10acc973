# What `cmake --install` puts where: both programs with their help file, and the core as the CMake package `tarnmill`.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

foreach(program IN ITEMS tarnmill tarnmill-script)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT programs)
  endif()
endforeach()

if(TARNMILL_CHMCMD)
  install(FILES "${help_result}" DESTINATION share/tarnmill COMPONENT programs)
endif()

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/tarnmill")
set_target_properties(tarnmill_core PROPERTIES EXPORT_NAME core)
install(TARGETS tarnmill_core EXPORT tarnmill
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT core)
install(EXPORT tarnmill NAMESPACE tarnmill:: FILE tarnmillTargets.cmake
  DESTINATION "${package_folder}" COMPONENT core)
foreach(room IN LISTS TARNMILL_CORE_ROOMS)
  if(IS_DIRECTORY "${PROJECT_SOURCE_DIR}/src/${room}")
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/src/${room}" COMPONENT core
      DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/tarnmill" FILES_MATCHING PATTERN "*.h")
  endif()
endforeach()

configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/tarnmillConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/tarnmillConfig.cmake" INSTALL_DESTINATION "${package_folder}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/tarnmillConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/tarnmillConfig.cmake" "${PROJECT_BINARY_DIR}/tarnmillConfigVersion.cmake"
  DESTINATION "${package_folder}" COMPONENT core)
