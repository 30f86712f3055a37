# Generates NAME.h from a text file: a constant with the whole text, and one with the bytes of its SHA-256. So a long
# text that a program prints can be a file in its own language.
function(embed_text target name file)
  set(path ${CMAKE_CURRENT_SOURCE_DIR}/${file})
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/embedded)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${path})
  file(READ ${path} text)
  file(SHA256 ${path} digest)
  string(REGEX REPLACE "(..)" "0x\\1, " digest ${digest})
  file(CONFIGURE OUTPUT ${folder}/${name}.h @ONLY CONTENT
    "#pragma once\n\ninline constexpr char @name@[] = R\"embedded(@text@)embedded\";
inline constexpr unsigned char @name@_sha256[] = {@digest@};\n")
  target_include_directories(${target} PRIVATE ${folder})
endfunction()
