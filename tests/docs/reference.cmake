# The reference of the headers is complete, and is reported as incomplete if a comment is removed from a header.
#   cmake -DDOXYGEN= -DPYTHON= -DSOURCE= -DSCRATCH= -P reference.cmake
function(build_reference folder result)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env TARN_REFERENCE=${SCRATCH}/reference ${DOXYGEN} docs/Doxyfile
                  WORKING_DIRECTORY ${folder} RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
  set(${result} ${code} PARENT_SCOPE)
  set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${SCRATCH})
file(MAKE_DIRECTORY ${SCRATCH})
build_reference(${SOURCE} code)
if(NOT code EQUAL 0)
  message(FATAL_ERROR "the reference has gaps:\n${output}")
endif()
execute_process(COMMAND ${PYTHON} ${CMAKE_CURRENT_LIST_DIR}/documented.py ${SOURCE}/tests/golden/exports.txt
                        ${SCRATCH}/reference/xml COMMAND_ERROR_IS_FATAL ANY)

# remove_text(HEADER BEFORE AFTER NAME): the copy of the header, without the text BEFORE that precedes AFTER.
set(copy ${SCRATCH}/copy)
function(remove_text header before after name)
  file(REMOVE_RECURSE ${copy})
  file(COPY ${SOURCE}/include ${SOURCE}/platform ${SOURCE}/docs DESTINATION ${copy})
  file(READ ${copy}/include/${header} text)
  string(REGEX REPLACE "${before}(${after})" "\\1" less "${text}")
  if(less STREQUAL text)
    message(FATAL_ERROR "there was no text to remove")
  endif()
  file(WRITE ${copy}/include/${header} "${less}")
  build_reference(${copy} code)
  if(code EQUAL 0 OR NOT output MATCHES "${name}")
    message(FATAL_ERROR "the missing comment of ${name} was not reported:\n${output}")
  endif()
endfunction()
remove_text(lumo_ui_tarn/module.h "/\\*\\*[^/]*\\*/\n" "LUMO_UI_TARN_API void lumo_ui_tarn_type_variant_dump"
          lumo_ui_tarn_type_variant_dump)
remove_text(lumo_ui_tarn.hpp "/// [^\n]*\n *" "std::uint16_t src_port_min\\(\\) const" src_port_min)
remove_text(lumo_ui_tarn/interface.hpp "/// [^\n]*\n *" "\\[\\[nodiscard\\]\\] bool is_tracked\\(\\) const" is_tracked)
