# Compiles every public header by itself, as the first and only include of a source, with all warnings that clients may
# enable.
#   cmake -DCOMPILER= -DLANGUAGE= -DSTANDARD= -DINCLUDE= -DHEADERS= -DLEAST= -DSOURCE= -P headers.cmake
# INCLUDE is a list of folders; the headers of the first that match HEADERS are compiled, and there must be LEAST of
# them. SOURCE has one declaration: a header may consist of comments, and a source may not be empty.
list(GET INCLUDE 0 folder)
list(TRANSFORM INCLUDE PREPEND -I)
file(GLOB_RECURSE headers RELATIVE ${folder} ${folder}/${HEADERS})
list(LENGTH headers count)
if(count LESS ${LEAST})
  message(FATAL_ERROR "only ${count} headers in ${folder}")
endif()
if(COMPILER MATCHES "clang")
  # All warnings except those about the language version, about padding, about the names of the contract, some of which
  # begin with an underscore, and two of newer versions: a switch over all enumerators needs no default, and frames are
  # read through pointers.
  set(warnings -Weverything -Wno-c++98-compat -Wno-c++98-compat-pedantic -Wno-padded
      -Wno-reserved-identifier -Wno-unknown-warning-option -Wno-switch-default -Wno-unsafe-buffer-usage)
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
    COMMAND ${COMPILER} -x ${LANGUAGE} -std=${STANDARD} -fsyntax-only ${warnings} -Werror ${INCLUDE}
            -include ${folder}/${header} ${SOURCE}
    RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT code EQUAL 0)
    message("${header} does not compile as ${STANDARD}:\n${output}")
    math(EXPR failed "${failed} + 1")
  endif()
endforeach()
if(failed GREATER 0)
  message(FATAL_ERROR "${failed} headers do not compile alone as ${STANDARD}")
endif()
