include(GNUInstallDirs)

# Makes the font of symbols and builds it into `target`. Where fontTools or the STIX fonts are missing the
# program is built without it, and tells so when its chart of symbols opens.
function(tarnmill_build_marrow target)
  # Debian's own Python has Debian's fontTools; another one in the PATH may lack it.
  find_program(TARNMILL_FONT_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH)
  find_file(TARNMILL_STIX STIXGeneral-Regular.otf
    PATHS /usr/share/fonts PATH_SUFFIXES opentype/stix stix opentype NO_DEFAULT_PATH)
  set(has_font_tools 1)
  if(TARNMILL_FONT_PYTHON)
    execute_process(COMMAND "${TARNMILL_FONT_PYTHON}" -c "import fontTools.fontBuilder"
      RESULT_VARIABLE has_font_tools OUTPUT_QUIET ERROR_QUIET)
  endif()
  if(NOT TARNMILL_STIX OR NOT has_font_tools EQUAL 0)
    message(WARNING "The font Marrow is not made: python3-fonttools or fonts-stix is missing")
    return()
  endif()

  set(font "${PROJECT_BINARY_DIR}/marrow/Marrow.ttf")
  set(maker "${PROJECT_SOURCE_DIR}/packaging/make-marrow")
  set(source "${PROJECT_BINARY_DIR}/marrow/qrc_marrow.cpp")
  file(WRITE "${PROJECT_BINARY_DIR}/marrow/marrow.qrc"
    "<RCC><qresource prefix=\"/tarnmill/fonts\"><file>Marrow.ttf</file></qresource></RCC>\n")
  add_custom_command(OUTPUT "${font}"
    COMMAND "${TARNMILL_FONT_PYTHON}" "${maker}" "${TARNMILL_STIX}" "${font}"
    DEPENDS "${maker}" "${TARNMILL_STIX}" VERBATIM COMMENT "Making the font Marrow")
  add_custom_command(OUTPUT "${source}"
    COMMAND Qt6::rcc --name marrow -o "${source}" "${PROJECT_BINARY_DIR}/marrow/marrow.qrc"
    DEPENDS "${font}" VERBATIM COMMENT "Building in the font Marrow")
  target_sources(${target} PRIVATE "${source}")
  set_source_files_properties("${source}" PROPERTIES SKIP_AUTOGEN ON)
  target_compile_definitions(${target} PRIVATE TARNMILL_HAS_MARROW)
  install(FILES "${font}" DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/fonts/truetype/tarnmill" COMPONENT programs)
endfunction()
