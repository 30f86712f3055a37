# The reference of the headers is complete, and is no longer so when one explanation is taken away.
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

set(copy ${SCRATCH}/copy)
file(COPY ${SOURCE}/include ${SOURCE}/platform ${SOURCE}/docs DESTINATION ${copy})
set(header ${copy}/include/lumo_ui_tarn/module.h)
file(READ ${header} text)
string(REGEX REPLACE "/\\*\\*[^/]*\\*/\n(LUMO_UI_TARN_API void lumo_ui_tarn_type_variant_dump)" "\\1" less "${text}")
if(less STREQUAL text)
  message(FATAL_ERROR "there was nothing to take away")
endif()
file(WRITE ${header} "${less}")
build_reference(${copy} code)
if(code EQUAL 0 OR NOT output MATCHES "lumo_ui_tarn_type_variant_dump")
  message(FATAL_ERROR "nobody noticed that an explanation is missing:\n${output}")
endif()
