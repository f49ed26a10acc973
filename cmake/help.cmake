# Compiles the pages of help/ into Tarnmill.chm, which lies in share/tarnmill beside the programs' folder, in the
# build tree as where it is installed.

find_program(TARNMILL_CHMCMD NAMES chmcmd)
if(NOT TARNMILL_CHMCMD)
  message(WARNING "chmcmd is missing, so the program is built without its help file")
  return()
endif()

set(help_source "${PROJECT_SOURCE_DIR}/help")
set(help_work "${PROJECT_BINARY_DIR}/help")
set(help_result "${PROJECT_BINARY_DIR}/share/tarnmill/Tarnmill.chm")
file(GLOB_RECURSE help_files CONFIGURE_DEPENDS RELATIVE "${help_source}"
  "${help_source}/*.html" "${help_source}/*.css" "${help_source}/*.png")
list(JOIN help_files "\n" help_file_lines)
configure_file("${help_source}/Tarnmill.hhp.in" "${help_work}/Tarnmill.hhp" @ONLY)

set(help_inputs "${help_source}/Tarnmill.hhc")
foreach(file IN LISTS help_files)
  list(APPEND help_inputs "${help_source}/${file}")
endforeach()
# The compiler wants all pages beside its project, and exits with 0 also when it wrote nothing.
add_custom_command(OUTPUT "${help_result}"
  COMMAND "${CMAKE_COMMAND}" -E copy_directory "${help_source}" "${help_work}"
  COMMAND "${CMAKE_COMMAND}" -E chdir "${help_work}" "${TARNMILL_CHMCMD}" Tarnmill.hhp
  COMMAND "${CMAKE_COMMAND}" -E make_directory "${PROJECT_BINARY_DIR}/share/tarnmill"
  COMMAND "${CMAKE_COMMAND}" -E rename "${help_work}/Tarnmill.chm" "${help_result}"
  DEPENDS ${help_inputs} "${help_work}/Tarnmill.hhp" VERBATIM
  COMMENT "Compiling the help file")
add_custom_target(tarnmill_help ALL DEPENDS "${help_result}")
foreach(program IN ITEMS tarnmill tarnmill-script desktop_tests)
  if(TARGET ${program})
    add_dependencies(${program} tarnmill_help)
  endif()
endforeach()
