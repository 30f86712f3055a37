# Compiles every public header by itself, as the first and only thing that a source includes.
#   cmake -DCOMPILER= -DLANGUAGE= -DSTANDARD= -DINCLUDE= -DSOURCE= [-DHEADERS=] -P headers.cmake
# SOURCE holds one declaration, since a header may be nothing but a comment and a source may not be empty.
if(HEADERS)
  set(headers ${HEADERS})
else()
  file(GLOB_RECURSE headers RELATIVE ${INCLUDE} ${INCLUDE}/*.h)
  list(LENGTH headers count)
  if(count LESS 70)
    message(FATAL_ERROR "only ${count} headers in ${INCLUDE}")
  endif()
endif()
set(failed 0)
foreach(header IN LISTS headers)
  execute_process(
    COMMAND ${COMPILER} -x ${LANGUAGE} -std=${STANDARD} -fsyntax-only -Wall -Wextra -Wpedantic -Wconversion -Werror
            -I${INCLUDE} -include ${INCLUDE}/${header} ${SOURCE}
    RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT code EQUAL 0)
    message("${header} does not compile as ${STANDARD}:\n${output}")
    math(EXPR failed "${failed} + 1")
  endif()
endforeach()
if(failed GREATER 0)
  message(FATAL_ERROR "${failed} headers do not compile alone as ${STANDARD}")
endif()
