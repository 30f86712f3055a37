# Generates NAME.h from a text file: one constant with the whole text. So a long text that a program prints can be a
# file in its own language.
function(embed_text target name file)
  set(path ${CMAKE_CURRENT_SOURCE_DIR}/${file})
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/embedded)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${path})
  file(READ ${path} text)
  file(CONFIGURE OUTPUT ${folder}/${name}.h @ONLY CONTENT
    "#pragma once\n\ninline constexpr char @name@[] = R\"embedded(@text@)embedded\";\n")
  target_include_directories(${target} PRIVATE ${folder})
endfunction()
