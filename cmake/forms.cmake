# Compiles the .ui forms of `folder` into headers ui_<Name>.h that `target` and its users include.
function(tarnmill_compile_forms target folder)
  file(GLOB forms CONFIGURE_DEPENDS "${folder}/*.ui")
  set(output "${PROJECT_BINARY_DIR}/ui")
  set(headers)
  foreach(form IN LISTS forms)
    get_filename_component(name "${form}" NAME_WE)
    set(header "${output}/ui_${name}.h")
    add_custom_command(OUTPUT "${header}"
      COMMAND Qt6::uic -o "${header}" "${form}"
      DEPENDS "${form}" VERBATIM
      COMMENT "Compiling the form ${name}")
    list(APPEND headers "${header}")
  endforeach()
  file(MAKE_DIRECTORY "${output}")
  target_sources(${target} PRIVATE ${headers})
  set_source_files_properties(${headers} PROPERTIES SKIP_AUTOGEN ON)
  # Generated code is not held to our warnings.
  target_include_directories(${target} SYSTEM PUBLIC "${output}")
endfunction()
