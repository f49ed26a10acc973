# One test program a folder of tests/, the scripts of tests/scripts/ and examples/, and the checks of the house.

find_package(GTest REQUIRED)
find_package(Qt6 REQUIRED COMPONENTS Test)
find_package(Python3 REQUIRED COMPONENTS Interpreter)

set(TARNMILL_RESULTS "${PROJECT_BINARY_DIR}/results")
# Parts that a test program runs in, so that two cores share one long program.
set(TARNMILL_TEST_SHARDS 2)

# Gives a test the surroundings all tests have: no display needed, and none of the user's own folders touched.
# Further arguments are more settings of the environment.
function(tarnmill_test_surroundings test)
  set(home "${PROJECT_BINARY_DIR}/test-home/${test}")
  file(MAKE_DIRECTORY "${home}/config" "${home}/data")
  set_tests_properties(${test} PROPERTIES TIMEOUT 300
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;\
LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/lsan.supp:print_suppressions=0;${ARGN}")
endfunction()

# Adds the test program of tests/`folder`, linked with the libraries given.
function(tarnmill_test_program folder)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS
    "${PROJECT_SOURCE_DIR}/tests/${folder}/*.cpp" "${PROJECT_SOURCE_DIR}/tests/${folder}/*.h")
  if(NOT sources MATCHES "[.]cpp(;|$)")
    return()
  endif()
  set(program ${folder}_tests)
  add_executable(${program} ${sources})
  target_include_directories(${program} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(${program} PRIVATE ${ARGN} GTest::gtest_main)
  target_compile_definitions(${program} PRIVATE TARNMILL_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/${folder}")
  math(EXPR last "${TARNMILL_TEST_SHARDS} - 1")
  foreach(shard RANGE ${last})
    set(test ${folder}.${shard})
    add_test(NAME ${test} COMMAND ${program})
    tarnmill_test_surroundings(${test} "GTEST_TOTAL_SHARDS=${TARNMILL_TEST_SHARDS}"
      "GTEST_SHARD_INDEX=${shard}" "GTEST_OUTPUT=xml:${TARNMILL_RESULTS}/${test}.xml")
  endforeach()
endfunction()

# A main function in tests/support/ wins over GoogleTest's own, since it stands before it on the linker's line.
file(GLOB_RECURSE support_sources CONFIGURE_DEPENDS
  "${PROJECT_SOURCE_DIR}/tests/support/*.cpp" "${PROJECT_SOURCE_DIR}/tests/support/*.h")
if(NOT support_sources MATCHES "[.]cpp(;|$)")
  set(support_sources)
endif()
tarnmill_library(tarnmill_test_support support_scope ${support_sources})
target_include_directories(tarnmill_test_support ${support_scope} "${PROJECT_SOURCE_DIR}/tests")
target_link_libraries(tarnmill_test_support ${support_scope} tarnmill_app GTest::gtest Qt6::Test)

tarnmill_test_program(engine tarnmill_core)
file(GLOB folders CONFIGURE_DEPENDS LIST_DIRECTORIES true RELATIVE "${PROJECT_SOURCE_DIR}/tests"
  "${PROJECT_SOURCE_DIR}/tests/*")
list(REMOVE_ITEM folders engine support scripts)
foreach(folder IN LISTS folders)
  if(IS_DIRECTORY "${PROJECT_SOURCE_DIR}/tests/${folder}")
    tarnmill_test_program(${folder} tarnmill_test_support)
  endif()
endforeach()

# A script passes by ending without an error. Examples are given their folder as an argument.
if(TARGET tarnmill-script)
  file(GLOB scripts CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/tests/scripts/*.lua")
  foreach(script IN LISTS scripts)
    get_filename_component(name "${script}" NAME_WE)
    add_test(NAME script.${name} COMMAND tarnmill-script "${script}")
    tarnmill_test_surroundings(script.${name})
  endforeach()
  # Scripts of tests/scripts/display/ run on a real display, that of a virtual X server.
  find_program(TARNMILL_XVFB_RUN xvfb-run)
  file(GLOB scripts CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/tests/scripts/display/*.lua")
  foreach(script IN LISTS scripts)
    get_filename_component(name "${script}" NAME_WE)
    add_test(NAME display.${name}
      COMMAND "${TARNMILL_XVFB_RUN}" -a $<TARGET_FILE:tarnmill-script> --windows "${script}")
    tarnmill_test_surroundings(display.${name} "QT_QPA_PLATFORM=xcb")
  endforeach()
  file(GLOB examples CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/examples/*.lua")
  foreach(example IN LISTS examples)
    get_filename_component(name "${example}" NAME_WE)
    set(folder "${PROJECT_BINARY_DIR}/examples/${name}")
    file(MAKE_DIRECTORY "${folder}")
    add_test(NAME example.${name} COMMAND tarnmill-script --folder "${folder}" "${example}" "${folder}")
    tarnmill_test_surroundings(example.${name})
  endforeach()
endif()

# The core stands alone: all of its objects, used or not, link with the standard library and nothing else, and
# its installed package serves a program outside this tree.
if(core_sources)
  file(GENERATE OUTPUT "${PROJECT_BINARY_DIR}/core_alone.cpp" CONTENT "int main() {}\n")
  add_executable(core_stands_alone "${PROJECT_BINARY_DIR}/core_alone.cpp")
  target_link_libraries(core_stands_alone PRIVATE $<LINK_LIBRARY:WHOLE_ARCHIVE,tarnmill_core>)
  add_test(NAME house.core_stands_alone COMMAND core_stands_alone)

  set(installed "${PROJECT_BINARY_DIR}/installed")
  add_test(NAME house.core_installs COMMAND "${CMAKE_COMMAND}"
    --install "${PROJECT_BINARY_DIR}" --prefix "${installed}" --component core)
  add_test(NAME house.core_package COMMAND "${CMAKE_CTEST_COMMAND}"
    --build-and-test "${PROJECT_SOURCE_DIR}/examples/core" "${PROJECT_BINARY_DIR}/core-example"
    --build-generator Ninja --build-noclean
    --build-options "-DCMAKE_PREFIX_PATH=${installed}" "-DCMAKE_CXX_FLAGS=${CMAKE_CXX_FLAGS}"
      "-DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}"
    --test-command core_example)
  set_tests_properties(house.core_installs PROPERTIES FIXTURES_SETUP installed_core)
  set_tests_properties(house.core_package PROPERTIES FIXTURES_REQUIRED installed_core
    PASS_REGULAR_EXPRESSION "0[.]333333333333333")
endif()

add_test(NAME house.layers
  COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/cmake/check_layers.py" "${PROJECT_SOURCE_DIR}")
add_test(NAME house.file_lengths
  COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/cmake/check_lengths.py" "${PROJECT_SOURCE_DIR}")
file(GLOB tool_tests CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/tests/tools/*_test.py")
foreach(tool_test IN LISTS tool_tests)
  get_filename_component(name "${tool_test}" NAME_WE)
  add_test(NAME tool.${name} COMMAND Python3::Interpreter "${tool_test}")
endforeach()
