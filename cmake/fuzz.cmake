# Fuzz targets: one program a file of fuzz/, with clang's libFuzzer.

file(GLOB targets CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/fuzz/*.cpp")
foreach(source IN LISTS targets)
  get_filename_component(name "${source}" NAME_WE)
  add_executable(${name} "${source}")
  target_link_libraries(${name} PRIVATE tarnmill_core)
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
  target_link_options(${name} PRIVATE -fsanitize=fuzzer)
endforeach()
