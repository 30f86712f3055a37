# Compiles every public header by itself, as the first and only include of a source, with all warnings that clients may
# enable.
#   cmake -DCOMPILER= -DLANGUAGE= -DSTANDARD= -DINCLUDE= -DSOURCE= -P headers.cmake
# SOURCE has one declaration: a header may consist of comments, and a source may not be empty.
file(GLOB_RECURSE headers RELATIVE ${INCLUDE} ${INCLUDE}/*.h)
list(LENGTH headers count)
if(count LESS 70)
  message(FATAL_ERROR "only ${count} headers in ${INCLUDE}")
endif()
if(COMPILER MATCHES "clang")
  # All warnings except those about the language version, about padding, and about the names of the contract, some of
  # which begin with an underscore.
  set(warnings -Weverything -Wno-c++98-compat -Wno-c++98-compat-pedantic -Wno-padded
      -Wno-reserved-identifier)
else()
  set(warnings -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wundef -Wcast-align=strict -Wcast-qual
      -Wredundant-decls -Wformat=2 -Wdouble-promotion -Wnull-dereference -Wduplicated-cond -Wlogical-op)
  if(LANGUAGE STREQUAL c)
    list(APPEND warnings -Wstrict-prototypes -Wold-style-definition -Wmissing-prototypes -Wc++-compat)
  else()
    list(APPEND warnings -Wold-style-cast -Wuseless-cast -Wzero-as-null-pointer-constant -Wextra-semi)
  endif()
endif()
set(failed 0)
foreach(header IN LISTS headers)
  execute_process(
    COMMAND ${COMPILER} -x ${LANGUAGE} -std=${STANDARD} -fsyntax-only ${warnings} -Werror -I${INCLUDE}
            -include ${INCLUDE}/${header} ${SOURCE}
    RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT code EQUAL 0)
    message("${header} does not compile as ${STANDARD}:\n${output}")
    math(EXPR failed "${failed} + 1")
  endif()
endforeach()
if(failed GREATER 0)
  message(FATAL_ERROR "${failed} headers do not compile alone as ${STANDARD}")
endif()
