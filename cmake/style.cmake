# `format-check` holds the sources against .clang-format, `tidy` against .clang-tidy.

find_program(TARNMILL_CLANG_FORMAT NAMES clang-format-14)
find_program(TARNMILL_RUN_CLANG_TIDY NAMES run-clang-tidy-14)

file(GLOB_RECURSE styled CONFIGURE_DEPENDS
  "${PROJECT_SOURCE_DIR}/src/*.cpp" "${PROJECT_SOURCE_DIR}/src/*.h"
  "${PROJECT_SOURCE_DIR}/tests/*.cpp" "${PROJECT_SOURCE_DIR}/tests/*.h"
  "${PROJECT_SOURCE_DIR}/bench/*.cpp" "${PROJECT_SOURCE_DIR}/fuzz/*.cpp"
  "${PROJECT_SOURCE_DIR}/examples/*.cpp")

if(TARNMILL_CLANG_FORMAT AND styled)
  list(JOIN styled "\n" styled_lines)
  file(GENERATE OUTPUT "${PROJECT_BINARY_DIR}/styled-files.txt" CONTENT "${styled_lines}\n")
  set(format_command xargs -a "${PROJECT_BINARY_DIR}/styled-files.txt" -d "\\n"
    "${TARNMILL_CLANG_FORMAT}" --dry-run --Werror)
  add_custom_target(format-check COMMAND ${format_command} VERBATIM)
  if(TARNMILL_TESTS)
    add_test(NAME house.format COMMAND ${format_command})
  endif()
endif()

if(TARNMILL_RUN_CLANG_TIDY)
  add_custom_target(tidy
    COMMAND "${TARNMILL_RUN_CLANG_TIDY}" -quiet -p "${PROJECT_BINARY_DIR}"
      "^${PROJECT_SOURCE_DIR}/(src|tests|bench)/"
    VERBATIM USES_TERMINAL)
endif()
