# The libraries and programs of src/. What a room may use is told in docs/architecture.md.

# Creates the static library `name` of `sources`; without sources it is an empty interface of the same name.
# `scope` is set in the caller to the keyword (PUBLIC or INTERFACE) that its properties take.
function(tarnmill_library name scope)
  if(ARGN)
    add_library(${name} STATIC ${ARGN})
    set(${scope} PUBLIC PARENT_SCOPE)
  else()
    add_library(${name} INTERFACE)
    set(${scope} INTERFACE PARENT_SCOPE)
  endif()
endfunction()

# Sets `result` to the sources, headers included, of the named folders of src/.
function(tarnmill_room_sources result)
  set(found)
  foreach(room IN LISTS ARGN)
    file(GLOB_RECURSE files CONFIGURE_DEPENDS
      "${PROJECT_SOURCE_DIR}/src/${room}/*.cpp" "${PROJECT_SOURCE_DIR}/src/${room}/*.h")
    list(APPEND found ${files})
  endforeach()
  # Headers alone give a library nothing to compile.
  if(NOT found MATCHES "[.]cpp(;|$)")
    set(found)
  endif()
  set(${result} ${found} PARENT_SCOPE)
endfunction()

set(TARNMILL_CORE_ROOMS
  engine forms calculator complex keypad graph analysis calculus table mathpad shell)
if(TARNMILL_FUZZ)
  set(TARNMILL_CORE_ROOMS engine mathpad/rtf)
endif()
tarnmill_room_sources(core_sources ${TARNMILL_CORE_ROOMS})
tarnmill_library(tarnmill_core core_scope ${core_sources})
add_library(tarnmill::core ALIAS tarnmill_core)
target_compile_features(tarnmill_core ${core_scope} cxx_std_20)
target_include_directories(tarnmill_core ${core_scope}
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src> $<INSTALL_INTERFACE:include/tarnmill>)

if(TARNMILL_FUZZ)
  return()
endif()

include(forms)
include(marrow)

find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets PrintSupport Svg)
tarnmill_room_sources(desktop_sources desktop)
file(GLOB_RECURSE desktop_resources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/desktop/*.qrc")
tarnmill_library(tarnmill_desktop desktop_scope ${desktop_sources})
find_library(CHM_LIBRARY chm REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(WMF REQUIRED IMPORTED_TARGET libwmf)
target_link_libraries(tarnmill_desktop ${desktop_scope}
  tarnmill_core Qt6::Widgets Qt6::PrintSupport Qt6::Svg ${CHM_LIBRARY})
if(desktop_sources)
  target_link_libraries(tarnmill_desktop PRIVATE PkgConfig::WMF)
  target_sources(tarnmill_desktop PRIVATE ${desktop_resources})
  set_target_properties(tarnmill_desktop PROPERTIES AUTOMOC ON AUTORCC ON)
  tarnmill_compile_forms(tarnmill_desktop "${PROJECT_SOURCE_DIR}/src/desktop/ui")
  tarnmill_build_marrow(tarnmill_desktop)
endif()

# The C++ build of Lua unwinds by exceptions, so an error in a script runs our destructors.
pkg_check_modules(LUA REQUIRED IMPORTED_TARGET lua5.4-c++)
tarnmill_room_sources(script_sources script)
tarnmill_library(tarnmill_script script_scope ${script_sources})
target_link_libraries(tarnmill_script ${script_scope} tarnmill_desktop PkgConfig::LUA)

tarnmill_room_sources(app_sources app)
list(FILTER app_sources EXCLUDE REGEX "/app/tarnmill(_script)?[.]cpp$")
if(NOT app_sources MATCHES "[.]cpp(;|$)")
  set(app_sources)
endif()
tarnmill_library(tarnmill_app app_scope ${app_sources})
target_link_libraries(tarnmill_app ${app_scope} tarnmill_script)

foreach(library IN ITEMS script app)
  if(${library}_sources)
    set_target_properties(tarnmill_${library} PROPERTIES AUTOMOC ON)
  endif()
endforeach()

# Adds the program `name` whose main function is in src/app/`file`.
function(tarnmill_program name file)
  file(GLOB main CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/app/${file}")
  if(main)
    add_executable(${name} ${main})
    target_link_libraries(${name} PRIVATE tarnmill_app)
  endif()
endfunction()

tarnmill_program(tarnmill tarnmill.cpp)
tarnmill_program(tarnmill-script tarnmill_script.cpp)
