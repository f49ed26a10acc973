# Benchmarks: `cmake --build build/release --target bench`, then build/release/bin/<name>.

find_package(benchmark QUIET)
file(GLOB benches CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/bench/*.cpp")
if(NOT benchmark_FOUND OR NOT benches)
  return()
endif()

pkg_check_modules(MUPARSER QUIET IMPORTED_TARGET muparser)
add_custom_target(bench)
foreach(source IN LISTS benches)
  get_filename_component(name "${source}" NAME_WE)
  add_executable(${name} EXCLUDE_FROM_ALL "${source}")
  target_link_libraries(${name} PRIVATE tarnmill_app benchmark::benchmark)
  if(TARGET PkgConfig::MUPARSER)
    target_link_libraries(${name} PRIVATE PkgConfig::MUPARSER)
  endif()
  add_dependencies(bench ${name})
endforeach()
